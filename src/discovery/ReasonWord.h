#pragma once

#include "base/KeyedText.h"

#include <QString>

#include <algorithm>
#include <ranges>
#include <string_view>

namespace loom
{

/// A word that a reason may be about: as the backend writes it, in small letters, and as the shopper reads it.
struct ReasonWord {
    std::string_view input;
    KeyedText text;
};

/// Whether `text` is exactly `name`, which is not empty: most are told apart by their length or first letter.
[[nodiscard]] inline bool isNamed(const QString& text, std::string_view name)
{
    return static_cast<std::size_t>(text.size()) == name.size() && text.front() == QLatin1Char(name.front()) &&
           text == QLatin1String(name.data(), static_cast<qsizetype>(name.size()));
}

/// The word in `table` that is exactly `input`; null when it has none.
[[nodiscard]] inline const ReasonWord* findReasonWord(const std::ranges::contiguous_range auto& table,
                                                      const QString& input)
{
    const auto found =
        std::ranges::find_if(table, [&input](const ReasonWord& word) { return isNamed(input, word.input); });
    return found == std::ranges::end(table) ? nullptr : &*found;
}

} // namespace loom
