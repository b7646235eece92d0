#pragma once

#include <QUuid>

namespace loom
{

/// Where identifiers and chance come from. Handed to whoever needs them, so that tests can foretell them.
class Random
{
public:
    Random() = default;
    Random(const Random&) = delete;
    Random& operator=(const Random&) = delete;
    virtual ~Random() = default;

    /// A version 4 UUID (RFC 9562).
    [[nodiscard]] virtual QUuid uuid() = 0;
};

/// The operating system's generator.
class SystemRandom final : public Random
{
public:
    [[nodiscard]] QUuid uuid() override { return QUuid::createUuid(); }
};

} // namespace loom
