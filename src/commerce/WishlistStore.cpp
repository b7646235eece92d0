#include "commerce/WishlistStore.h"

#include "base/Clock.h"
#include "net/SessionSource.h"
#include "net/WidgetClient.h"
#include "storage/Preferences.h"

#include <QJsonArray>

namespace loom
{

using namespace std::chrono_literals;

namespace
{

/// Changes within this travel as one call.
constexpr std::chrono::seconds gathering = 2s;

/// What the backend is told of a piece.
struct Summary {
    QString handle;
    QString title;
    Money price;
};

QJsonArray summaries(const std::vector<Summary>& pieces)
{
    QJsonArray list;
    for (const Summary& piece : pieces) {
        list.append(QJsonObject{{QStringLiteral("handle"), piece.handle},
                                {QStringLiteral("title"), piece.title},
                                {QStringLiteral("price"), piece.price.amount},
                                {QStringLiteral("currency"), piece.price.currencyCode}});
    }
    return list;
}

} // namespace

WishlistStore::WishlistStore(DataFolder& folder, Preferences& preferences, WidgetClient& widget,
                             const SessionSource& session, Clock& clock, QObject* parent)
    : KeptPieces(QStringLiteral("lst_wishlist"), 0, folder, clock, parent)
    , m_preferences(preferences)
    , m_widget(widget)
    , m_session(session)
    , m_clock(clock)
{
    connect(this, &KeptPieces::edited, this, &WishlistStore::wantSync);
    // What could not be told before the application ended is told now.
    connect(this, &KeptPieces::loaded, this, [this] {
        if (m_preferences.value(preferences::wishlistUntold))
            static_cast<void>(sync());
    });
    connect(this, &KeptPieces::forgotten, this, [this] {
        m_syncing.stop();
        m_preferences.set(preferences::wishlistUntold, false);
    });
}

bool WishlistStore::add(const ProductListItem& item)
{
    if (item.handle.isEmpty() || contains(item.handle))
        return false;
    putFirst(item);
    return true;
}

void WishlistStore::toggle(const QVariant& item)
{
    if (!item.canConvert<ProductListItem>())
        return;
    const auto piece = item.value<ProductListItem>();
    if (!remove(piece.handle))
        add(piece);
}

void WishlistStore::wantSync()
{
    m_preferences.set(preferences::wishlistUntold, true);
    if (isLoaded() && !m_syncing.isRunning())
        static_cast<void>(sync());
}

QCoro::Task<> WishlistStore::sync()
{
    const Work::Run run = m_syncing.begin();
    for (int told = revision() - 1; told != revision();) {
        co_await m_clock.sleep(gathering, run.stop());
        if (run.isStopped())
            co_return;
        told = revision();
        std::vector<Summary> pieces;
        pieces.reserve(items().size());
        for (const ProductListItem& item : items())
            pieces.push_back({.handle = item.handle, .title = item.title, .price = item.price});
        QJsonObject body{{QStringLiteral("items"), co_await QtConcurrent::run(summaries, std::move(pieces))}};
        if (run.isStopped())
            co_return;
        if (const QString email = m_session.email(); !email.isEmpty()) {
            body.insert(QStringLiteral("email"), email);
            body.insert(QStringLiteral("platform"), QStringLiteral("macos"));
        }
        const auto answer = co_await m_widget.post(QStringLiteral("/wishlist-sync"), body, {}, run.stop());
        if (run.isStopped())
            co_return;
        // Of a failure nobody is told: the next change or the next start tells all of the list again.
        if (answer && told == revision())
            m_preferences.set(preferences::wishlistUntold, false);
    }
}

} // namespace loom
