#pragma once

#include <QObject>
#include <QVariant>

namespace loom
{

/// A piece beside a message, or one that the shopper attaches to a message.
struct MiraCard {
    Q_GADGET
    Q_PROPERTY(QString handle MEMBER handle)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString vendor MEMBER vendor)
    Q_PROPERTY(QString priceText MEMBER priceText)
    Q_PROPERTY(QString formerPriceText MEMBER formerPriceText)
    Q_PROPERTY(QString image MEMBER image)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(bool isLive MEMBER isLive)
    Q_PROPERTY(bool isSoldOut MEMBER isSoldOut)
    Q_PROPERTY(bool isPending MEMBER isPending)
    Q_PROPERTY(QVariant item MEMBER item)

public:
    QString handle;
    QString title;
    QString vendor;
    QString priceText;
    QString formerPriceText; ///< to be struck through; empty where there is none
    QString image;
    QString reason;
    bool isLive = false;    ///< the catalog says so, not the message
    bool isSoldOut = false; ///< as far as the catalog says
    bool isPending = false; ///< the catalog has yet to answer
    QVariant item;          ///< the card of the catalog, where it is live

    bool operator==(const MiraCard&) const = default;
};

} // namespace loom

Q_DECLARE_METATYPE(loom::MiraCard)
