#pragma once

#include "net/ApiResult.h"
#include "net/Work.h"
#include "stylist/MiraCard.h"
#include "stylist/MiraCards.h"
#include "stylist/MiraDraft.h"
#include "stylist/MiraFailure.h"
#include "stylist/MiraServices.h"
#include "stylist/MiraThreadModel.h"
#include "stylist/MiraTopics.h"
#include "stylist/MiraTopicsModel.h"
#include "stylist/WardrobeModel.h"

#include <QObject>
#include <QVariantMap>
#include <qcoro/qcorotask.h>

namespace loom
{

/// The conversation with the stylist: its thread and topics, what goes out with the next message, and what is on its
/// way. What was kept shows at once, the service's word replaces it; nothing that the shopper wrote is lost. Begins
/// with open(). One per process; main thread.
class MiraChatModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::MiraThreadModel* thread READ thread CONSTANT)
    Q_PROPERTY(loom::MiraTopicsModel* topics READ topics CONSTANT)
    Q_PROPERTY(loom::WardrobeModel* wardrobe READ wardrobe CONSTANT)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY stateChanged)
    Q_PROPERTY(bool isReplying READ isReplying NOTIFY stateChanged)
    Q_PROPERTY(QString failure READ failure NOTIFY stateChanged)
    Q_PROPERTY(QString notice READ notice NOTIFY stateChanged)
    Q_PROPERTY(QString replyingNote READ replyingNote NOTIFY textsChanged)
    Q_PROPERTY(QString queuedNote READ queuedNote NOTIFY textsChanged)
    Q_PROPERTY(QString unconfirmedNote READ unconfirmedNote NOTIFY textsChanged)
    Q_PROPERTY(QString topicsNote READ topicsNote NOTIFY textsChanged)
    Q_PROPERTY(QStringList prompts READ prompts NOTIFY textsChanged)
    Q_PROPERTY(QStringList morePrompts READ morePrompts NOTIFY textsChanged)
    Q_PROPERTY(QString guideName READ guideName NOTIFY stateChanged)
    Q_PROPERTY(QString draft READ draft WRITE setDraft NOTIFY draftChanged)
    Q_PROPERTY(QStringList queued READ queued NOTIFY draftChanged)
    Q_PROPERTY(bool canSend READ canSend NOTIFY draftChanged)
    Q_PROPERTY(QVariant product READ product NOTIFY contextChanged)
    Q_PROPERTY(QString anchorName READ anchorName NOTIFY contextChanged)
    Q_PROPERTY(int wardrobeCount READ wardrobeCount NOTIFY contextChanged)
    Q_PROPERTY(QVariantMap weather READ weather NOTIFY contextChanged)
    Q_PROPERTY(QString currentTopic READ currentTopic NOTIFY topicChanged)
    Q_PROPERTY(QString currentTopicTitle READ currentTopicTitle NOTIFY topicChanged)

public:
    explicit MiraChatModel(const MiraServices& services, QObject* parent = nullptr);
    ~MiraChatModel() override;

    [[nodiscard]] MiraThreadModel* thread() { return &m_thread; }
    [[nodiscard]] MiraTopicsModel* topics() { return &m_topicsModel; }
    [[nodiscard]] WardrobeModel* wardrobe() { return &m_wardrobe; }

    /// Somebody looks: shows what was kept, then asks the service, unless it has just been asked.
    Q_INVOKABLE void open();
    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    /// Asks again, and says so where nothing came of it.
    Q_INVOKABLE void refresh();
    /// It is known by now who is signed in: what is open is asked for on their behalf.
    void followSession();
    /// After a failure.
    Q_INVOKABLE void retry();
    Q_INVOKABLE void dismissFailure();

    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] bool isReplying() const { return m_sending.isRunning(); }
    /// Of the last call; empty where it went well.
    [[nodiscard]] QString failure() const;
    [[nodiscard]] QString notice() const;
    [[nodiscard]] static QString replyingNote();
    [[nodiscard]] static QString queuedNote();
    [[nodiscard]] static QString unconfirmedNote();
    [[nodiscard]] static QString topicsNote();
    [[nodiscard]] static QStringList prompts();
    [[nodiscard]] static QStringList morePrompts();
    [[nodiscard]] QString guideName() const;
    /// As the service knows this conversation; empty before it does.
    [[nodiscard]] const QString& visitorToken();

    [[nodiscard]] const QString& draft() const { return m_draft.text(); }
    void setDraft(const QString& text);
    /// What waits until she has replied.
    [[nodiscard]] const QStringList& queued() const { return m_draft.queued(); }
    [[nodiscard]] bool canSend() const;
    /// Sends the draft with its context; while she replies it is put into the queue instead.
    Q_INVOKABLE void send();
    /// The same with other words than the draft, which stays.
    Q_INVOKABLE void sendText(const QString& text);
    Q_INVOKABLE void sendQueued(int place);
    Q_INVOKABLE void removeQueued(int place);
    Q_INVOKABLE void retryMessage(const QString& key);
    Q_INVOKABLE void discardMessage(const QString& key);

    /// A MiraCard, or undefined.
    [[nodiscard]] QVariant product() const;
    [[nodiscard]] const QString& anchorName() const { return m_anchorName; }
    [[nodiscard]] int wardrobeCount() const { return m_wardrobe.pickedCount(); }
    /// {text, isKnown}: what the next message says of it.
    [[nodiscard]] QVariantMap weather() const;
    /// `item` holds a card.
    Q_INVOKABLE void attachProduct(const QVariant& item);
    /// Attaches it and begins a message about it.
    Q_INVOKABLE void styleProduct(const QVariant& item);
    Q_INVOKABLE void anchorLook(const QString& handle, const QString& title);
    Q_INVOKABLE void setWardrobe(const QStringList& handles);
    Q_INVOKABLE void removeProduct();
    Q_INVOKABLE void removeAnchor();
    Q_INVOKABLE void removeWardrobe();
    Q_INVOKABLE void removeWeather();

    [[nodiscard]] QString currentTopic() const { return m_topics.current(); }
    [[nodiscard]] QString currentTopicTitle() const;
    Q_INVOKABLE void newTopic();
    Q_INVOKABLE void openTopic(const QString& id);
    Q_INVOKABLE void renameTopic(const QString& id, const QString& title);
    Q_INVOKABLE void deleteTopic(const QString& id);

    /// The files of these names are about to go: lets go of what was in those that are the conversation's.
    void forget(const QStringList& files);

Q_SIGNALS:
    void stateChanged();
    void draftChanged();
    void contextChanged();
    void topicChanged();
    void textsChanged();
    /// A reply came, for those who only listen: its sentences.
    void replyArrived(const QStringList& sentences);

private:
    /// What came of opening the thread.
    struct Opened {
        int added = 0; ///< messages that were not here before
        std::optional<QString> failureCode;
    };
    enum class Asked { ByItself, ByShopper };
    enum class Attempt { First, Again };

    void restore();
    /// Puts the words with their context into the thread and sends them.
    void begin(const QString& words);
    [[nodiscard]] QCoro::Task<> load(Asked asked);
    [[nodiscard]] QCoro::Task<> loadGuide();
    [[nodiscard]] QCoro::Task<> loadOrders();
    [[nodiscard]] QCoro::Task<> sayUpToDate();
    /// Takes over the service's thread; once more without the token if the service does not know it any more.
    [[nodiscard]] QCoro::Task<ApiResult<Opened>> openThread(std::stop_token stop);
    [[nodiscard]] QCoro::Task<> deliver(QString key, Attempt attempt);
    /// The same for a message that cannot go out without it; false when it is not to be sent.
    [[nodiscard]] QCoro::Task<bool> openFor(QString key, std::stop_token stop);
    void fail(const QString& key, const Failure& failure);
    void setToken(const QString& token);
    void setFailure(std::optional<MiraFailure> failure);
    void showThread();
    void clearContext();
    void retranslate();

    MiraServices m_services;
    MiraTopics m_topics;
    MiraDraft m_draft;
    MiraCards m_cards;
    MiraThreadModel m_thread;
    MiraTopicsModel m_topicsModel;
    WardrobeModel m_wardrobe;
    bool m_isRestored = false;
    bool m_isOpen = false;
    std::chrono::milliseconds m_askedAt{0}; ///< for the thread, last
    QString m_token;
    quint64 m_answers = 0; ///< of the service to messages, so far
    QString m_guideName;
    std::optional<MiraFailure> m_failure;
    std::optional<MiraCard> m_product;
    QString m_anchorName;
    Work m_loading;
    Work m_sending;
    Work m_askingGuide;
    Work m_askingOrders;
    Work m_noticing;
};

} // namespace loom
