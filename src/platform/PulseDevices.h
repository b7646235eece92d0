#pragma once

#include "stylist/voice/VoiceAudio.h"

#include <optional>
#include <vector>

namespace loom
{

/// A source or a sink of the sound server.
struct PulseDevice {
    quint32 index = 0; ///< of this run of the server
    QString name;      ///< the same one after a restart
    QString description;
    int rate = 0;
    bool isMonitor = false; ///< hears what a sink plays, not the air
    QString echoGroup;      ///< of those that cancel echo together; empty for others
    QString master;         ///< what it is made from, where the server says so

    /// What the desktop's echo cancellers have in common: PulseAudio names the driver, PipeWire the group of nodes.
    [[nodiscard]] static QString echoGroupOf(const QString& name, const QString& driver, quint32 module,
                                             const QString& nodeGroup);

    bool operator==(const PulseDevice&) const = default;
};

/// What is connected to the sound server. A value.
struct PulseDevices {
    std::vector<PulseDevice> sources;
    std::vector<PulseDevice> sinks;
    QString defaultSource;
    QString defaultSink;

    /// What to open.
    struct Plan {
        QString source;      ///< empty: whatever is the default, also when that changes
        QString sink;        ///< empty: the same
        int captureRate = 0; ///< 0 where nothing listens
        int renderRate = 0;  ///< 0 where nothing plays
    };
    /// `prefersEchoFree`: in place of the default microphone, one that the desktop frees from echo.
    [[nodiscard]] Plan plan(const VoiceAudio::Choice& choice, bool prefersEchoFree) const;
    /// What the source hears is free of what the sink plays.
    [[nodiscard]] bool cancelEcho(quint32 source, quint32 sink) const;
    [[nodiscard]] std::vector<VoiceDevice> microphones() const;
    [[nodiscard]] std::vector<VoiceDevice> speakers() const;

    bool operator==(const PulseDevices&) const = default;
};

} // namespace loom
