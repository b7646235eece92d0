#include "base/Clock.h"
#include "catalog/MarketStore.h"
#include "net/WidgetClient.h"
#include "storage/Preferences.h"
#include "stylist/MiraAPI.h"
#include "stylist/MiraChatModel.h"
#include "stylist/MiraContext.h"
#include "stylist/MiraRules.h"
#include "stylist/MiraWeatherStore.h"

namespace loom
{

namespace
{

constexpr std::chrono::seconds noticeTime{5};

/// The service no longer knows the visitor token that came with a call. Who is signed in is another matter; a guest has
/// nothing else that could be refused.
bool isUnknownToken(const Failure& failure, const CallerIdentity& caller)
{
    const auto* const http = failure.isCancelled() ? nullptr : failure.error().as<APIError::Http>();
    return http && (http->status == 401 || http->status == 404 || http->status == 410) &&
           (caller.email.isEmpty() || !isRefusedSession(*http));
}

} // namespace

void MiraChatModel::setDraft(const QString& text)
{
    restore();
    m_draft.setText(text);
    Q_EMIT draftChanged();
}

bool MiraChatModel::canSend() const
{
    return !draft().trimmed().isEmpty() && (!isReplying() || queued().size() < MiraDraft::mostQueued);
}

void MiraChatModel::send()
{
    if (!canSend())
        return;
    const QString words = draft().trimmed();
    m_draft.setText({});
    sendText(words);
    Q_EMIT draftChanged();
}

void MiraChatModel::sendText(const QString& text)
{
    const QString words = text.trimmed();
    if (words.isEmpty())
        return;
    restore();
    if (!isReplying()) {
        begin(words);
    } else if (queued().size() < MiraDraft::mostQueued) {
        m_draft.enqueue(words);
        Q_EMIT draftChanged();
    }
}

void MiraChatModel::sendQueued(int place)
{
    if (isReplying())
        return;
    const QString words = m_draft.takeQueued(place);
    Q_EMIT draftChanged();
    if (!words.isEmpty())
        begin(words);
}

void MiraChatModel::removeQueued(int place)
{
    static_cast<void>(m_draft.takeQueued(place));
    Q_EMIT draftChanged();
}

void MiraChatModel::begin(const QString& words)
{
    const MiraContext context{.words = words,
                              .productHandle = m_product ? m_product->handle : QString(),
                              .wardrobe = m_wardrobe.picked(),
                              .anchorName = m_anchorName,
                              .weather = m_services.weather.shared()};
    std::vector<MiraAttachment> attachments;
    if (m_product) {
        attachments.push_back({.handle = m_product->handle,
                               .title = m_product->title,
                               .vendor = m_product->vendor,
                               .price = m_product->priceText,
                               .imageURL = m_product->image,
                               .reason = {}});
    }
    const QString key = m_topics.add(context.body(), std::move(attachments));
    removeProduct(); // it was for this message; the rest stays until the shopper takes it away
    showThread();
    static_cast<void>(deliver(key, Attempt::First));
    m_services.weather.refresh();
}

void MiraChatModel::retryMessage(const QString& key)
{
    const MiraEntry* const entry = m_topics.entry(key);
    if (entry && entry->state == MiraEntry::State::Unconfirmed && !isReplying())
        static_cast<void>(deliver(key, Attempt::Again));
}

void MiraChatModel::discardMessage(const QString& key)
{
    if (m_topics.discard(key))
        showThread();
}

QCoro::Task<bool> MiraChatModel::openFor(QString key, std::stop_token stop)
{
    const auto opened = co_await openThread(stop);
    if (stop.stop_requested())
        co_return false; // the model may be gone
    if (!opened)
        fail(key, opened.error());
    co_return opened.hasValue();
}

QCoro::Task<> MiraChatModel::deliver(QString key, Attempt attempt)
{
    const Work::Run run = m_sending.begin();
    setFailure({});
    if ((attempt == Attempt::Again || m_token.isEmpty()) && !co_await openFor(key, run.stop()))
        co_return;
    if (attempt == Attempt::Again) {
        const MiraEntry* const entry = m_topics.entry(key);
        if (!entry || entry->state != MiraEntry::State::Unconfirmed)
            co_return; // it had arrived all the same
        m_topics.sendAgain(key);
        showThread();
    }
    for (bool isLast = false;; isLast = true) {
        const MiraEntry* const entry = m_topics.entry(key);
        if (!entry)
            co_return; // deleted with its topic
        const MiraMessageRequest request{
            .visitorToken = m_token,
            .body = entry->message.body,
            .language = MiraRules::replyLanguage(m_services.preferences.value(preferences::supportLanguage),
                                                 m_services.market.languageCode()),
            .guideName = m_guideName,
            .attachments = entry->message.attachments};
        const auto answer = co_await m_services.api.message(request, run.stop());
        if (run.isStopped())
            co_return;
        if (answer) {
            ++m_answers;
            QStringList sentences;
            for (const MiraMessage& reply : m_topics.take(key, answer->messages))
                sentences += miraRowText(reply).sentences;
            showThread();
            if (!sentences.isEmpty())
                Q_EMIT replyArrived(sentences);
            co_return;
        }
        if (isLast || request.visitorToken.isEmpty() || !isUnknownToken(answer.error(), m_services.api.identity())) {
            fail(key, answer.error());
            co_return;
        }
        if (!co_await openFor(key, run.stop()))
            co_return;
    }
}

void MiraChatModel::fail(const QString& key, const Failure& failure)
{
    m_topics.settle(key, MiraEntry::State::Unconfirmed);
    if (!failure.isCancelled())
        setFailure(miraFailure(failure.error()));
    showThread();
}

QCoro::Task<ApiResult<MiraChatModel::Opened>> MiraChatModel::openThread(std::stop_token stop)
{
    QString held = m_token;
    QString token = held;
    quint64 answers = m_answers;
    auto answer = co_await m_services.api.init(token, m_guideName, stop);
    for (;;) {
        if (stop.stop_requested())
            co_return Unexpected(Failure(Cancelled()));
        // Another call was given a token first, and that one counts; or what was said meanwhile may be missing here.
        const bool isOvertaken = m_token != held || (answer && m_answers != answers);
        const bool isUnknown = !answer && !token.isEmpty() && isUnknownToken(answer.error(), m_services.api.identity());
        if (!isOvertaken && !isUnknown)
            break;
        held = m_token;
        answers = m_answers;
        token = isOvertaken ? held : QString(); // kept until there is another: with it goes the conversation
        answer = co_await m_services.api.init(token, m_guideName, stop);
    }
    if (!answer)
        co_return Unexpected(std::move(answer).error());
    if (!answer->visitorToken.isEmpty())
        setToken(answer->visitorToken);
    Opened opened{.failureCode = std::move(answer->failureCode)};
    if (!opened.failureCode || !answer->messages.empty())
        opened.added = m_topics.adopt(std::move(answer->messages));
    showThread();
    co_return opened;
}

QCoro::Task<> MiraChatModel::load(Asked asked)
{
    const Work::Run run = m_loading.begin();
    m_noticing.stop();
    m_askedAt = m_services.clock.elapsed();
    const auto opened = co_await openThread(run.stop());
    if (run.isStopped())
        co_return;
    if (!opened) {
        if (!opened.error().isCancelled())
            setFailure(miraFailure(opened.error().error()));
        co_return;
    }
    m_cards.refresh();
    if (opened->failureCode)
        setFailure(MiraFailure{.code = *opened->failureCode});
    else
        setFailure({});
    if (asked == Asked::ByShopper && opened->added == 0 && !opened->failureCode)
        static_cast<void>(sayUpToDate());
    if (m_guideName.isEmpty())
        static_cast<void>(loadGuide());
    if (!m_services.api.identity().email.isEmpty())
        static_cast<void>(loadOrders());
}

QCoro::Task<> MiraChatModel::loadGuide()
{
    const Work::Run run = m_askingGuide.begin();
    const auto answer = co_await m_services.api.guide(run.stop());
    if (run.isStopped() || !answer || answer->guideName.isEmpty())
        co_return;
    m_guideName = answer->guideName;
    Q_EMIT stateChanged();
}

QCoro::Task<> MiraChatModel::loadOrders()
{
    const Work::Run run = m_askingOrders.begin();
    auto answer = co_await m_services.api.orders(run.stop());
    if (!run.isStopped() && answer)
        m_thread.setOrders(std::move(answer->orders));
}

QCoro::Task<> MiraChatModel::sayUpToDate()
{
    const Work::Run run = m_noticing.begin();
    co_await m_services.clock.sleep(noticeTime, run.stop());
}

} // namespace loom
