#include "platform/PulseDevices.h"

#include <algorithm>

namespace loom
{

namespace
{

/// What streams run at where a device has a rate that speech does not need.
constexpr int usualRate = 48000;
constexpr int lowestRate = 8000;

template <typename Key>
const PulseDevice* find(const std::vector<PulseDevice>& devices, Key PulseDevice::* member, const Key& key)
{
    const auto found = std::ranges::find(devices, key, member);
    return found == devices.end() ? nullptr : &*found;
}

int streamRate(const PulseDevice& device)
{
    return device.rate < lowestRate || device.rate > usualRate ? usualRate : device.rate;
}

const PulseDevice* microphone(const PulseDevices& devices, const QString& name)
{
    const PulseDevice* const found = find(devices.sources, &PulseDevice::name, name);
    return found && !found->isMonitor ? found : nullptr;
}

const PulseDevice* sinkOfGroup(const PulseDevices& devices, const QString& echoGroup)
{
    return echoGroup.isEmpty() ? nullptr : find(devices.sinks, &PulseDevice::echoGroup, echoGroup);
}

/// The echo canceller of the default microphone, if playing on `speaker` goes through it.
const PulseDevice* echoFreeMicrophone(const PulseDevices& devices, const PulseDevice* speaker)
{
    const auto isFit = [&](const PulseDevice& source) {
        if (source.isMonitor || !sinkOfGroup(devices, source.echoGroup))
            return false;
        if (speaker && speaker->echoGroup != source.echoGroup)
            return false;
        return source.master.isEmpty() || source.master == devices.defaultSource ||
               source.name == devices.defaultSource;
    };
    const PulseDevice* const first = microphone(devices, devices.defaultSource);
    if (first && isFit(*first))
        return first;
    const auto found = std::ranges::find_if(devices.sources, isFit);
    return found == devices.sources.end() ? nullptr : &*found;
}

std::vector<VoiceDevice> forShoppers(const std::vector<PulseDevice>& devices)
{
    std::vector<VoiceDevice> list;
    for (const PulseDevice& device : devices) {
        if (!device.isMonitor) {
            list.push_back({.id = device.name,
                            .name = device.description.isEmpty() ? device.name : device.description,
                            .cancelsEcho = !device.echoGroup.isEmpty()});
        }
    }
    return list;
}

} // namespace

QString PulseDevice::echoGroupOf(const QString& name, const QString& driver, quint32 module, const QString& nodeGroup)
{
    const QString mark = QStringLiteral("echo-cancel");
    if (nodeGroup.startsWith(mark))
        return nodeGroup;
    if (driver.contains(mark))
        return mark + QStringLiteral(" of module %1").arg(module);
    return name.startsWith(mark) ? mark : QString(); // as PipeWire names them
}

PulseDevices::Plan PulseDevices::plan(const VoiceAudio::Choice& choice, bool prefersEchoFree) const
{
    Plan plan;
    const PulseDevice* speaker = find(sinks, &PulseDevice::name, choice.speaker);
    const PulseDevice* source = microphone(*this, choice.microphone);
    if (!source && prefersEchoFree)
        source = echoFreeMicrophone(*this, speaker);
    if (source) {
        plan.source = source->name;
        if (!speaker)
            speaker = sinkOfGroup(*this, source->echoGroup); // otherwise its canceller has nothing to take out
    } else {
        source = microphone(*this, defaultSource);
        if (!source) { // the default hears what is played
            const auto first = std::ranges::find(sources, false, &PulseDevice::isMonitor);
            if (first != sources.end()) {
                source = &*first;
                plan.source = source->name;
            }
        }
    }
    if (source)
        plan.captureRate = streamRate(*source);
    if (!choice.wantsSpeaker || sinks.empty())
        return plan;
    if (speaker) {
        plan.sink = speaker->name;
    } else {
        speaker = find(sinks, &PulseDevice::name, defaultSink);
    }
    plan.renderRate = speaker ? streamRate(*speaker) : usualRate;
    return plan;
}

bool PulseDevices::cancelEcho(quint32 source, quint32 sink) const
{
    const PulseDevice* const heard = find(sources, &PulseDevice::index, source);
    const PulseDevice* const played = find(sinks, &PulseDevice::index, sink);
    return heard && played && !heard->echoGroup.isEmpty() && heard->echoGroup == played->echoGroup;
}

std::vector<VoiceDevice> PulseDevices::microphones() const
{
    return forShoppers(sources);
}

std::vector<VoiceDevice> PulseDevices::speakers() const
{
    return forShoppers(sinks);
}

} // namespace loom
