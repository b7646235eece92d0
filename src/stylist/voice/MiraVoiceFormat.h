#pragma once

#include <chrono>
#include <cstddef>

namespace loom::voiceFormat
{

// What a call speaks in both directions: 32-bit floating-point samples, one channel.
inline constexpr int sampleRate = 24000; ///< samples a second
/// What is looked at, and freed from echo, in one step.
inline constexpr std::chrono::milliseconds frame{10};
inline constexpr std::size_t frameSamples = 240;
/// What travels in one audio frame of the line.
inline constexpr std::chrono::milliseconds chunk{40};
inline constexpr std::size_t chunkSamples = 960;

} // namespace loom::voiceFormat
