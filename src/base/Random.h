#pragma once

#include <QByteArray>
#include <QRandomGenerator>
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
    /// For secrets: as many bytes as asked for, each of which nobody can foretell.
    [[nodiscard]] virtual QByteArray bytes(qsizetype count) = 0;
};

/// The operating system's generator.
class SystemRandom final : public Random
{
public:
    [[nodiscard]] QUuid uuid() override { return QUuid::createUuid(); }
    [[nodiscard]] QByteArray bytes(qsizetype count) override
    {
        QByteArray drawn(count, Qt::Uninitialized);
        std::ranges::generate(drawn, [] { return static_cast<char>(QRandomGenerator::system()->generate()); });
        return drawn;
    }
};

} // namespace loom
