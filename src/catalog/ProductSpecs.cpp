#include "catalog/ProductSpecs.h"

#include "catalog/DisplayText.h"
#include "catalog/MetafieldReading.h"

#include <algorithm>

namespace loom
{

namespace
{

constexpr std::size_t maximumSpecs = 200;
constexpr std::size_t maximumTables = 20;
constexpr std::size_t maximumRows = 200;
constexpr std::size_t maximumColumns = 40;
constexpr qsizetype maximumCells = 1000; ///< of all tables of a product: each is read anew when the unit changes
constexpr qsizetype maximumCellLength = 200;

SpecRow decodeSpecRow(const JsonReader& json)
{
    SpecRow row{.key = readLine(json, "key"), .value = readLine(json, "value")};
    if (row.key.isEmpty() || row.value.isEmpty())
        json.fail(QStringLiteral("expected a key and a value"));
    return row;
}

QStringList decodeTableRow(const JsonReader& json)
{
    QStringList cells;
    for (const JsonReader& element : firstOf(json.elements(), maximumColumns))
        cells.append(displayLine(readLine(element), maximumCellLength));
    if (std::ranges::all_of(cells, &QString::isEmpty))
        json.fail(QStringLiteral("expected a list of cells"));
    return cells;
}

TableSection decodeTable(const JsonReader& json)
{
    const auto rows = JsonReader::decodeEach(readElements(json, "rows", maximumRows), decodeTableRow);
    if (rows.empty())
        json.fail(QStringLiteral("expected a table with rows"));
    return {.title = readLine(json, "title"), .rows = {rows.cbegin(), rows.cend()}};
}

} // namespace

ProductSpecs decodeProductSpecs(const JsonReader& json)
{
    const auto specs = firstOf(json.isList() ? json.elements() : json.optionalList("rows"), maximumSpecs);
    const auto rows = JsonReader::decodeEach(specs, decodeSpecRow);
    ProductSpecs result{.rows = {rows.cbegin(), rows.cend()}, .sizeTables = {}};
    qsizetype cells = 0;
    for (TableSection& table : JsonReader::decodeEach(readElements(json, "sizeTables", maximumTables), decodeTable)) {
        for (const QStringList& row : table.rows)
            cells += row.size();
        if (cells > maximumCells)
            break;
        result.sizeTables.append(std::move(table));
    }
    return result;
}

} // namespace loom
