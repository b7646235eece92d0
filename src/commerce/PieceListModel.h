#pragma once

#include "catalog/ProductListModel.h"

#include <QAbstractListModel>

namespace loom
{

/// A piece of a list as its card shows it.
struct PieceRow {
    enum class State {
        Unknown,     ///< what this market says of it is not known
        Current,     ///< it stands in this market as the item says
        Unavailable, ///< this market does not have it
    };

    ProductListItem item;
    std::optional<Money> price; ///< none where the one of this market is not known
    std::optional<Money> former;
    std::optional<Money> seenPrice; ///< what it cost when it was seen, if it costs less now
    State state = State::Unknown;
    QString reason; ///< why it is recommended; of a price that fell its own card tells

    bool operator==(const PieceRow&) const = default;
};

/// The cards of a list that the shopper keeps. Rows that stay are never taken away. Main thread.
class PieceListModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    /// Beside those of a list of products.
    enum Role { UnavailableRole = ProductListModel::ReasonRole + 1 };
    Q_ENUM(Role)

    PieceListModel(const MoneyFormat& money, const Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] const std::vector<PieceRow>& rows() const { return m_rows; }
    void show(std::vector<PieceRow> rows);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    template <typename IsWanted>
    void takeOut(std::ptrdiff_t start, std::ptrdiff_t end, IsWanted isWanted);
    [[nodiscard]] QString reason(const PieceRow& row) const;
    [[nodiscard]] QString label(const PieceRow& row) const;
    [[nodiscard]] QString text(const std::optional<Money>& amount) const;

    const MoneyFormat& m_money;
    const Clock& m_clock;
    std::vector<PieceRow> m_rows;
};

} // namespace loom
