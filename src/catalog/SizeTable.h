#pragma once

#include "catalog/SizeCell.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace loom
{

/// A table of sizes as the merchant wrote it: the first row holds the headings, the first column the sizes. Tables
/// the other way round, with measures in the rows, are read as well.
struct TableSection {
    QString title;
    QList<QStringList> rows;

    bool operator==(const TableSection&) const = default;
};

/// What a cell shows under this heading in a table of this title. The heading says the unit of bare numbers before the
/// title does; under a heading that names a system of sizes ("EU") bare numbers have no unit.
[[nodiscard]] QString sizeCell(const QString& cell, SizeUnit unit, const QString& columnHeading,
                               const QString& tableTitle);

/// The table, ready to show in `unit`.
///
/// Headings, row labels and the title that state centimetres or kilograms say inches or pounds to an imperial shopper,
/// but only when all the bare numbers they speak for could be converted; otherwise they and these numbers stay metric,
/// so that no number ever stands under a unit that is not its own. The names of sizes stay exactly as written: they
/// must equal the values of the product's size option.
[[nodiscard]] TableSection sizeTable(const TableSection& table, SizeUnit unit);

/// Whether the table reads differently in the two units, so that a switch between them makes sense.
[[nodiscard]] bool hasUnits(const TableSection& table);

} // namespace loom
