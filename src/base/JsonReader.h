#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QDateTime>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <simdjson.h>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace loom
{

/// Reads a JSON document (RFC 8259) into records.
///
/// A decoder asks a reader for what its record needs and need not check each answer: the first thing that is wrong is
/// remembered with its path ("cart.lines[2].cost: expected an object") and makes the whole decoding fail. Unknown
/// keys are ignored. The optional… getters treat what is absent, null or of another type as "none". Of two equal keys
/// the first counts; a number is whole when its value is, however it is written.
///
/// Readers are cheap values that live no longer than the decodeJson() call that made them. Any thread.
class JsonReader
{
public:
    [[nodiscard]] bool has(std::string_view key) const;
    [[nodiscard]] bool isObject() const;
    [[nodiscard]] bool isList() const;

    [[nodiscard]] QString text(std::string_view key) const;
    [[nodiscard]] bool boolean(std::string_view key) const;
    [[nodiscard]] qint64 integer(std::string_view key) const;
    [[nodiscard]] double number(std::string_view key) const;
    /// A number, or a text that is one, such as "19.5".
    [[nodiscard]] double decimal(std::string_view key) const;
    /// A date in one of the forms of parseDate(), whose failure stands alone, without a path.
    [[nodiscard]] QDateTime date(std::string_view key) const;
    /// Whatever is under `key`, which must be there.
    [[nodiscard]] JsonReader value(std::string_view key) const;
    [[nodiscard]] JsonReader object(std::string_view key) const;
    /// The elements of the list `key`, which must be there.
    [[nodiscard]] std::vector<JsonReader> list(std::string_view key) const;

    [[nodiscard]] std::optional<QString> optionalText(std::string_view key) const;
    [[nodiscard]] std::optional<bool> optionalBoolean(std::string_view key) const;
    [[nodiscard]] std::optional<qint64> optionalInteger(std::string_view key) const;
    [[nodiscard]] std::optional<double> optionalDecimal(std::string_view key) const;
    [[nodiscard]] std::optional<QDateTime> optionalDate(std::string_view key) const;
    [[nodiscard]] std::optional<JsonReader> optionalObject(std::string_view key) const;
    /// The elements of the list `key`; none when it is absent, null or no list.
    [[nodiscard]] std::vector<JsonReader> optionalList(std::string_view key) const;
    /// The texts of the list `key`; elements that are no text are left out.
    [[nodiscard]] QStringList textList(std::string_view key) const;

    /// This value itself, for elements of lists.
    [[nodiscard]] std::optional<QString> asText() const;
    [[nodiscard]] std::optional<double> asNumber() const;
    [[nodiscard]] QJsonValue asJson() const;
    [[nodiscard]] std::vector<JsonReader> elements() const;
    [[nodiscard]] std::vector<std::pair<QString, JsonReader>> members() const;

    /// Every element that `decode` can read; a broken one is left out rather than the list.
    template <typename Decode>
    [[nodiscard]] static auto decodeEach(const std::vector<JsonReader>& elements, Decode&& decode)
    {
        using Record = decltype(decode(std::declval<const JsonReader&>()));
        std::vector<Record> records;
        records.reserve(elements.size());
        for (const JsonReader& element : elements) {
            const Attempt attempt(element);
            Record record = decode(element);
            if (attempt.succeeded())
                records.push_back(std::move(record));
        }
        return records;
    }

    /// Makes the decoding fail: for rules that only the caller knows.
    void fail(const QString& reason) const;

private:
    struct Node {
        int parent = -1;
        std::string_view key;
        int index = -1;
    };
    struct Context {
        std::vector<Node> nodes;
        std::optional<QString> error;
        int dropped = 0;
    };
    /// Confines a failure to one element of a list.
    class Attempt
    {
    public:
        explicit Attempt(const JsonReader& reader);
        Attempt(const Attempt&) = delete;
        Attempt& operator=(const Attempt&) = delete;
        ~Attempt();
        [[nodiscard]] bool succeeded() const { return !m_context->error; }

    private:
        Context* m_context;
        std::optional<QString> m_outer;
    };

    JsonReader(simdjson::dom::element element, Context* context, int node)
        : m_element(element)
        , m_context(context)
        , m_node(node)
        , m_exists(true)
    {
    }
    /// Stands for a value that is missing; every question to it has an empty answer.
    explicit JsonReader(Context* context)
        : m_context(context)
    {
    }

    /// The key as the document holds it, and its value: unlike a caller's key it lives as long as the reader.
    [[nodiscard]] std::optional<simdjson::dom::key_value_pair> field(std::string_view key) const;
    [[nodiscard]] std::optional<simdjson::dom::element> member(std::string_view key) const;
    [[nodiscard]] JsonReader child(simdjson::dom::element element, std::string_view key, int index) const;
    [[nodiscard]] std::vector<JsonReader> children(simdjson::dom::array array, std::string_view key) const;
    template <typename T>
    [[nodiscard]] std::optional<T> required(std::string_view key, const char* expected) const;
    void fail(std::string_view key, const char* expected) const;
    [[nodiscard]] QString path(std::string_view key) const;

    simdjson::dom::element m_element;
    Context* m_context;
    int m_node = -1;
    bool m_exists = false;

    friend class JsonDocument;
};

/// A parsed document and the memory its readers point into.
class JsonDocument
{
public:
    /// The failure says what is wrong with the bytes. Takes at most 64 levels of nesting.
    [[nodiscard]] static Result<JsonDocument, QString> parse(const QByteArray& bytes);

    [[nodiscard]] JsonReader root() const;
    /// The first thing a reader of this document found wrong.
    [[nodiscard]] const std::optional<QString>& error() const { return m_state->context.error; }
    /// How many elements decodeEach() left out.
    [[nodiscard]] int dropped() const { return m_state->context.dropped; }

private:
    struct State {
        simdjson::padded_string bytes;
        simdjson::dom::parser parser;
        simdjson::dom::element root;
        JsonReader::Context context;
    };
    explicit JsonDocument(std::unique_ptr<State> state)
        : m_state(std::move(state))
    {
    }

    std::unique_ptr<State> m_state;
};

/// Parses `bytes` and lets `decode` read the root. The failure text names the path of what was wrong.
template <typename Decode>
[[nodiscard]] auto decodeJson(const QByteArray& bytes, Decode&& decode)
    -> Result<decltype(decode(std::declval<const JsonReader&>())), QString>
{
    LOOM_TRY(document, JsonDocument::parse(bytes));
    auto record = decode(document.root());
    if (document.error())
        return Unexpected(*document.error());
    return record;
}

} // namespace loom
