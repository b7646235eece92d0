#pragma once

#include "catalog/AiSearch.h"

namespace loom
{

class Clock;
class MarketStore;
class RecoAPI;

/// The store's search with understanding, as the search page asks for it. It fails when its first results have not come
/// after a few seconds: nobody waits longer for what another search has found by then. All must outlive the source.
[[nodiscard]] AiSearchSource recoSearch(RecoAPI& api, const MarketStore& market, Clock& clock);

} // namespace loom
