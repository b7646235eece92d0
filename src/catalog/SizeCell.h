#pragma once

#include "catalog/SizeHeading.h"

#include <QString>

namespace loom
{

/// The shopper's choice.
enum class SizeUnit { Metric, Imperial };

/// A cell of a size table as it is shown to a shopper who prefers `unit`; `stated` is the unit that bare numbers in it
/// have.
///
/// - A cell that holds both, "84 - 88 cm / 33 - 35 in", shows the part asked for.
/// - A metric cell is converted for an imperial shopper: centimetres to the nearest half inch, because neighbouring
///   sizes are often 4 cm apart and whole inches would make them meet unevenly; kilograms to the nearest pound.
///   A cell is converted as a whole or not at all: one that holds a number which cannot be (a third value, millimetres,
///   a product such as "84 x 60 cm", less than a quarter inch) stays as written, with its metric unit.
/// - Bare numbers and ranges are converted where `stated` says what they are.
/// - An imperial cell stays as written for a metric shopper too: makers round such sizes ("waist 28"), and a converted
///   value would claim a precision that nobody measured.
/// - A cell that is nothing but a range is set with an en dash, "84 – 88" or "84 – 88 cm"; what the range was written
///   with (hyphen, dash, tilde) does not matter.
[[nodiscard]] QString sizeCell(const QString& cell, SizeUnit unit, StatedUnit stated);

/// Whether the cell may stand under a heading whose unit is switched from `stated` to an imperial one: it holds no
/// number, says its own unit, or can be converted.
[[nodiscard]] bool canSwitch(const QString& cell, StatedUnit stated);

/// Whether the cell is nothing but a number or a range, without a unit.
[[nodiscard]] bool isBareMeasure(const QString& cell);

/// Whether a number in the cell has a metric unit of its own.
[[nodiscard]] bool isMetricCell(const QString& cell);

} // namespace loom
