#pragma once

#include "net/Work.h"
#include "storage/Preferences.h"
#include "stylist/voice/MiraVoiceFailure.h"
#include "stylist/voice/VoiceAudio.h"

#include <QObject>
#include <QVariantList>

#include <memory>

namespace loom
{

class Clock;
class MiraVoiceSession;

/// The choice of microphone and loudspeaker, and how loud the chosen microphone is. Listens only while asked to; during
/// a call it shows what the call hears. Main thread; owned by the page that shows it.
class VoiceDevicesModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList microphones READ microphones NOTIFY changed)
    Q_PROPERTY(QVariantList speakers READ speakers NOTIFY changed)
    Q_PROPERTY(QString microphone READ microphone WRITE setMicrophone NOTIFY changed)
    Q_PROPERTY(QString speaker READ speaker WRITE setSpeaker NOTIFY changed)
    Q_PROPERTY(bool isMeasuring READ isMeasuring NOTIFY changed)
    Q_PROPERTY(double level READ level NOTIFY levelChanged)
    Q_PROPERTY(QString failure READ failure NOTIFY changed)

public:
    VoiceDevicesModel(VoiceAudio& devices, const MiraVoiceSession& call, Preferences& preferences, Clock& clock,
                      QObject* parent = nullptr);
    ~VoiceDevicesModel() override;

    /// {id, name, isConnected}; the first is the desktop's default, with an empty id. One that was chosen and is not
    /// connected is in the list, so that the choice can be seen.
    [[nodiscard]] QVariantList microphones() const;
    [[nodiscard]] QVariantList speakers() const;
    [[nodiscard]] QString microphone() const;
    void setMicrophone(const QString& id);
    [[nodiscard]] QString speaker() const;
    void setSpeaker(const QString& id);
    [[nodiscard]] bool isMeasuring() const;
    /// From 0 to 1, on a scale as ears have it.
    [[nodiscard]] double level() const;
    /// Why nothing is measured, in the language of the window; empty otherwise.
    [[nodiscard]] QString failure() const;

    /// Opens the microphone to show its level, and closes it again. A call takes the microphone over.
    Q_INVOKABLE void startMeasuring();
    Q_INVOKABLE void stopMeasuring();

Q_SIGNALS:
    void changed();
    void levelChanged();

private:
    class Meter;

    [[nodiscard]] QCoro::Task<> measure();
    void close();
    void fail(VoiceFailure failure);
    /// A call has begun or ended.
    void followCall();

    VoiceAudio& m_devices;
    const MiraVoiceSession& m_call;
    Preferences& m_preferences;
    Clock& m_clock;
    bool m_isAsked = false;         ///< to measure
    std::unique_ptr<Meter> m_meter; ///< while the microphone is open for it
    double m_level = 0;
    std::optional<MiraVoiceFailure> m_failure;
    Work m_measuring;
};

} // namespace loom
