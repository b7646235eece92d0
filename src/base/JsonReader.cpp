#include "base/JsonReader.h"

#include "base/Dates.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace loom
{

namespace
{

namespace dom = simdjson::dom;

constexpr std::size_t maximumDepth = 64;

QString toText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

template <typename T>
std::optional<T> valueOf(const dom::element& element)
{
    T value;
    if (element.get(value) != simdjson::SUCCESS)
        return std::nullopt;
    return value;
}

std::optional<qint64> integerOf(const dom::element& element)
{
    if (const auto number = valueOf<std::int64_t>(element))
        return *number;
    // 3.0 and 3e2 are whole numbers as well; beyond 2^53 a double no longer says which.
    constexpr double limit = 9007199254740992.0;
    if (const auto number = valueOf<double>(element);
        number && std::abs(*number) <= limit && std::trunc(*number) == *number)
        return static_cast<qint64>(*number);
    return std::nullopt;
}

std::optional<double> decimalOf(const dom::element& element)
{
    if (const auto number = valueOf<double>(element))
        return number;
    if (const auto text = valueOf<std::string_view>(element)) {
        bool ok = false;
        const double number = toText(*text).trimmed().toDouble(&ok);
        if (ok && qIsFinite(number))
            return number;
    }
    return std::nullopt;
}

std::optional<QDateTime> dateOf(const dom::element& element, QString* problem = nullptr)
{
    const auto text = valueOf<std::string_view>(element);
    if (!text)
        return std::nullopt;
    const Result<QDateTime, QString> date = parseDate(toText(*text));
    if (date)
        return *date;
    if (problem)
        *problem = date.error();
    return std::nullopt;
}

QJsonValue toJson(const dom::element& element)
{
    switch (element.type()) {
    case dom::element_type::ARRAY: {
        QJsonArray array;
        for (const dom::element child : dom::array(element))
            array.append(toJson(child));
        return array;
    }
    case dom::element_type::OBJECT: {
        QJsonObject object;
        for (const dom::key_value_pair& field : dom::object(element)) {
            if (const QString key = toText(field.key); !object.contains(key))
                object.insert(key, toJson(field.value));
        }
        return object;
    }
    case dom::element_type::INT64:
        return static_cast<qint64>(std::int64_t(element));
    case dom::element_type::UINT64:
    case dom::element_type::DOUBLE:
        return double(element);
    case dom::element_type::STRING:
        return toText(std::string_view(element));
    case dom::element_type::BOOL:
        return bool(element);
    case dom::element_type::NULL_VALUE:
        break;
    }
    return QJsonValue::Null;
}

/// The code unit of the escape "\uXXXX" at `position`; none when there is no such escape.
std::optional<char16_t> escapedUnit(const QByteArray& bytes, qsizetype position)
{
    if (bytes.size() - position < 6 || bytes[position] != '\\' || bytes[position + 1] != 'u')
        return std::nullopt;
    bool ok = false;
    const ushort unit = bytes.mid(position + 2, 4).toUShort(&ok, 16);
    return ok ? std::optional<char16_t>(unit) : std::nullopt;
}

/// A text that was cut in the middle of a character holds half of a surrogate pair, which JavaScript and Qt write as an
/// escape. It becomes U+FFFD: a document is worth more than one of its characters.
QByteArray withoutLoneSurrogates(QByteArray bytes)
{
    for (qsizetype i = bytes.indexOf('\\'); i >= 0; i = bytes.indexOf('\\', i)) {
        const auto unit = escapedUnit(bytes, i);
        const auto next = unit && QChar::isHighSurrogate(*unit) ? escapedUnit(bytes, i + 6) : std::nullopt;
        const bool isPair = next && QChar::isLowSurrogate(*next);
        if (unit && QChar::isSurrogate(*unit) && !isPair)
            bytes.replace(i + 2, 4, "fffd");
        i += isPair ? 12 : 2;
    }
    return bytes;
}

} // namespace

std::optional<dom::key_value_pair> JsonReader::field(std::string_view key) const
{
    const auto object = m_exists ? valueOf<dom::object>(m_element) : std::nullopt;
    if (!object)
        return std::nullopt;
    for (const dom::key_value_pair& found : *object) {
        if (found.key == key)
            return found.value.is_null() ? std::nullopt : std::optional(found);
    }
    return std::nullopt;
}

std::optional<dom::element> JsonReader::member(std::string_view key) const
{
    const auto found = field(key);
    return found ? std::optional(found->value) : std::nullopt;
}

JsonReader JsonReader::child(dom::element element, std::string_view key, int index) const
{
    m_context->nodes.push_back({.parent = m_node, .key = key, .index = index});
    return {element, m_context, static_cast<int>(m_context->nodes.size()) - 1};
}

std::vector<JsonReader> JsonReader::children(dom::array array, std::string_view key) const
{
    std::vector<JsonReader> result;
    result.reserve(array.size());
    int index = 0;
    for (const dom::element element : array)
        result.push_back(child(element, key, index++));
    return result;
}

bool JsonReader::has(std::string_view key) const
{
    return member(key).has_value();
}
bool JsonReader::isObject() const
{
    return m_exists && m_element.is_object();
}
bool JsonReader::isList() const
{
    return m_exists && m_element.is_array();
}

QString JsonReader::path(std::string_view key) const
{
    QString result = toText(key);
    for (int node = m_node; node >= 0; node = m_context->nodes[static_cast<std::size_t>(node)].parent) {
        const Node& at = m_context->nodes[static_cast<std::size_t>(node)];
        QString step = toText(at.key);
        if (at.index >= 0)
            step += QStringLiteral("[%1]").arg(at.index);
        if (!result.isEmpty() && !result.startsWith(QLatin1Char('[')))
            step += QLatin1Char('.');
        result.prepend(step);
    }
    return result.isEmpty() ? QStringLiteral("document") : result;
}

void JsonReader::fail(const QString& reason) const
{
    if (!m_context->error)
        m_context->error = path({}) + QStringLiteral(": ") + reason;
}

void JsonReader::fail(std::string_view key, const char* expected) const
{
    if (m_exists && !m_context->error)
        m_context->error = path(key) + QStringLiteral(": expected ") + QLatin1String(expected);
}

template <typename T>
std::optional<T> JsonReader::required(std::string_view key, const char* expected) const
{
    if (const auto element = member(key)) {
        if (auto value = valueOf<T>(*element))
            return value;
    }
    fail(key, expected);
    return std::nullopt;
}

QString JsonReader::text(std::string_view key) const
{
    const auto value = required<std::string_view>(key, "a text");
    return value ? toText(*value) : QString();
}

bool JsonReader::boolean(std::string_view key) const
{
    return required<bool>(key, "true or false").value_or(false);
}

qint64 JsonReader::integer(std::string_view key) const
{
    const auto value = optionalInteger(key);
    if (!value)
        fail(key, "a whole number");
    return value.value_or(0);
}

double JsonReader::number(std::string_view key) const
{
    return required<double>(key, "a number").value_or(0);
}

double JsonReader::decimal(std::string_view key) const
{
    const auto value = optionalDecimal(key);
    if (!value)
        fail(key, "a decimal number");
    return value.value_or(0);
}

QDateTime JsonReader::date(std::string_view key) const
{
    QString problem;
    if (const auto element = member(key)) {
        if (const auto value = dateOf(*element, &problem))
            return *value;
    }
    if (problem.isEmpty())
        fail(key, "a date");
    else if (!m_context->error)
        m_context->error = problem;
    return {};
}

JsonReader JsonReader::object(std::string_view key) const
{
    if (auto object = optionalObject(key))
        return *object;
    fail(key, "an object");
    return JsonReader(m_context);
}

JsonReader JsonReader::value(std::string_view key) const
{
    if (const auto found = field(key))
        return child(found->value, found->key, -1);
    fail(key, "a value");
    return JsonReader(m_context);
}

std::vector<JsonReader> JsonReader::list(std::string_view key) const
{
    const auto found = field(key);
    const auto array = found ? valueOf<dom::array>(found->value) : std::nullopt;
    if (array)
        return children(*array, found->key);
    fail(key, "a list");
    return {};
}

std::optional<QString> JsonReader::optionalText(std::string_view key) const
{
    const auto element = member(key);
    const auto value = element ? valueOf<std::string_view>(*element) : std::nullopt;
    return value ? std::optional(toText(*value)) : std::nullopt;
}

std::optional<bool> JsonReader::optionalBoolean(std::string_view key) const
{
    const auto element = member(key);
    return element ? valueOf<bool>(*element) : std::nullopt;
}

std::optional<qint64> JsonReader::optionalInteger(std::string_view key) const
{
    const auto element = member(key);
    return element ? integerOf(*element) : std::nullopt;
}

std::optional<double> JsonReader::optionalDecimal(std::string_view key) const
{
    const auto element = member(key);
    return element ? decimalOf(*element) : std::nullopt;
}

std::optional<QDateTime> JsonReader::optionalDate(std::string_view key) const
{
    const auto element = member(key);
    return element ? dateOf(*element) : std::nullopt;
}

std::optional<JsonReader> JsonReader::optionalObject(std::string_view key) const
{
    const auto found = field(key);
    if (!found || !found->value.is_object())
        return std::nullopt;
    return child(found->value, found->key, -1);
}

std::vector<JsonReader> JsonReader::optionalList(std::string_view key) const
{
    const auto found = field(key);
    const auto array = found ? valueOf<dom::array>(found->value) : std::nullopt;
    return array ? children(*array, found->key) : std::vector<JsonReader>();
}

QStringList JsonReader::textList(std::string_view key) const
{
    QStringList texts;
    for (const JsonReader& element : optionalList(key)) {
        if (auto text = element.asText())
            texts.append(std::move(*text));
    }
    return texts;
}

std::optional<QString> JsonReader::asText() const
{
    const auto value = m_exists ? valueOf<std::string_view>(m_element) : std::nullopt;
    return value ? std::optional(toText(*value)) : std::nullopt;
}

std::optional<double> JsonReader::asNumber() const
{
    return m_exists ? valueOf<double>(m_element) : std::nullopt;
}

QJsonValue JsonReader::asJson() const
{
    return m_exists ? toJson(m_element) : QJsonValue();
}

std::vector<JsonReader> JsonReader::elements() const
{
    const auto array = m_exists ? valueOf<dom::array>(m_element) : std::nullopt;
    return array ? children(*array, {}) : std::vector<JsonReader>();
}

std::vector<std::pair<QString, JsonReader>> JsonReader::members() const
{
    std::vector<std::pair<QString, JsonReader>> result;
    const auto object = m_exists ? valueOf<dom::object>(m_element) : std::nullopt;
    if (!object)
        return result;
    for (const dom::key_value_pair& field : *object)
        result.emplace_back(toText(field.key), child(field.value, field.key, -1));
    return result;
}

JsonReader::Attempt::Attempt(const JsonReader& reader)
    : m_context(reader.m_context)
    , m_outer(std::exchange(reader.m_context->error, std::nullopt))
{
}

JsonReader::Attempt::~Attempt()
{
    if (m_context->error)
        ++m_context->dropped;
    m_context->error = std::move(m_outer);
}

Result<JsonDocument, QString> JsonDocument::parse(const QByteArray& bytes)
{
    auto state = std::make_unique<State>();
    state->bytes = simdjson::padded_string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (state->parser.allocate(state->bytes.size(), maximumDepth) != simdjson::SUCCESS)
        return Unexpected(QStringLiteral("no memory for %1 bytes of JSON").arg(bytes.size()));
    auto error = state->parser.parse(state->bytes).get(state->root);
    if (error == simdjson::STRING_ERROR) {
        const QByteArray repaired = withoutLoneSurrogates(bytes);
        state->bytes = simdjson::padded_string(repaired.constData(), static_cast<std::size_t>(repaired.size()));
        error = state->parser.parse(state->bytes).get(state->root);
    }
    if (error != simdjson::SUCCESS)
        return Unexpected(QStringLiteral("not valid JSON: ") + QLatin1String(simdjson::error_message(error)));
    return JsonDocument(std::move(state));
}

JsonReader JsonDocument::root() const
{
    return {m_state->root, &m_state->context, -1};
}

} // namespace loom
