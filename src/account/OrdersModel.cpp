#include "account/OrdersModel.h"

#include "account/OrderWords.h"
#include "catalog/DateFormat.h"
#include "catalog/MoneyFormat.h"
#include "catalog/RowMerge.h"

#include <QCoreApplication>

#include <array>

namespace loom
{

namespace
{

/// So many pictures a row shows at most.
constexpr std::size_t mostPictures = 4;

/// In the order of the tabs.
constexpr std::array tabNames{"all", "onTheWay", "delivered", "returns"};

int tabNamed(const QString& name)
{
    const auto found = std::ranges::find_if(
        tabNames, [&name](const char* other) { return name.compare(QLatin1String(other), Qt::CaseInsensitive) == 0; });
    return found == tabNames.end() ? OrdersModel::All : static_cast<int>(found - tabNames.begin());
}

bool belongs(const Order& order, int tab)
{
    switch (tab) {
    case OrdersModel::OnTheWay:
        return order.status == OrderStatus::Confirmed || order.status == OrderStatus::Packed ||
               order.status == OrderStatus::Shipped;
    case OrdersModel::Delivered:
        return order.status == OrderStatus::Delivered;
    default:
        return tab == OrdersModel::All;
    }
}

QStringList pictures(const Order& order)
{
    QStringList addresses;
    for (const OrderLine& line : order.lines) {
        addresses.append(line.imageURL);
        if (addresses.size() == mostPictures)
            break;
    }
    return addresses;
}

QString packagesText(const Order& order)
{
    if (order.packages.empty())
        return {};
    if (const int count = static_cast<int>(order.packages.size()); count > 1)
        return QCoreApplication::translate("Loomstreet", "%Ln packages", nullptr, count);
    const Package& package = order.packages.front();
    const QString latest = package.events.empty() ? statusText(package.status) : package.events.front().text;
    return latest == statusText(order.status) ? QString() : latest;
}

} // namespace

OrdersModel::OrdersModel(const QString& tab, OrdersStore& store, const MoneyFormat& money, const DateFormat& dates,
                         QObject* parent)
    : QAbstractListModel(parent)
    , m_store(store)
    , m_money(money)
    , m_dates(dates)
    , m_tab(tabNamed(tab))
{
    connect(&store, &OrdersStore::ordersChanged, this, &OrdersModel::follow);
    connect(&store, &OrdersStore::hiddenChanged, this, &OrdersModel::follow);
    follow();
}

void OrdersModel::setTab(int tab)
{
    if (m_tab == tab)
        return;
    m_tab = tab;
    Q_EMIT tabChanged();
    follow();
}

void OrdersModel::setShowsHidden(bool shows)
{
    if (m_showsHidden == shows)
        return;
    m_showsHidden = shows;
    Q_EMIT tabChanged();
    follow();
}

bool OrdersModel::isEverythingEmpty() const
{
    return m_store.orders().empty() && m_store.refunds().empty();
}

std::vector<OrdersModel::Row> OrdersModel::wantedRows(int* hiddenCount) const
{
    std::vector<Row> rows;
    if (m_tab == Returns) {
        for (const Refund& refund : m_store.refunds()) {
            const Order* const order = m_store.order(refund.orderId);
            rows.push_back({.refund = refund, .order = order ? std::optional(*order) : std::nullopt});
        }
        return rows;
    }
    for (const Order& order : m_store.orders()) {
        if (!belongs(order, m_tab))
            continue;
        const bool isHidden = m_store.isHidden(order.id);
        *hiddenCount += isHidden ? 1 : 0;
        if (!isHidden || m_showsHidden)
            rows.push_back({.refund = {}, .order = order, .isHidden = isHidden});
    }
    return rows;
}

void OrdersModel::follow()
{
    int hiddenCount = 0;
    std::vector<Row> wanted = wantedRows(&hiddenCount);
    const auto keys = [](const std::vector<Row>& rows) {
        QStringList list;
        for (const Row& row : rows)
            list.append(row.key());
        return list;
    };
    mergeRows(
        keys(m_rows), keys(wanted),
        [this](int row) {
            beginRemoveRows({}, row, row);
            m_rows.erase(m_rows.begin() + row);
            endRemoveRows();
        },
        [this](int from, int to) { // up
            beginMoveRows({}, from, from, {}, to);
            std::rotate(m_rows.begin() + to, m_rows.begin() + from, m_rows.begin() + from + 1);
            endMoveRows();
        },
        [this, &wanted](int row, std::size_t place) {
            beginInsertRows({}, row, row);
            m_rows.insert(m_rows.begin() + row, wanted[place]);
            endInsertRows();
        });
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (m_rows[i] == wanted[i])
            continue;
        m_rows[i] = std::move(wanted[i]);
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
    m_hiddenCount = hiddenCount;
    Q_EMIT rowsChanged();
}

int OrdersModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant OrdersModel::orderData(const Order& order, int role) const
{
    switch (role) {
    case OrderIdRole:
        return order.id;
    case NameRole:
        return order.name;
    case SummaryRole:
        return summary(order);
    case DateRole:
        return m_dates.day(order.placedAt);
    case StatusRole:
        return statusText(order.status);
    case ToneRole:
        return toneOf(order.status);
    case AmountRole:
        return m_money.text(order.total);
    case PiecesRole:
        return pieceCountText(order);
    case PicturesRole:
        return pictures(order);
    case PackagesRole:
        return packagesText(order);
    default:
        return {};
    }
}

QVariant OrdersModel::refundData(const Row& row, int role) const
{
    switch (role) {
    case OrderIdRole:
        return row.order ? row.order->id : QString();
    case NameRole:
        return row.order ? row.order->name : row.refund->orderName;
    case DateRole:
        return m_dates.day(row.refund->createdAt);
    case StatusRole:
        return statusText(row.refund->status);
    case ToneRole:
        return toneOf(row.refund->status);
    case AmountRole:
        return m_money.text(row.refund->amount);
    case PackagesRole:
        return row.refund->reason;
    default:
        return row.order ? orderData(*row.order, role) : QVariant(QString());
    }
}

QVariant OrdersModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == RefundRole)
        return row.refund.has_value();
    if (role == HiddenRole)
        return row.isHidden;
    return row.refund ? refundData(row, role) : orderData(*row.order, role);
}

QHash<int, QByteArray> OrdersModel::roleNames() const
{
    return {{OrderIdRole, "orderId"},   {NameRole, "name"},       {SummaryRole, "summary"}, {DateRole, "date"},
            {StatusRole, "status"},     {ToneRole, "tone"},       {AmountRole, "amount"},   {PiecesRole, "pieces"},
            {PicturesRole, "pictures"}, {PackagesRole, "latest"}, {RefundRole, "isRefund"}, {HiddenRole, "isHidden"}};
}

} // namespace loom
