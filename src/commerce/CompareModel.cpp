#include "commerce/CompareModel.h"

#include "catalog/MarketStore.h"
#include "catalog/MoneyFormat.h"
#include "catalog/ProductListModel.h"
#include "catalog/StorefrontAPI.h"
#include "catalog/VariantSelection.h"
#include "commerce/KeptPieces.h"

namespace loom
{

namespace
{

/// How many kept pieces are offered to be added.
constexpr qsizetype maximumCandidates = 24;

/// The sizes of a product and whether any variant of each can be bought.
QVariantList sizes(const Product& product)
{
    QVariantList list;
    const std::vector<OptionGroup> groups = optionGroups(product, {});
    auto found = std::ranges::find_if(groups, [](const OptionGroup& group) {
        return group.name.compare(QLatin1String("size"), Qt::CaseInsensitive) == 0;
    });
    if (found == groups.end())
        found = std::ranges::find(groups, false, &OptionGroup::isSwatch);
    if (found == groups.end() || !hasOptions(product))
        return list;
    for (const OptionChoice& choice : found->choices)
        list.append(
            QVariantMap{{QStringLiteral("text"), choice.text}, {QStringLiteral("isAvailable"), choice.isAvailable}});
    return list;
}

} // namespace

/// A piece on its way and when it has come.
struct CompareModel::Column {
    QString handle;
    std::optional<Product> product;
    ProductDetails details;
    bool isMissing = false;
    std::optional<APIError> failure;
    Work loading;
};

QStringList comparedHandles(const QStringList& handles)
{
    QStringList compared;
    for (const QString& handle : handles) {
        if (!handle.isEmpty() && !compared.contains(handle) && compared.size() < CompareModel::maximum)
            compared.append(handle);
    }
    return compared;
}

CompareModel::CompareModel(const QStringList& handles, std::vector<const KeptPieces*> lists,
                           KeptPiecesModel::Services services, QObject* parent)
    : QObject(parent)
    , m_lists(std::move(lists))
    , m_services(services)
{
    connect(&services.market, &MarketStore::countryChanged, this, &CompareModel::reload);
    connect(&services.market, &MarketStore::languageChanged, this, [this] {
        for (const auto& column : m_columns)
            static_cast<void>(fetch(column.get()));
    });
    connect(&services.market, &MarketStore::currencyChanged, this, &CompareModel::columnsChanged);
    for (const KeptPieces* list : m_lists)
        connect(list, &KeptPieces::changed, this, &CompareModel::candidatesChanged);
    for (const QString& handle : comparedHandles(handles))
        append(handle);
}

CompareModel::~CompareModel() = default;

QStringList CompareModel::handles() const
{
    QStringList handles;
    for (const auto& column : m_columns)
        handles.append(column->handle);
    return handles;
}

void CompareModel::append(const QString& handle)
{
    Column& column = *m_columns.emplace_back(std::make_unique<Column>());
    column.handle = handle;
    static_cast<void>(fetch(&column));
}

void CompareModel::add(const QString& handle)
{
    const QStringList wanted = comparedHandles(handles() + QStringList{handle});
    if (wanted.size() == count())
        return;
    append(handle);
    Q_EMIT handlesChanged();
    Q_EMIT columnsChanged();
    Q_EMIT candidatesChanged();
}

void CompareModel::remove(const QString& handle)
{
    const auto isIt = [&handle](const std::unique_ptr<Column>& column) {
        return column->handle == handle;
    };
    if (std::erase_if(m_columns, isIt) == 0)
        return;
    Q_EMIT handlesChanged();
    Q_EMIT columnsChanged();
    Q_EMIT candidatesChanged();
}

void CompareModel::reload()
{
    for (const auto& column : m_columns) {
        column->product.reset(); // its prices may be another market's
        static_cast<void>(fetch(column.get()));
    }
    Q_EMIT columnsChanged();
}

void CompareModel::retry()
{
    for (const auto& column : m_columns) {
        if (column->failure)
            static_cast<void>(fetch(column.get()));
    }
    Q_EMIT columnsChanged();
}

QCoro::Task<> CompareModel::fetch(Column* column)
{
    const Work::Run run = column->loading.begin();
    column->failure.reset();
    column->isMissing = false;
    auto answer = co_await m_services.api.product(column->handle, run.stop());
    if (run.isStopped())
        co_return;
    if (!answer) {
        column->failure = answer.error().error();
    } else if (!answer->has_value()) {
        column->isMissing = true;
    } else {
        Product product = **std::move(answer);
        ProductDetails details = co_await QtConcurrent::run(productDetails, product);
        if (run.isStopped())
            co_return;
        column->product = std::move(product);
        column->details = std::move(details);
    }
    Q_EMIT columnsChanged();
}

const ProductListItem* CompareModel::kept(const QString& handle) const
{
    for (const KeptPieces* list : m_lists) {
        const auto found = std::ranges::find(list->items(), handle, &ProductListItem::handle);
        if (found != list->items().end())
            return &*found;
    }
    return nullptr;
}

QVariantMap CompareModel::describe(const Column& column) const
{
    const ProductListItem* const stored = column.product ? nullptr : kept(column.handle);
    PieceRow row{.item = {.handle = column.handle}, .price = {}, .former = {}, .seenPrice = {}};
    if (column.product)
        row = pieceRow(column.product->item, MarketAnswer(column.product->item), {});
    else if (stored)
        row = pieceRow(*stored, std::nullopt, column.isMissing ? QString() : m_services.market.currency());
    const State state = column.product     ? State::Loaded
                        : column.isMissing ? State::Missing
                        : column.failure   ? State::Failed
                                           : State::Loading;
    const auto text = [this](const std::optional<Money>& amount) {
        return amount ? m_services.money.text(*amount) : QString();
    };
    return {{QStringLiteral("handle"), column.handle},
            {QStringLiteral("state"), static_cast<int>(state)},
            {QStringLiteral("errorText"), column.failure ? errorDescription(*column.failure) : QString()},
            {QStringLiteral("title"), row.item.title},
            {QStringLiteral("designer"), row.item.vendor},
            {QStringLiteral("price"), text(row.price)},
            {QStringLiteral("formerPrice"), text(row.former)},
            {QStringLiteral("picture"), cardPictures(row.item).value(0)},
            {QStringLiteral("soldOut"), column.product && row.item.availableForSale == false},
            {QStringLiteral("item"), QVariant::fromValue(row.item)},
            {QStringLiteral("sizes"), column.product ? sizes(*column.product) : QVariantList()},
            {QStringLiteral("composition"), column.details.metafields.composition}};
}

QVariantList CompareModel::columns() const
{
    QVariantList list;
    for (const auto& column : m_columns)
        list.append(describe(*column));
    return list;
}

QVariantList CompareModel::specs() const
{
    // In the order in which the pieces name them; a name stands once, however it is written.
    QStringList names;
    for (const auto& column : m_columns) {
        for (const SpecRow& spec : column->details.metafields.specs) {
            if (!names.contains(spec.key, Qt::CaseInsensitive))
                names.append(spec.key);
        }
    }
    QVariantList rows;
    for (const QString& name : names) {
        QStringList values;
        for (const auto& column : m_columns) {
            const auto& specs = column->details.metafields.specs;
            const auto found = std::ranges::find_if(
                specs, [&name](const SpecRow& spec) { return spec.key.compare(name, Qt::CaseInsensitive) == 0; });
            values.append(column->product && found != specs.end() ? found->value : QString());
        }
        rows.append(QVariantMap{{QStringLiteral("key"), name}, {QStringLiteral("values"), values}});
    }
    return rows;
}

QVariantList CompareModel::candidates() const
{
    QVariantList list;
    QSet<QString> taken;
    for (const auto& column : m_columns)
        taken.insert(column->handle);
    for (const KeptPieces* kept : m_lists) {
        for (const ProductListItem& item : kept->items()) {
            if (list.size() >= maximumCandidates)
                return list;
            if (taken.contains(item.handle))
                continue;
            taken.insert(item.handle);
            list.append(QVariantMap{{QStringLiteral("handle"), item.handle},
                                    {QStringLiteral("title"), item.title},
                                    {QStringLiteral("designer"), item.vendor},
                                    {QStringLiteral("picture"), cardPictures(item).value(0)}});
        }
    }
    return list;
}

} // namespace loom
