#pragma once

#include "catalog/MarketStore.h"
#include "catalog/MoneyFormat.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include "support/StorefrontFixture.h"

#include <QJsonArray>
#include <QTemporaryDir>

namespace loom
{

/// What the models of pages are made of: a market in the United States, and a data folder of its own.
class ShopFixture : public StorefrontFixture
{
protected:
    [[nodiscard]] static QJsonArray cards(const QStringList& handles)
    {
        QJsonArray list;
        for (const QString& handle : handles)
            list.append(cardJson(handle));
        return list;
    }
    /// Counts how often `signal` is emitted.
    template <typename Sender, typename Signal>
    [[nodiscard]] static std::shared_ptr<int> emissions(const Sender& sender, Signal signal)
    {
        auto count = std::make_shared<int>(0);
        QObject::connect(&sender, signal, &sender, [count] { ++*count; });
        return count;
    }

    QTemporaryDir home;
    DataFolder folder{home.path()};
    Preferences preferences{folder};
    MoneyFormat money{AppLanguage::English};
    MarketStore market{{.country = QStringLiteral("US")}, client, api, folder, preferences, clock};
};

} // namespace loom
