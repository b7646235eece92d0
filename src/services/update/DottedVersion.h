#pragma once

#include <QString>

#include <compare>
#include <optional>
#include <vector>

namespace loom
{

/// A version of dotted numbers, such as "1.10.2". Components are compared as integers, however long; missing ones count
/// as 0.
class DottedVersion
{
public:
    /// Nothing when a component is anything but digits.
    [[nodiscard]] static std::optional<DottedVersion> parse(const QString& text);

    [[nodiscard]] std::strong_ordering operator<=>(const DottedVersion& other) const;
    [[nodiscard]] bool operator==(const DottedVersion& other) const { return (*this <=> other) == 0; }

private:
    std::vector<QString> m_components; ///< without leading zeros
};

} // namespace loom
