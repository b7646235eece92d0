#pragma once

#include "net/ApiResult.h"
#include "net/Work.h"
#include "support/SupportRepliesResponse.h"
#include "support/SupportServices.h"
#include "support/SupportThread.h"
#include "support/SupportThreadModel.h"

#include <QHash>
#include <QObject>
#include <QUrl>
#include <QVariant>
#include <qcoro/qcorotask.h>

#include <chrono>

namespace loom
{

/// The conversation with customer service: its thread, what is being written, and what is on its way. What was kept
/// shows at once, the service's word replaces it, and nothing that the shopper wrote is lost. Asks for replies while
/// somebody looks. One per process; main thread.
class SupportChatModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::SupportThreadModel* thread READ thread CONSTANT)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY stateChanged)
    Q_PROPERTY(QString failure READ failure NOTIFY stateChanged)
    Q_PROPERTY(int unreadCount READ unreadCount NOTIFY unreadCountChanged)
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged)
    Q_PROPERTY(QVariant attachment READ attachment NOTIFY attachmentChanged)
    Q_PROPERTY(bool isAttaching READ isAttaching NOTIFY attachmentChanged)
    Q_PROPERTY(QString attachmentFailure READ attachmentFailure NOTIFY attachmentChanged)
    Q_PROPERTY(bool canSend READ canSend NOTIFY draftChanged)

public:
    // The names of the files of the data folder.
    static constexpr const char* cacheFile = "lst_support_chat_cache";
    static constexpr const char* tokenFile = "lst_support_visitor_token";

    static constexpr std::chrono::seconds pollInterval{10};

    /// How somebody looks at the conversation.
    enum Viewing {
        Away,
        Open,    ///< it is open, but may be behind other windows
        Watching ///< what arrives is seen
    };
    Q_ENUM(Viewing)

    explicit SupportChatModel(SupportServices services, QObject* parent = nullptr);
    ~SupportChatModel() override;

    [[nodiscard]] SupportThreadModel* thread() { return &m_rows; }

    /// What `viewer` shows of it; one that goes away looks no more. Begins with the first that opens it.
    Q_INVOKABLE void view(QObject* viewer, loom::SupportChatModel::Viewing viewing);
    [[nodiscard]] bool isOnScreen() const;
    /// After a failure.
    Q_INVOKABLE void retry();

    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    /// Why nothing came; empty where it went well.
    [[nodiscard]] QString failure() const;
    /// What customer service wrote and nobody has seen.
    [[nodiscard]] int unreadCount() const { return m_unreadCount; }

    [[nodiscard]] const QString& draft() const { return m_draft; }
    void setDraft(const QString& text);
    /// A SupportAttachment of what goes along, or undefined.
    [[nodiscard]] QVariant attachment() const;
    [[nodiscard]] bool isAttaching() const { return m_attaching.isRunning(); }
    /// Why a file does not go along.
    [[nodiscard]] QString attachmentFailure() const;
    /// Takes the file along, in place of the one before.
    Q_INVOKABLE void attach(const QUrl& file);
    Q_INVOKABLE void removeAttachment();
    [[nodiscard]] bool canSend() const;
    Q_INVOKABLE void send();
    /// The same with other words than the draft, which stays.
    Q_INVOKABLE void sendText(const QString& text);
    Q_INVOKABLE void retryMessage(const QString& key);
    Q_INVOKABLE void discardMessage(const QString& key);
    /// In the browser, if that may open it.
    Q_INVOKABLE void openAttachment(const QString& key, int place);

    /// For those who tell of replies: what customer service wrote and nobody has seen, the oldest first. Nothing while
    /// the conversation is on screen, or when there is none.
    [[nodiscard]] QCoro::Task<ApiResult<std::vector<SupportMessage>>> newReplies(std::stop_token stop);

    /// The files of these names are about to go: lets go of what was in those that are the conversation's.
    void forget(const QStringList& files);
    /// The language of the window changed.
    void retranslate();

Q_SIGNALS:
    void stateChanged();
    void unreadCountChanged();
    void draftChanged();
    void attachmentChanged();
    /// Replies came while somebody is watching: the words of the last.
    void replyArrived(const QString& text);

private:
    enum class Asked { ByItself, ByShopper };

    void restore();
    void begin(const QString& words, std::optional<SupportFile> file);
    void draftWasChanged();
    [[nodiscard]] QCoro::Task<> load(Asked asked);
    [[nodiscard]] QCoro::Task<> poll();
    [[nodiscard]] QCoro::Task<> reading(QString path);
    [[nodiscard]] QCoro::Task<> deliver();
    /// Brings one message to the service; without a failure where nobody knows why it did not get there.
    [[nodiscard]] QCoro::Task<Result<SupportRepliesResponse, std::optional<SupportFailure>>>
    carry(QString key, std::stop_token stop);
    [[nodiscard]] QCoro::Task<> tellRead();
    [[nodiscard]] QCoro::Task<> keepSoon();
    /// Opens the conversation, anew if the service does not know it.
    [[nodiscard]] QCoro::Task<ApiResult<void>> open(std::stop_token stop);
    /// Asks what was written since.
    [[nodiscard]] QCoro::Task<ApiResult<void>> ask(std::stop_token stop);
    void take(const SupportRepliesResponse& answer);
    void finish(const ApiResult<void>& outcome);
    void setToken(const QString& token);
    void dropConversation();
    /// The thread changed: shows it, keeps it, and marks it as read while it is on screen.
    void follow();
    void keep();

    SupportServices m_services;
    SupportThread m_thread;
    SupportThreadModel m_rows;
    QHash<QObject*, Viewing> m_viewers;
    bool m_isRestored = false;
    bool m_isOpen = false; ///< the service has told the whole conversation in this run
    QString m_token;
    bool m_isReadUntold = false; ///< the service does not know yet what was seen
    int m_unreadCount = 0;
    QString m_draft;
    std::optional<SupportFile> m_file;
    std::optional<SupportFileProblem> m_fileProblem;
    std::optional<APIError> m_failure;
    Work m_loading;
    Work m_polling;
    Work m_sending;
    Work m_attaching;
    Work m_telling;
    Work m_asking;
    Work m_keeping;
};

} // namespace loom
