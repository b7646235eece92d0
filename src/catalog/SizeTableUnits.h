#pragma once

#include "catalog/SizeHeading.h"

#include <QSet>

namespace loom
{

struct TableSection;

/// Who states the units of the bare numbers in a table, which must outlive this. An authority is a heading, a row label
/// or, for all that neither speaks for, the title or the top left corner.
class SizeTableUnits
{
public:
    explicit SizeTableUnits(const TableSection& table);

    /// The authority over this cell, which is not in the first row; null when its bare numbers have no unit.
    [[nodiscard]] const QString* authorityOver(qsizetype row, qsizetype column) const;
    /// The authority that the top left corner goes with: that over the whole table, or the corner itself.
    [[nodiscard]] const QString* authorityOverCorner() const;
    /// Whether the numbers that `authority` speaks for are metric, and all of them can be converted.
    [[nodiscard]] bool canSwitch(const QString* authority) const;
    /// Whether the cell, which is not in the first row, stands in a column or row of sizes.
    [[nodiscard]] bool isSize(qsizetype row, qsizetype column) const;

private:
    void readCorner();
    [[nodiscard]] bool lacksHeadings() const;
    [[nodiscard]] const QString* heading(qsizetype column) const;
    template <typename Visit>
    void forEachMeasure(Visit visit) const;

    const TableSection& m_table;
    const QString* m_general = nullptr;
    bool m_cornerIsGeneral = false;
    QSet<const QString*> m_metricOnly; ///< authorities over a number that cannot be converted
};

} // namespace loom
