// What the rows of a look show.
#include "catalog/MoneyFormat.h"
#include "catalog/ProductListModel.h"
#include "stylist/MiraLookModel.h"

namespace loom
{

namespace
{

QVariantList choiceList(const std::vector<OptionChoice>& choices)
{
    QVariantList list;
    for (const OptionChoice& choice : choices)
        list.append(QVariant::fromValue(choice));
    return list;
}

/// The picture of what is chosen, or else the card's.
QString picture(const LookPiece& piece)
{
    const ProductVariant* const variant = piece.product ? shownVariant(*piece.product, piece.selection) : nullptr;
    if (variant && variant->imageURL)
        return *variant->imageURL;
    return piece.item() ? cardPictures(*piece.item()).value(0) : QString();
}

} // namespace

int MiraLookModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QHash<int, QByteArray> MiraLookModel::roleNames() const
{
    return {{HandleRole, "handle"},
            {PhaseRole, "phase"},
            {ErrorTextRole, "errorText"},
            {ItemRole, "item"},
            {TitleRole, "title"},
            {DesignerRole, "designer"},
            {PriceRole, "price"},
            {FormerPriceRole, "formerPrice"},
            {PictureRole, "picture"},
            {ColourRole, "colour"},
            {SizesRole, "sizes"},
            {SizeRole, "chosenSize"},
            {RecommendedRole, "recommendedSize"},
            {LacksSizeRole, "lacksSize"},
            {IsLeftOutRole, "isLeftOut"},
            {IsInCartRole, "isInCart"},
            {IsSwappedRole, "isSwapped"},
            {CanSwapRole, "canSwap"},
            {AlternativesRole, "alternatives"},
            {IsSeekingRole, "isSeeking"},
            {SeekErrorRole, "seekErrorText"}};
}

QVariant MiraLookModel::data(const QModelIndex& index, int role) const
{
    const Place* const place = checkIndex(index, CheckIndexOption::IndexIsValid) ? placeAt(index.row()) : nullptr;
    if (!place)
        return {};
    const LookPiece& piece = place->piece;
    const ProductListItem* const item = piece.item();
    switch (role) {
    case HandleRole:
        return piece.handle;
    case PhaseRole:
        return static_cast<int>(piece.phase());
    case ErrorTextRole:
        return piece.failure ? errorDescription(*piece.failure) : QString();
    case ItemRole:
        return item ? QVariant::fromValue(*item) : QVariant();
    case TitleRole:
        return item ? item->title : QString();
    case DesignerRole:
        return item ? item->vendor : QString();
    case PriceRole:
        return moneyText(piece.price());
    case FormerPriceRole:
        return moneyText(piece.formerPrice());
    case PictureRole:
        return picture(piece);
    case ColourRole:
        return piece.colour();
    case SizesRole:
        return choiceList(piece.sizes());
    case SizeRole:
        return piece.size();
    case RecommendedRole:
        return piece.recommendedSize();
    case LacksSizeRole:
        return m_asksSizes && piece.isWanted() && piece.lacksSize();
    case IsLeftOutRole:
        return piece.isLeftOut;
    case IsInCartRole:
        return isInCart(piece);
    case IsSwappedRole:
        return piece.original.has_value();
    case CanSwapRole:
        return piece.product.has_value() || piece.original.has_value();
    case AlternativesRole:
        return alternatives(*place);
    case IsSeekingRole:
        return place->seeking.isRunning();
    case SeekErrorRole:
        return piece.seekFailure ? errorDescription(*piece.seekFailure) : QString();
    default:
        return {};
    }
}

} // namespace loom
