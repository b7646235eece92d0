#include "catalog/ProductListModel.h"

#include "base/Clock.h"
#include "catalog/MoneyFormat.h"
#include "catalog/ServiceClass.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

constexpr int newForDays = 14;
constexpr qsizetype maximumColours = 4;

void appendOnce(QStringList& list, const QString& text)
{
    if (!text.isEmpty() && !list.contains(text))
        list.append(text);
}

bool hasTag(const ProductListItem& item, QLatin1String tag)
{
    return std::ranges::any_of(item.tags,
                               [tag](const QString& other) { return other.compare(tag, Qt::CaseInsensitive) == 0; });
}

} // namespace

QString pictureLabel(const ProductListItem& item, const QDateTime& now)
{
    if (serviceClass(item.tags, {}, item.title) == ServiceClass::FinalSale)
        return QCoreApplication::translate("Loomstreet", "Final sale");
    if (hasTag(item, QLatin1String("presale")))
        return QCoreApplication::translate("Loomstreet", "Presale");
    const bool isNew = item.createdAt && item.createdAt->daysTo(now) >= 0 && item.createdAt->daysTo(now) < newForDays;
    return isNew ? QCoreApplication::translate("Loomstreet", "New") : QString();
}

QStringList cardPictures(const ProductListItem& item)
{
    QStringList pictures;
    appendOnce(pictures, item.imageURL.value_or(QString()));
    for (const QString& picture : item.cardImages)
        appendOnce(pictures, picture);
    return pictures;
}

QStringList colourPictures(const ProductListItem& item)
{
    QStringList pictures;
    for (const QString& picture : item.styleImages)
        appendOnce(pictures, picture);
    return pictures.size() > 1 ? pictures.mid(0, maximumColours) : QStringList();
}

ProductListModel::ProductListModel(const MoneyFormat& money, const Clock& clock, QObject* parent)
    : QAbstractListModel(parent)
    , m_money(money)
    , m_clock(clock)
{
}

std::vector<ProductListItem> ProductListModel::withoutKnown(std::vector<ProductListItem> items)
{
    std::erase_if(items, [this](const ProductListItem& item) {
        if (m_handles.contains(item.handle))
            return true;
        m_handles.insert(item.handle);
        return false;
    });
    return items;
}

void ProductListModel::replace(std::vector<ProductListItem> items)
{
    m_handles.clear();
    items = withoutKnown(std::move(items));
    const int before = count();
    const int after = static_cast<int>(items.size());
    if (after < before) {
        beginRemoveRows({}, after, before - 1);
        m_items.resize(static_cast<std::size_t>(after));
        endRemoveRows();
    }
    const int common = count();
    std::move(items.begin(), items.begin() + common, m_items.begin());
    if (common > 0)
        Q_EMIT dataChanged(index(0), index(common - 1));
    if (after > common) {
        beginInsertRows({}, common, after - 1);
        m_items.insert(m_items.end(), std::make_move_iterator(items.begin() + common),
                       std::make_move_iterator(items.end()));
        endInsertRows();
    }
    if (before != after)
        Q_EMIT countChanged();
}

void ProductListModel::append(std::vector<ProductListItem> items)
{
    items = withoutKnown(std::move(items));
    if (items.empty())
        return;
    beginInsertRows({}, count(), count() + static_cast<int>(items.size()) - 1);
    m_items.insert(m_items.end(), std::make_move_iterator(items.begin()), std::make_move_iterator(items.end()));
    endInsertRows();
    Q_EMIT countChanged();
}

int ProductListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ProductListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ProductListItem& item = m_items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case PriceRole:
        return m_money.text(item.price);
    case FormerPriceRole: {
        const auto former = formerPrice(item.price, item.compareAtPrice);
        return former ? m_money.text(*former) : QString();
    }
    case LabelRole:
        return pictureLabel(item, m_clock.now());
    case SoldOutRole:
        return item.availableForSale == false;
    case ReasonRole:
        return item.recoReason.value_or(QString());
    default:
        return fact(item, role);
    }
}

QVariant ProductListModel::fact(const ProductListItem& item, int role)
{
    switch (role) {
    case ItemRole:
        return QVariant::fromValue(item);
    case HandleRole:
        return item.handle;
    case TitleRole:
        return item.title;
    case DesignerRole:
        return item.vendor;
    case PicturesRole:
        return cardPictures(item);
    case ColourPicturesRole:
        return colourPictures(item);
    default:
        return {};
    }
}

QHash<int, QByteArray> ProductListModel::names()
{
    return {{ItemRole, "item"},         {HandleRole, "handle"},
            {TitleRole, "title"},       {DesignerRole, "designer"},
            {PriceRole, "price"},       {FormerPriceRole, "formerPrice"},
            {PicturesRole, "pictures"}, {ColourPicturesRole, "colourPictures"},
            {LabelRole, "label"},       {SoldOutRole, "soldOut"},
            {ReasonRole, "reason"}};
}

} // namespace loom
