#pragma once

#include "catalog/ProductListItem.h"

#include <QAbstractListModel>
#include <QSet>

namespace loom
{

class Clock;
class MoneyFormat;

/// Cards in the order they are shown, each handle once. Main thread.
class ProductListModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        ItemRole = Qt::UserRole + 1,
        HandleRole,
        TitleRole,
        DesignerRole,
        PriceRole,
        FormerPriceRole,
        PicturesRole,
        ColourPicturesRole,
        LabelRole,
        SoldOutRole,
        ReasonRole,
    };
    Q_ENUM(Role)

    ProductListModel(const MoneyFormat& money, const Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_items.size()); }
    [[nodiscard]] const std::vector<ProductListItem>& items() const { return m_items; }

    /// Shows other products. Rows that stay keep their place on the screen.
    void replace(std::vector<ProductListItem> items);
    /// Adds what is not there yet behind what is.
    void append(std::vector<ProductListItem> items);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override { return names(); }

    /// The names of the roles.
    [[nodiscard]] static QHash<int, QByteArray> names();
    /// What a role tells of a piece wherever it is shown; nothing for roles that depend on the market or the moment.
    [[nodiscard]] static QVariant fact(const ProductListItem& item, int role);

Q_SIGNALS:
    void countChanged();

private:
    [[nodiscard]] std::vector<ProductListItem> withoutKnown(std::vector<ProductListItem> items);

    const MoneyFormat& m_money;
    const Clock& m_clock;
    std::vector<ProductListItem> m_items;
    QSet<QString> m_handles;
};

/// The one word on a card's picture: a final sale, else a presale, else a new piece, else nothing.
[[nodiscard]] QString pictureLabel(const ProductListItem& item, const QDateTime& now);

/// The pictures a card shows: the featured one, then the others of the product, none twice.
[[nodiscard]] QStringList cardPictures(const ProductListItem& item);

/// One picture for each colourway, none twice; empty when there is only one.
[[nodiscard]] QStringList colourPictures(const ProductListItem& item);

} // namespace loom
