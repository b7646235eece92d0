#pragma once

#include <QString>

namespace loom
{

/// `text` from a merchant or a reviewer as one line of at most `limit` UTF-16 units that can be put anywhere in the
/// window: runs of white space become one blank; control characters and the characters that embed, override or isolate
/// a writing direction, which could turn around the words beside it, are gone; half of a surrogate pair becomes U+FFFD.
///
/// Anything that looks like markup stays as it is: what shows the line shows it as plain text.
[[nodiscard]] QString displayLine(const QString& text, qsizetype limit);

/// The same for a text of several lines. Lines stay apart; at most one empty line stands between two of them.
[[nodiscard]] QString displayText(const QString& text, qsizetype limit);

/// What displayLine() leaves of the characters of a text, which keeps its length and its white space.
[[nodiscard]] QString displayCharacters(QStringView text);

} // namespace loom
