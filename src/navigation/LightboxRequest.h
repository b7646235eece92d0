#pragma once

#include <QMetaType>
#include <QStringList>

#include <optional>

namespace loom
{

/// Pictures to look at in the whole window.
struct LightboxRequest {
    Q_GADGET
    Q_PROPERTY(QStringList images MEMBER images)
    Q_PROPERTY(int index MEMBER index)
    Q_PROPERTY(bool isSlideshow MEMBER isSlideshow)
    Q_PROPERTY(QString title READ titleText)

public:
    QStringList images; ///< addresses
    int index = 0;      ///< the picture shown first
    bool isSlideshow = false;
    std::optional<QString> title;

    [[nodiscard]] QString titleText() const { return title.value_or(QString()); }

    bool operator==(const LightboxRequest&) const = default;
};

} // namespace loom

Q_DECLARE_METATYPE(loom::LightboxRequest)
