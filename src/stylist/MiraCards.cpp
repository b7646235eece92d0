#include "stylist/MiraCards.h"

#include "base/Clock.h"
#include "catalog/DisplayText.h"
#include "catalog/MarketStore.h"
#include "catalog/MoneyFormat.h"
#include "catalog/StorefrontAPI.h"
#include "stylist/MiraRules.h"

namespace loom
{

namespace
{

/// The rows of a page that appears ask within this.
constexpr std::chrono::milliseconds gathering{20};
constexpr qsizetype longestTitle = 200;
constexpr qsizetype longestReason = 400;
constexpr qsizetype longestPrice = 40;

} // namespace

MiraCards::MiraCards(StorefrontAPI& storefront, const MarketStore& market, const MoneyFormat& money, Clock& clock,
                     QObject* parent)
    : QObject(parent)
    , m_storefront(storefront)
    , m_market(market)
    , m_money(money)
    , m_clock(clock)
{
    connect(&market, &MarketStore::countryChanged, this, &MiraCards::forget);
    connect(&market, &MarketStore::languageChanged, this, &MiraCards::askAnew);
    connect(&market, &MarketStore::rateChanged, this, [this] { Q_EMIT changed({}); });
}

std::vector<MiraCard> MiraCards::cards(const std::vector<MiraAttachment>& attachments, const QStringList& linked)
{
    std::vector<MiraCard> cards;
    QSet<QString> handles;
    const auto add = [&](const QString& handle, const MiraAttachment* attachment) {
        if (handle.isEmpty() || handles.contains(handle) || cards.size() == maximumCards)
            return;
        handles.insert(handle);
        if (auto made = card(handle, attachment))
            cards.push_back(*std::move(made));
    };
    for (const MiraAttachment& attachment : attachments)
        add(attachment.handle, &attachment);
    for (const QString& handle : linked)
        add(handle, nullptr);
    return cards;
}

std::optional<MiraCard> MiraCards::card(const QString& handle, const MiraAttachment* attachment)
{
    const auto known = m_known.constFind(handle);
    if (known == m_known.constEnd() || m_clock.elapsed() - known->since > freshness)
        want(handle);
    if (known == m_known.constEnd())
        return ownCard(handle, attachment);
    if (!known->item)
        return std::nullopt;
    MiraCard card = cardOf(*known->item);
    card.handle = handle;
    if (attachment)
        card.reason = displayLine(attachment->reason.value_or(QString()), longestReason);
    return card;
}

MiraCard MiraCards::cardOf(const ProductListItem& item) const
{
    const auto former = formerPrice(item.price, item.compareAtPrice);
    return {.handle = item.handle,
            .title = displayLine(item.title, longestTitle),
            .vendor = displayLine(item.vendor, longestTitle),
            .priceText = m_money.text(item.price),
            .formerPriceText = former ? m_money.text(*former) : QString(),
            .image = item.imageURL.value_or(QString()),
            .isLive = true,
            .isSoldOut = !item.availableForSale.value_or(true),
            .item = QVariant::fromValue(item)};
}

MiraCard MiraCards::ownCard(const QString& handle, const MiraAttachment* attachment) const
{
    MiraCard card{.handle = handle, .isPending = m_asked.contains(handle)};
    if (!attachment) { // a handle says a little, too
        card.title = card.isPending ? QString() : displayLine(QString(handle).replace(u'-', u' '), longestTitle);
        return card;
    }
    card.title = displayLine(attachment->title, longestTitle);
    card.vendor = displayLine(attachment->vendor, longestTitle);
    card.image = attachment->imageURL;
    card.reason = displayLine(attachment->reason.value_or(QString()), longestReason);
    if (const auto dollars = MiraRules::dollars(attachment->price))
        card.priceText = m_money.text(m_market.convertUSDollars(*dollars).money());
    else
        card.priceText = displayLine(attachment->price, longestPrice);
    return card;
}

void MiraCards::want(const QString& handle)
{
    if (m_asked.contains(handle) || m_failed.contains(handle))
        return;
    m_asked.insert(handle);
    m_wanted.append(handle);
    if (!m_asking.isRunning())
        static_cast<void>(ask());
}

QCoro::Task<> MiraCards::ask()
{
    const Work::Run run = m_asking.begin();
    co_await m_clock.sleep(gathering, run.stop());
    while (!run.isStopped() && !m_wanted.isEmpty()) {
        // The latest first: that is what is looked at.
        const qsizetype rest = std::max<qsizetype>(0, m_wanted.size() - StorefrontAPI::maximumCards);
        const QStringList handles = m_wanted.mid(rest);
        m_wanted.resize(rest);
        const auto found = co_await m_storefront.productsByHandles(handles, run.stop());
        if (run.isStopped())
            co_return;
        QSet<QString> answered;
        for (const QString& handle : handles) {
            m_asked.remove(handle);
            answered.insert(handle);
            if (!found) {
                m_failed.insert(handle);
                continue;
            }
            const auto item = found->constFind(handle);
            m_known.insert(handle, {.item = item == found->constEnd() ? std::nullopt : std::optional(*item),
                                    .since = m_clock.elapsed()});
        }
        Q_EMIT changed(answered);
    }
}

void MiraCards::refresh()
{
    if (!std::exchange(m_failed, {}).isEmpty())
        Q_EMIT changed({});
}

/// In another market everything costs something else.
void MiraCards::askAnew()
{
    m_asking.stop();
    m_wanted.clear();
    m_asked.clear();
    m_failed.clear();
    for (Known& known : m_known)
        known.since = m_clock.elapsed() - 2 * freshness; // shown until there is something newer
    Q_EMIT changed({});
}

void MiraCards::forget()
{
    m_asking.stop();
    m_wanted.clear();
    m_asked.clear();
    m_failed.clear();
    m_known.clear();
    Q_EMIT changed({});
}

} // namespace loom
