#pragma once

#include <QList>
#include <QString>

namespace loom
{

/// A text as a search compares it: small letters without accents, words apart by one blank and each with one before
/// it, so that " dr" finds a word that begins with "dr". Letters of scripts without blanks are words of their own.
struct FoldedText {
    QString text;
    QList<int> origins; ///< where in the original each character of `text` comes from

    /// The folded text alone, which is quicker.
    [[nodiscard]] static QString fold(const QString& original);
    [[nodiscard]] static FoldedText withOrigins(const QString& original);
};

/// A stretch of a text.
struct TextSpan {
    int start = 0;
    int length = 0;

    bool operator==(const TextSpan&) const = default;
};

/// Whether each word of the folded `typed` begins a word of the folded `text`.
[[nodiscard]] bool matchesWords(const QString& text, const QString& typed);

/// Where in `text` a word begins with the last word of `typed`; of no length where none does.
[[nodiscard]] TextSpan lastWordMatch(const QString& text, const QString& typed);

} // namespace loom
