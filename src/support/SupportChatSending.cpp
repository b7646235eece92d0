#include "support/SupportChatModel.h"

#include "base/Clock.h"
#include "base/Random.h"
#include "support/SupportAPI.h"

#include <QtConcurrentRun>
#include <qcoro/qcorofuture.h>

// What the shopper writes, from the draft until the service has it.

namespace loom
{

void SupportChatModel::setDraft(const QString& text)
{
    restore();
    if (text == m_draft)
        return;
    m_draft = text;
    draftWasChanged();
}

void SupportChatModel::draftWasChanged()
{
    Q_EMIT draftChanged();
    if (!m_keeping.isRunning())
        static_cast<void>(keepSoon());
}

QVariant SupportChatModel::attachment() const
{
    if (!m_file)
        return {};
    return QVariant::fromValue(SupportAttachment{.url = {}, .name = m_file->name, .mimeType = m_file->mimeType});
}

QString SupportChatModel::attachmentFailure() const
{
    return m_fileProblem ? errorDescription(SupportFailure(*m_fileProblem)) : QString();
}

void SupportChatModel::attach(const QUrl& file)
{
    restore();
    static_cast<void>(reading(file.toLocalFile()));
}

QCoro::Task<> SupportChatModel::reading(QString path)
{
    const Work::Run run = m_attaching.begin();
    m_fileProblem.reset();
    auto read = co_await QtConcurrent::run([path] { return readSupportFile(path); });
    if (run.isStopped())
        co_return;
    if (read)
        m_file = *std::move(read);
    else
        m_fileProblem = read.error();
    Q_EMIT attachmentChanged();
    draftWasChanged();
}

void SupportChatModel::removeAttachment()
{
    m_attaching.stop();
    m_file.reset();
    m_fileProblem.reset();
    Q_EMIT attachmentChanged();
    draftWasChanged();
}

bool SupportChatModel::canSend() const
{
    return !m_attaching.isRunning() && (m_file || !m_draft.trimmed().isEmpty());
}

void SupportChatModel::send()
{
    restore();
    if (!canSend())
        return;
    const QString words = std::exchange(m_draft, QString()).trimmed();
    std::optional<SupportFile> file = std::exchange(m_file, std::nullopt);
    m_fileProblem.reset();
    begin(words, std::move(file));
    draftWasChanged();
    Q_EMIT attachmentChanged();
}

void SupportChatModel::sendText(const QString& text)
{
    restore();
    if (const QString words = text.trimmed(); !words.isEmpty())
        begin(words, std::nullopt);
}

void SupportChatModel::begin(const QString& words, std::optional<SupportFile> file)
{
    m_thread.begin({.clientID = m_services.random.uuid().toString(QUuid::WithoutBraces),
                    .direction = SupportDirection::Outbound,
                    .body = words,
                    .createdAt = m_services.clock.now()},
                   std::move(file));
    follow();
    static_cast<void>(deliver());
}

void SupportChatModel::retryMessage(const QString& key)
{
    m_thread.retry(key);
    follow();
    static_cast<void>(deliver());
}

void SupportChatModel::discardMessage(const QString& key)
{
    m_thread.discard(key);
    follow();
}

void SupportChatModel::openAttachment(const QString& key, int place)
{
    const SupportEntry* const entry = m_thread.find(key);
    if (!entry || place < 0 || static_cast<std::size_t>(place) >= entry->message.attachments.size())
        return;
    const SupportAttachment& attachment = entry->message.attachments[static_cast<std::size_t>(place)];
    if (attachment.isOpenable())
        m_services.openExternally(QUrl(attachment.url, QUrl::StrictMode));
}

/// One after the other, so that they arrive in their order.
QCoro::Task<> SupportChatModel::deliver()
{
    // A conversation that is being opened is waited for.
    if (m_sending.isRunning() || (m_token.isEmpty() && m_loading.isRunning()))
        co_return;
    const Work::Run run = m_sending.begin();
    while (const SupportEntry* const next = m_thread.nextToSend()) {
        const QString key = next->key;
        const auto outcome = co_await carry(key, run.stop());
        if (run.isStopped())
            co_return;
        if (!outcome && m_token.isEmpty() && m_loading.isRunning())
            co_return;
        if (outcome)
            take(*outcome); // and with it what was sent
        m_thread.fail(key, outcome ? std::nullopt : outcome.error());
        follow();
    }
}

QCoro::Task<Result<SupportRepliesResponse, std::optional<SupportFailure>>> SupportChatModel::carry(QString key,
                                                                                                   std::stop_token stop)
{
    using Unsent = std::optional<SupportFailure>;
    const auto unsent = [](const Failure& failure) {
        return Unexpected(failure.isCancelled() ? Unsent() : Unsent(failure.error()));
    };
    SupportEntry entry = *m_thread.find(key);
    if (entry.file && entry.file->bytes.isEmpty()) {
        const QString path = entry.file->path;
        auto read = co_await QtConcurrent::run([path] { return readSupportFile(path); });
        if (stop.stop_requested())
            co_return Unexpected(Unsent());
        if (!read)
            co_return Unexpected(Unsent(read.error()));
        entry.file->bytes = read->bytes;
        entry.file->mimeType = read->mimeType;
    }
    for (int attempt = 1;; ++attempt) {
        if (m_token.isEmpty() && m_loading.isRunning())
            co_return Unexpected(Unsent()); // it goes with the conversation that is being opened
        if (m_token.isEmpty()) {
            const ApiResult<void> opened = co_await open(stop);
            if (stop.stop_requested() || !opened)
                co_return unsent(opened ? Failure(Cancelled()) : opened.error());
        }
        const SupportAPI::Message message{
            .visitorToken = m_token, .clientID = key, .body = entry.message.body, .language = m_services.language()};
        ApiResult<SupportRepliesResponse> answer;
        if (entry.file)
            answer = co_await m_services.api.upload(message, *entry.file, stop);
        else
            answer = co_await m_services.api.message(message, stop);
        if (stop.stop_requested())
            co_return Unexpected(Unsent());
        if (answer)
            co_return *std::move(answer);
        if (attempt > 1 || !isUnknownConversation(answer.error()))
            co_return unsent(answer.error());
        if (m_token == message.visitorToken)
            dropConversation();
    }
}

} // namespace loom
