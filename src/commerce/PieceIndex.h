#pragma once

#include "catalog/SearchSuggestions.h"

namespace loom
{

/// Pieces that the shopper knows, prepared so that those a typed text means are found within a key press, however many
/// they are. Built once for a list, on any thread; a value.
class PieceIndex
{
public:
    PieceIndex() = default;
    /// Those to be found first come first; a piece that comes again is left out.
    explicit PieceIndex(std::vector<ProductHit> pieces);

    [[nodiscard]] const std::vector<ProductHit>& pieces() const { return m_pieces; }

    /// The first `limit` pieces that have for each word of `typed` one that begins with it.
    [[nodiscard]] std::vector<ProductHit> find(const QString& typed, std::size_t limit) const;

private:
    std::vector<ProductHit> m_pieces;
    std::string m_text;                ///< what every piece is found by, folded, a line for each
    std::vector<std::size_t> m_starts; ///< where in `m_text` the line of each piece begins
};

} // namespace loom
