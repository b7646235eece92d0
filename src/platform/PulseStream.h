#pragma once

#include "platform/PulseLoop.h"
#include "stylist/voice/VoiceAudio.h"

#include <QObject>

struct pa_context;
struct pa_stream;

namespace loom
{

/// Sound in one direction, in one channel at one rate, between the sound server and a VoiceFlow. The server moves it
/// to another device when its own goes or the default changes, and converts where that has another rate. Main thread,
/// but for flush(); the flow is called on the thread of the loop.
class PulseStream final : public QObject
{
    Q_OBJECT

public:
    enum class Direction { Capture, Render };
    enum class State { Starting, Ready, Failed };

    /// An empty device is the default. What is heard is thrown away, and silence played, until setFlow().
    PulseStream(PulseLoop& loop, pa_context* context, Direction direction, const QString& device, int rate);
    ~PulseStream() override;

    [[nodiscard]] State state() const { return m_state; }
    /// Why it failed, in the numbers of the library.
    [[nodiscard]] int error() const { return m_error; }
    void setFlow(VoiceFlow& flow);
    /// The index of what it runs on now.
    [[nodiscard]] quint32 device() const;
    /// Seconds between the flow and the air, as far as the server knows.
    [[nodiscard]] double latency() const;
    /// Throws away what was rendered and not played yet. Any thread.
    void flush();

Q_SIGNALS:
    void stateChanged();
    void moved();

private:
    // On the thread of the loop.
    void streamChanged();
    void report(State state, int error);
    void hear();
    void fill(std::size_t bytes);

    PulseLoop& m_loop;
    Direction m_direction;
    State m_state = State::Starting;
    int m_error = 0;

    // Under the lock of the loop.
    pa_stream* m_stream = nullptr;
    VoiceFlow* m_flow = nullptr;
};

} // namespace loom
