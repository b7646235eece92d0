#pragma once

#include <QMetaType>
#include <QString>

namespace loom
{

/// A file that came with a message of customer service, or is on its way there.
struct SupportAttachment {
    Q_GADGET
    Q_PROPERTY(QString url MEMBER url)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(int width MEMBER width)
    Q_PROPERTY(int height MEMBER height)
    Q_PROPERTY(bool isPicture READ isPicture)
    Q_PROPERTY(bool isOpenable READ isOpenable)

public:
    QString url; ///< as the service wrote it; empty of what was not sent yet
    QString name;
    QString mimeType;
    int width = 0; ///< of a picture, in pixels; 0 where it is not known
    int height = 0;

    [[nodiscard]] bool isPicture() const { return mimeType.startsWith(QLatin1String("image/")); }
    /// May be shown and handed to the browser.
    [[nodiscard]] bool isOpenable() const;

    bool operator==(const SupportAttachment&) const = default;
};

} // namespace loom
