#include "stylist/voice/MiraVoiceSession.h"

#include "base/Clock.h"
#include "storage/Preferences.h"
#include "stylist/voice/GlobalKey.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace loom
{

namespace
{

constexpr std::chrono::milliseconds levelInterval{50};

/// What cannot be seen is not told.
double shownLevel(double level)
{
    constexpr double steps = 100;
    return std::round(std::clamp(level, 0.0, 1.0) * steps) / steps;
}

} // namespace

MiraVoiceSession::MiraVoiceSession(MiraVoiceServices services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_audio(
          m_services.devices, [this](std::vector<float> samples) { m_socket.sendAudio(std::move(samples)); },
          m_services.makeEchoCanceller)
    , m_shelf(m_services.storefront, m_services.market, m_services.money, m_services.clock)
{
    connect(&m_socket, &MiraVoiceSocket::received, this, &MiraVoiceSession::follow);
    connect(&m_socket, &MiraVoiceSocket::closed, this, &MiraVoiceSession::closed);
    connect(&m_shelf, &MiraVoiceShelf::changed, this, &MiraVoiceSession::productsChanged);
    connect(&m_audio, &MiraVoiceAudio::playbackBegan, this,
            [this] { takeTurn([](MiraVoiceTurnTaking& turns) { turns.playbackBegan(); }); });
    connect(&m_audio, &MiraVoiceAudio::playbackEnded, this,
            [this] { takeTurn([](MiraVoiceTurnTaking& turns) { turns.playbackEnded(); }); });
    connect(&m_audio, &MiraVoiceAudio::speechBegan, this, [this](bool isInterruption) {
        takeTurn([isInterruption](MiraVoiceTurnTaking& turns) { turns.speechBegan(isInterruption); });
    });
    connect(&m_audio, &MiraVoiceAudio::speechEnded, this, [this] {
        if (isConnected())
            m_lastSpokenAt = m_services.clock.now();
        takeTurn([this](MiraVoiceTurnTaking& turns) { turns.speechEnded(m_services.clock.elapsed()); });
    });
    connect(&m_audio, &MiraVoiceAudio::failed, this, [this](VoiceFailure failure) {
        if (isActive())
            end(miraVoiceFailure(failure));
    });
    connect(&m_services.muteKey, &GlobalKey::pressed, this, [this] {
        if (isActive())
            toggleMute();
    });
    connect(&m_services.muteKey, &GlobalKey::isBoundChanged, this, &MiraVoiceSession::stateChanged);
    connect(&m_services.preferences, &Preferences::changed, this, [this](const QString& key) {
        const bool isDevice = key == QLatin1String(preferences::voiceMicrophone.key) ||
                              key == QLatin1String(preferences::voiceSpeaker.key);
        if (!isDevice || !isActive())
            return;
        if (isMicrophoneOpen() || m_changing.isRunning())
            static_cast<void>(changeDevices());
        else
            static_cast<void>(place()); // it has not come further than to open them
    });
}

MiraVoiceSession::~MiraVoiceSession()
{
    m_call.request_stop();
    if (isActive()) {
        m_socket.hangUp();
        m_services.muteKey.setBound(false, {});
    }
    m_audio.stop();
}

bool MiraVoiceSession::isPaused() const
{
    return !m_services.features.isEnabled(Feature::MiraVoice);
}

QString MiraVoiceSession::guideName() const
{
    return m_guideName.isEmpty() ? m_services.guideName() : m_guideName;
}

QString MiraVoiceSession::durationText() const
{
    if (!m_connectedAt.isValid())
        return {};
    const auto seconds = m_duration.count();
    const QString minutes = QStringLiteral("%1:%2")
                                .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
                                .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    return seconds < 3600 ? minutes : QStringLiteral("%1:%2").arg(seconds / 3600).arg(minutes);
}

QString MiraVoiceSession::failure() const
{
    return m_failure ? miraVoiceFailureText(*m_failure) : QString();
}

QString MiraVoiceSession::muteKeyText() const
{
    return isActive() && m_services.muteKey.isBound() ? m_services.muteKey.keyText() : QString();
}

void MiraVoiceSession::setMuted(bool isMuted)
{
    if (!isActive() || m_isMuted == isMuted)
        return;
    m_isMuted = isMuted;
    m_audio.setMuted(isMuted);
    Q_EMIT stateChanged();
}

VoiceAudio::Choice MiraVoiceSession::devices() const
{
    return {.microphone = m_services.preferences.value(preferences::voiceMicrophone),
            .speaker = m_services.preferences.value(preferences::voiceSpeaker)};
}

// A call from its beginning to its end.

void MiraVoiceSession::call(bool isFromChat)
{
    if (isActive()) {
        showInWindow();
        return;
    }
    if (isPaused())
        return;
    setWindow(MiraVoiceMode::Full, true, isFromChat);
    begin();
}

void MiraVoiceSession::callAgain()
{
    if (!isActive() && !isPaused())
        begin();
}

void MiraVoiceSession::begin()
{
    clear();
    m_turns.dial();
    m_services.muteKey.setBound(true, QCoreApplication::translate("Loomstreet", "Mute the microphone during a call"));
    Q_EMIT stateChanged();
    if (m_isWindowShown)
        Q_EMIT windowRequested();
    if (phase() == MiraVoicePhase::Connecting && !m_placing.isRunning()) // whoever was told may have ended it
        static_cast<void>(place());
}

QCoro::Task<bool> MiraVoiceSession::openDevices(std::stop_token stop)
{
    const auto failure = co_await m_audio.start(devices(), stop);
    if (stop.stop_requested())
        co_return false;
    if (failure)
        end(miraVoiceFailure(*failure));
    co_return !failure;
}

QCoro::Task<> MiraVoiceSession::place()
{
    const Work::Run run = m_placing.begin();
    // Asks for the microphone first; the line is not even opened before it hears.
    if (!co_await openDevices(run.stop()))
        co_return;
    static_cast<void>(measure());
    Q_EMIT stateChanged();
    if (run.isStopped())
        co_return;
    const auto address = MiraVoiceFrames::address(m_services.supportBase);
    if (address) {
        m_socket.open(*address, m_services.opening());
        co_await m_services.clock.sleep(answerTimeout, run.stop());
    }
    if (!run.isStopped())
        end(MiraVoiceFailure::CannotStart);
}

/// The shopper chose others in the middle of a call. What was being said through the old ones breaks off.
QCoro::Task<> MiraVoiceSession::changeDevices()
{
    const Work::Run run = m_changing.begin();
    if (!co_await openDevices(run.stop()))
        co_return;
    m_audio.setSending(isConnected());
    Q_EMIT stateChanged(); // who looked meanwhile saw a closed microphone
    if (run.isStopped())
        co_return;
    takeTurn([this](MiraVoiceTurnTaking& turns) {
        turns.speechEnded(m_services.clock.elapsed());
        if (!m_audio.isPlaying())
            turns.playbackEnded();
    });
}

void MiraVoiceSession::hangUp()
{
    if (isActive())
        end({});
}

void MiraVoiceSession::end(std::optional<MiraVoiceFailure> failure)
{
    const bool wasConnected = isConnected();
    m_turns.end();
    for (Work* const work : {&m_placing, &m_changing, &m_ticking, &m_measuring})
        work->stop();
    m_socket.hangUp();
    m_audio.stop();
    m_audio.setMuted(false);
    m_transcript.settle();
    m_isMuted = false;
    m_failure = failure;
    m_services.muteKey.setBound(false, {});
    m_endedAt = m_services.clock.now();
    if (wasConnected)
        m_duration = std::chrono::duration_cast<std::chrono::seconds>(m_services.clock.elapsed() - m_began);
    const bool wereHeard = std::exchange(m_levels, {}) != Levels();
    Q_EMIT stateChanged();
    Q_EMIT durationChanged();
    if (wereHeard)
        Q_EMIT levelsChanged();
    if (wasConnected)
        Q_EMIT callEnded();
}

void MiraVoiceSession::clear()
{
    m_call.request_stop();
    m_call = {};
    m_transcript.clear();
    m_shelf.clear();
    dropToast();
    m_failure.reset();
    m_guideName.clear();
    m_connectedAt = m_endedAt = m_thinkingSince = m_lastSpokenAt = {};
    m_duration = {};
    Q_EMIT durationChanged();
}

void MiraVoiceSession::dismiss()
{
    if (isActive())
        return;
    clear();
    setWindow(m_mode, false, m_closingReturnsToChat);
    Q_EMIT stateChanged();
}

void MiraVoiceSession::forget()
{
    hangUp();
    dismiss();
}

QCoro::Task<> MiraVoiceSession::tick()
{
    const Work::Run run = m_ticking.begin();
    while (true) {
        co_await m_services.clock.sleep(m_began + m_duration + std::chrono::seconds(1) - m_services.clock.elapsed(),
                                        run.stop());
        if (run.isStopped())
            co_return;
        m_duration = std::chrono::duration_cast<std::chrono::seconds>(m_services.clock.elapsed() - m_began);
        Q_EMIT durationChanged();
        if (run.isStopped())
            co_return;
    }
}

QCoro::Task<> MiraVoiceSession::measure()
{
    const Work::Run run = m_measuring.begin();
    while (true) {
        co_await m_services.clock.sleep(levelInterval, run.stop());
        if (run.isStopped())
            co_return;
        const Levels levels{.microphone = m_isMuted ? 0 : shownLevel(m_audio.microphoneLevel()),
                            .played = shownLevel(m_audio.playedLevel())};
        if (std::exchange(m_levels, levels) != levels)
            Q_EMIT levelsChanged();
        if (run.isStopped())
            co_return;
    }
}

// Its window.

void MiraVoiceSession::setWindow(MiraVoiceMode mode, bool isShown, bool closingReturnsToChat)
{
    if (mode == m_mode && isShown == m_isWindowShown && closingReturnsToChat == m_closingReturnsToChat)
        return;
    m_mode = mode;
    m_isWindowShown = isShown;
    m_closingReturnsToChat = closingReturnsToChat;
    Q_EMIT modeChanged();
}

void MiraVoiceSession::setMode(MiraVoiceMode mode)
{
    setWindow(mode, m_isWindowShown, m_closingReturnsToChat);
}

void MiraVoiceSession::closeWindow()
{
    if (!isActive()) {
        dismiss();
    } else if (m_closingReturnsToChat) {
        dockIntoChat();
    } else {
        hangUp();
        setWindow(m_mode, false, false);
    }
}

void MiraVoiceSession::dockIntoChat()
{
    if (!isActive())
        return;
    setWindow(m_mode, false, true);
    Q_EMIT chatRequested();
}

void MiraVoiceSession::showInWindow()
{
    if (!isActive() && !m_endedAt.isValid())
        return;
    setWindow(m_mode, true, m_closingReturnsToChat);
    Q_EMIT windowRequested();
}

void MiraVoiceSession::featuresMayHaveChanged()
{
    Q_EMIT featuresChanged();
    Q_EMIT stateChanged();
}

void MiraVoiceSession::retranslate()
{
    Q_EMIT stateChanged();
    Q_EMIT toastChanged();
    Q_EMIT productsChanged();
}

} // namespace loom
