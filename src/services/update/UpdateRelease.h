#pragma once

#include "base/Result.h"

#include <QMap>
#include <QString>
#include <QUrl>

#include <optional>

namespace loom
{

/// A release of the application as the store announces it.
struct UpdateRelease {
    std::optional<QString> min;  ///< the lowest version still supported
    QString latest;              ///< its version: dotted numbers
    std::optional<qint64> build; ///< tells releases of the same version apart
    QUrl url;                    ///< of the image; https
    std::optional<QString> sha256;
    std::optional<qint64> size;    ///< of the image, in bytes
    QMap<QString, QString> notes;  ///< by the codes of languages
    std::optional<qint64> rollout; ///< percentage of the installations that are offered it

    bool operator==(const UpdateRelease&) const = default;

    /// Where its detached signature lies.
    [[nodiscard]] QUrl signatureUrl() const;
    /// What tells it apart from every other release: the version, a hyphen and the build number (0 where it has none).
    [[nodiscard]] QString key() const;
    /// The notes in a language, or in English, or in the first there is.
    [[nodiscard]] QString notesIn(const QString& languageCode) const;
};

/// The answer to the question for the newest release: nothing while none is announced. The failure says what is wrong
/// with it.
[[nodiscard]] Result<std::optional<UpdateRelease>, QString> decodeUpdateRelease(const QByteArray& body);

} // namespace loom
