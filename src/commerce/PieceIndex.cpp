#include "commerce/PieceIndex.h"

#include "base/FoldedText.h"

#include <QSet>

#include <algorithm>
#include <string_view>

namespace loom
{

namespace
{

/// The words of a folded text, each with the blank before it, the longest first: it rules out the most.
std::vector<std::string_view> wordsOf(std::string_view folded)
{
    std::vector<std::string_view> words;
    for (std::size_t start = folded.find(' '); start != std::string_view::npos;) {
        const std::size_t end = folded.find(' ', start + 1);
        words.push_back(folded.substr(start, end == std::string_view::npos ? end : end - start));
        start = end;
    }
    std::ranges::sort(words, std::greater(), &std::string_view::size);
    return words;
}

} // namespace

PieceIndex::PieceIndex(std::vector<ProductHit> pieces)
{
    QSet<QString> known;
    for (ProductHit& piece : pieces) {
        if (known.contains(piece.handle))
            continue;
        known.insert(piece.handle);
        m_starts.push_back(m_text.size());
        m_text += FoldedText::fold(piece.title + QLatin1Char(' ') + piece.vendor).toStdString();
        m_text += '\n';
        m_pieces.push_back(std::move(piece));
    }
}

std::vector<ProductHit> PieceIndex::find(const QString& typed, std::size_t limit) const
{
    std::vector<ProductHit> found;
    const std::string folded = FoldedText::fold(typed).toStdString();
    const std::vector<std::string_view> words = wordsOf(folded);
    if (words.empty())
        return found;
    const std::string_view text = m_text;
    for (std::size_t at = text.find(words.front()); at != std::string_view::npos && found.size() < limit;) {
        const auto next = std::ranges::upper_bound(m_starts, at);
        const std::size_t start = *std::prev(next);
        const std::size_t end = next != m_starts.end() ? *next : text.size();
        const std::string_view line = text.substr(start, end - start);
        if (std::ranges::all_of(words,
                                [&](std::string_view word) { return line.find(word) != std::string_view::npos; }))
            found.push_back(m_pieces[static_cast<std::size_t>(std::distance(m_starts.begin(), next)) - 1]);
        at = text.find(words.front(), end);
    }
    return found;
}

} // namespace loom
