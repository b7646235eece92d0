#pragma once

#include <QObject>
#include <QString>

namespace loom
{

/// A promotion as the home page shows it: in the language of the shopper.
struct ShownPromo {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString image MEMBER image)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString subtitle MEMBER subtitle)
    Q_PROPERTY(QString link MEMBER link)

public:
    QString id;
    QString image; ///< empty where there is none
    QString title;
    QString subtitle;
    QString link;

    bool operator==(const ShownPromo&) const = default;
};

} // namespace loom

Q_DECLARE_METATYPE(loom::ShownPromo)
