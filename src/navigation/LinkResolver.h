#pragma once

#include <QString>
#include <QUrl>

#include <optional>
#include <variant>

namespace loom
{

/// Turns a link, be it an address of the store's site, one of the application's own schemes or a bare path, into the
/// place in the application that it means. Pure; any thread.
class LinkResolver
{
public:
    /// What a link means, in the order of the cases.
    struct Product {
        QString handle;
        bool operator==(const Product&) const = default;
    };
    struct Collection {
        QString handle;
        bool operator==(const Collection&) const = default;
    };
    struct Search {
        QString query;
        bool operator==(const Search&) const = default;
    };
    /// For the shopper's browser.
    struct External {
        QUrl url;
        bool operator==(const External&) const = default;
    };
    struct None {
        bool operator==(const None&) const = default;
    };
    struct Brands {
        bool operator==(const Brands&) const = default;
    };
    struct Starlook {
        bool operator==(const Starlook&) const = default;
    };
    struct Cart {
        bool operator==(const Cart&) const = default;
    };
    struct Account {
        bool operator==(const Account&) const = default;
    };
    using Target = std::variant<Product, Collection, Search, External, None, Brands, Starlook, Cart, Account>;

    /// `storeHost` without "www.".
    explicit LinkResolver(QString storeHost);

    [[nodiscard]] Target resolve(const std::optional<QString>& link) const;

private:
    [[nodiscard]] QString asPath(const QString& link) const;

    QString m_storeHost;
};

} // namespace loom
