#include "stylist/SizeAdviceModel.h"

#include "catalog/MarketStore.h"
#include "catalog/ProductModel.h"
#include "stylist/MiraSizeAPI.h"
#include "stylist/SizeOption.h"

namespace loom
{

SizeAdviceModel::SizeAdviceModel(ProductModel& product, MiraSizeAPI& api, const MarketStore& market, QObject* parent)
    : QObject(parent)
    , m_product(product)
    , m_api(api)
    , m_market(market)
{
    connect(&product, &ProductModel::productChanged, this, &SizeAdviceModel::askOnce);
    connect(&product, &ProductModel::selectionChanged, this, &SizeAdviceModel::changed);
    askOnce();
}

const ProductOption* SizeAdviceModel::sizes() const
{
    return m_product.product() ? sizeOption(*m_product.product()) : nullptr;
}

QString SizeAdviceModel::option() const
{
    return sizes() ? sizes()->name : QString();
}

QString SizeAdviceModel::recommendedSize() const
{
    return sizes() ? matchingSize(sizes()->values, m_advice).value_or(QString()) : QString();
}

bool SizeAdviceModel::isChosen() const
{
    return isKnown() && m_product.selection().value(option()) == recommendedSize();
}

bool SizeAdviceModel::isAvailable() const
{
    if (!isKnown())
        return false;
    Selection selection = m_product.selection();
    selection.insert(option(), recommendedSize());
    return canBeBought(*m_product.product(), selection);
}

void SizeAdviceModel::choose()
{
    if (isKnown() && !isChosen())
        m_product.choose(option(), recommendedSize());
}

void SizeAdviceModel::askAgain()
{
    m_asking.stop();
    m_advice.clear();
    m_wasAsked = false;
    askOnce();
}

void SizeAdviceModel::askOnce()
{
    // One size needs no advice.
    if (!m_wasAsked && sizes() && sizes()->values.size() > 1) {
        m_wasAsked = true;
        static_cast<void>(ask());
    }
    Q_EMIT changed();
}

QCoro::Task<> SizeAdviceModel::ask()
{
    const Work::Run run = m_asking.begin();
    const auto advice = co_await m_api.recommendedSize(m_product.handle(), m_market.languageCode(), run.stop());
    if (run.isStopped() || !advice || !*advice)
        co_return;
    m_advice = **advice;
    Q_EMIT changed();
}

} // namespace loom
