#include "account/OrderWords.h"

#include "catalog/DateFormat.h"
#include "catalog/MoneyFormat.h"

#include <QCoreApplication>

#include <numeric>

namespace loom
{

namespace
{

QString translated(const char* text)
{
    return QCoreApplication::translate("Loomstreet", text);
}

} // namespace

QString statusText(OrderStatus status)
{
    switch (status) {
    case OrderStatus::Confirmed:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Confirmed"));
    case OrderStatus::Packed:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Packed"));
    case OrderStatus::Shipped:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "On the way"));
    case OrderStatus::Delivered:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Delivered"));
    case OrderStatus::Cancelled:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Cancelled"));
    case OrderStatus::Unknown:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("Loomstreet", "In progress"));
}

QString statusText(PackageStatus status)
{
    switch (status) {
    case PackageStatus::Label:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Waiting for the carrier"));
    case PackageStatus::Transit:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "On the way"));
    case PackageStatus::Out:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Out for delivery"));
    case PackageStatus::Delivered:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Delivered"));
    case PackageStatus::Problem:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Delivery problem"));
    case PackageStatus::Unknown:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("Loomstreet", "In progress"));
}

QString statusText(RefundStatus status)
{
    switch (status) {
    case RefundStatus::Requested:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Return requested"));
    case RefundStatus::Approved:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Return approved"));
    case RefundStatus::Refunded:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Refunded"));
    case RefundStatus::Refused:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "Return refused"));
    case RefundStatus::Unknown:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("Loomstreet", "In progress"));
}

QString toneOf(OrderStatus status)
{
    switch (status) {
    case OrderStatus::Delivered:
        return QStringLiteral("success");
    case OrderStatus::Shipped:
        return QStringLiteral("accent");
    default:
        return QStringLiteral("plain");
    }
}

QString toneOf(PackageStatus status)
{
    switch (status) {
    case PackageStatus::Delivered:
        return QStringLiteral("success");
    case PackageStatus::Transit:
    case PackageStatus::Out:
        return QStringLiteral("accent");
    case PackageStatus::Problem:
        return QStringLiteral("danger");
    default:
        return QStringLiteral("plain");
    }
}

QString toneOf(RefundStatus status)
{
    switch (status) {
    case RefundStatus::Refunded:
        return QStringLiteral("success");
    case RefundStatus::Approved:
        return QStringLiteral("accent");
    case RefundStatus::Refused:
        return QStringLiteral("danger");
    default:
        return QStringLiteral("plain");
    }
}

QString pieceCountText(const Order& order)
{
    const int count = std::accumulate(order.lines.begin(), order.lines.end(), 0,
                                      [](int sum, const OrderLine& line) { return sum + line.quantity; });
    return count == 1 ? translated(QT_TRANSLATE_NOOP("Loomstreet", "1 piece"))
                      : translated(QT_TRANSLATE_NOOP("Loomstreet", "%1 pieces")).arg(count);
}

QString summary(const Order& order)
{
    if (order.lines.empty())
        return {};
    const QString& first = order.lines.front().title;
    switch (order.lines.size()) {
    case 1:
        return first;
    case 2:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "%1 and 1 more")).arg(first);
    default:
        return translated(QT_TRANSLATE_NOOP("Loomstreet", "%1 and %2 more")).arg(first).arg(order.lines.size() - 1);
    }
}

QVariantMap describe(const Package& package, const DateFormat& dates)
{
    QVariantList events;
    for (const PackageEvent& event : package.events) {
        events.append(QVariantMap{{QStringLiteral("text"), event.text},
                                  {QStringLiteral("place"), event.place},
                                  {QStringLiteral("when"), dates.moment(event.at)}});
    }
    const bool isComing = package.expectedAt && package.status != PackageStatus::Delivered;
    return {{QStringLiteral("number"), package.number},
            {QStringLiteral("carrier"), package.carrier},
            {QStringLiteral("status"), statusText(package.status)},
            {QStringLiteral("tone"), toneOf(package.status)},
            {QStringLiteral("expected"), isComing ? dates.day(*package.expectedAt) : QString()},
            {QStringLiteral("url"), package.url},
            {QStringLiteral("events"), events}};
}

QVariantMap describe(const Refund& refund, const DateFormat& dates, const MoneyFormat& money)
{
    return {{QStringLiteral("status"), statusText(refund.status)},
            {QStringLiteral("tone"), toneOf(refund.status)},
            {QStringLiteral("date"), dates.day(refund.createdAt)},
            {QStringLiteral("amount"), money.text(refund.amount)},
            {QStringLiteral("reason"), refund.reason},
            {QStringLiteral("rmaNo"), refund.rmaNo}};
}

QVariantMap describe(const OrderLine& line, const MoneyFormat& money)
{
    const auto sum = [&line](Money price) {
        price.amount *= line.quantity;
        return price;
    };
    return {{QStringLiteral("title"), line.title},
            {QStringLiteral("variant"), line.variantTitle},
            {QStringLiteral("handle"), line.handle},
            {QStringLiteral("picture"), line.imageURL},
            {QStringLiteral("quantity"), line.quantity},
            {QStringLiteral("price"), line.price ? money.text(sum(*line.price)) : QString()}};
}

} // namespace loom
