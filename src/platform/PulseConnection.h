#pragma once

#include "platform/PulseDevices.h"
#include "platform/PulseLoop.h"

#include <QObject>

struct pa_context;
struct pa_defer_event;

namespace loom
{

/// One connection to the sound server, from the attempt to the loss, and what the server says of its devices. What
/// takes time happens on the thread of the loop; the rest is of the main thread, which never waits for the server.
class PulseConnection final : public QObject
{
    Q_OBJECT

public:
    enum class State { Connecting, Ready, Failed };

    PulseConnection(PulseLoop& loop, QString applicationID);
    ~PulseConnection() override;

    [[nodiscard]] State state() const { return m_state; }
    /// Why it failed, in the numbers of the library.
    [[nodiscard]] int error() const { return m_error; }
    [[nodiscard]] const PulseDevices& devices() const { return m_devices; }
    /// The devices are those of now, as they are while they are followed.
    [[nodiscard]] bool knowsDevices() const { return m_state == State::Ready && m_knowsDevices; }
    void followDevices(bool isFollowing);
    /// Asks for the devices.
    void refresh();
    /// To be used under the lock of the loop; null before there is one.
    [[nodiscard]] pa_context* context() const { return m_context; }

Q_SIGNALS:
    void stateChanged();
    void devicesChanged();

private:
    // On the thread of the loop.
    void connectToServer();
    void contextChanged();
    void subscribe();
    void gather();
    void gathered();
    void report(State state, int error);

    PulseLoop& m_loop;
    QString m_applicationID;
    State m_state = State::Connecting;
    int m_error = 0;
    PulseDevices m_devices;
    bool m_knowsDevices = false;

    // Under the lock of the loop.
    pa_defer_event* m_beginning = nullptr;
    pa_context* m_context = nullptr;
    bool m_isFollowing = false;
    PulseDevices m_gathered;
    int m_missing = 0;      ///< answers to what was asked
    bool m_isStale = false; ///< something changed meanwhile
};

} // namespace loom
