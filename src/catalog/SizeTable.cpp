#include "catalog/SizeTable.h"

#include "catalog/SizeTableUnits.h"

namespace loom
{

namespace
{

/// Shows one table in one unit.
class TableView
{
public:
    TableView(const TableSection& table, SizeUnit unit)
        : m_table(table)
        , m_units(table)
        , m_unit(unit)
    {
    }

    [[nodiscard]] TableSection shown() const
    {
        TableSection result{.title = shownHeading(m_table.title, &m_table.title), .rows = m_table.rows};
        for (qsizetype row = 0; row < result.rows.size(); ++row) {
            for (qsizetype column = 0; column < result.rows[row].size(); ++column)
                result.rows[row][column] = row == 0 ? shownTop(column) : shownCell(row, column);
        }
        return result;
    }

private:
    /// A title, heading or label goes with the numbers it speaks for; a measure in it with the unit chosen.
    [[nodiscard]] QString shownHeading(const QString& text, const QString* authority) const
    {
        const QString shown = isMetricCell(text) ? sizeCell(text, m_unit, StatedUnit::None) : text;
        const bool switches = m_unit == SizeUnit::Imperial && m_units.canSwitch(authority);
        return switches && statedUnit(text) != StatedUnit::Fixed ? imperialHeading(shown) : shown;
    }

    [[nodiscard]] QString shownTop(qsizetype column) const
    {
        const QString& heading = m_table.rows[0][column];
        if (column == 0)
            return shownHeading(heading, m_units.authorityOverCorner());
        return namesSizes(heading) ? heading : shownHeading(heading, &heading);
    }

    [[nodiscard]] QString shownCell(qsizetype row, qsizetype column) const
    {
        const QString& cell = m_table.rows[row][column];
        const QString* authority = m_units.authorityOver(row, column);
        if (column == 0 && !authority) {
            const bool statesNothing = statedUnit(cell) == StatedUnit::None;
            const bool isName = m_table.rows[0].value(0).isEmpty() || m_units.isSize(row, 0);
            return namesSizes(cell) || (isName && statesNothing) ? cell : shownHeading(cell, &cell);
        }
        return sizeCell(cell, m_unit, m_units.canSwitch(authority) ? statedUnit(*authority) : StatedUnit::None);
    }

    const TableSection& m_table;
    SizeTableUnits m_units;
    SizeUnit m_unit;
};

} // namespace

QString sizeCell(const QString& cell, SizeUnit unit, const QString& columnHeading, const QString& tableTitle)
{
    if (namesSizes(columnHeading))
        return sizeCell(cell, unit, StatedUnit::None);
    const StatedUnit stated = statedUnit(columnHeading);
    return sizeCell(cell, unit, stated == StatedUnit::None ? statedUnit(tableTitle) : stated);
}

TableSection sizeTable(const TableSection& table, SizeUnit unit)
{
    return TableView(table, unit).shown();
}

bool hasUnits(const TableSection& table)
{
    return sizeTable(table, SizeUnit::Metric) != sizeTable(table, SizeUnit::Imperial);
}

} // namespace loom
