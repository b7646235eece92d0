#include "support/SoundServer.h"

#include "support/Running.h"

#include <QDir>
#include <QFile>
#include <QTimer>

#include <cmath>
#include <csignal>
#include <numbers>
#include <stdexcept>
#include <sys/prctl.h>

namespace loom
{

namespace
{

const char* const serverVariable = "PULSE_SERVER";

/// The devices of the machine stay out of it, and no message bus is needed.
const char* const mainConfiguration = R"(alsa_monitor.enabled = false
v4l2_monitor.enabled = false
libcamera_monitor.enabled = false
default_access.properties["enable-flatpak-portal"] = false
)";
const char* const bluetoothConfiguration = "bluez_monitor.enabled = false\n";

void write(const QString& folder, const char* text)
{
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/51-nothing-of-the-machine.lua"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0)
        throw std::runtime_error("cannot write the configuration of a sound server");
}

QStringList rawFormat()
{
    return {QStringLiteral("--raw"), QStringLiteral("--format=float32le"), QStringLiteral("--channels=1"),
            QStringLiteral("--rate=%1").arg(SoundServer::rate)};
}

/// Asks again and again: servers do not say when they are ready.
void askUntil(const std::function<bool()>& isSo, const char* what)
{
    QTimer turn;
    turn.start(std::chrono::milliseconds(20));
    waitUntil(isSo, what);
}

} // namespace

void ProcessEnd::operator()(QProcess* process) const
{
    process->kill();
    process->waitForFinished();
    delete process;
}

SoundServer::SoundServer()
    : m_environment(QProcessEnvironment::systemEnvironment())
{
    for (const char* const name : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        m_environment.insert(QString::fromLatin1(name), folder(name));
    m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    for (const char* const name : {"DISPLAY", "PIPEWIRE_REMOTE", "PIPEWIRE_RUNTIME_DIR", "PULSE_RUNTIME_PATH"})
        m_environment.remove(QString::fromLatin1(name));
    const QString address = QStringLiteral("unix:") + folder("XDG_RUNTIME_DIR") + QStringLiteral("/pulse/native");
    m_environment.insert(QString::fromLatin1(serverVariable), address);
    writeConfiguration();
    qputenv(serverVariable, address.toLocal8Bit());
    start();
}

SoundServer::~SoundServer()
{
    setFrozen(false);
    crash();
    qunsetenv(serverVariable);
}

QString SoundServer::folder(const char* name) const
{
    return m_home.filePath(QString::fromLatin1(name));
}

void SoundServer::writeConfiguration() const
{
    const QString runtime = folder("XDG_RUNTIME_DIR");
    QDir().mkpath(runtime);
    QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString configuration = folder("XDG_CONFIG_HOME") + QStringLiteral("/wireplumber");
    write(configuration + QStringLiteral("/main.lua.d"), mainConfiguration);
    write(configuration + QStringLiteral("/bluetooth.lua.d"), bluetoothConfiguration);
}

OwnedProcess SoundServer::run(const QString& program, const QStringList& arguments) const
{
    OwnedProcess process(new QProcess);
    process->setProcessEnvironment(m_environment);
    // A test that crashes leaves nothing behind.
    process->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process->start(program, arguments);
    if (!process->waitForStarted())
        throw std::runtime_error(program.toStdString() + " does not start");
    return process;
}

QString SoundServer::ask(const QStringList& arguments) const
{
    const auto process = run(QStringLiteral("pactl"), arguments);
    waitUntil([&process] { return process->state() == QProcess::NotRunning; }, "the sound server answers");
    return QString::fromUtf8(process->readAllStandardOutput()).trimmed();
}

void SoundServer::start()
{
    const auto begin = [this](const char* program) {
        auto process = run(QString::fromLatin1(program), {});
        process->setStandardOutputFile(QProcess::nullDevice());
        m_servers.push_back(std::move(process));
    };
    const auto waitForAnswer = [this](const char* program, const QStringList& arguments, const char* what) {
        askUntil(
            [&] {
                const auto process = run(QString::fromLatin1(program), arguments);
                process->waitForFinished();
                return process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
            },
            what);
    };
    begin("pipewire");
    waitForAnswer("pw-cli", {QStringLiteral("info"), QStringLiteral("0")}, "PipeWire answers");
    begin("wireplumber");
    begin("pipewire-pulse");
    waitForAnswer("pactl", {QStringLiteral("info")}, "the sound server answers");
    addDevices();
}

void SoundServer::addDevices()
{
    m_speakerModule = addSink(QStringLiteral("speaker"));
    static_cast<void>(addSink(QStringLiteral("room")));
    m_microphoneModule = addMicrophone(QStringLiteral("mic"), QStringLiteral("room"));
    setDefaultSpeaker(QStringLiteral("speaker"));
    setDefaultMicrophone(QStringLiteral("mic"));
}

void SoundServer::crash()
{
    // Those that use it first, so that they do not complain.
    while (!m_servers.empty())
        m_servers.pop_back();
}

void SoundServer::setFrozen(bool isFrozen)
{
    for (const auto& server : m_servers) {
        if (server->processId() > 0)
            ::kill(static_cast<pid_t>(server->processId()), isFrozen ? SIGSTOP : SIGCONT);
    }
}

int SoundServer::addSink(const QString& name)
{
    return load({QStringLiteral("module-null-sink"), QStringLiteral("sink_name=") + name,
                 QStringLiteral("sink_properties=device.description=") + name});
}

int SoundServer::addMicrophone(const QString& name, const QString& room)
{
    return load({QStringLiteral("module-remap-source"), QStringLiteral("source_name=") + name,
                 QStringLiteral("master=") + room + QStringLiteral(".monitor"),
                 QStringLiteral("source_properties=device.description=") + name});
}

int SoundServer::load(const QStringList& module)
{
    bool isLoaded = false;
    const int index = ask(QStringList{QStringLiteral("load-module")} + module).toInt(&isLoaded);
    if (!isLoaded)
        throw std::runtime_error("the sound server does not load " + module.value(0).toStdString());
    return index;
}

void SoundServer::remove(int module)
{
    static_cast<void>(ask({QStringLiteral("unload-module"), QString::number(module)}));
}

void SoundServer::setDefaultSpeaker(const QString& name)
{
    askUntil(
        [&] {
            static_cast<void>(ask({QStringLiteral("set-default-sink"), name}));
            return ask({QStringLiteral("get-default-sink")}) == name;
        },
        "the default loudspeaker is chosen");
}

void SoundServer::setDefaultMicrophone(const QString& name)
{
    askUntil(
        [&] {
            static_cast<void>(ask({QStringLiteral("set-default-source"), name}));
            return ask({QStringLiteral("get-default-source")}) == name;
        },
        "the default microphone is chosen");
}

OwnedProcess SoundServer::play(std::span<const float> samples, const QString& room) const
{
    auto process = run(QStringLiteral("pacat"),
                       rawFormat() + QStringList{QStringLiteral("--playback"), QStringLiteral("--latency-msec=20"),
                                                 QStringLiteral("--device=") + room});
    process->write(reinterpret_cast<const char*>(samples.data()), static_cast<qint64>(samples.size_bytes()));
    process->closeWriteChannel();
    return process;
}

OwnedProcess SoundServer::playFile(const QString& path, const QString& room) const
{
    return run(QStringLiteral("paplay"), {QStringLiteral("--device=") + room, path});
}

std::vector<float> tone(double frequency, double seconds, double loudness)
{
    std::vector<float> samples(static_cast<std::size_t>(seconds * SoundServer::rate));
    for (std::size_t at = 0; at < samples.size(); ++at) {
        const double phase = 2 * std::numbers::pi * frequency * static_cast<double>(at) / SoundServer::rate;
        samples[at] = static_cast<float>(loudness * std::sin(phase));
    }
    return samples;
}

double toneLevel(std::span<const float> samples, double frequency, int rate)
{
    if (samples.empty())
        return 0;
    double sine = 0;
    double cosine = 0;
    for (std::size_t at = 0; at < samples.size(); ++at) {
        const double phase = 2 * std::numbers::pi * frequency * static_cast<double>(at) / rate;
        sine += static_cast<double>(samples[at]) * std::sin(phase);
        cosine += static_cast<double>(samples[at]) * std::cos(phase);
    }
    return 2 * std::hypot(sine, cosine) / static_cast<double>(samples.size());
}

} // namespace loom
