#include "catalog/MarketChoicesModel.h"

#include "base/FoldedText.h"
#include "catalog/CountryNames.h"
#include "catalog/DisplayText.h"
#include "catalog/MarketStore.h"

#include <QCollator>

#include <algorithm>

namespace loom
{

namespace
{

constexpr qsizetype longestName = 80;

} // namespace

MarketChoicesModel::MarketChoicesModel(Kind kind, MarketStore& market, QObject* parent)
    : QAbstractListModel(parent)
    , m_kind(kind)
    , m_market(market)
{
    connect(&market, &MarketStore::countriesChanged, this, &MarketChoicesModel::rebuild);
    connect(&market, &MarketStore::fetchingChanged, this, &MarketChoicesModel::changed);
    connect(&market, &MarketStore::revisionChanged, this, &MarketChoicesModel::rebuild);
    connect(&market, &MarketStore::currencyChanged, this, &MarketChoicesModel::rebuild);
    rebuild();
}

void MarketChoicesModel::rebuild()
{
    m_choices.clear();
    if (m_kind == Countries)
        addCountries();
    else
        addLanguages();
    show();
}

void MarketChoicesModel::addCountries()
{
    const MarketContext& context = m_market.context();
    const auto add = [&](const QString& code, const QString& name, const QString& currency) {
        // One's own language may not be the one the store names them in.
        const QString english = countryNameIn(AppLanguage::English, code);
        m_choices.push_back({.code = code,
                             .title = displayLine(name, longestName),
                             .note = displayLine(currency, 8),
                             .names = FoldedText::fold(name + QLatin1Char('\n') + english),
                             .codes = FoldedText::fold(code + QLatin1Char(' ') + currency)});
    };
    bool hasCurrent = false;
    for (const MarketCountry& country : m_market.countries()) {
        const bool isCurrent = country.isoCode == context.country;
        hasCurrent = hasCurrent || isCurrent;
        // Of the present market it is known what the store answers in.
        add(country.isoCode, country.name,
            isCurrent && !m_market.currency().isEmpty() ? m_market.currency() : country.currency);
    }
    // The shop may have stopped selling there: the shopper still is where they are.
    if (!hasCurrent && !m_choices.empty())
        add(context.country, m_market.countryName(), m_market.currency());
    QCollator collator{appLocale(context.language)};
    std::ranges::sort(m_choices, [&](const Choice& one, const Choice& other) {
        const int order = collator.compare(one.title, other.title);
        return order != 0 ? order < 0 : one.code < other.code;
    });
}

void MarketChoicesModel::addLanguages()
{
    for (std::size_t i = 0; i < appLanguageCodes.size(); ++i) {
        const auto language = static_cast<AppLanguage>(i);
        const QString here = languageNameIn(m_market.context().language, language);
        const QString own = appLanguageName(language);
        m_choices.push_back({.code = appLanguageCode(language),
                             .title = own,
                             .note = here.compare(own, Qt::CaseInsensitive) == 0 ? QString() : here,
                             .names = FoldedText::fold(own + QLatin1Char('\n') + here + QLatin1Char('\n') +
                                                       languageNameIn(AppLanguage::English, language)),
                             .codes = FoldedText::fold(appLanguageCode(language))});
    }
}

void MarketChoicesModel::show()
{
    const QString wanted = FoldedText::fold(m_filter);
    // A name that begins so comes before a code, that before a later word, that before a part of a word.
    const auto rank = [&](const Choice& choice) {
        if (wanted.isEmpty() || choice.names.startsWith(wanted))
            return 0;
        if (matchesWords(choice.codes, wanted))
            return 1;
        if (matchesWords(choice.names, wanted))
            return 2;
        return choice.names.contains(QStringView(wanted).mid(1)) ? 3 : 4;
    };
    std::vector<std::pair<int, std::size_t>> ranked;
    for (std::size_t i = 0; i < m_choices.size(); ++i) {
        if (const int place = rank(m_choices[i]); place < 4)
            ranked.emplace_back(place, i);
    }
    std::ranges::sort(ranked);
    beginResetModel();
    m_shown.clear();
    for (const auto& [place, number] : ranked)
        m_shown.push_back(number);
    endResetModel();
    Q_EMIT changed();
}

void MarketChoicesModel::setFilter(const QString& filter)
{
    if (std::exchange(m_filter, filter) != filter)
        show();
}

QString MarketChoicesModel::currentCode() const
{
    return m_kind == Countries ? m_market.country() : m_market.languageCode();
}

int MarketChoicesModel::currentRow() const
{
    const auto found = std::ranges::find(m_shown, currentCode(), [this](std::size_t i) { return m_choices[i].code; });
    return found != m_shown.end() ? static_cast<int>(std::distance(m_shown.begin(), found)) : -1;
}

bool MarketChoicesModel::isLoading() const
{
    return m_choices.empty() && m_market.isLoadingCountries();
}

QString MarketChoicesModel::errorText() const
{
    const auto& failure = m_market.countriesFailure();
    return m_choices.empty() && !m_market.isLoadingCountries() && failure ? errorDescription(*failure) : QString();
}

void MarketChoicesModel::retry()
{
    m_market.refreshCountries();
}

void MarketChoicesModel::choose(int row)
{
    if (row < 0 || row >= count())
        return;
    const QString code = m_choices[m_shown[static_cast<std::size_t>(row)]].code; // what follows rebuilds the list
    if (m_kind == Countries)
        m_market.setCountry(code);
    else if (const auto language = appLanguageFromCode(code))
        m_market.setLanguage(*language);
}

int MarketChoicesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant MarketChoicesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Choice& choice = m_choices[m_shown[static_cast<std::size_t>(index.row())]];
    switch (role) {
    case CodeRole:
        return choice.code;
    case TitleRole:
        return choice.title;
    case NoteRole:
        return choice.note;
    case IsCurrentRole:
        return choice.code == currentCode();
    default:
        return {};
    }
}

QHash<int, QByteArray> MarketChoicesModel::roleNames() const
{
    return {{CodeRole, "code"}, {TitleRole, "title"}, {NoteRole, "note"}, {IsCurrentRole, "isCurrent"}};
}

} // namespace loom
