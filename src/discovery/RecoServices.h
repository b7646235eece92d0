#pragma once

namespace loom
{

class CartStore;
class Clock;
class MarketStore;
class MoneyFormat;
class NotInterested;
class RecoAPI;
class TextChanges;

/// What everything that shows recommendations is made of.
struct RecoServices {
    RecoAPI& api;
    const MarketStore& market;
    const NotInterested& hidden;
    const CartStore& cart;
    const MoneyFormat& money;
    const Clock& clock;
    const TextChanges& texts;
};

} // namespace loom
