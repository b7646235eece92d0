#pragma once

#include "support/SupportFile.h"
#include "support/SupportInitResponse.h"
#include "support/SupportRepliesResponse.h"

#include <QJsonObject>

namespace loom
{

class JsonReader;

// What customer service answers, and what is kept of it on this machine. A message without an identifier and an
// attachment without an address are left out by themselves, a message that comes twice counts once, and of very many
// the newest stay.

inline constexpr std::size_t mostSupportMessages = 1000;
inline constexpr qsizetype longestSupportBody = 20000;

[[nodiscard]] SupportMessage decodeSupportMessage(const JsonReader& json);
[[nodiscard]] std::vector<SupportMessage> decodeSupportMessages(const std::vector<JsonReader>& elements);
[[nodiscard]] SupportInitResponse decodeSupportInit(const JsonReader& json);
[[nodiscard]] SupportRepliesResponse decodeSupportReplies(const JsonReader& json);

/// A message as decodeSupportMessage() reads it.
[[nodiscard]] QJsonObject supportMessageJson(const SupportMessage& message);

// A file as it is kept until it is sent: where it lies and what is shown of it.

[[nodiscard]] SupportFile decodeSupportFile(const JsonReader& json);
[[nodiscard]] QJsonObject supportFileJson(const SupportFile& file);

} // namespace loom
