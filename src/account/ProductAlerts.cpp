#include "account/ProductAlerts.h"

#include "account/AlertsStore.h"
#include "account/AuthStore.h"
#include "catalog/ProductModel.h"
#include "catalog/VariantSelection.h"

namespace loom
{

ProductAlerts::ProductAlerts(ProductModel& product, AlertsStore& alerts, QObject* parent)
    : QObject(parent)
    , m_product(product)
    , m_alerts(alerts)
{
    connect(&product, &ProductModel::productChanged, this, &ProductAlerts::changed);
    connect(&product, &ProductModel::selectionChanged, this, [this] {
        m_missingOption.clear();
        Q_EMIT changed();
    });
    connect(&alerts, &AlertsStore::changed, this, &ProductAlerts::changed);
    // What is set already is known in time.
    alerts.show();
}

AlertSubject ProductAlerts::subject(AlertKind kind) const
{
    AlertSubject subject{.kind = kind, .handle = m_product.handle(), .variantId = {}};
    // What is sold out is a size; what may cost less one day is the piece.
    if (kind == AlertKind::Restock && m_product.product()) {
        if (const ProductVariant* const variant = selectedVariant(*m_product.product(), m_product.selection()))
            subject.variantId = hasOptions(*m_product.product()) ? variant->id : QString();
    }
    return subject;
}

QString ProductAlerts::openOption() const
{
    const auto& product = m_product.product();
    if (!product || !canBeBought(*product, {}) || selectedVariant(*product, m_product.selection()))
        return {};
    const auto isOpen = [this](const ProductOption& option) {
        return !m_product.selection().contains(option.name);
    };
    const auto open = std::ranges::find_if(product->options, isOpen);
    return open == product->options.end() ? QString() : open->name;
}

bool ProductAlerts::offersRestock() const
{
    return m_product.product() && m_product.isSoldOut();
}

bool ProductAlerts::isRestockSet() const
{
    return m_alerts.contains(subject(AlertKind::Restock));
}

bool ProductAlerts::offersPrice() const
{
    return m_product.product().has_value();
}

bool ProductAlerts::isPriceSet() const
{
    return m_alerts.contains(subject(AlertKind::Price));
}

QString ProductAlerts::email() const
{
    return m_alerts.account().email();
}

QString ProductAlerts::message() const
{
    if (!m_missingOption.isEmpty())
        return optionMissingText(m_missingOption);
    const auto& refused = m_alerts.refused();
    const bool isOurs = refused && (*refused == subject(AlertKind::Restock) || *refused == subject(AlertKind::Price));
    return isOurs ? m_alerts.changeErrorText() : QString();
}

void ProductAlerts::toggleRestock()
{
    m_missingOption = openOption();
    if (offersRestock() && m_missingOption.isEmpty())
        toggle(AlertKind::Restock);
    else
        Q_EMIT changed();
}

void ProductAlerts::togglePrice()
{
    if (offersPrice())
        toggle(AlertKind::Price);
}

void ProductAlerts::toggle(AlertKind kind)
{
    const AlertSubject subject = this->subject(kind);
    if (m_alerts.contains(subject)) {
        m_alerts.remove(subject);
        return;
    }
    const Product& product = *m_product.product();
    const ProductVariant* const variant = shownVariant(product, m_product.selection());
    const bool isOfVariant = variant && !subject.variantId.isEmpty();
    const Alert alert{.id = {},
                      .subject = subject,
                      .title = product.item.title,
                      .vendor = product.item.vendor,
                      .variantTitle = isOfVariant ? variant->title : QString(),
                      .imageURL = isOfVariant && variant->imageURL ? *variant->imageURL
                                                                   : product.item.imageURL.value_or(QString()),
                      .price = isOfVariant ? variant->price : product.item.price,
                      .currentPrice = {},
                      .createdAt = {}};
    if (!m_alerts.add(alert))
        Q_EMIT signInWanted();
}

void ProductAlerts::dropWish()
{
    const auto& wish = m_alerts.wish();
    if (wish && wish->subject.handle == m_product.handle())
        m_alerts.dropWish();
}

} // namespace loom
