#include "catalog/ProductModel.h"

#include "base/Clock.h"
#include "catalog/MarketStore.h"
#include "catalog/MoneyFormat.h"
#include "catalog/ProductListModel.h"
#include "catalog/ServiceWording.h"
#include "catalog/SizeTable.h"
#include "catalog/StorefrontAPI.h"
#include "storage/Preferences.h"

#include <QCoreApplication>

#include <algorithm>

namespace loom
{

namespace
{

/// Fewer than this are worth a word.
constexpr qint64 fewLeft = 4;

const QString imperial = QStringLiteral("imperial");

} // namespace

ProductModel::ProductModel(QString handle, std::optional<ProductListItem> item, double freeShippingThreshold,
                           StorefrontAPI& api, const MarketStore& market, Preferences& preferences,
                           const MoneyFormat& money, const Clock& clock, QObject* parent)
    : QObject(parent)
    , m_handle(std::move(handle))
    , m_item(std::move(item))
    , m_freeShippingThreshold(freeShippingThreshold)
    , m_api(api)
    , m_market(market)
    , m_preferences(preferences)
    , m_money(money)
    , m_clock(clock)
    , m_loading([this] { Q_EMIT stateChanged(); })
{
    connect(&market, &MarketStore::revisionChanged, this, [this] {
        if (phase() != Phase::Idle)
            reload();
    });
    connect(&market, &MarketStore::rateChanged, this, &ProductModel::rateChanged);
    connect(&preferences, &Preferences::changed, this, [this](const QString& key) {
        if (key == QLatin1String(preferences::sizeUnit.key))
            readSizeTables();
    });
}

ProductModel::Phase ProductModel::phase() const
{
    if (m_product)
        return Phase::Loaded;
    if (isLoading())
        return Phase::Loading;
    if (m_failure)
        return Phase::Failed;
    return m_isMissing ? Phase::Missing : Phase::Idle;
}

const ProductListItem* ProductModel::item() const
{
    if (m_product)
        return &m_product->item;
    return m_item ? &*m_item : nullptr;
}

QString ProductModel::title() const
{
    return item() ? item()->title : QString();
}

QString ProductModel::designer() const
{
    return item() ? item()->vendor : QString();
}

QString ProductModel::label() const
{
    return item() ? pictureLabel(*item(), m_clock.now()) : QString();
}

QString ProductModel::price() const
{
    if (m_product) {
        if (const ProductVariant* const variant = shownVariant(*m_product, m_selection))
            return m_money.text(variant->price);
    }
    return item() ? m_money.text(item()->price) : QString();
}

QString ProductModel::formerPriceText() const
{
    std::optional<Money> former;
    const ProductVariant* const variant = m_product ? shownVariant(*m_product, m_selection) : nullptr;
    if (variant)
        former = loom::formerPrice(variant->price, variant->compareAtPrice);
    else if (item())
        former = loom::formerPrice(item()->price, item()->compareAtPrice);
    return former ? m_money.text(*former) : QString();
}

bool ProductModel::isSoldOut() const
{
    if (m_product && !m_product->variants.empty() && !m_selection.isEmpty())
        return !canBeBought(*m_product, m_selection);
    return item() && item()->availableForSale == false;
}

QString ProductModel::stockText() const
{
    const ProductVariant* const variant = m_product ? selectedVariant(*m_product, m_selection) : nullptr;
    if (!variant || !variant->availableForSale || !variant->quantityAvailable)
        return {};
    const int left = static_cast<int>(std::min<qint64>(*variant->quantityAvailable, fewLeft));
    if (left <= 0 || left >= fewLeft)
        return {};
    return left == 1 ? QCoreApplication::translate("Loomstreet", "Only one left")
                     : QCoreApplication::translate("Loomstreet", "Only %Ln left", nullptr, left);
}

QStringList ProductModel::pictures() const
{
    if (m_product && !m_product->images.isEmpty())
        return m_product->images;
    return item() ? cardPictures(*item()) : QStringList();
}

int ProductModel::pictureIndex() const
{
    const ProductVariant* const variant = m_product ? shownVariant(*m_product, m_selection) : nullptr;
    return variant && variant->imageURL ? static_cast<int>(pictures().indexOf(*variant->imageURL)) : -1;
}

QVariantMap ProductModel::service() const
{
    // Before the product has arrived its card says enough to promise nothing that will be taken back.
    const ServiceWording wording =
        serviceWording(m_product || !item() ? m_details.serviceClass : serviceClass(item()->tags, {}, item()->title));
    return {{QStringLiteral("returns"), wording.returns},
            {QStringLiteral("note"), wording.note},
            {QStringLiteral("service"), wording.service}};
}

bool ProductModel::isMetric() const
{
    return m_preferences.value(preferences::sizeUnit) != imperial;
}

void ProductModel::setMetric(bool isMetric)
{
    m_preferences.set(preferences::sizeUnit, isMetric ? QStringLiteral("metric") : imperial);
}

bool ProductModel::hasSizeUnits() const
{
    return std::ranges::any_of(m_details.metafields.sizeSections, hasUnits);
}

QVariantList ProductModel::options() const
{
    QVariantList list;
    if (m_product) {
        for (const OptionGroup& group : optionGroups(*m_product, m_selection))
            list.append(QVariant::fromValue(group));
    }
    return list;
}

QString ProductModel::freeShippingFrom() const
{
    const ConvertedAmount amount = m_market.convertUSDollars(m_freeShippingThreshold);
    return m_money.text({.amount = amount.text.toDouble(), .currencyCode = amount.currencyCode});
}

void ProductModel::load()
{
    if (!isLoading() && (m_failure || (!m_product && !m_isMissing)))
        reload();
}

void ProductModel::reload()
{
    static_cast<void>(fetch());
}

QCoro::Task<> ProductModel::fetch()
{
    const Work::Run run = m_loading.begin();
    auto answer = co_await m_api.product(m_handle, run.stop());
    if (run.isStopped())
        co_return;
    if (!answer) {
        m_failure = answer.error().error();
        co_return; // the end of the run tells of the change
    }
    m_failure.reset();
    m_isMissing = !answer->has_value();
    if (m_isMissing) {
        adopt(std::nullopt, {});
        co_return;
    }
    Product product = **std::move(answer);
    ProductDetails details = co_await QtConcurrent::run(productDetails, product);
    if (run.isStopped())
        co_return;
    adopt(std::move(product), std::move(details));
}

void ProductModel::adopt(std::optional<Product> product, ProductDetails details)
{
    const QStringList shownPictures = pictures();
    const bool hasNews = m_details != details;
    m_product = std::move(product);
    m_details = std::move(details);
    // A reload, perhaps in another market, keeps what the shopper chose as far as it still exists.
    if (m_product) {
        Selection selection = initialSelection(*m_product);
        for (const ProductOption& option : m_product->options) {
            const QString chosen = m_selection.value(option.name);
            if (option.values.contains(chosen))
                selection.insert(option.name, chosen);
        }
        m_selection = std::move(selection);
    }
    // What is the same stays on the page as the shopper left it.
    if (pictures() != shownPictures)
        Q_EMIT picturesChanged();
    Q_EMIT productChanged();
    Q_EMIT selectionChanged();
    if (hasNews) {
        Q_EMIT detailsChanged();
        readSizeTables();
    }
}

void ProductModel::readSizeTables()
{
    m_sizeTables = sizeTableList(m_details, isMetric() ? SizeUnit::Metric : SizeUnit::Imperial);
    Q_EMIT sizeTablesChanged();
}

void ProductModel::choose(const QString& option, const QString& value)
{
    if (!m_product)
        return;
    const auto found = std::ranges::find(m_product->options, option, &ProductOption::name);
    if (found == m_product->options.end() || !found->values.contains(value))
        return;
    if (m_selection.value(option) != value)
        m_selection.insert(option, value);
    else if (found->values.size() > 1)
        m_selection.remove(option);
    Q_EMIT selectionChanged();
}

} // namespace loom
