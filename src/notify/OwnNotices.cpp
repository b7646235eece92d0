#include "notify/OwnNotices.h"

#include "catalog/DisplayText.h"

#include <QCoreApplication>

namespace loom::ownNotices
{

namespace
{

constexpr qsizetype longestReply = 4000;
constexpr qsizetype longestOrderName = 64;

} // namespace

AppNotification supportReply(const QString& messageID, const QString& text)
{
    const QString shown = displayText(text, longestReply);
    return {.id = QStringLiteral("support-") + messageID,
            .title = QCoreApplication::translate("Loomstreet", "Customer Service"),
            .body = shown.isEmpty() ? QCoreApplication::translate("Loomstreet", "Sent an attachment") : shown,
            .symbol = QStringLiteral("headphones"),
            .type = QStringLiteral("support")};
}

AppNotification orderPlaced(const QString& orderName, const QUuid& unique)
{
    const QString name = displayLine(orderName, longestOrderName);
    return {.id = QStringLiteral("order-placed-") + (name.isEmpty() ? unique.toString(QUuid::WithoutBraces) : name),
            .title = QCoreApplication::translate("Loomstreet", "Order placed"),
            .body = name.isEmpty()
                        ? QCoreApplication::translate(
                              "Loomstreet", "Your order is confirmed. It will show under Orders in a few minutes.")
                        : QCoreApplication::translate(
                              "Loomstreet", "Order %1 is confirmed. It will show under Orders in a few minutes.")
                              .arg(name),
            .symbol = QStringLiteral("checkmark.seal"),
            .type = QStringLiteral("order"),
            .link = QStringLiteral("/orders")};
}

AppNotification unavailable(const QString& featureKey)
{
    return {.id = QStringLiteral("unavailable-") + featureKey,
            .title = QCoreApplication::translate("Loomstreet", "Temporarily unavailable"),
            .body =
                QCoreApplication::translate("Loomstreet", "This feature is paused for now. Please try again later."),
            .symbol = QStringLiteral("pause.circle"),
            .type = QStringLiteral("notice")};
}

AppNotification updateFailed()
{
    return {.id = QLatin1String(AppNotification::updateFailedID),
            .title = QCoreApplication::translate("Loomstreet", "LOOMSTREET couldn't update itself"),
            .body = QCoreApplication::translate(
                "Loomstreet", "Click Update at the top of the window to install the new version from the disk image."),
            .symbol = QStringLiteral("arrow.down.circle"),
            .type = QStringLiteral("notice")};
}

AppNotification preview(const QUuid& unique)
{
    return {.id = QStringLiteral("preview-") + unique.toString(QUuid::WithoutBraces),
            .title = QCoreApplication::translate("Loomstreet", "Notification preview"),
            .body = QCoreApplication::translate("Loomstreet",
                                                "New order updates and customer service replies will appear here."),
            .symbol = QStringLiteral("bell.badge"),
            .type = QStringLiteral("preview")};
}

} // namespace loom::ownNotices
