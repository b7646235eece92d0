#include "catalog/SizeTableUnits.h"

#include "catalog/SizeTable.h"

#include <algorithm>

namespace loom
{

namespace
{

bool statesUnit(const QString& text)
{
    return statedUnit(text) != StatedUnit::None;
}

} // namespace

SizeTableUnits::SizeTableUnits(const TableSection& table)
    : m_table(table)
{
    if (statesUnit(m_table.title))
        m_general = &m_table.title;
    readCorner();
    if (m_general && lacksHeadings())
        m_metricOnly.insert(m_general);
    forEachMeasure([this](qsizetype row, qsizetype column) {
        const QString* authority = authorityOver(row, column);
        if (authority && !loom::canSwitch(m_table.rows[row][column], statedUnit(*authority)))
            m_metricOnly.insert(authority);
    });
}

template <typename Visit>
void SizeTableUnits::forEachMeasure(Visit visit) const
{
    for (qsizetype row = 1; row < m_table.rows.size(); ++row) {
        for (qsizetype column = 0; column < m_table.rows[row].size(); ++column)
            visit(row, column);
    }
}

/// "Size (cm)" speaks for the table; "Height (cm)" for its column, if there are numbers in it and the others have
/// someone else to speak for them.
void SizeTableUnits::readCorner()
{
    const QString corner = m_table.rows.value(0).value(0);
    if (!statesUnit(corner))
        return;
    bool hasOwnNumbers = false;
    bool hasOrphans = false;
    forEachMeasure([&](qsizetype row, qsizetype column) {
        const QString& cell = m_table.rows[row][column];
        if (column == 0)
            hasOwnNumbers = hasOwnNumbers || isBareMeasure(cell);
        else if (!authorityOver(row, column) && !isSize(row, column))
            hasOrphans = hasOrphans || !loom::canSwitch(cell, StatedUnit::None);
    });
    m_cornerIsGeneral = namesSizes(corner) || !hasOwnNumbers || hasOrphans;
    if (m_cornerIsGeneral && !m_general)
        m_general = &m_table.rows[0][0];
}

/// Bare numbers in the first row may be the sizes of a table with measures in its rows; beside the name of a size they
/// are measures, which nobody would convert.
bool SizeTableUnits::lacksHeadings() const
{
    const QStringList first = m_table.rows.value(0);
    const QString corner = first.value(0);
    const bool isLabelled = corner.isEmpty() || namesSizes(corner) || statesUnit(corner);
    return !isLabelled && std::ranges::any_of(first.mid(1), isBareMeasure);
}

const QString* SizeTableUnits::heading(qsizetype column) const
{
    return column < m_table.rows[0].size() ? &m_table.rows[0][column] : nullptr;
}

bool SizeTableUnits::isSize(qsizetype row, qsizetype column) const
{
    const QString* above = heading(column);
    return (above && namesSizes(*above)) || (column > 0 && namesSizes(m_table.rows[row][0]));
}

const QString* SizeTableUnits::authorityOver(qsizetype row, qsizetype column) const
{
    if (isSize(row, column))
        return nullptr;
    const QString* above = heading(column);
    const bool isColumnHeading = column > 0 || !m_cornerIsGeneral;
    if (above && isColumnHeading && statesUnit(*above))
        return above;
    if (column == 0)
        return nullptr;
    const QString* label = &m_table.rows[row][0];
    return statesUnit(*label) ? label : m_general;
}

const QString* SizeTableUnits::authorityOverCorner() const
{
    return m_cornerIsGeneral ? m_general : heading(0);
}

bool SizeTableUnits::canSwitch(const QString* authority) const
{
    if (!authority || m_metricOnly.contains(authority))
        return false;
    const StatedUnit stated = statedUnit(*authority);
    return stated == StatedUnit::Centimetres || stated == StatedUnit::Kilograms;
}

} // namespace loom
