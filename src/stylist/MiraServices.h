#pragma once

namespace loom
{

class Announcements;
class CartStore;
class Clock;
class DataFolder;
class DateFormat;
class MarketStore;
class MiraAPI;
class MiraWeatherStore;
class MoneyFormat;
class Preferences;
class Random;
class StorefrontAPI;
class WishlistStore;

/// What the chat with the stylist is made of; all of it outlives the chat.
struct MiraServices {
    MiraAPI& api;
    StorefrontAPI& storefront;
    MarketStore& market;
    const MoneyFormat& money;
    const DateFormat& dates;
    CartStore& cart;
    WishlistStore& wishlist;
    MiraWeatherStore& weather;
    Announcements& announcements;
    DataFolder& folder;
    Preferences& preferences;
    Clock& clock;
    Random& random;
};

} // namespace loom
