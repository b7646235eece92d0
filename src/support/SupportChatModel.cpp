#include "support/SupportChatModel.h"

#include "base/Clock.h"
#include "storage/DataFolder.h"
#include "support/SupportAPI.h"
#include "support/SupportReading.h"

#include <QCoreApplication>
#include <QJsonDocument>

namespace loom
{

namespace
{

/// What the cache file holds.
struct Kept {
    SupportThread thread;
    QString draft;
    std::optional<SupportFile> file;
};

Kept decodeKept(const JsonReader& json)
{
    Kept kept{
        .thread = SupportThread::fromJson(json), .draft = json.optionalText("draft").value_or(QString()), .file = {}};
    if (const auto file = json.optionalObject("draftFile"))
        kept.file = decodeSupportFile(*file);
    return kept;
}

} // namespace

SupportChatModel::SupportChatModel(SupportServices services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_rows(m_services.dates, m_services.clock)
    , m_loading([this] { Q_EMIT stateChanged(); })
    , m_attaching([this] {
        Q_EMIT attachmentChanged();
        Q_EMIT draftChanged();
    })
{
}

SupportChatModel::~SupportChatModel()
{
    if (m_keeping.isRunning())
        keep();
}

void SupportChatModel::restore()
{
    if (std::exchange(m_isRestored, true))
        return;
    m_token =
        m_services.folder
            .load(QLatin1String(tokenFile), [](const JsonReader& json) { return json.asText().value_or(QString()); })
            .value_or(QString());
    if (auto kept = m_services.folder.load(QLatin1String(cacheFile), decodeKept)) {
        m_thread = std::move(kept->thread);
        m_draft = std::move(kept->draft);
        m_file = std::move(kept->file);
    }
    follow();
    Q_EMIT draftChanged();
    Q_EMIT attachmentChanged();
}

void SupportChatModel::view(QObject* viewer, Viewing viewing)
{
    if (!viewer || m_viewers.value(viewer, Away) == viewing)
        return;
    const bool wasOpen = !m_viewers.isEmpty();
    const bool wasOnScreen = isOnScreen();
    if (viewing == Away) {
        m_viewers.remove(viewer);
        disconnect(viewer, &QObject::destroyed, this, nullptr);
    } else {
        if (!m_viewers.contains(viewer))
            connect(viewer, &QObject::destroyed, this, [this, viewer] { view(viewer, Away); });
        m_viewers.insert(viewer, viewing);
    }
    restore();
    follow();
    if (m_viewers.isEmpty()) {
        m_polling.stop();
    } else if (!wasOpen) {
        static_cast<void>(load(Asked::ByItself));
        static_cast<void>(poll());
    }
    if (isOnScreen() != wasOnScreen)
        Q_EMIT stateChanged();
}

bool SupportChatModel::isOnScreen() const
{
    return std::ranges::any_of(m_viewers, [](Viewing viewing) { return viewing == Watching; });
}

void SupportChatModel::retry()
{
    restore();
    static_cast<void>(load(Asked::ByShopper));
}

QString SupportChatModel::failure() const
{
    return m_failure ? errorDescription(SupportFailure(*m_failure)) : QString();
}

QCoro::Task<> SupportChatModel::load(Asked asked)
{
    // Whoever is opening the conversation already goes on with it; twice would make two of them.
    const auto isBeingOpened = [this] {
        return m_token.isEmpty() && m_sending.isRunning();
    };
    if (isBeingOpened() || (m_token.isEmpty() && m_loading.isRunning()))
        co_return;
    const Work::Run run = m_loading.begin();
    if (asked == Asked::ByShopper) {
        m_failure.reset();
        Q_EMIT stateChanged();
    }
    ApiResult<void> outcome;
    if (m_isOpen)
        outcome = co_await ask(run.stop());
    if (run.isStopped())
        co_return;
    if (!m_isOpen) {
        if (isBeingOpened())
            co_return;
        outcome = co_await open(run.stop());
        if (run.isStopped())
            co_return;
    }
    finish(outcome);
    static_cast<void>(deliver()); // what waited for the conversation
}

QCoro::Task<> SupportChatModel::poll()
{
    const Work::Run run = m_polling.begin();
    while (!run.isStopped()) {
        co_await m_services.clock.sleep(pollInterval, run.stop());
        if (run.isStopped())
            co_return;
        if (m_loading.isRunning())
            continue;
        if (!m_isOpen) {
            static_cast<void>(load(Asked::ByItself));
            continue;
        }
        const ApiResult<void> outcome = co_await ask(run.stop());
        if (run.isStopped())
            co_return;
        if (m_isOpen)
            finish(outcome);
        else
            static_cast<void>(load(Asked::ByItself)); // the service does not know it any more
    }
}

QCoro::Task<ApiResult<void>> SupportChatModel::open(std::stop_token stop)
{
    const QString token = m_token;
    ApiResult<SupportInitResponse> answer = co_await m_services.api.init(token, stop);
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    if (!answer && !token.isEmpty() && isUnknownConversation(answer.error())) {
        if (m_token == token)
            dropConversation();
        answer = co_await m_services.api.init({}, stop);
        if (stop.stop_requested())
            co_return Unexpected(Failure(Cancelled()));
    }
    if (!answer)
        co_return Unexpected(answer.error());
    if (answer->visitorToken != m_token)
        setToken(answer->visitorToken);
    m_isOpen = true;
    m_thread.replace(answer->messages, answer->unreadCount);
    follow();
    co_return ApiResult<void>();
}

QCoro::Task<ApiResult<void>> SupportChatModel::ask(std::stop_token stop)
{
    const QString token = m_token;
    const auto answer = co_await m_services.api.replies(token, m_thread.lastID(), stop);
    if (stop.stop_requested() || token != m_token)
        co_return Unexpected(Failure(Cancelled()));
    if (!answer && isUnknownConversation(answer.error()))
        dropConversation();
    if (!answer)
        co_return Unexpected(answer.error());
    take(*answer);
    co_return ApiResult<void>();
}

QCoro::Task<ApiResult<std::vector<SupportMessage>>> SupportChatModel::newReplies(std::stop_token stop)
{
    restore();
    // On screen they are asked for and seen anyway.
    if (m_token.isEmpty() || isOnScreen())
        co_return std::vector<SupportMessage>();
    const Work::Run run = m_asking.begin();
    const QString token = m_token;
    const auto answer = co_await m_services.api.replies(token, m_thread.lastID(), stop);
    if (run.isStopped() || stop.stop_requested() || token != m_token)
        co_return Unexpected(Failure(Cancelled()));
    if (!answer && isUnknownConversation(answer.error())) {
        dropConversation();
        co_return std::vector<SupportMessage>();
    }
    if (!answer)
        co_return Unexpected(answer.error());
    take(*answer);
    co_return isOnScreen() ? std::vector<SupportMessage>() : m_thread.unseen();
}

void SupportChatModel::take(const SupportRepliesResponse& answer)
{
    const int news = m_thread.merge(answer.messages, answer.unreadCount);
    follow();
    if (news == 0 || !isOnScreen())
        return;
    const auto last = std::ranges::find(answer.messages.rbegin(), answer.messages.rend(), SupportDirection::Inbound,
                                        &SupportMessage::direction);
    Q_EMIT replyArrived(last->body.isEmpty() ? QCoreApplication::translate("Loomstreet", "Sent an attachment")
                                             : last->body);
}

void SupportChatModel::finish(const ApiResult<void>& outcome)
{
    std::optional<APIError> failure;
    if (!outcome && !outcome.error().isCancelled())
        failure = outcome.error().error();
    if (std::exchange(m_failure, failure) != failure)
        Q_EMIT stateChanged();
}

void SupportChatModel::setToken(const QString& token)
{
    m_token = token;
    if (token.isEmpty())
        m_services.folder.remove(QLatin1String(tokenFile));
    else
        m_services.folder.save(QLatin1String(tokenFile), token);
}

void SupportChatModel::dropConversation()
{
    setToken({});
    m_isOpen = false;
    m_thread.forgetSent();
    follow();
}

void SupportChatModel::follow()
{
    if (isOnScreen()) {
        if (!m_thread.unseen().empty())
            m_isReadUntold = true;
        m_thread.markSeen();
    }
    m_rows.show(m_thread.entries());
    const int unread = static_cast<int>(m_thread.unseen().size());
    if (std::exchange(m_unreadCount, unread) != unread)
        Q_EMIT unreadCountChanged();
    if (!m_keeping.isRunning())
        static_cast<void>(keepSoon());
    if (m_isReadUntold && !m_telling.isRunning())
        static_cast<void>(tellRead());
}

/// What could not be told is told with the next change of the thread, or the next look for replies.
QCoro::Task<> SupportChatModel::tellRead()
{
    const QString seen = m_thread.seenID();
    if (m_token.isEmpty() || seen.isEmpty())
        co_return;
    const Work::Run run = m_telling.begin();
    const auto outcome = co_await m_services.api.read(m_token, seen, run.stop());
    if (!run.isStopped() && outcome && seen == m_thread.seenID())
        m_isReadUntold = false;
}

/// The moment counts from the first change: who never pauses is not to lose everything.
QCoro::Task<> SupportChatModel::keepSoon()
{
    constexpr std::chrono::milliseconds delay{300};
    const Work::Run run = m_keeping.begin();
    co_await m_services.clock.sleep(delay, run.stop());
    if (!run.isStopped())
        keep();
}

void SupportChatModel::keep()
{
    if (m_thread.entries().empty() && m_draft.isEmpty() && !m_file) {
        m_services.folder.remove(QLatin1String(cacheFile));
        return;
    }
    m_services.folder.save(QLatin1String(cacheFile), [thread = m_thread, draft = m_draft, file = m_file] {
        QJsonObject json = thread.toJson();
        json.insert(QStringLiteral("draft"), draft);
        if (file)
            json.insert(QStringLiteral("draftFile"), supportFileJson(*file));
        return QJsonDocument(json).toJson(QJsonDocument::Compact);
    });
}

void SupportChatModel::forget(const QStringList& files)
{
    if (!files.contains(QLatin1String(cacheFile)) && !files.contains(QLatin1String(tokenFile)))
        return;
    for (Work* const work : {&m_loading, &m_polling, &m_sending, &m_attaching, &m_telling, &m_asking, &m_keeping})
        work->stop();
    m_isRestored = true;
    m_isOpen = false;
    m_isReadUntold = false;
    m_thread = {};
    m_draft.clear();
    m_file.reset();
    m_fileProblem.reset();
    m_failure.reset();
    setToken({});
    follow();
    m_keeping.stop();
    m_services.folder.remove(QLatin1String(cacheFile));
    Q_EMIT stateChanged();
    Q_EMIT draftChanged();
    Q_EMIT attachmentChanged();
    // Whoever still looks is somebody else, once the one before is signed out.
    if (!m_viewers.isEmpty())
        static_cast<void>(poll());
}

void SupportChatModel::retranslate()
{
    m_rows.retranslate();
    Q_EMIT stateChanged();
    Q_EMIT attachmentChanged();
}

} // namespace loom
