#pragma once

#include "net/Work.h"

#include <QObject>
#include <qcoro/qcorotask.h>

namespace loom
{

class MarketStore;
class MiraSizeAPI;
class ProductModel;
struct ProductOption;

/// The size that suits the shopper, beside the sizes of a product's page. Asked for once when the product has come;
/// nothing is said where there is no advice, for whatever reason. Main thread; belongs to the page, as `product` does.
class SizeAdviceModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isKnown READ isKnown NOTIFY changed)
    Q_PROPERTY(QString recommendedSize READ recommendedSize NOTIFY changed)
    Q_PROPERTY(QString option READ option NOTIFY changed)
    Q_PROPERTY(bool isChosen READ isChosen NOTIFY changed)
    Q_PROPERTY(bool isAvailable READ isAvailable NOTIFY changed)

public:
    SizeAdviceModel(ProductModel& product, MiraSizeAPI& api, const MarketStore& market, QObject* parent = nullptr);

    /// There is advice, and the product comes in that size.
    [[nodiscard]] bool isKnown() const { return !recommendedSize().isEmpty(); }
    /// As the product writes it; empty where there is none.
    [[nodiscard]] QString recommendedSize() const;
    /// The name of the product's option that holds the sizes; empty where it has none.
    [[nodiscard]] QString option() const;
    [[nodiscard]] bool isChosen() const;
    /// With what is chosen otherwise, it can be bought in that size.
    [[nodiscard]] bool isAvailable() const;

    /// Somebody else is signed in, or nobody: what was advised is nothing to them.
    void askAgain();
    /// Chooses the recommended size.
    Q_INVOKABLE void choose();

Q_SIGNALS:
    void changed();

private:
    /// The option that holds them; null while there is none.
    [[nodiscard]] const ProductOption* sizes() const;
    void askOnce();
    [[nodiscard]] QCoro::Task<> ask();

    ProductModel& m_product;
    MiraSizeAPI& m_api;
    const MarketStore& m_market;
    QString m_advice; ///< as the service wrote it
    bool m_wasAsked = false;
    Work m_asking;
};

} // namespace loom
