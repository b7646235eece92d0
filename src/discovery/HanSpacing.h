#pragma once

#include <QString>

namespace loom
{

/// `text` without the runs of blanks and no-break blanks that stand between two Han characters: what was put together
/// from parts then reads as Chinese is written. Every other blank stays.
[[nodiscard]] QString withHanSpacing(QString text);

} // namespace loom
