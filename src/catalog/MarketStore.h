#pragma once

#include "catalog/MarketCountry.h"
#include "catalog/MarketRate.h"
#include "net/ApiResult.h"
#include "net/AppLanguage.h"
#include "net/Work.h"

#include <QObject>
#include <qcoro/qcorotask.h>

namespace loom
{

class Clock;
class DataFolder;
class Preferences;
class StorefrontAPI;
class StorefrontClient;

/// Where the shopper shops and in which language.
struct MarketContext {
    QString country; ///< ISO 3166-1 alpha-2, in capitals
    AppLanguage language = AppLanguage::English;

    bool operator==(const MarketContext&) const = default;
};

/// The department a shopper browses by default.
enum class ShopGender { Women, Men };

/// The shopper's market: country and language, which every Storefront query carries, the countries the shop sells
/// to, and an approximate rate for amounts that are fixed in US dollars. One per process; main thread.
class MarketStore final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString country READ country NOTIFY revisionChanged)
    Q_PROPERTY(QString countryName READ countryName NOTIFY countriesChanged)
    Q_PROPERTY(QString currency READ currency NOTIFY currencyChanged)
    Q_PROPERTY(QString language READ languageCode NOTIFY revisionChanged)
    Q_PROPERTY(QString languageName READ languageName NOTIFY revisionChanged)
    Q_PROPERTY(QString department READ department NOTIFY genderChanged)
    Q_PROPERTY(int revision READ revision NOTIFY revisionChanged)

public:
    /// `context` is where a shopper without a choice of their own begins.
    MarketStore(MarketContext context, StorefrontClient& client, StorefrontAPI& api, DataFolder& folder,
                Preferences& preferences, Clock& clock, QObject* parent = nullptr);
    ~MarketStore() override;

    [[nodiscard]] const MarketContext& context() const { return m_context; }
    [[nodiscard]] const std::vector<MarketCountry>& countries() const { return m_countries; }
    [[nodiscard]] const std::optional<MarketRate>& rate() const { return m_rate; }
    /// Raised by every change of the market: what shows prices or texts of the store loads anew.
    [[nodiscard]] int revision() const { return m_revision; }

    [[nodiscard]] QString country() const { return m_context.country; }
    /// In the content language.
    [[nodiscard]] QString countryName() const;
    /// ISO 4217; what the store's answers in this market were last in, empty until there was one.
    [[nodiscard]] const QString& currency() const { return m_currency; }
    [[nodiscard]] QString languageCode() const { return appLanguageCode(m_context.language); }
    [[nodiscard]] QString languageName() const { return appLanguageName(m_context.language); }
    [[nodiscard]] bool isLoadingCountries() const { return m_fetching.isRunning(); }
    /// Why the countries are not as fresh as they should be; none where they are.
    [[nodiscard]] const std::optional<APIError>& countriesFailure() const { return m_countriesFailure; }

    [[nodiscard]] ShopGender gender() const;
    /// The handle of that department.
    [[nodiscard]] QString department() const;
    void setGender(ShopGender gender);

    /// Reads what is kept on this machine and begins a refresh of the rate and of the countries.
    void load();
    /// A code that is no country of the Storefront is refused.
    bool setCountry(const QString& isoCode);
    void setLanguage(AppLanguage language);
    void refreshRate();
    void refreshCountries();

    [[nodiscard]] ConvertedAmount convertUSDollars(double amount) const
    {
        return loom::convertUSDollars(amount, m_rate);
    }

Q_SIGNALS:
    /// Before the revision, so that whoever writes texts anew on its account finds them in the new language.
    void languageChanged();
    /// Before the revision too: prices shown are another market's.
    void countryChanged();
    void revisionChanged();
    void countriesChanged();
    /// They are being fetched, or no more.
    void fetchingChanged();
    void currencyChanged();
    void rateChanged();
    void genderChanged();

private:
    [[nodiscard]] QCoro::Task<> measureRate(QString country);
    [[nodiscard]] QCoro::Task<> fetchCountries();
    void setRate(std::optional<MarketRate> rate);
    void raiseRevision();
    void noteCurrency(const QString& country, const QString& currency);
    void setCurrency(const QString& currency);

    MarketContext m_context;
    StorefrontClient& m_client;
    StorefrontAPI& m_api;
    DataFolder& m_folder;
    Preferences& m_preferences;
    Clock& m_clock;
    std::vector<MarketCountry> m_countries;
    std::optional<APIError> m_countriesFailure;
    QString m_currency;
    std::optional<MarketRate> m_rate;
    int m_revision = 0;
    Work m_measuring;
    Work m_fetching;
};

} // namespace loom
