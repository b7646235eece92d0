#include "notify/NoticeText.h"

#include <QRegularExpression>

namespace loom
{

QString adaptedForDesktop(const QString& text)
{
    if (!text.contains(QLatin1String("Tap to ")))
        return text;
    static const QRegularExpression atAStart(QStringLiteral(R"((^|[.!?]\s+)Tap to )"));
    return QString(text).replace(atAStart, QStringLiteral("\\1Click to "));
}

bool isPersonal(const AppNotification& notification)
{
    return !notification.accountID.isEmpty() || notification.type == QLatin1String("support") ||
           notification.type == QLatin1String("digest");
}

} // namespace loom
