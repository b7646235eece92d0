#include "catalog/MetafieldReading.h"

#include "catalog/DisplayText.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace loom
{

namespace
{

constexpr qsizetype maximumLine = 1000;
constexpr qsizetype maximumText = 8000;
constexpr std::size_t maximumEntries = 200;
constexpr double stars = 5;

int toCount(double number)
{
    return static_cast<int>(std::clamp(std::floor(number), 0.0, double{std::numeric_limits<int>::max()}));
}

std::optional<double> toStars(double value, double best)
{
    if (!std::isfinite(value) || value <= 0)
        return std::nullopt;
    const double scale = std::isfinite(best) && best > 0 ? best : stars;
    return std::min(value * stars / scale, stars);
}

} // namespace

QString readLine(const JsonReader& json, std::string_view key)
{
    if (const auto text = json.optionalText(key))
        return displayLine(*text, maximumLine);
    if (const auto integer = json.optionalInteger(key))
        return QString::number(*integer);
    const auto number = json.optionalDecimal(key);
    return number ? QString::number(*number, 'g', QLocale::FloatingPointShortest) : QString();
}

QString readLine(const JsonReader& element)
{
    if (const auto text = element.asText())
        return displayLine(*text, maximumLine);
    const QJsonValue value = element.isObject() || element.isList() ? QJsonValue() : element.asJson();
    return value.isDouble() ? value.toVariant().toString() : QString();
}

QString readText(const JsonReader& json, std::string_view key)
{
    return displayText(json.optionalText(key).value_or(QString()), maximumText);
}

int readCount(const JsonReader& json, std::string_view key)
{
    return toCount(json.optionalDecimal(key).value_or(0));
}

std::vector<JsonReader> firstOf(std::vector<JsonReader> elements, std::size_t limit)
{
    if (elements.size() > limit)
        elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(limit), elements.end());
    return elements;
}

std::vector<JsonReader> readElements(const JsonReader& json, std::string_view key, std::size_t limit)
{
    return firstOf(json.optionalList(key), limit);
}

QStringList readTexts(const JsonReader& json, std::string_view key, std::size_t limit)
{
    QStringList texts;
    for (const JsonReader& element : readElements(json, key, limit)) {
        if (QString text = displayText(element.asText().value_or(QString()), maximumText); !text.isEmpty())
            texts.append(std::move(text));
    }
    return texts;
}

QStringList toLines(const std::vector<JsonReader>& elements)
{
    QStringList lines;
    for (const JsonReader& element : elements) {
        if (QString line = readLine(element); !line.isEmpty())
            lines.append(std::move(line));
    }
    return lines;
}

QStringList metafieldLines(const QString& value)
{
    const QString text = value.trimmed();
    if (text.startsWith(u'[') || text.startsWith(u'{'))
        return decodeMetafieldJson(
            text, [](const JsonReader& json) { return toLines(firstOf(json.elements(), maximumEntries)); });

    // The page sets its own bullets.
    static const QRegularExpression bullet(QStringLiteral(R"(^[-–•*·]\s+)"));
    QStringList lines;
    for (const QStringView raw : QStringView(text).left(maximumText).split(u'\n')) {
        QString line = displayLine(raw.toString(), maximumLine).remove(bullet);
        if (!line.isEmpty())
            lines.append(std::move(line));
    }
    return lines.mid(0, maximumEntries);
}

std::optional<QString> metafieldText(const QString& value)
{
    const QString text = displayText(value, maximumText);
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

std::optional<double> metafieldRating(const QString& value)
{
    bool isNumber = false;
    const double number = value.trimmed().toDouble(&isNumber);
    if (isNumber)
        return toStars(number, stars);
    return decodeMetafieldJson(value, [](const JsonReader& json) {
        return toStars(json.optionalDecimal("value").value_or(0), json.optionalDecimal("scale_max").value_or(stars));
    });
}

std::optional<int> metafieldCount(const QString& value)
{
    bool isNumber = false;
    const qlonglong number = value.trimmed().toLongLong(&isNumber);
    if (!isNumber || number < 0)
        return std::nullopt;
    return toCount(static_cast<double>(number));
}

} // namespace loom
