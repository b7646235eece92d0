#pragma once

#include "base/JsonReader.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace loom
{

/// Lenient reading of what merchants write into metafields. Texts come out cleaned for display and bounded in length;
/// markup in them stays literal text. What is absent or of another type is empty.

/// A text or a number, as one line.
[[nodiscard]] QString readLine(const JsonReader& json, std::string_view key);
/// The same for an element of a list.
[[nodiscard]] QString readLine(const JsonReader& element);
/// A text that may have several lines.
[[nodiscard]] QString readText(const JsonReader& json, std::string_view key);
/// A whole number, or a text that is one; nothing below zero.
[[nodiscard]] int readCount(const JsonReader& json, std::string_view key);

[[nodiscard]] std::vector<JsonReader> firstOf(std::vector<JsonReader> elements, std::size_t limit);
/// The first `limit` elements of the list `key`.
[[nodiscard]] std::vector<JsonReader> readElements(const JsonReader& json, std::string_view key, std::size_t limit);
/// Those of them that are texts, with several lines each.
[[nodiscard]] QStringList readTexts(const JsonReader& json, std::string_view key, std::size_t limit);
/// Those of `elements` that are texts or numbers, one line each. Empty ones are left out.
[[nodiscard]] QStringList toLines(const std::vector<JsonReader>& elements);

/// What `decode` makes of a value that is JSON; nothing when it is not, or is too long to be meant.
template <typename Decode>
[[nodiscard]] auto decodeMetafieldJson(const QString& value, Decode&& decode)
{
    constexpr qsizetype maximumLength = 2 * 1024 * 1024;
    using Record = decltype(decode(std::declval<const JsonReader&>()));
    if (value.size() > maximumLength)
        return Record{};
    auto record = decodeJson(value.toUtf8(), std::forward<Decode>(decode));
    return record ? *std::move(record) : Record{};
}

/// The entries of a value that is a JSON list of texts or plain text with one entry to the line.
[[nodiscard]] QStringList metafieldLines(const QString& value);
[[nodiscard]] std::optional<QString> metafieldText(const QString& value);
/// The stars, out of five, of {"value", "scale_min", "scale_max"} or of a bare number; none for no rating.
[[nodiscard]] std::optional<double> metafieldRating(const QString& value);
[[nodiscard]] std::optional<int> metafieldCount(const QString& value);

} // namespace loom
