#include "stylist/voice/MiraVoiceEvent.h"

#include "base/JsonReader.h"
#include "catalog/DisplayText.h"
#include "stylist/MiraReading.h"
#include "stylist/MiraRules.h"

#include <QRegularExpression>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>

namespace loom
{

namespace
{

using Content = MiraVoiceEvent::Content;

constexpr qsizetype longestTitle = 240;
constexpr qsizetype longestName = 64;
constexpr qsizetype longestAddress = 2048;

QString line(const JsonReader& json, std::string_view key, qsizetype limit)
{
    return displayLine(json.optionalText(key).value_or(QString()), limit);
}

/// As it came; empty where it is longer than any can be.
QString token(const JsonReader& json, std::string_view key, qsizetype limit)
{
    const QString text = json.optionalText(key).value_or(QString());
    return text.size() <= limit ? text : QString();
}

QString words(const JsonReader& json)
{
    return displayText(json.optionalText("text").value_or(QString()), MiraVoiceEvent::longestText);
}

std::optional<Content> recognised(const JsonReader& json)
{
    MiraVoiceEvent::Recognised event{.text = words(json), .isFinal = json.optionalBoolean("final").value_or(false)};
    if (event.text.isEmpty())
        return std::nullopt;
    return event;
}

std::optional<Content> speech(const JsonReader& json)
{
    // Cut where a group of four characters ends, so that what is left can still be decoded.
    constexpr qsizetype longestBase64 = MiraVoiceEvent::mostSamples * sizeof(float) / 3 * 4;
    const QByteArray base64 = json.optionalText("b64").value_or(QString()).left(longestBase64).toLatin1();
    const auto bytes =
        QByteArray::fromBase64Encoding(base64, QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    const qsizetype count = bytes ? bytes.decoded.size() / qsizetype{sizeof(float)} : 0;
    if (count == 0)
        return std::nullopt;
    MiraVoiceEvent::Speech event{.samples = std::vector<float>(static_cast<std::size_t>(count))};
    qFromLittleEndian<float>(bytes.decoded.constData(), count, event.samples.data());
    for (float& sample : event.samples)
        sample = std::isfinite(sample) ? std::clamp(sample, -1.0F, 1.0F) : 0.0F;
    return event;
}

std::optional<Content> partialLine(const JsonReader& json)
{
    MiraVoiceEvent::Line event{.text = words(json), .isFinal = false};
    if (event.text.isEmpty())
        return std::nullopt;
    return event;
}

std::optional<Content> finalLine(const JsonReader& json)
{
    return MiraVoiceEvent::Line{.text = words(json), .isFinal = true};
}

MiraVoiceProduct product(const JsonReader& json)
{
    MiraVoiceProduct product{.handle = token(json, "handle", longestAddress),
                             .title = line(json, "title", longestTitle),
                             .imageURL = token(json, "image", longestAddress),
                             .price = decodeMiraPrice(json)};
    if (!MiraRules::isHandle(product.handle))
        json.fail(QStringLiteral("a piece that cannot be opened"));
    return product;
}

std::optional<Content> products(const JsonReader& json)
{
    std::vector<MiraVoiceProduct> read = JsonReader::decodeEach(json.optionalList("products"), product);
    QSet<QString> known;
    MiraVoiceEvent::Products event;
    for (MiraVoiceProduct& piece : read) {
        if (event.products.size() == MiraVoiceEvent::mostProducts)
            break;
        if (known.contains(piece.handle))
            continue;
        known.insert(piece.handle);
        event.products.push_back(std::move(piece));
    }
    if (event.products.empty())
        return std::nullopt;
    return event;
}

/// The identifier that a text or a number stands for; empty where it stands for none.
QString variantID(const JsonReader& json)
{
    static const QRegularExpression pattern = MiraRules::compiled(
        QRegularExpression::anchoredPattern(QStringLiteral("(?:gid://shopify/ProductVariant/)?([0-9]{1,19})")));
    QString text = token(json, "variantId", longestName).trimmed();
    if (const auto number = json.optionalInteger("variantId"))
        text = QString::number(*number);
    const QRegularExpressionMatch match = pattern.match(text);
    return match.hasMatch() ? QStringLiteral("gid://shopify/ProductVariant/") + match.captured(1) : QString();
}

std::optional<Content> cart(const JsonReader& json)
{
    return MiraVoiceEvent::Cart{.variantID = variantID(json), .title = line(json, "title", longestTitle)};
}

std::optional<Content> navigation(const JsonReader& json)
{
    MiraVoiceEvent::Navigation event{.kind = token(json, "kind", longestName),
                                     .handle = token(json, "handle", longestAddress),
                                     .path = token(json, "path", longestAddress)};
    if (event == MiraVoiceEvent::Navigation{})
        return std::nullopt;
    return event;
}

std::optional<Content> session(const JsonReader& json)
{
    return MiraVoiceEvent::Session{.guideName = line(json, "guideName", longestName)};
}

std::optional<Content> error(const JsonReader& json)
{
    return MiraVoiceEvent::Error{.code = token(json, "code", longestName)};
}

template <typename Event>
std::optional<Content> bare(const JsonReader&)
{
    return Event{};
}

struct Kind {
    QLatin1String type;
    std::optional<Content> (*read)(const JsonReader& json);
};

constexpr std::array<Kind, 11> kinds{{{QLatin1String("ready"), bare<MiraVoiceEvent::Ready>},
                                      {QLatin1String("asr"), recognised},
                                      {QLatin1String("tts"), speech},
                                      {QLatin1String("chat_partial"), partialLine},
                                      {QLatin1String("chat"), finalLine},
                                      {QLatin1String("products"), products},
                                      {QLatin1String("cart"), cart},
                                      {QLatin1String("nav"), navigation},
                                      {QLatin1String("session"), session},
                                      {QLatin1String("ended"), bare<MiraVoiceEvent::Ended>},
                                      {QLatin1String("error"), error}}};

} // namespace

std::optional<MiraVoiceEvent> MiraVoiceEvent::read(const QByteArray& json)
{
    const auto content = decodeJson(json, [](const JsonReader& root) -> std::optional<Content> {
        const QString type = root.optionalText("type").value_or(QString());
        const auto kind = std::ranges::find(kinds, type, &Kind::type);
        return kind == kinds.end() ? std::nullopt : kind->read(root);
    });
    if (!content || !*content)
        return std::nullopt;
    return MiraVoiceEvent{.content = **content};
}

} // namespace loom
