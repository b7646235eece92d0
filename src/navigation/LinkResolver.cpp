#include "navigation/LinkResolver.h"

#include "catalog/Department.h"

#include <QRegularExpression>
#include <QUrlQuery>

#include <array>

namespace loom
{

namespace
{

const QRegularExpression::PatternOptions caseless = QRegularExpression::CaseInsensitiveOption;

QString captured(const QString& pattern, const QString& path, int group)
{
    const QRegularExpressionMatch match = QRegularExpression(pattern, caseless).match(path);
    return match.hasMatch() ? match.captured(group) : QString();
}

bool isWebAddress(const QString& link)
{
    return link.startsWith(QLatin1String("http://"), Qt::CaseInsensitive) ||
           link.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
}

LinkResolver::Target external(const QString& address)
{
    const QUrl url(address);
    if (!url.isValid() || url.host().isEmpty())
        return LinkResolver::None{};
    return LinkResolver::External{url};
}

LinkResolver::Target search(const QString& link)
{
    const QString query = QUrlQuery(QUrl(link)).queryItemValue(QStringLiteral("q"), QUrl::FullyDecoded);
    if (query.isEmpty())
        return LinkResolver::None{};
    return LinkResolver::Search{query};
}

} // namespace

LinkResolver::LinkResolver(QString storeHost)
    : m_storeHost(std::move(storeHost))
{
}

QString LinkResolver::asPath(const QString& link) const
{
    QString result = link.trimmed();
    for (const char* const scheme : {"loomstreet://", "loomstreet-dev://", "shopify://"}) {
        const QLatin1String prefix(scheme);
        if (result.startsWith(prefix, Qt::CaseInsensitive))
            result = QLatin1Char('/') + result.mid(prefix.size());
    }
    const QRegularExpression storeSite(QStringLiteral("^https?://(?:www\\.)?") +
                                           QRegularExpression::escape(m_storeHost) + QStringLiteral("(/.*)?$"),
                                       caseless);
    if (const QRegularExpressionMatch match = storeSite.match(result); match.hasMatch())
        result = match.captured(1).isEmpty() ? QStringLiteral("/") : match.captured(1);
    return result;
}

LinkResolver::Target LinkResolver::resolve(const std::optional<QString>& text) const
{
    if (!text || text->trimmed().isEmpty())
        return None{};
    QString link = asPath(*text);
    if (isWebAddress(link))
        return external(link);
    if (!link.startsWith(QLatin1Char('/')))
        link.prepend(QLatin1Char('/'));

    const QString path = link.left(link.indexOf(QRegularExpression(QStringLiteral("[?#]"))));
    const QString lowered = path.toLower();
    if (lowered.startsWith(QLatin1String("/pages/brands-at-loomstreet")))
        return Brands{};
    if (lowered.startsWith(QLatin1String("/pages/starlook")))
        return Starlook{};

    if (const QString handle = captured(QStringLiteral("/collections/([^/?#]+)/products/([^/?#]+)"), path, 2);
        !handle.isEmpty())
        return Product{handle};
    if (const QString handle = captured(QStringLiteral("/products/([^/?#]+)"), path, 1); !handle.isEmpty())
        return Product{handle};
    if (const QString handle = captured(QStringLiteral("/collections/([^/?#]+)"), path, 1); !handle.isEmpty()) {
        const bool isEverything = handle == QLatin1String("all");
        return Collection{isEverything ? QString(allPiecesCollection) : handle};
    }

    if (lowered.startsWith(QLatin1String("/search")))
        return search(link);
    if (lowered == QLatin1String("/cart"))
        return Cart{};
    if (lowered.startsWith(QLatin1String("/account")))
        return Account{};
    if (lowered == QLatin1String("/"))
        return None{};
    return external(QStringLiteral("https://") + m_storeHost + link);
}

} // namespace loom
