#pragma once

#include "navigation/LinkResolver.h"
#include "navigation/Routes.h"
#include "navigation/SidebarItem.h"

#include <QUrl>

namespace loom
{

/// The pages of the store's own site that stand in for what has no native page, and what may happen in them.
class StorePages
{
public:
    /// `webBase` is the site's address without a "/" at its end.
    explicit StorePages(QString webBase);

    /// The site's host without "www.".
    [[nodiscard]] QString storeHost() const;

    [[nodiscard]] QUrl page(SidebarItem item) const;
    /// Not valid for an entry that no page recognises.
    [[nodiscard]] QUrl page(const Route& route) const;
    [[nodiscard]] QUrl page(const QString& path) const;

    /// Whether an embedded page may load `url`, itself or as a part: https on the store's host, no other port, no
    /// user name.
    [[nodiscard]] bool mayLoad(const QUrl& url) const;

private:
    QString m_webBase;
};

} // namespace loom
