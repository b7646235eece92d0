#pragma once

#include "base/FeatureGates.h"
#include "net/Work.h"
#include "stylist/voice/MiraVoiceAudio.h"
#include "stylist/voice/MiraVoiceFailure.h"
#include "stylist/voice/MiraVoiceNavigation.h"
#include "stylist/voice/MiraVoicePhase.h"
#include "stylist/voice/MiraVoiceShelf.h"
#include "stylist/voice/MiraVoiceSocket.h"
#include "stylist/voice/MiraVoiceToast.h"
#include "stylist/voice/MiraVoiceTranscript.h"
#include "stylist/voice/MiraVoiceTurnTaking.h"

#include <QDateTime>
#include <QObject>
#include <QVariantList>
#include <qcoro/qcorotask.h>

#include <functional>

namespace loom
{

class CartStore;
class Clock;
class GlobalKey;
class Preferences;

/// What a call with the stylist is made of; all of it outlives the session.
struct MiraVoiceServices {
    VoiceAudio& devices;
    GlobalKey& muteKey;
    CartStore& cart;
    StorefrontAPI& storefront;
    const MarketStore& market;
    const MoneyFormat& money;
    Preferences& preferences;
    const FeatureGates& features;
    const LinkResolver& resolver;
    Clock& clock;
    QString supportBase;
    std::function<MiraVoiceOpening()> opening; ///< as it is when the shopper calls
    std::function<QString()> guideName;        ///< as the chat knows her
    EchoCanceller::Maker makeEchoCanceller = EchoCanceller::make;
};

/// A call with the stylist: places it, follows its turns, carries out what she asks of the application, and ends it.
/// What was said and shown stays until the next call. One per process; main thread.
class MiraVoiceSession final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::MiraVoicePhases::Phase phase READ phase NOTIFY stateChanged)
    Q_PROPERTY(bool isActive READ isActive NOTIFY stateChanged)
    Q_PROPERTY(bool isConnected READ isConnected NOTIFY stateChanged)
    Q_PROPERTY(bool isMicrophoneOpen READ isMicrophoneOpen NOTIFY stateChanged)
    Q_PROPERTY(bool isListening READ isListening NOTIFY stateChanged)
    Q_PROPERTY(bool isMuted READ isMuted WRITE setMuted NOTIFY stateChanged)
    Q_PROPERTY(bool isPaused READ isPaused NOTIFY featuresChanged)
    Q_PROPERTY(QString durationText READ durationText NOTIFY durationChanged)
    Q_PROPERTY(QString guideName READ guideName NOTIFY stateChanged)
    Q_PROPERTY(QString toast READ toast NOTIFY toastChanged)
    Q_PROPERTY(bool isToastGood READ isToastGood NOTIFY toastChanged)
    Q_PROPERTY(QString failure READ failure NOTIFY stateChanged)
    Q_PROPERTY(bool canCallAgain READ canCallAgain NOTIFY stateChanged)
    Q_PROPERTY(loom::MiraVoiceTranscript* transcript READ transcript CONSTANT)
    Q_PROPERTY(QVariantList products READ products NOTIFY productsChanged)
    Q_PROPERTY(loom::MiraVoicePhases::Mode mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(bool closingReturnsToChat READ closingReturnsToChat NOTIFY modeChanged)
    Q_PROPERTY(bool isWindowShown READ isWindowShown NOTIFY modeChanged)
    Q_PROPERTY(double microphoneLevel READ microphoneLevel NOTIFY levelsChanged)
    Q_PROPERTY(double playedLevel READ playedLevel NOTIFY levelsChanged)
    Q_PROPERTY(QString muteKeyText READ muteKeyText NOTIFY stateChanged)

public:
    /// The service has to answer the call within this.
    static constexpr std::chrono::seconds answerTimeout{20};
    static constexpr std::chrono::seconds toastTime{4};

    explicit MiraVoiceSession(MiraVoiceServices services, QObject* parent = nullptr);
    ~MiraVoiceSession() override;

    [[nodiscard]] MiraVoicePhase phase() const { return m_turns.phase(); }
    /// From dialling to the end.
    [[nodiscard]] bool isActive() const { return phase() != MiraVoicePhase::Idle; }
    /// She is on the line.
    [[nodiscard]] bool isConnected() const { return isActive() && phase() != MiraVoicePhase::Connecting; }
    /// It hears, though nothing of that is used before she is on the line, nor while it is muted.
    [[nodiscard]] bool isMicrophoneOpen() const { return m_audio.isRunning(); }
    /// What the microphone hears may be sent.
    [[nodiscard]] bool isListening() const { return isConnected() && !m_isMuted; }
    [[nodiscard]] bool isMuted() const { return m_isMuted; }
    /// For this call; the next one begins as every call does.
    void setMuted(bool isMuted);
    /// The store has paused calls.
    [[nodiscard]] bool isPaused() const;
    [[nodiscard]] const QDateTime& connectedAt() const { return m_connectedAt; }
    [[nodiscard]] const QDateTime& endedAt() const { return m_endedAt; }
    [[nodiscard]] const QDateTime& thinkingSince() const { return m_thinkingSince; }
    [[nodiscard]] const QDateTime& lastSpokenAt() const { return m_lastSpokenAt; }
    /// "04:12"; empty before the first call connects.
    [[nodiscard]] QString durationText() const;
    [[nodiscard]] QString guideName() const;
    /// A short notice; empty when there is none.
    [[nodiscard]] QString toast() const { return m_toast ? m_toast->text() : QString(); }
    [[nodiscard]] bool isToastGood() const { return m_toast && m_toast->isGood(); }
    /// Why the last call ended or did not come about; empty otherwise. In the language of the window.
    [[nodiscard]] QString failure() const;
    [[nodiscard]] bool canCallAgain() const { return !isActive() && m_failure.has_value() && !isPaused(); }
    [[nodiscard]] MiraVoiceTranscript* transcript() { return &m_transcript; }
    /// MiraCards, the latest shown first.
    [[nodiscard]] QVariantList products() { return m_shelf.cards(); }
    [[nodiscard]] MiraVoiceMode mode() const { return m_mode; }
    void setMode(MiraVoiceMode mode);
    /// Whether closing the window docks the call into the chat; otherwise it hangs up.
    [[nodiscard]] bool closingReturnsToChat() const { return m_closingReturnsToChat; }
    /// The call has a window; otherwise the chat shows it.
    [[nodiscard]] bool isWindowShown() const { return m_isWindowShown; }
    [[nodiscard]] double microphoneLevel() const { return m_levels.microphone; }
    [[nodiscard]] double playedLevel() const { return m_levels.played; }
    /// The key that mutes from everywhere; empty while there is none.
    [[nodiscard]] QString muteKeyText() const;

    /// Places a call and shows its window. Nothing happens while one is under way but that its window comes.
    Q_INVOKABLE void call(bool isFromChat);
    /// The same once more, where the last one was shown.
    Q_INVOKABLE void callAgain();
    Q_INVOKABLE void hangUp();
    Q_INVOKABLE void toggleMute() { setMuted(!m_isMuted); }
    /// The shopper closes the window: back into the chat, or the end of the call.
    Q_INVOKABLE void closeWindow();
    /// The call goes on in the chat, or in a window again.
    Q_INVOKABLE void dockIntoChat();
    Q_INVOKABLE void showInWindow();
    /// Puts away what is left of a call that has ended.
    Q_INVOKABLE void dismiss();
    void retranslate();
    /// The store may have paused calls, or allows them again; one that is under way goes on.
    void featuresMayHaveChanged();
    /// What the call left belongs to a customer who is gone.
    void forget();

Q_SIGNALS:
    void stateChanged();
    void durationChanged();
    void toastChanged();
    void productsChanged();
    void modeChanged();
    void levelsChanged();
    void featuresChanged();
    /// The window is to be shown, in the mode it has.
    void windowRequested();
    /// The chat is to be shown beside the page of the window in front.
    void chatRequested();
    void opening(const loom::MiraVoiceDestination& destination);
    /// The line is closed: the service may have written the call into the conversation.
    void callEnded();

private:
    /// How loud both sides are, as it was told last.
    struct Levels {
        double microphone = 0;
        double played = 0;
        bool operator==(const Levels&) const = default;
    };

    void begin();
    void end(std::optional<MiraVoiceFailure> failure);
    /// Forgets the last call, so that nothing of it acts on the next.
    void clear();
    /// Those that are chosen. False where the call is over or has gone on without.
    [[nodiscard]] QCoro::Task<bool> openDevices(std::stop_token stop);
    [[nodiscard]] QCoro::Task<> place();
    [[nodiscard]] QCoro::Task<> changeDevices();
    [[nodiscard]] VoiceAudio::Choice devices() const;

    void follow(const MiraVoiceEvent& event);
    void happened(const MiraVoiceEvent::Ready& ready);
    void happened(const MiraVoiceEvent::Recognised& recognised);
    void happened(const MiraVoiceEvent::Speech& speech);
    void happened(const MiraVoiceEvent::Line& line);
    void happened(const MiraVoiceEvent::Products& products);
    void happened(const MiraVoiceEvent::Cart& cart);
    void happened(const MiraVoiceEvent::Navigation& navigation);
    void happened(const MiraVoiceEvent::Session& session);
    void happened(const MiraVoiceEvent::Ended& ended);
    void happened(const MiraVoiceEvent::Error& error);
    void closed(bool isNormal);
    [[nodiscard]] QCoro::Task<> add(MiraVoiceEvent::Cart cart);
    /// Makes a step of the turns and tells of what it changed.
    void takeTurn(const std::function<void(MiraVoiceTurnTaking& turns)>& step);

    [[nodiscard]] QCoro::Task<> show(MiraVoiceToast toast);
    void dropToast();
    [[nodiscard]] QCoro::Task<> tick();
    [[nodiscard]] QCoro::Task<> measure();
    void setWindow(MiraVoiceMode mode, bool isShown, bool closingReturnsToChat);

    MiraVoiceServices m_services;
    MiraVoiceSocket m_socket; ///< outlives the sound, which sends on it from a thread of its own
    MiraVoiceAudio m_audio;
    MiraVoiceTranscript m_transcript;
    MiraVoiceShelf m_shelf;
    MiraVoiceTurnTaking m_turns;
    bool m_isMuted = false;
    QString m_guideName; ///< as the service says; empty where it does not
    QDateTime m_connectedAt;
    QDateTime m_endedAt;
    QDateTime m_thinkingSince;
    QDateTime m_lastSpokenAt;
    std::chrono::milliseconds m_began{0}; ///< on the steady clock, when she was on the line
    std::chrono::seconds m_duration{0};
    std::optional<MiraVoiceToast> m_toast;
    std::optional<MiraVoiceFailure> m_failure;
    MiraVoiceMode m_mode = MiraVoiceMode::Full;
    bool m_closingReturnsToChat = false;
    bool m_isWindowShown = false;
    Levels m_levels;
    std::stop_source m_call; ///< of what is done for the latest call
    Work m_placing;
    Work m_changing;
    Work m_ticking;
    Work m_measuring;
    Work m_showing;
};

} // namespace loom
