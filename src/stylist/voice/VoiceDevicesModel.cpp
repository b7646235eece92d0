#include "stylist/voice/VoiceDevicesModel.h"

#include "base/Clock.h"
#include "catalog/DisplayText.h"
#include "stylist/voice/Loudness.h"
#include "stylist/voice/MiraVoiceSession.h"

#include <QCoreApplication>

#include <atomic>
#include <cmath>

namespace loom
{

namespace
{

constexpr std::chrono::milliseconds levelInterval{50};
constexpr qsizetype longestName = 120;

QVariantMap entry(const QString& id, const QString& name, bool isConnected)
{
    return {{QStringLiteral("id"), id}, {QStringLiteral("name"), name}, {QStringLiteral("isConnected"), isConnected}};
}

QVariantList listed(const std::vector<VoiceDevice>& devices, const QString& chosen)
{
    QVariantList list{entry({}, QCoreApplication::translate("Loomstreet", "System default"), true)};
    bool isThere = chosen.isEmpty();
    for (const VoiceDevice& device : devices) {
        isThere = isThere || device.id == chosen;
        list.append(entry(device.id, displayLine(device.name, longestName), true));
    }
    if (!isThere)
        list.append(entry(chosen, QCoreApplication::translate("Loomstreet", "Not connected"), false));
    return list;
}

} // namespace

/// Listens to how loud it is, and to nothing else.
class VoiceDevicesModel::Meter final : public VoiceFlow
{
public:
    void captured(std::span<const float> samples) override
    {
        const float loudness = samples.empty() ? 0 : rootMeanSquare(samples);
        if (std::isfinite(loudness) && loudness > m_loudest.load(std::memory_order_relaxed))
            m_loudest.store(loudness, std::memory_order_relaxed);
    }
    void render(std::span<float> samples, double /*delay*/) override { std::ranges::fill(samples, 0.0F); }

    /// Since it was asked last, from 0 to 1 on a scale as ears have it.
    [[nodiscard]] double takeLevel() { return shownLoudness(m_loudest.exchange(0, std::memory_order_relaxed)); }

private:
    std::atomic<float> m_loudest = 0;
};

VoiceDevicesModel::VoiceDevicesModel(VoiceAudio& devices, const MiraVoiceSession& call, Preferences& preferences,
                                     Clock& clock, QObject* parent)
    : QObject(parent)
    , m_devices(devices)
    , m_call(call)
    , m_preferences(preferences)
    , m_clock(clock)
{
    connect(&devices, &VoiceAudio::devicesChanged, this, &VoiceDevicesModel::changed);
    connect(&devices, &VoiceAudio::failed, this, [this](VoiceFailure failure) {
        if (m_meter)
            fail(failure);
    });
    connect(&call, &MiraVoiceSession::stateChanged, this, &VoiceDevicesModel::followCall);
    connect(&call, &MiraVoiceSession::levelsChanged, this, &VoiceDevicesModel::levelChanged);
    connect(&preferences, &Preferences::changed, this, [this](const QString& key) {
        if (key == QLatin1String(preferences::voiceMicrophone.key) ||
            key == QLatin1String(preferences::voiceSpeaker.key))
            Q_EMIT changed();
    });
    m_devices.watchDevices(true);
}

VoiceDevicesModel::~VoiceDevicesModel()
{
    close();
    m_devices.watchDevices(false);
}

QVariantList VoiceDevicesModel::microphones() const
{
    return listed(m_devices.microphones(), microphone());
}

QVariantList VoiceDevicesModel::speakers() const
{
    return listed(m_devices.speakers(), speaker());
}

QString VoiceDevicesModel::microphone() const
{
    return m_preferences.value(preferences::voiceMicrophone);
}

void VoiceDevicesModel::setMicrophone(const QString& id)
{
    if (id == microphone())
        return;
    m_preferences.set(preferences::voiceMicrophone, id);
    if (m_isAsked && !m_call.isActive())
        static_cast<void>(measure());
}

QString VoiceDevicesModel::speaker() const
{
    return m_preferences.value(preferences::voiceSpeaker);
}

void VoiceDevicesModel::setSpeaker(const QString& id)
{
    m_preferences.set(preferences::voiceSpeaker, id);
}

bool VoiceDevicesModel::isMeasuring() const
{
    return m_isAsked && (m_meter || m_call.isMicrophoneOpen());
}

double VoiceDevicesModel::level() const
{
    return m_isAsked && m_call.isActive() ? m_call.microphoneLevel() : m_level;
}

QString VoiceDevicesModel::failure() const
{
    return m_failure ? miraVoiceFailureText(*m_failure) : QString();
}

void VoiceDevicesModel::startMeasuring()
{
    if (std::exchange(m_isAsked, true) && isMeasuring())
        return;
    if (m_call.isActive())
        Q_EMIT changed();
    else
        static_cast<void>(measure());
}

void VoiceDevicesModel::stopMeasuring()
{
    m_isAsked = false;
    m_failure.reset();
    close();
    Q_EMIT changed();
    Q_EMIT levelChanged();
}

QCoro::Task<> VoiceDevicesModel::measure()
{
    close();
    const Work::Run run = m_measuring.begin();
    m_failure.reset();
    const bool isAllowed = co_await m_devices.requestAccess(run.stop());
    if (run.isStopped())
        co_return;
    if (!isAllowed) {
        fail(VoiceFailure::AccessRefused);
        co_return;
    }
    m_meter = std::make_unique<Meter>();
    const auto opened =
        co_await m_devices.open({.microphone = microphone(), .wantsSpeaker = false}, *m_meter, run.stop());
    if (run.isStopped())
        co_return;
    if (!opened.streams) {
        fail(opened.failure);
        co_return;
    }
    Q_EMIT changed();
    while (!run.isStopped()) {
        co_await m_clock.sleep(levelInterval, run.stop());
        if (run.isStopped())
            co_return;
        const double level = m_meter->takeLevel();
        if (std::exchange(m_level, level) != level)
            Q_EMIT levelChanged();
    }
}

void VoiceDevicesModel::close()
{
    m_measuring.stop();
    if (!m_meter)
        return;
    m_devices.close();
    m_meter.reset();
    m_level = 0;
}

void VoiceDevicesModel::fail(VoiceFailure failure)
{
    close();
    m_failure = miraVoiceFailure(failure);
    Q_EMIT changed();
    Q_EMIT levelChanged();
}

void VoiceDevicesModel::followCall()
{
    if (m_call.isActive()) {
        close(); // before the call opens them
        m_failure.reset();
    } else if (m_isAsked && !m_meter && !m_measuring.isRunning() && !m_failure) {
        static_cast<void>(measure());
    }
    Q_EMIT changed();
}

} // namespace loom
