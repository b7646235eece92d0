#include "account/OrderWords.h"

#include "catalog/DateFormat.h"
#include "catalog/MoneyFormat.h"

#include <QCoreApplication>

#include <numeric>

namespace loom
{

QString statusText(OrderStatus status)
{
    switch (status) {
    case OrderStatus::Confirmed:
        return QCoreApplication::translate("Loomstreet", "Confirmed");
    case OrderStatus::Packed:
        return QCoreApplication::translate("Loomstreet", "Packed");
    case OrderStatus::Shipped:
        return QCoreApplication::translate("Loomstreet", "On the way");
    case OrderStatus::Delivered:
        return QCoreApplication::translate("Loomstreet", "Delivered");
    case OrderStatus::Cancelled:
        return QCoreApplication::translate("Loomstreet", "Cancelled");
    case OrderStatus::Unknown:
        break;
    }
    return QCoreApplication::translate("Loomstreet", "In progress");
}

QString statusText(PackageStatus status)
{
    switch (status) {
    case PackageStatus::Label:
        return QCoreApplication::translate("Loomstreet", "Waiting for the carrier");
    case PackageStatus::Transit:
        return QCoreApplication::translate("Loomstreet", "On the way");
    case PackageStatus::Out:
        return QCoreApplication::translate("Loomstreet", "Out for delivery");
    case PackageStatus::Delivered:
        return QCoreApplication::translate("Loomstreet", "Delivered");
    case PackageStatus::Problem:
        return QCoreApplication::translate("Loomstreet", "Delivery problem");
    case PackageStatus::Unknown:
        break;
    }
    return QCoreApplication::translate("Loomstreet", "In progress");
}

QString statusText(RefundStatus status)
{
    switch (status) {
    case RefundStatus::Requested:
        return QCoreApplication::translate("Loomstreet", "Return requested");
    case RefundStatus::Approved:
        return QCoreApplication::translate("Loomstreet", "Return approved");
    case RefundStatus::Refunded:
        return QCoreApplication::translate("Loomstreet", "Refunded");
    case RefundStatus::Refused:
        return QCoreApplication::translate("Loomstreet", "Return refused");
    case RefundStatus::Unknown:
        break;
    }
    return QCoreApplication::translate("Loomstreet", "In progress");
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
    return QCoreApplication::translate("Loomstreet", "%Ln pieces", nullptr, count);
}

QString summary(const Order& order)
{
    if (order.lines.empty())
        return {};
    const QString& first = order.lines.front().title;
    const int others = static_cast<int>(order.lines.size()) - 1;
    return others == 0 ? first
                       : QCoreApplication::translate("Loomstreet", "%1 and %Ln more", nullptr, others).arg(first);
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
