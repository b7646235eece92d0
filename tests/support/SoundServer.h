#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <span>
#include <vector>

namespace loom
{

/// A program that ends with its owner.
struct ProcessEnd {
    void operator()(QProcess* process) const;
};
using OwnedProcess = std::unique_ptr<QProcess, ProcessEnd>;

/// A sound server of a test's own, with nothing of the machine in it: PipeWire, as desktops run it, with a loudspeaker
/// ("speaker", the default one), a room into which sounds are played ("room"), and a microphone that hears the room
/// ("mic", the default one). Whoever speaks to a sound server in this process finds this one while it lives.
class SoundServer
{
public:
    /// Returns once everything is there; throws, which fails the test, when that never happens.
    SoundServer();
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;
    ~SoundServer();

    /// The server is gone from one moment to the next, and everything in it.
    void crash();
    /// It comes back, with the same devices as in the beginning.
    void start();
    /// Holds it in the middle of whatever it does, or lets it go on.
    void setFrozen(bool isFrozen);

    /// Adds a loudspeaker or room. What is returned takes it away again.
    int addSink(const QString& name);
    /// Adds a microphone that hears what is played in a room.
    int addMicrophone(const QString& name, const QString& room);
    /// Loads any module of the server.
    int load(const QStringList& module);
    void remove(int module);
    void setDefaultSpeaker(const QString& name);
    void setDefaultMicrophone(const QString& name);
    /// The devices that everyone begins with.
    [[nodiscard]] int speakerModule() const { return m_speakerModule; }
    [[nodiscard]] int microphoneModule() const { return m_microphoneModule; }

    /// Runs pactl and returns what it prints.
    [[nodiscard]] QString ask(const QStringList& arguments) const;

    static constexpr int rate = 48000; ///< samples a second, one channel
    /// Plays into a room, until the end or the end of what is returned.
    [[nodiscard]] OwnedProcess play(std::span<const float> samples, const QString& room = QStringLiteral("room")) const;
    /// A file of sound, of any usual kind.
    [[nodiscard]] OwnedProcess playFile(const QString& path, const QString& room = QStringLiteral("room")) const;

    /// Starts a program that speaks to this server.
    [[nodiscard]] OwnedProcess run(const QString& program, const QStringList& arguments) const;

private:
    [[nodiscard]] QString folder(const char* name) const;
    void writeConfiguration() const;
    void addDevices();

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    std::vector<OwnedProcess> m_servers;
    int m_speakerModule = -1;
    int m_microphoneModule = -1;
};

/// A tone for so long, at SoundServer::rate.
[[nodiscard]] std::vector<float> tone(double frequency, double seconds, double loudness = 0.5);
/// How loud a tone is in what was heard, from 0 to 1.
[[nodiscard]] double toneLevel(std::span<const float> samples, double frequency, int rate = SoundServer::rate);

} // namespace loom
