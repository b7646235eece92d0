#pragma once

#include "stylist/MiraGuideResponse.h"
#include "stylist/MiraInitResponse.h"
#include "stylist/MiraOrdersResponse.h"
#include "stylist/MiraSendResponse.h"

#include <QJsonObject>

namespace loom
{

class JsonReader;

// What the stylist service answers, and what is kept of it on this machine. A message without an identifier and an
// attachment without a title are left out by themselves; a message that comes twice counts once.

[[nodiscard]] MiraMessage decodeMiraMessage(const JsonReader& json);
[[nodiscard]] std::vector<MiraMessage> decodeMiraMessages(const std::vector<JsonReader>& elements);
[[nodiscard]] MiraInitResponse decodeMiraInit(const JsonReader& json);
[[nodiscard]] MiraSendResponse decodeMiraSend(const JsonReader& json);
[[nodiscard]] MiraGuideResponse decodeMiraGuide(const JsonReader& json);
[[nodiscard]] MiraOrdersResponse decodeMiraOrders(const JsonReader& json);
/// What "price" says of a piece: a text, or a number written as one; empty where it is neither.
[[nodiscard]] QString decodeMiraPrice(const JsonReader& json);

/// A message as decodeMiraMessage() reads it.
[[nodiscard]] QJsonObject miraMessageJson(const MiraMessage& message);
/// A piece as the service takes it: without the reason, which is the stylist's.
[[nodiscard]] QJsonObject miraAttachmentJson(const MiraAttachment& attachment);

} // namespace loom
