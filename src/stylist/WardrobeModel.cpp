#include "stylist/WardrobeModel.h"

#include "catalog/DisplayText.h"
#include "catalog/RowMerge.h"
#include "commerce/CartStore.h"
#include "commerce/WishlistStore.h"
#include "stylist/MiraContext.h"
#include "stylist/WardrobeSlots.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace loom
{

namespace
{

constexpr qsizetype longestTitle = 200;

constexpr std::array<const char*, 7> slotLabels{
    QT_TRANSLATE_NOOP("Loomstreet", "Outerwear"), QT_TRANSLATE_NOOP("Loomstreet", "Tops"),
    QT_TRANSLATE_NOOP("Loomstreet", "Bottoms"),   QT_TRANSLATE_NOOP("Loomstreet", "Dresses"),
    QT_TRANSLATE_NOOP("Loomstreet", "Shoes"),     QT_TRANSLATE_NOOP("Loomstreet", "Bags"),
    QT_TRANSLATE_NOOP("Loomstreet", "Extras")};

} // namespace

WardrobeModel::WardrobeModel(CartStore& cart, WishlistStore& wishlist, QObject* parent)
    : QAbstractListModel(parent)
    , m_cart(cart)
    , m_wishlist(wishlist)
{
    connect(&cart, &CartStore::changed, this, &WardrobeModel::update);
    connect(&wishlist, &WishlistStore::changed, this, &WardrobeModel::update);
}

WardrobeItem WardrobeModel::Piece::item() const
{
    const QString line = displayLine(title, longestTitle);
    return {.handle = handle, .title = line, .slot = guessedSlot({}, line, tags), .source = source};
}

int WardrobeModel::maximum()
{
    return static_cast<int>(MiraContext::maximumWardrobe);
}

void WardrobeModel::show()
{
    if (!std::exchange(m_isShown, true))
        update();
}

std::vector<WardrobeModel::Piece> WardrobeModel::read() const
{
    std::vector<Piece> pieces;
    QSet<QString> handles;
    const auto add = [&](const QString& handle, const QString& title, const QStringList& tags,
                         const std::optional<QString>& image, WardrobeSource source) {
        if (handle.isEmpty() || handles.contains(handle))
            return;
        handles.insert(handle);
        pieces.push_back(
            {.handle = handle, .title = title, .tags = tags, .image = image.value_or(QString()), .source = source});
    };
    if (const auto& cart = m_cart.cart()) {
        for (const CartLine& line : cart->lines)
            add(line.productHandle, line.productTitle, {}, line.imageURL, WardrobeSource::Cart);
    }
    for (const ProductListItem& item : m_wishlist.items())
        add(item.handle, item.title, item.tags, item.imageURL, WardrobeSource::Wishlist);
    return pieces;
}

void WardrobeModel::update()
{
    if (!m_isShown)
        return;
    const std::vector<Piece> pieces = read();
    const int before = count();
    const auto handlesOf = [](const std::vector<Piece>& list) {
        QStringList handles;
        handles.reserve(static_cast<qsizetype>(list.size()));
        for (const Piece& piece : list)
            handles.append(piece.handle);
        return handles;
    };
    if (m_pieces.empty() && !pieces.empty()) {
        beginInsertRows({}, 0, static_cast<int>(pieces.size()) - 1);
        m_pieces = pieces;
        endInsertRows();
    }
    mergeRows(
        handlesOf(m_pieces), handlesOf(pieces),
        [this](int row) {
            beginRemoveRows({}, row, row);
            m_pieces.erase(m_pieces.begin() + row);
            endRemoveRows();
        },
        [this](int from, int to) { // always towards the beginning
            beginMoveRows({}, from, from, {}, to);
            std::rotate(m_pieces.begin() + to, m_pieces.begin() + from, m_pieces.begin() + from + 1);
            endMoveRows();
        },
        [this, &pieces](int row, std::size_t place) {
            beginInsertRows({}, row, row);
            m_pieces.insert(m_pieces.begin() + row, pieces[place]);
            endInsertRows();
        });
    QSet<QString> picked;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (m_picked.contains(pieces[i].handle))
            picked.insert(pieces[i].handle);
        if (m_pieces[i] == pieces[i])
            continue;
        m_pieces[i] = pieces[i];
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
    if (count() != before)
        Q_EMIT countChanged();
    setPicked(std::move(picked));
}

std::vector<WardrobeItem> WardrobeModel::picked() const
{
    std::array<std::vector<WardrobeItem>, slotLabels.size()> bySlot;
    for (const Piece& piece : m_pieces) {
        if (!m_picked.contains(piece.handle))
            continue;
        const WardrobeItem item = piece.item();
        bySlot.at(static_cast<std::size_t>(item.slot)).push_back(item);
    }
    std::vector<WardrobeItem> items;
    for (const auto& some : bySlot)
        items.insert(items.end(), some.begin(), some.end());
    return items;
}

void WardrobeModel::toggle(const QString& handle)
{
    show();
    QSet<QString> picked = m_picked;
    if (picked.remove(handle)) {
        setPicked(std::move(picked));
        return;
    }
    const bool isThere =
        std::ranges::any_of(m_pieces, [&handle](const Piece& piece) { return piece.handle == handle; });
    if (isThere && pickedCount() < maximum())
        setPicked(picked << handle);
}

void WardrobeModel::pick(const QStringList& handles)
{
    if (handles.isEmpty() && m_picked.isEmpty())
        return;
    show();
    const QSet<QString> wanted(handles.begin(), handles.end());
    QSet<QString> picked;
    for (const Piece& piece : m_pieces) {
        if (picked.size() < maximum() && wanted.contains(piece.handle))
            picked.insert(piece.handle);
    }
    setPicked(std::move(picked));
}

void WardrobeModel::setPicked(QSet<QString> picked)
{
    if (picked == m_picked)
        return;
    m_picked = std::move(picked);
    if (!m_pieces.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {IsPickedRole});
    Q_EMIT picksChanged();
}

int WardrobeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant WardrobeModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Piece& piece = m_pieces[static_cast<std::size_t>(index.row())];
    switch (role) {
    case HandleRole:
        return piece.handle;
    case TitleRole:
        return displayLine(piece.title, longestTitle);
    case ImageRole:
        return piece.image;
    case SourceRole:
        return wardrobeSourceName(piece.source);
    case SlotRole:
        return wardrobeSlotName(piece.item().slot);
    case SlotLabelRole:
        return QCoreApplication::translate("Loomstreet", slotLabels.at(static_cast<std::size_t>(piece.item().slot)));
    case IsPickedRole:
        return m_picked.contains(piece.handle);
    default:
        return {};
    }
}

QHash<int, QByteArray> WardrobeModel::roleNames() const
{
    return {{HandleRole, "handle"}, {TitleRole, "title"},         {ImageRole, "image"},      {SourceRole, "source"},
            {SlotRole, "slot"},     {SlotLabelRole, "slotLabel"}, {IsPickedRole, "isPicked"}};
}

} // namespace loom
