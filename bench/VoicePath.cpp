#include "../tests/stylist/voice/Sounds.h"
#include "../tests/stylist/voice/VoiceScene.h"
#include "stylist/voice/MiraVoiceEngine.h"
#include "stylist/voice/MiraVoiceOpening.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtEndian>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

using namespace loom;

namespace
{

constexpr std::size_t frame = voiceFormat::frameSamples;

/// What espeak-ng makes of the text, in the format of a call; a synthetic voice where it is not installed.
Sounds::Samples spoken(const QString& voice, double pitch, const QString& text)
{
    QProcess speaker;
    speaker.start(QStringLiteral("espeak-ng"), {QStringLiteral("-v"), voice, QStringLiteral("--stdout"), text});
    speaker.closeWriteChannel();
    constexpr qsizetype header = 44;
    if (!speaker.waitForFinished() || speaker.exitCode() != 0)
        return Sounds::voice(8, -22, pitch);
    const QByteArray wave = speaker.readAllStandardOutput();
    if (wave.size() <= header)
        return Sounds::voice(8, -22, pitch);
    Sounds::Samples samples(static_cast<std::size_t>(wave.size() - header) / sizeof(qint16));
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<float>(
            qFromLittleEndian<qint16>(wave.constData() + header + static_cast<qsizetype>(i * sizeof(qint16))) /
            32768.0);
    MiraVoiceResampler resampler(qFromLittleEndian<qint32>(wave.constData() + 24), voiceFormat::sampleRate);
    const auto converted = resampler.convert(samples);
    return {converted.begin(), converted.end()};
}

const Sounds::Samples& shopper()
{
    static const Sounds::Samples samples =
        spoken(QStringLiteral("en-us"), 115,
               QStringLiteral("Wait a moment, please. I would rather see something in green, and not as long. Do you "
                              "have it in size ten? And what would go with it on a cool evening in the garden?"));
    return samples;
}

const Sounds::Samples& mira()
{
    static const Sounds::Samples samples =
        spoken(QStringLiteral("en-us+f3"), 200,
               QStringLiteral("Good evening, I am Mira. I have looked through the new arrivals for you, and there is a "
                              "silk dress in midnight blue that I think would suit the wedding in June. It falls just "
                              "below the knee, and the wool coat that you saved goes with it rather nicely."));
    return samples;
}

double seconds(const Sounds::Samples& samples)
{
    return static_cast<double>(samples.size()) / voiceFormat::sampleRate;
}

/// Where in `sound` the `part` lies, and how alike the two are.
std::pair<std::ptrdiff_t, double> find(std::span<const float> part, std::span<const float> sound, std::ptrdiff_t from,
                                       std::ptrdiff_t to)
{
    std::pair<std::ptrdiff_t, double> best{0, -1};
    for (std::ptrdiff_t at = from; at < to; ++at) {
        double product = 0;
        double first = 1e-12;
        double second = 1e-12;
        for (std::size_t i = 0; i < part.size(); ++i) {
            const std::ptrdiff_t other = at + static_cast<std::ptrdiff_t>(i);
            if (other < 0 || other >= std::ssize(sound))
                continue;
            const float sample = sound[static_cast<std::size_t>(other)];
            product += part[i] * sample;
            first += part[i] * part[i];
            second += sample * sample;
        }
        if (const double alike = product / std::sqrt(first * second); alike > best.second)
            best = {at, alike};
    }
    return best;
}

/// From the buffer of the microphone to the frames of the line, with the canceller at work: ten milliseconds each.
void microphonePath(benchmark::State& state)
{
    // The shopper speaks, Mira answers, and again.
    VoiceScene scene({});
    scene.live(shopper());
    scene.engine.play(mira());
    scene.wait(seconds(mira()) + 1);

    FakeVoiceAudio devices;
    std::size_t sent = 0;
    MiraVoiceEngine engine(devices, {.send =
                                         [&](const std::vector<float>& samples) {
                                             QByteArray bytes = MiraVoiceFrames::audio(samples);
                                             sent += static_cast<std::size_t>(bytes.size());
                                             benchmark::DoNotOptimize(bytes);
                                         },
                                     .speechBegan = [](bool) {},
                                     .speechEnded = [] {},
                                     .playbackBegan = [] {},
                                     .playbackEnded = [](quint64) {},
                                     .fellSilent =
                                         [] {
                                         }});
    engine.setStreams(*scene.audio.streams, EchoCanceller::make());
    engine.setSending(true);
    constexpr std::size_t fragment = 480;
    std::vector<float> rendered(fragment);
    const std::size_t answer = shopper().size() * 2;
    std::size_t at = 0;
    for (auto _ : state) {
        if (at <= answer && answer < at + fragment)
            engine.play(mira());
        engine.captured(std::span(scene.captured).subspan(at, fragment));
        engine.render(rendered, 0.02);
        engine.step();
        at = at + 2 * fragment > scene.captured.size() ? 0 : at + fragment;
    }
    const double time = static_cast<double>(state.iterations()) * 0.01;
    state.counters["shareOfRealTime"] =
        benchmark::Counter(time, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["sentBytesPerSecond"] = static_cast<double>(sent) / time;
}

/// How old the oldest sample of a chunk is when it is handed to the line, counted from when the sound server gave it,
/// with fragments of so many milliseconds.
void addedLatency(benchmark::State& state)
{
    const double fragment = static_cast<double>(state.range(0)) / 1000;
    double latest = 0;
    double sum = 0;
    double alike = 0;
    int count = 0;
    for (auto _ : state) {
        VoiceScene scene({.fragment = fragment, .loudness = 0});
        scene.wait(1);
        scene.live(shopper());
        Sounds::Samples sent;
        for (const std::vector<float>& chunk : scene.sent)
            sent.insert(sent.end(), chunk.begin(), chunk.end());
        // The first chunks are the time before speech was noticed; all of it is one stretch until the first pause.
        const auto part = std::span(sent).first(std::min<std::size_t>(sent.size(), 24000));
        std::ptrdiff_t where = 0;
        std::tie(where, alike) = find(part, shopper(), -7200, 2400);
        for (std::size_t i = 8; i < std::min<std::size_t>(scene.sent.size(), 25); ++i) {
            const double spokenAt =
                1 + static_cast<double>(where + static_cast<std::ptrdiff_t>(i * voiceFormat::chunkSamples)) /
                        voiceFormat::sampleRate;
            const double given = (std::floor((spokenAt + scene.wordsDelay()) / fragment + 1e-6) + 1) * fragment;
            latest = std::max(latest, scene.sentAt[i] - given);
            sum += scene.sentAt[i] - given;
            ++count;
        }
    }
    state.counters["milliseconds"] = 1000 * sum / count;
    state.counters["latestMilliseconds"] = 1000 * latest;
    state.counters["likeness"] = alike;
}

/// A room whose sound takes so many milliseconds from the loudspeaker to the microphone: what is left of Mira's speech
/// after two seconds, what both speaking at once leaves of the shopper, and how soon an interruption silences her.
void echo(benchmark::State& state)
{
    const double delay = static_cast<double>(state.range(0)) / 1000;
    for (auto _ : state) {
        const double gain = static_cast<double>(state.range(1)) / 100;
        Sounds::Samples played = mira();
        played.resize(std::size_t{10} * voiceFormat::sampleRate);
        const Sounds::Samples room = Room(delay, 0.15, gain).hear(played);
        Sounds::Samples both = room;
        Sounds::mix(both, shopper(), 4);
        std::array<double, 3> levels{};
        Sounds::Samples rest;
        for (const Sounds::Samples* heard : {&room, static_cast<const Sounds::Samples*>(&both)}) {
            rest = *heard;
            Sounds::mix(rest, Sounds::hiss(10, -66));
            const auto canceller = EchoCanceller::make();
            for (std::size_t at = 0; at + frame <= rest.size(); at += frame) {
                canceller->played(std::span(played).subspan(at, frame));
                canceller->heard(std::span(rest).subspan(at, frame), 0);
            }
            if (heard == &room)
                levels = {Sounds::decibels(std::span(room).subspan(48000, 192000)),
                          Sounds::decibels(std::span(rest).subspan(48000, 192000)), 0};
        }
        const auto words = std::span(shopper()).first(std::size_t{5} * voiceFormat::sampleRate);
        const auto [where, alike] = find(words, rest, 96000, 96480);
        state.counters["echoReturnLoss"] = levels[0] - levels[1];
        state.counters["likeness"] = alike;
        state.counters["lossDecibels"] =
            Sounds::decibels(words) -
            Sounds::decibels(std::span(rest).subspan(static_cast<std::size_t>(where), words.size()));
        state.counters["cancellerDelayMilliseconds"] = static_cast<double>(where - 96000) / 24;

        VoiceScene scene({.roomDelay = delay, .loudness = gain});
        scene.wait(0.5);
        scene.engine.play(mira());
        scene.wait(4);
        const double before = scene.now;
        scene.live(shopper());
        state.counters["falseInterruptions"] = static_cast<double>(std::ranges::count_if(
            scene.events, [&](const auto& event) { return event.first <= before && event.second == "interrupts"; }));
        state.counters["silencedAfterMilliseconds"] = 1000 * (scene.lastHeard - before);
    }
}

} // namespace

BENCHMARK(microphonePath);
BENCHMARK(addedLatency)->Arg(10)->Arg(20)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(echo)->Args({20, 40})->Args({50, 40})->Args({80, 40})->Args({20, 100})->Args({20, 10})->Iterations(1)->Unit(
    benchmark::kMillisecond);

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
