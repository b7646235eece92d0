#include "account/AlertsModel.h"

#include "catalog/MoneyFormat.h"
#include "catalog/RowMerge.h"

namespace loom
{

namespace
{

/// An alert keeps its row while the backend gives it an id.
QString keyOf(const Alert& alert)
{
    return QStringList{rawValue(alert.subject.kind), alert.subject.handle, alert.subject.variantId}.join(
        QLatin1Char('\n'));
}

QStringList keysOf(const std::vector<Alert>& alerts)
{
    QStringList keys;
    keys.reserve(static_cast<qsizetype>(alerts.size()));
    for (const Alert& alert : alerts)
        keys.append(keyOf(alert));
    return keys;
}

bool isPriceComparable(const Alert& alert)
{
    return alert.currentPrice && alert.currentPrice->currencyCode == alert.price.currencyCode;
}

} // namespace

AlertsModel::AlertsModel(const MoneyFormat& money, QObject* parent)
    : QAbstractListModel(parent)
    , m_money(money)
{
}

void AlertsModel::show(const std::vector<Alert>& alerts)
{
    const bool isCountNew = alerts.size() != m_alerts.size();
    mergeRows(
        keysOf(m_alerts), keysOf(alerts),
        [this](int row) {
            beginRemoveRows({}, row, row);
            m_alerts.erase(m_alerts.begin() + row);
            endRemoveRows();
        },
        [this](int from, int to) { // always towards the beginning
            beginMoveRows({}, from, from, {}, to);
            std::rotate(m_alerts.begin() + to, m_alerts.begin() + from, m_alerts.begin() + from + 1);
            endMoveRows();
        },
        [this, &alerts](int row, std::size_t place) {
            beginInsertRows({}, row, row);
            m_alerts.insert(m_alerts.begin() + row, alerts[place]);
            endInsertRows();
        });
    for (std::size_t i = 0; i < alerts.size(); ++i) {
        if (m_alerts[i] == alerts[i])
            continue;
        m_alerts[i] = alerts[i];
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
    if (isCountNew)
        Q_EMIT countChanged();
}

int AlertsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant AlertsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Alert& alert = m_alerts[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IsRestockRole:
        return alert.subject.kind == AlertKind::Restock;
    case HandleRole:
        return alert.subject.handle;
    case TitleRole:
        return alert.title;
    case DesignerRole:
        return alert.vendor;
    case SizeRole:
        return alert.variantTitle;
    case PictureRole:
        return alert.imageURL;
    case PriceRole:
        return m_money.text(alert.currentPrice.value_or(alert.price));
    case PriceThenRole:
        return alert.currentPrice && alert.currentPrice != alert.price ? m_money.text(alert.price) : QString();
    case IsLowerRole:
        return isPriceComparable(alert) && alert.currentPrice->amount < alert.price.amount;
    case IsMetRole:
        return alert.isMet;
    default:
        return {};
    }
}

QHash<int, QByteArray> AlertsModel::roleNames() const
{
    return {{IsRestockRole, "isRestock"}, {HandleRole, "handle"},   {TitleRole, "title"}, {DesignerRole, "designer"},
            {SizeRole, "size"},           {PictureRole, "picture"}, {PriceRole, "price"}, {PriceThenRole, "priceThen"},
            {IsLowerRole, "isLower"},     {IsMetRole, "isMet"}};
}

} // namespace loom
