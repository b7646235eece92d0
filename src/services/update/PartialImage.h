#pragma once

#include <QByteArray>
#include <QFile>
#include <QUrl>

namespace loom
{

/// An image that is still growing, in `file` + ".part", and what is known of it, in ".part.json" beside it. Whoever has
/// it open has it alone. Owned by an ImageTransfer, on its thread; blocks.
class PartialImage
{
public:
    PartialImage(QString file, const QUrl& url);

    enum class Opening {
        Open,
        Taken, ///< another download still has it
        Failed,
    };
    /// What lies there of the image of this address is kept as long as it can be told to be the server's.
    [[nodiscard]] Opening open();

    [[nodiscard]] qint64 size() const { return m_size; }
    /// The strong ETag or the date of the version these bytes are of (RFC 9110); empty: they cannot be continued.
    [[nodiscard]] const QByteArray& validator() const { return m_validator; }

    /// Begins anew, with a version that `validator` tells from others.
    [[nodiscard]] bool restart(const QByteArray& validator);
    [[nodiscard]] bool append(const QByteArray& bytes);
    /// Whether the disk has room for that much more.
    [[nodiscard]] bool hasRoomFor(qint64 bytes) const;
    /// The image is whole: it is on the disk, and in its place, when this returns true.
    [[nodiscard]] bool complete();
    /// Of no use to anybody.
    void discard();

private:
    [[nodiscard]] QByteArray knownValidator() const;
    [[nodiscard]] QString memo() const { return m_part.fileName() + QStringLiteral(".json"); }

    QString m_file;
    QByteArray m_url;
    QFile m_part;
    QByteArray m_validator;
    qint64 m_size = 0;
};

} // namespace loom
