#pragma once

#include "navigation/ProductPreview.h"

#include <QJsonObject>
#include <QStringList>

#include <optional>
#include <variant>
#include <vector>

namespace loom
{

// The pages that can be pushed on a tab's stack. Each case names its fields in fields(), for saving and restoring.

/// Pages of the shop.
struct ShopRoute {
    static constexpr const char* type = "shop";

    struct Product {
        static constexpr const char* name = "product";
        QString handle;
        std::optional<ProductListItem> item; ///< shown at once while the full product loads
        bool operator==(const Product&) const = default;
        static void fields(auto& self, auto&& field)
        {
            field("handle", self.handle);
            field("item", self.item);
        }
    };
    struct Collection {
        static constexpr const char* name = "collection";
        QString handle;
        std::optional<QString> title;
        bool operator==(const Collection&) const = default;
        static void fields(auto& self, auto&& field)
        {
            field("handle", self.handle);
            field("title", self.title);
        }
    };
    struct Category {
        static constexpr const char* name = "category";
        QString id;
        bool operator==(const Category&) const = default;
        static void fields(auto& self, auto&& field) { field("id", self.id); }
    };
    struct Search {
        static constexpr const char* name = "search";
        QString query;
        bool operator==(const Search&) const = default;
        static void fields(auto& self, auto&& field) { field("query", self.query); }
    };
    struct Rail {
        static constexpr const char* name = "rail";
        QString kind;
        QString key;
        QString title;
        bool operator==(const Rail&) const = default;
        static void fields(auto& self, auto&& field)
        {
            field("kind", self.kind);
            field("key", self.key);
            field("title", self.title);
        }
    };
    struct Compare {
        static constexpr const char* name = "compare";
        QStringList handles;
        bool operator==(const Compare&) const = default;
        static void fields(auto& self, auto&& field) { field("handles", self.handles); }
    };
    struct Brands {
        static constexpr const char* name = "brands";
        bool operator==(const Brands&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct Starlook {
        static constexpr const char* name = "starlook";
        bool operator==(const Starlook&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct Wishlist {
        static constexpr const char* name = "wishlist";
        bool operator==(const Wishlist&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct RecentlyViewed {
        static constexpr const char* name = "recentlyViewed";
        bool operator==(const RecentlyViewed&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct PriceDrops {
        static constexpr const char* name = "priceDrops";
        bool operator==(const PriceDrops&) const = default;
        static void fields(auto&, auto&&) {}
    };

    std::variant<Product, Collection, Category, Search, Rail, Compare, Brands, Starlook, Wishlist, RecentlyViewed,
                 PriceDrops>
        page;
    bool operator==(const ShopRoute&) const = default;
};

/// Pages of the community.
struct VessaRoute {
    static constexpr const char* type = "vessa";

    struct Note {
        static constexpr const char* name = "note";
        QString id;
        bool operator==(const Note&) const = default;
        static void fields(auto& self, auto&& field) { field("id", self.id); }
    };
    struct Topic {
        static constexpr const char* name = "topic";
        QString tag;
        bool operator==(const Topic&) const = default;
        static void fields(auto& self, auto&& field) { field("tag", self.tag); }
    };
    struct Search {
        static constexpr const char* name = "search";
        QString query;
        bool operator==(const Search&) const = default;
        static void fields(auto& self, auto&& field) { field("query", self.query); }
    };

    std::variant<Note, Topic, Search> page;
    bool operator==(const VessaRoute&) const = default;
};

/// Profiles of the community.
struct VessaProfileRoute {
    static constexpr const char* type = "vessaProfile";

    struct User {
        static constexpr const char* name = "user";
        QString code;
        bool operator==(const User&) const = default;
        static void fields(auto& self, auto&& field) { field("code", self.code); }
    };
    struct Follows {
        static constexpr const char* name = "follows";
        QString kind;
        std::optional<QString> code;
        bool operator==(const Follows&) const = default;
        static void fields(auto& self, auto&& field)
        {
            field("kind", self.kind);
            field("code", self.code);
        }
    };
    struct Collection {
        static constexpr const char* name = "collection";
        QString id;
        QString title; ///< "name" where it is saved
        bool operator==(const Collection&) const = default;
        static void fields(auto& self, auto&& field)
        {
            field("id", self.id);
            field("name", self.title);
        }
    };
    struct Me {
        static constexpr const char* name = "me";
        bool operator==(const Me&) const = default;
        static void fields(auto&, auto&&) {}
    };

    std::variant<User, Follows, Collection, Me> page;
    bool operator==(const VessaProfileRoute&) const = default;
};

/// The stylist.
struct MiraRoute {
    static constexpr const char* type = "mira";

    struct Chat {
        static constexpr const char* name = "chat";
        bool operator==(const Chat&) const = default;
        static void fields(auto&, auto&&) {}
    };

    std::variant<Chat> page;
    bool operator==(const MiraRoute&) const = default;
};

/// Pages of the customer's account.
struct AccountRoute {
    static constexpr const char* type = "account";

    struct Membership {
        static constexpr const char* name = "membership";
        bool operator==(const Membership&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct Coupons {
        static constexpr const char* name = "coupons";
        bool operator==(const Coupons&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct Notifications {
        static constexpr const char* name = "notifications";
        bool operator==(const Notifications&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct Profile {
        static constexpr const char* name = "profile";
        bool operator==(const Profile&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct Alerts {
        static constexpr const char* name = "alerts";
        bool operator==(const Alerts&) const = default;
        static void fields(auto&, auto&&) {}
    };

    std::variant<Membership, Coupons, Notifications, Profile, Alerts> page;
    bool operator==(const AccountRoute&) const = default;
};

/// Orders and what becomes of them.
struct OrdersRoute {
    static constexpr const char* type = "orders";

    struct List {
        static constexpr const char* name = "list";
        std::optional<QString> tab;
        bool operator==(const List&) const = default;
        static void fields(auto& self, auto&& field) { field("tab", self.tab); }
    };
    struct Order {
        static constexpr const char* name = "order";
        QString id;
        bool operator==(const Order&) const = default;
        static void fields(auto& self, auto&& field) { field("id", self.id); }
    };
    struct Package {
        static constexpr const char* name = "package";
        QString number;
        std::optional<QString> carrier;
        bool operator==(const Package&) const = default;
        static void fields(auto& self, auto&& field)
        {
            field("number", self.number);
            field("carrier", self.carrier);
        }
    };
    struct ReturnDetail {
        static constexpr const char* name = "returnDetail";
        QString rmaNo;
        bool operator==(const ReturnDetail&) const = default;
        static void fields(auto& self, auto&& field) { field("rmaNo", self.rmaNo); }
    };
    struct Tracking {
        static constexpr const char* name = "tracking";
        bool operator==(const Tracking&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct Returns {
        static constexpr const char* name = "returns";
        bool operator==(const Returns&) const = default;
        static void fields(auto&, auto&&) {}
    };
    struct Reviews {
        static constexpr const char* name = "reviews";
        bool operator==(const Reviews&) const = default;
        static void fields(auto&, auto&&) {}
    };

    std::variant<List, Order, Package, ReturnDetail, Tracking, Returns, Reviews> page;
    bool operator==(const OrdersRoute&) const = default;
};

/// Search by picture.
struct LensRoute {
    static constexpr const char* type = "lens";

    struct Search {
        static constexpr const char* name = "search";
        QString image; ///< the address of the picture to search by
        bool operator==(const Search&) const = default;
        static void fields(auto& self, auto&& field) { field("image", self.image); }
    };
    struct Start {
        static constexpr const char* name = "start";
        bool operator==(const Start&) const = default;
        static void fields(auto&, auto&&) {}
    };

    std::variant<Search, Start> page;
    bool operator==(const LensRoute&) const = default;
};

/// A page of the store's own site that has no native counterpart, such as its help center.
struct StorePageRoute {
    static constexpr const char* type = "storePage";

    struct Page {
        static constexpr const char* name = "page";
        QString path;
        QString title;
        bool operator==(const Page&) const = default;
        static void fields(auto& self, auto&& field)
        {
            field("path", self.path);
            field("title", self.title);
        }
    };

    std::variant<Page> page;
    bool operator==(const StorePageRoute&) const = default;
};

/// The place of an entry that no page recognises.
struct UnknownRoute {
    bool operator==(const UnknownRoute&) const = default;
};

using Route = std::variant<ShopRoute, VessaRoute, VessaProfileRoute, MiraRoute, AccountRoute, OrdersRoute, LensRoute,
                           StorePageRoute, UnknownRoute>;

/// The page of a product.
[[nodiscard]] Route productRoute(const ProductPreview& request);

[[nodiscard]] std::size_t qHash(const Route& route, std::size_t seed = 0);

/// Saves a route as {"type", "case", …fields}; what cannot be read comes back as UnknownRoute.
[[nodiscard]] QJsonObject toJson(const Route& route);
[[nodiscard]] Route decodeRoute(const JsonReader& json);

} // namespace loom
