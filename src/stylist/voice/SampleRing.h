#pragma once

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstdint>
#include <span>
#include <vector>

namespace loom
{

/// Samples on their way from one thread to another. Nobody waits and nothing is allocated: what does not fit is not
/// taken, what is not there is not given. One thread writes, one reads.
class SampleRing
{
public:
    explicit SampleRing(std::size_t atLeast)
        : m_samples(std::bit_ceil(atLeast))
    {
    }

    /// The writer's. Answers with how many were taken.
    std::size_t push(std::span<const float> samples)
    {
        const std::uint64_t at = m_written.load(std::memory_order_relaxed);
        const std::size_t room = m_samples.size() - (at - m_taken.load(std::memory_order_acquire));
        const auto taken = samples.first(std::min(samples.size(), room));
        const std::size_t begin = at & (m_samples.size() - 1);
        const std::size_t beforeEnd = std::min(taken.size(), m_samples.size() - begin);
        std::ranges::copy(taken.first(beforeEnd), m_samples.begin() + static_cast<std::ptrdiff_t>(begin));
        std::ranges::copy(taken.subspan(beforeEnd), m_samples.begin());
        m_written.store(at + taken.size(), std::memory_order_release);
        return taken.size();
    }

    /// The reader's. Answers with how many were given.
    std::size_t pop(std::span<float> samples)
    {
        const std::uint64_t at = m_taken.load(std::memory_order_relaxed);
        const std::size_t count =
            std::min<std::uint64_t>(samples.size(), m_written.load(std::memory_order_acquire) - at);
        const std::size_t begin = at & (m_samples.size() - 1);
        const std::size_t beforeEnd = std::min(count, m_samples.size() - begin);
        std::copy_n(m_samples.begin() + static_cast<std::ptrdiff_t>(begin), beforeEnd, samples.begin());
        std::copy_n(m_samples.begin(), count - beforeEnd, samples.begin() + static_cast<std::ptrdiff_t>(beforeEnd));
        m_taken.store(at + count, std::memory_order_release);
        return count;
    }

    /// The reader's: throws away what was written before `position`.
    void skipTo(std::uint64_t position)
    {
        if (position > taken())
            m_taken.store(std::min(position, written()), std::memory_order_release);
    }

    // Any thread's. How many ever passed one end or the other, and are between them.
    [[nodiscard]] std::uint64_t written() const { return m_written.load(std::memory_order_acquire); }
    [[nodiscard]] std::uint64_t taken() const { return m_taken.load(std::memory_order_acquire); }
    [[nodiscard]] std::size_t size() const
    {
        const std::uint64_t before = taken();
        return written() - before;
    }
    [[nodiscard]] std::size_t capacity() const { return m_samples.size(); }

private:
    std::vector<float> m_samples; ///< a power of two of them
    std::atomic<std::uint64_t> m_written = 0;
    std::atomic<std::uint64_t> m_taken = 0;
};

} // namespace loom
