#pragma once

#include "commerce/PieceListModel.h"
#include "discovery/RecoProduct.h"
#include "discovery/RecoServices.h"

#include <QSet>

namespace loom
{

/// Recommended pieces as cards: without those the shopper hid, has in the cart or sees elsewhere on the page, at the
/// price of the shopper's market, each with its reason. What changes of all that is shown at once, without asking the
/// store again. Main thread.
class RecoCards : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::PieceListModel* pieces READ pieces CONSTANT)
    Q_PROPERTY(int count READ count NOTIFY shownChanged)

public:
    explicit RecoCards(const RecoServices& services, QObject* parent = nullptr);

    [[nodiscard]] PieceListModel* pieces() { return &m_pieces; }
    [[nodiscard]] int count() const { return m_pieces.count(); }
    /// As recommended, shown or not.
    [[nodiscard]] const std::vector<RecoProduct>& products() const { return m_products; }
    /// Those that are shown.
    [[nodiscard]] QStringList handles() const;

    void replace(std::vector<RecoProduct> products);
    /// Adds what is not there yet; returns how many that were.
    std::size_t append(std::vector<RecoProduct> products);
    /// These are not to be shown here.
    void setExcluded(QSet<QString> handles);

Q_SIGNALS:
    /// Other pieces are shown, or the same in another order.
    void shownChanged();

protected:
    [[nodiscard]] const RecoServices& services() const { return m_services; }

private:
    void compose();
    void takeCart();
    [[nodiscard]] bool isShown(const QString& handle) const;
    [[nodiscard]] PieceRow row(const RecoProduct& product) const;

    RecoServices m_services;
    PieceListModel m_pieces;
    std::vector<RecoProduct> m_products;
    QSet<QString> m_excluded;
    QSet<QString> m_inCart;
};

} // namespace loom
