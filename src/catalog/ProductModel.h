#pragma once

#include "catalog/ProductDetails.h"
#include "catalog/VariantSelection.h"
#include "net/ApiResult.h"
#include "net/Work.h"

#include <QObject>
#include <qcoro/qcorotask.h>

namespace loom
{

class Clock;
class MarketStore;
class MoneyFormat;
class Preferences;
class StorefrontAPI;

/// A product as its page shows it. Begins with the card it was opened from, if any, and fills up when the product
/// has arrived; what is shown stays across a failure. Main thread; begins with load().
class ProductModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString handle READ handle CONSTANT)
    Q_PROPERTY(loom::ProductModel::Phase phase READ phase NOTIFY stateChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY stateChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY stateChanged)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY stateChanged)
    Q_PROPERTY(bool isComplete READ isComplete NOTIFY productChanged)
    Q_PROPERTY(QVariant item READ itemVariant NOTIFY productChanged)
    Q_PROPERTY(QString title READ title NOTIFY productChanged)
    Q_PROPERTY(QString designer READ designer NOTIFY productChanged)
    Q_PROPERTY(QString label READ label NOTIFY productChanged)
    Q_PROPERTY(QString presale READ presale NOTIFY detailsChanged)
    Q_PROPERTY(QString sizeHint READ sizeHint NOTIFY detailsChanged)
    Q_PROPERTY(QStringList highlights READ highlights NOTIFY detailsChanged)
    Q_PROPERTY(QStringList composition READ composition NOTIFY detailsChanged)
    Q_PROPERTY(QVariantList specs READ specs NOTIFY detailsChanged)
    Q_PROPERTY(QVariantList sections READ sections NOTIFY detailsChanged)
    Q_PROPERTY(QVariantList stories READ stories NOTIFY detailsChanged)
    Q_PROPERTY(QVariantMap reviews READ reviews NOTIFY detailsChanged)
    Q_PROPERTY(QVariantMap service READ service NOTIFY productChanged)
    Q_PROPERTY(QVariantList sizeTables READ sizeTables NOTIFY sizeTablesChanged)
    Q_PROPERTY(bool hasSizeUnits READ hasSizeUnits NOTIFY detailsChanged)
    Q_PROPERTY(bool isMetric READ isMetric WRITE setMetric NOTIFY sizeTablesChanged)
    Q_PROPERTY(QStringList pictures READ pictures NOTIFY picturesChanged)
    Q_PROPERTY(int pictureIndex READ pictureIndex NOTIFY selectionChanged)
    Q_PROPERTY(QString price READ price NOTIFY selectionChanged)
    Q_PROPERTY(QString formerPrice READ formerPriceText NOTIFY selectionChanged)
    Q_PROPERTY(bool isSoldOut READ isSoldOut NOTIFY selectionChanged)
    Q_PROPERTY(QString stockText READ stockText NOTIFY selectionChanged)
    Q_PROPERTY(QVariantList options READ options NOTIFY selectionChanged)
    Q_PROPERTY(QString freeShippingFrom READ freeShippingFrom NOTIFY rateChanged)

public:
    enum class Phase { Idle, Loading, Loaded, Missing, Failed };
    Q_ENUM(Phase)

    /// What delivery is free above, in US dollars, is for the composition root to say.
    ProductModel(QString handle, std::optional<ProductListItem> item, double freeShippingThreshold, StorefrontAPI& api,
                 const MarketStore& market, Preferences& preferences, const MoneyFormat& money, const Clock& clock,
                 QObject* parent = nullptr);

    [[nodiscard]] const QString& handle() const { return m_handle; }
    [[nodiscard]] Phase phase() const;
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] QString errorText() const { return m_failure ? errorDescription(*m_failure) : QString(); }
    [[nodiscard]] bool isOffline() const { return m_failure && m_failure->as<APIError::Offline>(); }
    /// Whether the product itself is shown, not only the card it was opened from.
    [[nodiscard]] bool isComplete() const { return m_product.has_value(); }
    [[nodiscard]] const std::optional<Product>& product() const { return m_product; }
    [[nodiscard]] const Selection& selection() const { return m_selection; }

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString designer() const;
    [[nodiscard]] QString label() const;
    [[nodiscard]] QString price() const;
    [[nodiscard]] QString formerPriceText() const;
    /// Nothing of what is chosen can be bought, nor of the whole piece while nothing is chosen.
    [[nodiscard]] bool isSoldOut() const;
    /// How few are left of the chosen variant; empty while that is nothing to mention.
    [[nodiscard]] QString stockText() const;
    [[nodiscard]] QStringList pictures() const;
    /// The picture of what is chosen, as a number in pictures(); -1 when it has none there.
    [[nodiscard]] int pictureIndex() const;
    [[nodiscard]] bool isMetric() const;
    void setMetric(bool isMetric);

    /// Loads unless it is loaded or loading; after a failure it tries again.
    Q_INVOKABLE void load();
    Q_INVOKABLE void reload();
    /// Chooses an option's value; choosing it again takes it back, unless it is the only one.
    Q_INVOKABLE void choose(const QString& option, const QString& value);

Q_SIGNALS:
    void stateChanged();
    void productChanged();
    void detailsChanged();
    void picturesChanged();
    void selectionChanged();
    void sizeTablesChanged();
    void rateChanged();

private:
    [[nodiscard]] QCoro::Task<> fetch();
    void adopt(std::optional<Product> product, ProductDetails details);
    void readSizeTables();
    [[nodiscard]] const ProductListItem* item() const;
    [[nodiscard]] QVariant itemVariant() const { return item() ? QVariant::fromValue(*item()) : QVariant(); }

    [[nodiscard]] QString presale() const { return m_details.metafields.presale.value_or(QString()); }
    [[nodiscard]] QString sizeHint() const { return m_details.metafields.sizeHint.value_or(QString()); }
    [[nodiscard]] const QStringList& highlights() const { return m_details.metafields.highlights; }
    [[nodiscard]] const QStringList& composition() const { return m_details.metafields.composition; }
    [[nodiscard]] QVariantList specs() const { return specList(m_details); }
    [[nodiscard]] QVariantList sections() const { return sectionList(m_details); }
    [[nodiscard]] QVariantList stories() const { return storyList(m_details); }
    [[nodiscard]] QVariantMap reviews() const { return reviewSummary(m_details); }
    [[nodiscard]] QVariantMap service() const;
    [[nodiscard]] const QVariantList& sizeTables() const { return m_sizeTables; }
    [[nodiscard]] bool hasSizeUnits() const;
    [[nodiscard]] QVariantList options() const;
    [[nodiscard]] QString freeShippingFrom() const;

    QString m_handle;
    std::optional<ProductListItem> m_item;
    double m_freeShippingThreshold;
    StorefrontAPI& m_api;
    const MarketStore& m_market;
    Preferences& m_preferences;
    const MoneyFormat& m_money;
    const Clock& m_clock;
    std::optional<Product> m_product;
    ProductDetails m_details;
    QVariantList m_sizeTables; ///< in the unit of the settings
    Selection m_selection;
    bool m_isMissing = false;
    std::optional<APIError> m_failure;
    Work m_loading;
};

} // namespace loom
