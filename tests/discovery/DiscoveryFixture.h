#pragma once

#include "base/TextChanges.h"
#include "discovery/NotInterested.h"
#include "discovery/RecoAPI.h"
#include "discovery/RecoCards.h"
#include "discovery/RecoServices.h"
#include "net/WidgetClient.h"

#include "commerce/CartFixture.h"

#include <QUrlQuery>

namespace loom
{

/// A shop whose backend recommends what the test foretold: a feed by its kind or the handle of its collection. A feed
/// that nobody foretold fails with 500.
class DiscoveryFixture : public CartFixture
{
protected:
    DiscoveryFixture()
    {
        server.allow("GET /api/support/widget/reco", [this](const ReceivedRequest& request) {
            const QString handle = item(request, "handle");
            const auto found = feeds.find(handle.isEmpty() ? item(request, "kind") : handle);
            return found == feeds.end() ? Answer::body("{}", 500) : found->second;
        });
    }

    [[nodiscard]] static QString item(const ReceivedRequest& request, const char* key)
    {
        return QUrlQuery(QString::fromLatin1(request.query)).queryItemValue(QLatin1String(key), QUrl::FullyDecoded);
    }
    /// Recommended pieces of 100 US dollars, by the handles in `list`.
    [[nodiscard]] static QJsonArray recommended(const QString& list)
    {
        QJsonArray products;
        for (const QString& handle : list.split(u' ', Qt::SkipEmptyParts))
            products.append(QJsonObject{{QStringLiteral("handle"), handle},
                                        {QStringLiteral("title"), handle.toUpper()},
                                        {QStringLiteral("price"), 100}});
        return products;
    }
    void recommend(const QString& feed, const QString& handles)
    {
        feeds.insert_or_assign(feed, Answer::json({{QStringLiteral("products"), recommended(handles)}}));
    }
    [[nodiscard]] static std::string shownIn(const RecoCards& cards)
    {
        return cards.handles().join(u' ').toStdString();
    }
    [[nodiscard]] static QString told(RecoCards& cards, int row, int role)
    {
        return cards.pieces()->data(cards.pieces()->index(row), role).toString();
    }

    CallerIdentity identity{.visitorId = QStringLiteral("visitor-1"), .customer = {}, .email = {}, .name = {}};
    QStringList viewed;
    std::map<QString, Answer> feeds;
    WidgetClient widget{server.base(), QStringLiteral("key-1"), transport, session, random};
    RecoAPI reco{widget, market, [this] { return identity; },
                 [this] {
                     return viewed;
                 }};
    NotInterested hidden{folder};
    TextChanges texts;
    RecoServices services{.api = reco,
                          .market = market,
                          .hidden = hidden,
                          .cart = *store,
                          .money = money,
                          .clock = clock,
                          .texts = texts};
};

} // namespace loom
