#include "catalog/MarketStore.h"

#include "base/Clock.h"
#include "catalog/CountryNames.h"
#include "catalog/StorefrontAPI.h"
#include "catalog/StorefrontLanguage.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include <QJsonArray>

namespace loom
{

namespace
{

const QString rateFile = QStringLiteral("lst_market_rate_v1");
const QString countriesFile = QStringLiteral("snap-countries");
const QString unitedStates = QStringLiteral("US");

std::vector<MarketCountry> decodeStoredCountries(const JsonReader& json)
{
    if (!json.isList())
        json.fail(QStringLiteral("expected a list"));
    return JsonReader::decodeEach(json.elements(), decodeStoredCountry);
}

} // namespace

MarketStore::MarketStore(MarketContext context, StorefrontClient& client, StorefrontAPI& api, DataFolder& folder,
                         Preferences& preferences, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_context(std::move(context))
    , m_client(client)
    , m_api(api)
    , m_folder(folder)
    , m_preferences(preferences)
    , m_clock(clock)
    , m_currency(preferences.value(preferences::marketCurrency))
    , m_fetching([this] { Q_EMIT fetchingChanged(); })
{
    m_context.language = appLanguageFromCode(m_preferences.value(preferences::language)).value_or(m_context.language);
    const QString chosen = m_preferences.value(preferences::marketCountry).toUpper();
    if (isStorefrontCountry(chosen))
        m_context.country = chosen;
    m_client.setCountry(m_context.country);
    m_client.setLanguage(m_context.language);
    m_api.setCurrencyWatcher(
        [this](const QString& country, const QString& currency) { noteCurrency(country, currency); });
}

MarketStore::~MarketStore()
{
    m_api.setCurrencyWatcher({});
}

QString MarketStore::countryName() const
{
    const auto found = std::ranges::find(m_countries, m_context.country, &MarketCountry::isoCode);
    return found != m_countries.end() ? found->name : countryNameIn(m_context.language, m_context.country);
}

ShopGender MarketStore::gender() const
{
    return m_preferences.value(preferences::shopGender) == QLatin1String("men") ? ShopGender::Men : ShopGender::Women;
}

QString MarketStore::department() const
{
    return gender() == ShopGender::Men ? QStringLiteral("men") : QStringLiteral("women");
}

void MarketStore::setGender(ShopGender gender)
{
    const ShopGender before = this->gender();
    m_preferences.set(preferences::shopGender,
                      gender == ShopGender::Men ? QStringLiteral("men") : QStringLiteral("women"));
    if (gender != before)
        Q_EMIT genderChanged();
}

void MarketStore::load()
{
    if (const auto stored = m_folder.load(rateFile, decodeStoredRate);
        stored && stored->isUsable(m_context.country, m_clock.now()))
        setRate(stored);
    if (auto stored = m_folder.loadSnapshot(countriesFile, decodeStoredCountries)) {
        m_countries = std::move(stored->value);
        Q_EMIT countriesChanged();
    }
    refreshRate();
    refreshCountries();
}

bool MarketStore::setCountry(const QString& isoCode)
{
    const QString country = isoCode.toUpper();
    if (!isStorefrontCountry(country))
        return false;
    if (country == m_context.country)
        return true;
    m_context.country = country;
    m_client.setCountry(country);
    m_preferences.set(preferences::marketCountry, country);
    setCurrency({}); // the former market's
    Q_EMIT countryChanged();
    raiseRevision();
    Q_EMIT countriesChanged();
    refreshRate();
    return true;
}

void MarketStore::setLanguage(AppLanguage language)
{
    if (language == m_context.language)
        return;
    m_context.language = language;
    m_client.setLanguage(language);
    m_preferences.set(preferences::language, appLanguageCode(language));
    Q_EMIT languageChanged();
    raiseRevision();
    refreshCountries(); // their names are in the former language
}

void MarketStore::refreshRate()
{
    if (m_context.country == unitedStates) {
        m_measuring.stop();
        m_folder.remove(rateFile);
        setRate(std::nullopt);
        return;
    }
    if (m_rate && m_rate->isUsable(m_context.country, m_clock.now()))
        return;
    if (m_rate && m_rate->country != m_context.country)
        setRate(std::nullopt);
    static_cast<void>(measureRate(m_context.country));
}

QCoro::Task<> MarketStore::measureRate(QString country)
{
    const Work::Run run = m_measuring.begin();
    // Both at once: the second is under way while the first is awaited.
    auto market = m_api.rateSample(country, run.stop());
    auto dollars = m_api.rateSample(unitedStates, run.stop());
    const auto marketSample = co_await market;
    const auto dollarSample = co_await dollars;
    if (run.isStopped())
        co_return;
    const auto rate = marketSample && dollarSample ? measuredRate(country, *marketSample, *dollarSample, m_clock.now())
                                                   : std::nullopt;
    if (marketSample && *marketSample)
        noteCurrency(country, (*marketSample)->currency);
    if (rate)
        m_folder.save(rateFile, toJson(*rate));
    setRate(rate);
}

void MarketStore::refreshCountries()
{
    static_cast<void>(fetchCountries());
}

QCoro::Task<> MarketStore::fetchCountries()
{
    const Work::Run run = m_fetching.begin();
    auto countries = co_await m_api.countries(run.stop());
    if (run.isStopped())
        co_return;
    // A failure keeps the list that was there, and so does a list of which nothing can be read.
    if (!countries || countries->empty()) {
        m_countriesFailure = countries ? APIError{APIError::InvalidResponse{}} : countries.error().error();
        co_return;
    }
    m_countriesFailure.reset();
    m_countries = *std::move(countries);
    QJsonArray stored;
    for (const MarketCountry& country : m_countries)
        stored.append(toJson(country));
    m_folder.saveSnapshot(countriesFile, stored, m_clock.now());
    Q_EMIT countriesChanged();
}

void MarketStore::setRate(std::optional<MarketRate> rate)
{
    m_rate = std::move(rate);
    Q_EMIT rateChanged();
}

void MarketStore::raiseRevision()
{
    ++m_revision;
    Q_EMIT revisionChanged();
}

void MarketStore::noteCurrency(const QString& country, const QString& currency)
{
    if (country == m_context.country)
        setCurrency(currency);
}

void MarketStore::setCurrency(const QString& currency)
{
    if (std::exchange(m_currency, currency) == currency)
        return;
    if (currency.isEmpty())
        m_preferences.remove(preferences::marketCurrency);
    else
        m_preferences.set(preferences::marketCurrency, currency);
    Q_EMIT currencyChanged();
}

} // namespace loom
