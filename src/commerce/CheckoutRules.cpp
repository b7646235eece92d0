#include "commerce/CheckoutRules.h"

#include <QRegularExpression>
#include <QUrlQuery>

namespace loom
{

namespace
{

constexpr qsizetype maximumLength = 8192;
/// Longer than any number of an order.
constexpr qsizetype maximumNumberLength = 40;

/// Https without anything that hides where it leads.
bool isPlain(const QUrl& url)
{
    return url.isValid() && url.scheme() == QLatin1String("https") && !url.host().isEmpty() &&
           url.userInfo().isEmpty() && !url.authority().contains(QLatin1Char('@')) && url.port() == -1 &&
           !url.hasFragment() && url.toEncoded().size() <= maximumLength;
}

/// Whether a browser would follow the path out of where it begins.
bool climbs(const QUrl& url)
{
    return url.path(QUrl::FullyDecoded).split(QLatin1Char('/')).contains(QLatin1String(".."));
}

QString firstMatch(const QRegularExpression& expression, const QString& text)
{
    const QString number = expression.match(text).captured(1);
    return number.size() <= maximumNumberLength ? number : QString();
}

} // namespace

CheckoutHosts checkoutHosts(const QUrl& checkoutURL, const QString& supportBase)
{
    return {.checkoutHost = checkoutURL.host().toLower(),
            .handOverStart = QUrl(supportBase + QStringLiteral("/api/support/widget/shopify-checkout/start"))};
}

bool isAllowedInCheckout(const QUrl& url, const CheckoutHosts& hosts)
{
    if (!isPlain(url))
        return false;
    const QString host = url.host().toLower();
    const QString path = url.path(QUrl::FullyEncoded);
    if (!hosts.checkoutHost.isEmpty() && host == hosts.checkoutHost && path.startsWith(QLatin1String("/checkouts/")))
        return !climbs(url);
    if (host != hosts.handOverStart.host().toLower() || path != hosts.handOverStart.path())
        return false;
    const auto items = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    return items.size() == 1 && isHandOverToken(items.front().second);
}

bool mayStartCheckoutAt(const QUrl& checkoutURL)
{
    return isPlain(checkoutURL);
}

bool isHandOverToken(const QString& token)
{
    static const QRegularExpression expression(QStringLiteral("\\A[A-Za-z0-9_-]{32,256}\\z"));
    return expression.match(token).hasMatch();
}

QUrl handOverAddress(const CheckoutHosts& hosts, const QString& token)
{
    QUrl url = hosts.handOverStart;
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("code"), token);
    url.setQuery(query);
    return url;
}

bool isOrderPage(const QUrl& url)
{
    static const QRegularExpression orderPath(QStringLiteral("/orders/[a-z0-9]{16,}"));
    if (url.scheme() != QLatin1String("https"))
        return false;
    const QString path = url.path().toLower();
    return path.contains(QLatin1String("thank-you")) || path.contains(QLatin1String("thank_you")) ||
           orderPath.match(path).hasMatch();
}

std::optional<QString> orderNumber(const QString& pageText)
{
    static const QRegularExpression order(
        QStringLiteral(R"((?i)\border\s*(?:number|no\.?)?\s*[:#]\s*#?\s*([A-Z]{0,4}\d{3,}))"));
    static const QRegularExpression confirmation(
        QStringLiteral(R"((?i)\bconfirmation\s*(?:number|no\.?)?\s*[:#]\s*#?\s*([A-Z0-9]{6,}))"));
    // Long blanks would be tried in all their parts, which a hostile page could make take for ever.
    const QString text = pageText.simplified();
    QString number = firstMatch(order, text);
    if (number.isEmpty())
        number = firstMatch(confirmation, text);
    return number.isEmpty() ? std::nullopt : std::optional(number);
}

} // namespace loom
