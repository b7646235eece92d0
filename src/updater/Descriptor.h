#pragma once

#include <unistd.h>
#include <utility>

namespace loom
{

/// Owns an open file descriptor.
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    Descriptor(Descriptor&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { reset(); }

    void reset()
    {
        if (m_number >= 0)
            ::close(std::exchange(m_number, -1));
    }

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }
    [[nodiscard]] int number() const { return m_number; }

private:
    int m_number = -1;
};

} // namespace loom
