#include "platform/PulseDevices.h"

namespace
{

using namespace loom;

PulseDevice device(const char* name, const QString& echoGroup = {})
{
    return {.name = QString::fromLatin1(name), .rate = 44100, .echoGroup = echoGroup};
}

PulseDevice monitor(const char* name)
{
    return {.name = QString::fromLatin1(name), .rate = 44100, .isMonitor = true};
}

/// A desk with two microphones and two loudspeakers; nobody cancels echo.
PulseDevices desk()
{
    return {.sources = {monitor("speakers.monitor"), device("desk"), device("headset")},
            .sinks = {device("speakers"), device("headphones")},
            .defaultSource = QStringLiteral("desk"),
            .defaultSink = QStringLiteral("speakers")};
}

/// The same, where the desktop frees the default microphone from echo.
PulseDevices quietDesk()
{
    PulseDevices devices = desk();
    const QString group = QStringLiteral("echo-cancel-1-2");
    devices.sources.push_back(device("clean", group));
    devices.sources.back().master = QStringLiteral("desk");
    devices.sinks.push_back(device("through", group));
    return devices;
}

TEST(PulseDevicesTest, WhatIsOpenedFollowsTheChoiceAndPrefersAnEchoFreeDefault)
{
    PulseDevices unlike = quietDesk();
    unlike.defaultSource = QStringLiteral("headset"); // the canceller is that of another microphone
    PulseDevices lonely = quietDesk();
    lonely.sinks.pop_back();
    PulseDevices played = desk();
    played.defaultSource = QStringLiteral("speakers.monitor");
    PulseDevices already = quietDesk();
    already.defaultSource = QStringLiteral("clean");
    already.defaultSink = QStringLiteral("through");
    const struct Case {
        const char* what;
        PulseDevices devices;
        const char* microphone;
        const char* speaker;
        bool prefersEchoFree;
        const char* source;
        const char* sink;
    } cases[] = {
        {"the defaults, whatever they are", desk(), "", "", true, "", ""},
        {"what was chosen", desk(), "headset", "headphones", true, "headset", "headphones"},
        {"what is not there is the default", desk(), "gone", "gone", true, "", ""},
        {"a monitor is no microphone", desk(), "speakers.monitor", "", true, "", ""},
        {"not even as the default", played, "", "", true, "desk", ""},
        {"echo-free", quietDesk(), "", "", true, "clean", "through"},
        {"not after it failed", quietDesk(), "", "", false, "", ""},
        {"echo-free by choice", quietDesk(), "clean", "", true, "clean", "through"},
        {"not where sound goes elsewhere", quietDesk(), "", "headphones", true, "", "headphones"},
        {"not where a microphone was chosen", quietDesk(), "headset", "", true, "headset", ""},
        {"not where it is made from another", unlike, "", "", true, "", ""},
        {"not where nothing goes through it", lonely, "", "", true, "", ""},
        {"already the default", already, "", "", true, "clean", "through"},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.what);
        const PulseDevices::Plan plan = row.devices.plan(
            {.microphone = QString::fromLatin1(row.microphone), .speaker = QString::fromLatin1(row.speaker)},
            row.prefersEchoFree);
        EXPECT_EQ(plan.source, QString::fromLatin1(row.source));
        EXPECT_EQ(plan.sink, QString::fromLatin1(row.sink));
        EXPECT_EQ(plan.captureRate, 44100);
        EXPECT_EQ(plan.renderRate, 44100);
    }
}

TEST(PulseDevicesTest, NothingIsOpenedWhereNothingIsConnectedAndOddRatesAreNotTaken)
{
    PulseDevices devices = desk();
    devices.sources = {monitor("speakers.monitor")};
    devices.defaultSource = QStringLiteral("speakers.monitor");
    devices.sinks[0].rate = 384000;
    EXPECT_EQ(devices.plan({}, true).captureRate, 0);
    EXPECT_EQ(devices.plan({}, true).renderRate, 48000);
    EXPECT_EQ(devices.plan({.wantsSpeaker = false}, true).renderRate, 0);
    devices.sinks.clear();
    EXPECT_EQ(devices.plan({}, true).renderRate, 0);
}

TEST(PulseDevicesTest, DesktopsTellTheirEchoCancellersInTheirOwnWays)
{
    const auto group = [](const char* name, const char* driver, quint32 module, const char* nodeGroup) {
        return PulseDevice::echoGroupOf(QString::fromLatin1(name), QString::fromLatin1(driver), module,
                                        QString::fromLatin1(nodeGroup));
    };
    EXPECT_EQ(group("clean", "module-echo-cancel.c", 7, ""), group("through", "module-echo-cancel.c", 7, ""));
    EXPECT_NE(group("clean", "module-echo-cancel.c", 7, ""), group("through", "module-echo-cancel.c", 8, ""));
    EXPECT_EQ(group("clean", "PipeWire", 0, "echo-cancel-1-2"), QStringLiteral("echo-cancel-1-2"));
    EXPECT_EQ(group("echo-cancel-source", "PipeWire", 0, ""), group("echo-cancel-sink", "PipeWire", 0, ""));
    EXPECT_EQ(group("mic", "PipeWire", 7, "loopback-1-2"), QString());
}

} // namespace
