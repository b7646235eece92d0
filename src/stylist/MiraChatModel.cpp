#include "stylist/MiraChatModel.h"

#include "base/Announcements.h"
#include "base/Clock.h"
#include "catalog/DisplayText.h"
#include "catalog/MarketStore.h"
#include "storage/DataFolder.h"
#include "stylist/MiraContext.h"
#include "stylist/MiraRules.h"
#include "stylist/MiraWeatherStore.h"

#include <QJsonObject>

namespace loom
{

namespace
{

constexpr const char* tokenFile = "lst_guide_token";
/// A thread that was asked for this long ago is asked for anew when somebody looks.
constexpr std::chrono::minutes freshness{5};
constexpr qsizetype longestName = 200;

QStringList translated(const auto& texts)
{
    QStringList list;
    for (const KeyedText& text : texts)
        list.append(text.translated());
    return list;
}

} // namespace

MiraChatModel::MiraChatModel(const MiraServices& services, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_topics(services.folder, services.clock, services.random)
    , m_draft(services.folder, services.clock)
    , m_cards(services.storefront, services.market, services.money, services.clock)
    , m_thread(m_cards, services.dates, services.clock)
    , m_topicsModel(services.dates)
    , m_wardrobe(services.cart, services.wishlist)
    , m_loading([this] { Q_EMIT stateChanged(); })
    , m_sending([this] {
        Q_EMIT stateChanged();
        Q_EMIT draftChanged();
    })
    , m_noticing([this] { Q_EMIT stateChanged(); })
{
    connect(&m_wardrobe, &WardrobeModel::picksChanged, this, &MiraChatModel::contextChanged);
    connect(&services.weather, &MiraWeatherStore::changed, this, &MiraChatModel::contextChanged);
    connect(&services.market, &MarketStore::revisionChanged, this, &MiraChatModel::retranslate);
    connect(&services.announcements, &Announcements::posted, this, [this](Announcement announcement) {
        if (announcement == Announcement::AuthChanged)
            followSession();
    });
}

MiraChatModel::~MiraChatModel() = default;

void MiraChatModel::followSession()
{
    if (m_isOpen)
        static_cast<void>(load(Asked::ByItself));
}

void MiraChatModel::restore()
{
    if (std::exchange(m_isRestored, true))
        return;
    m_token =
        m_services.folder.load(QLatin1String(tokenFile), [](const JsonReader& json) { return json.text("token"); })
            .value_or(QString());
    m_topics.restore();
    m_draft.restore();
    showThread();
    Q_EMIT draftChanged();
}

const QString& MiraChatModel::visitorToken()
{
    restore();
    return m_token;
}

void MiraChatModel::open()
{
    restore();
    const bool isFirst = !std::exchange(m_isOpen, true);
    if (isFirst)
        m_services.weather.begin();
    else
        m_services.weather.refresh();
    const bool isOld = isFirst || m_failure || m_services.clock.elapsed() - m_askedAt >= freshness;
    if (isOld && !isLoading())
        static_cast<void>(load(Asked::ByItself));
    else
        m_thread.retranslate(); // a day may have ended
}

void MiraChatModel::refresh()
{
    open();
    static_cast<void>(load(Asked::ByShopper));
}

void MiraChatModel::retry()
{
    open();
    if (!isLoading())
        static_cast<void>(load(Asked::ByItself));
}

QString MiraChatModel::failure() const
{
    return m_failure ? errorDescription(*m_failure) : QString();
}

void MiraChatModel::dismissFailure()
{
    setFailure({});
}

void MiraChatModel::setFailure(std::optional<MiraFailure> failure)
{
    if (failure == m_failure)
        return;
    m_failure = std::move(failure);
    Q_EMIT stateChanged();
}

QString MiraChatModel::notice() const
{
    return m_noticing.isRunning() ? MiraRules::upToDate.translated() : QString();
}

QString MiraChatModel::replyingNote()
{
    return MiraRules::replying.translated();
}

QString MiraChatModel::queuedNote()
{
    return MiraRules::replyingToQueued.translated();
}

QString MiraChatModel::unconfirmedNote()
{
    return MiraRules::unconfirmed.translated();
}

QString MiraChatModel::topicsNote()
{
    return MiraRules::topicsNote.translated();
}

QStringList MiraChatModel::prompts()
{
    return translated(MiraRules::prompts);
}

QStringList MiraChatModel::morePrompts()
{
    return translated(MiraRules::morePrompts);
}

QString MiraChatModel::guideName() const
{
    return m_guideName.isEmpty() ? QStringLiteral("Mira") : m_guideName;
}

void MiraChatModel::retranslate()
{
    m_thread.retranslate();
    m_topicsModel.retranslate();
    Q_EMIT textsChanged();
    Q_EMIT stateChanged();
    Q_EMIT topicChanged();
    Q_EMIT contextChanged();
}

// What goes out with the next message.

QVariant MiraChatModel::product() const
{
    return m_product ? QVariant::fromValue(*m_product) : QVariant();
}

QVariantMap MiraChatModel::weather() const
{
    return {{QStringLiteral("text"), m_services.weather.text()},
            {QStringLiteral("isKnown"), m_services.weather.shared().has_value()}};
}

void MiraChatModel::attachProduct(const QVariant& item)
{
    MiraCard card;
    if (item.canConvert<ProductListItem>())
        card = m_cards.cardOf(item.value<ProductListItem>());
    else if (item.canConvert<MiraCard>())
        card = item.value<MiraCard>();
    if (card.handle.isEmpty())
        return;
    m_product = std::move(card);
    Q_EMIT contextChanged();
}

void MiraChatModel::styleProduct(const QVariant& item)
{
    restore();
    attachProduct(item);
    if (!m_product)
        return;
    // What the shopper has begun to write stays, save for the same words about another piece.
    const QString prompt = MiraRules::stylePrompt(m_product->title);
    const bool isOwn = !draft().trimmed().isEmpty() && !draft().startsWith(MiraRules::stylePrompt({}).trimmed());
    setDraft(isOwn ? draft() + u'\n' + prompt : prompt);
}

void MiraChatModel::anchorLook(const QString& /*handle*/, const QString& title)
{
    m_anchorName = displayLine(title, longestName);
    Q_EMIT contextChanged();
}

void MiraChatModel::setWardrobe(const QStringList& handles)
{
    m_wardrobe.pick(handles);
}

void MiraChatModel::removeProduct()
{
    m_product.reset();
    Q_EMIT contextChanged();
}

void MiraChatModel::removeAnchor()
{
    m_anchorName.clear();
    Q_EMIT contextChanged();
}

void MiraChatModel::removeWardrobe()
{
    m_wardrobe.clearPicks();
}

void MiraChatModel::removeWeather()
{
    m_services.weather.setShared(false);
}

void MiraChatModel::clearContext()
{
    m_product.reset();
    m_anchorName.clear();
    m_wardrobe.clearPicks();
    Q_EMIT contextChanged();
}

// Topics.

QString MiraChatModel::currentTopicTitle() const
{
    return MiraTopicsModel::shownTitle(m_topics.title(m_topics.current()));
}

void MiraChatModel::showThread()
{
    m_thread.show(m_topics.thread());
    m_topicsModel.show(m_topics.list(), m_topics.current());
    Q_EMIT topicChanged();
}

void MiraChatModel::newTopic()
{
    restore();
    if (!m_topics.begin())
        return;
    clearContext();
    showThread();
}

void MiraChatModel::openTopic(const QString& id)
{
    restore();
    if (!m_topics.open(id))
        return;
    clearContext();
    showThread();
}

void MiraChatModel::renameTopic(const QString& id, const QString& title)
{
    restore();
    if (m_topics.rename(id, title))
        showThread();
}

void MiraChatModel::deleteTopic(const QString& id)
{
    restore();
    if (m_topics.remove(id))
        showThread();
}

// What is kept.

void MiraChatModel::setToken(const QString& token)
{
    if (token == m_token)
        return;
    m_token = token;
    if (token.isEmpty())
        m_services.folder.remove(QLatin1String(tokenFile));
    else
        m_services.folder.save(QLatin1String(tokenFile), QJsonObject{{QStringLiteral("token"), token}});
}

void MiraChatModel::forget(const QStringList& files)
{
    restore(); // what does not go stays
    if (files.contains(QLatin1String(MiraDraft::fileName))) {
        m_draft.forget();
        Q_EMIT draftChanged();
    }
    if (!files.contains(QLatin1String(MiraTopics::cacheFile)))
        return;
    for (Work* const work : {&m_loading, &m_sending, &m_askingGuide, &m_askingOrders, &m_noticing})
        work->stop();
    m_topics.forget();
    setToken({});
    m_guideName.clear();
    m_thread.setOrders({});
    setFailure({});
    clearContext();
    showThread();
    Q_EMIT stateChanged();
}

} // namespace loom
