#include "Sounds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <random>

namespace loom
{

namespace
{

constexpr int rate = 24000;
constexpr double turn = 2 * std::numbers::pi;

std::size_t count(double seconds)
{
    return static_cast<std::size_t>(std::lround(seconds * rate));
}

void scale(Sounds::Samples& samples, double decibels)
{
    const auto gain = static_cast<float>(std::pow(10, (decibels - Sounds::decibels(samples)) / 20));
    for (float& sample : samples)
        sample *= gain;
}

/// Frequencies at which the mouth rings.
constexpr std::array<std::array<double, 3>, 5> vowels{
    {{730, 1090, 2440}, {270, 2290, 3010}, {300, 870, 2240}, {530, 1840, 2480}, {570, 840, 2410}}};

double loudness(double frequency, const std::array<double, 3>& vowel)
{
    double sum = 0.02;
    double weight = 1;
    for (const double formant : vowel) {
        const double distance = (frequency - formant) / 90;
        sum += weight / (1 + distance * distance);
        weight *= 0.6;
    }
    return sum;
}

} // namespace

Sounds::Samples Sounds::silence(double seconds)
{
    return Samples(count(seconds));
}

Sounds::Samples Sounds::hiss(double seconds, double decibels, std::uint32_t seed)
{
    Samples samples = silence(seconds);
    std::mt19937 random(seed);
    std::normal_distribution<float> normal;
    std::ranges::generate(samples, [&] { return normal(random); });
    scale(samples, decibels);
    return samples;
}

Sounds::Samples Sounds::hum(double seconds, double decibels, double frequency)
{
    Samples samples = silence(seconds);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double phase = turn * frequency * static_cast<double>(i) / rate;
        samples[i] = static_cast<float>(std::sin(phase) + 0.5 * std::sin(2 * phase) + 0.3 * std::sin(5 * phase));
    }
    scale(samples, decibels);
    return samples;
}

Sounds::Samples Sounds::keys(double seconds, double decibels)
{
    Samples samples = silence(seconds);
    std::mt19937 random(5);
    std::normal_distribution<double> normal;
    std::uniform_real_distribution<double> pause(0.08, 0.2);
    for (double at = 0; at < seconds; at += pause(random)) {
        const double frequency = 600 + 150 * normal(random);
        const std::size_t begin = count(at);
        for (std::size_t i = 0; i < count(0.04) && begin + i < samples.size(); ++i) {
            const double ring = 0.6 * normal(random) + std::sin(turn * frequency * static_cast<double>(i) / rate);
            samples[begin + i] += static_cast<float>(std::exp(-static_cast<double>(i) / 200) * ring);
        }
    }
    scale(samples, decibels);
    return samples;
}

Sounds::Samples Sounds::voice(double seconds, double decibels, double pitch, std::uint32_t seed)
{
    constexpr double syllable = 0.19;
    constexpr double gap = 0.05;
    constexpr double wordGap = 0.35;
    Samples samples = silence(seconds);
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> vary(0.85, 1.2);
    double phase = 0;
    int spoken = 0;
    for (double at = 0; at < seconds; at += syllable + (++spoken % 5 == 0 ? wordGap : gap)) {
        const auto& vowel = vowels[random() % vowels.size()];
        const double from = pitch * vary(random);
        const double to = pitch * vary(random);
        const std::size_t length = count(syllable);
        for (std::size_t i = 0; i < length && count(at) + i < samples.size(); ++i) {
            const double part = static_cast<double>(i) / static_cast<double>(length);
            const double now = from + (to - from) * part;
            phase += turn * now / rate;
            double sum = 0;
            for (int overtone = 1; overtone * now < 4000; ++overtone)
                sum += loudness(overtone * now, vowel) * std::sin(overtone * phase);
            const double edge = std::min({1.0, part * syllable / 0.015, (1 - part) * syllable / 0.05});
            samples[count(at) + i] = static_cast<float>(edge * sum);
        }
    }
    scale(samples, decibels);
    return samples;
}

Sounds::Samples Sounds::tone(double seconds, double frequency, double amplitude, int sampleRate)
{
    Samples samples(static_cast<std::size_t>(std::lround(seconds * sampleRate)));
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<float>(amplitude * std::sin(turn * frequency * static_cast<double>(i) / sampleRate));
    return samples;
}

void Sounds::mix(Samples& samples, std::span<const float> other, double at)
{
    const std::size_t begin = std::min(count(at), samples.size());
    for (std::size_t i = 0; i < other.size() && begin + i < samples.size(); ++i)
        samples[begin + i] += other[i];
}

double Sounds::decibels(std::span<const float> samples)
{
    double power = 1e-15;
    for (const float sample : samples)
        power += static_cast<double>(sample) * sample;
    return 10 * std::log10(power / static_cast<double>(std::max<std::size_t>(samples.size(), 1)));
}

Room::Room(double delay, double reverberation, double gain, int sampleRate)
{
    constexpr int reflections = 250;
    std::mt19937 random(11);
    std::normal_distribution<double> normal;
    const double length = reverberation * sampleRate;
    double power = 0;
    for (int i = 0; i < reflections; ++i) {
        const double at = length * i / reflections;
        const double strength = normal(random) * std::exp(-6.9 * at / length);
        power += strength * strength;
        m_reflections.push_back(
            {.delay = static_cast<std::size_t>(delay * sampleRate + at), .gain = static_cast<float>(strength)});
    }
    for (Reflection& reflection : m_reflections)
        reflection.gain *= static_cast<float>(gain / std::sqrt(power));
    m_past.resize(m_reflections.back().delay + 1);
}

Sounds::Samples Room::hear(std::span<const float> said)
{
    Sounds::Samples heard;
    heard.reserve(said.size());
    for (const float sample : said) {
        m_past[m_now] = sample;
        float sum = 0;
        for (const Reflection& reflection : m_reflections) {
            const std::size_t at =
                m_now >= reflection.delay ? m_now - reflection.delay : m_now + m_past.size() - reflection.delay;
            sum += reflection.gain * m_past[at];
        }
        heard.push_back(sum);
        m_now = m_now + 1 == m_past.size() ? 0 : m_now + 1;
    }
    return heard;
}

} // namespace loom
