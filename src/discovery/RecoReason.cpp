#include "discovery/RecoReason.h"

#include "discovery/HanSpacing.h"
#include "discovery/OccasionWords.h"
#include "discovery/StyleWords.h"

namespace loom
{

namespace
{

constexpr KeyedText newThisWeek = QT_TRANSLATE_NOOP3("Loomstreet", "New this week", "reco.reason.new_in");
constexpr KeyedText handpicked = QT_TRANSLATE_NOOP3("Loomstreet", "Handpicked", "reco.reason.handpicked");
constexpr KeyedText newPrefix = QT_TRANSLATE_NOOP3("Loomstreet", "New this week · %1", "reco.reason.new_prefix");
constexpr KeyedText whatYouLove =
    QT_TRANSLATE_NOOP3("Loomstreet", "Based on what you love", "reco.reason.because_like.generic");

enum class Parameter {
    None,
    Verbatim, ///< the shopper's own words
    Style,
    Occasion,
};

struct Rule {
    std::string_view templateName;
    KeyedText text;
    Parameter parameter = Parameter::None;
    KeyedText without = {}; ///< the text where there is no parameter; none for what is always true of the piece
};

constexpr std::array<Rule, 9> rules{{
    {"similar_shoppers",
     QT_TRANSLATE_NOOP3("Loomstreet", "Loved by shoppers like you", "reco.reason.similar_shoppers")},
    {"browsing", QT_TRANSLATE_NOOP3("Loomstreet", "Based on what you've been browsing", "reco.reason.browsing")},
    {"handpicked", handpicked},
    {"trending", QT_TRANSLATE_NOOP3("Loomstreet", "Trending now", "reco.reason.trending")},
    {"new_in", newThisWeek},
    {"matches_search", QT_TRANSLATE_NOOP3("Loomstreet", "Matches your search for %1", "reco.reason.matches_search"),
     Parameter::Verbatim, handpicked},
    {"because_like", QT_TRANSLATE_NOOP3("Loomstreet", "Because you love %1", "reco.reason.because_like"),
     Parameter::Style, whatYouLove},
    {"for_occasion", QT_TRANSLATE_NOOP3("Loomstreet", "For %1", "reco.reason.for_occasion"), Parameter::Occasion},
    {"style_pick", QT_TRANSLATE_NOOP3("Loomstreet", "%1 style pick", "reco.reason.style_pick"), Parameter::Style},
}};

/// Where "%1" or "%L1" begins and how long it is; the former -1 where there is none.
std::pair<qsizetype, qsizetype> placeOfParameter(QStringView pattern)
{
    for (qsizetype i = pattern.indexOf(u'%'); i >= 0; i = pattern.indexOf(u'%', i + 1)) {
        const QStringView rest = pattern.sliced(i + 1);
        if (rest.startsWith(u'1'))
            return {i, 2};
        if (rest.startsWith(u"L1"))
            return {i, 3};
    }
    return {-1, 0};
}

QString filled(const KeyedText& text, const QString& parameter)
{
    QString pattern = text.translated();
    const auto [place, length] = placeOfParameter(pattern);
    if (place < 0)
        return pattern;
    const QStringView around(pattern);
    QString whole;
    whole.reserve(pattern.size() + parameter.size());
    whole.append(around.first(place)).append(parameter).append(around.sliced(place + length));
    return withHanSpacing(std::move(whole));
}

/// What a reason says of no use to anyone is not there.
bool isThere(const std::optional<QString>& text)
{
    return text && std::ranges::any_of(*text, [](QChar character) { return !character.isSpace(); });
}

std::optional<QString> wordFor(Parameter parameter, const QString& value)
{
    const QString word = value.toLower();
    const ReasonWord* const found =
        parameter == Parameter::Style ? findReasonWord(styleWords, word) : findReasonWord(occasionWords, word);
    return found ? std::optional(found->text.translated()) : std::nullopt;
}

std::optional<QString> parameterOf(const RecoReason& reason, Parameter kind, AppLanguage language)
{
    if (!isThere(reason.value))
        return std::nullopt;
    if (kind == Parameter::Verbatim || language == AppLanguage::English)
        return reason.value;
    if (isThere(reason.label) && reason.labelLanguage && namesLanguage(*reason.labelLanguage, language))
        return reason.label;
    return wordFor(kind, *reason.value);
}

} // namespace

std::optional<QString> RecoReason::render(AppLanguage language) const
{
    const auto* const rule = std::ranges::find_if(
        rules, [this](const Rule& candidate) { return isNamed(templateName, candidate.templateName); });
    if (rule == rules.end())
        return std::nullopt;
    if (rule->parameter == Parameter::None)
        return rule->text.translated();
    if (const auto parameter = parameterOf(*this, rule->parameter, language))
        return filled(rule->text, *parameter);
    return rule->without.english ? rule->without.translated() : plainReason(isNew);
}

RecoReason decodeRecoReason(const JsonReader& json)
{
    RecoReason reason{.templateName = json.text("template"),
                      .value = {},
                      .isNew = json.optionalBoolean("newIn").value_or(false),
                      .label = {},
                      .labelLanguage = {}};
    if (const auto params = json.optionalObject("params"))
        reason.value = params->optionalText("value");
    if (const auto label = json.optionalObject("paramLabel")) {
        reason.label = label->optionalText("value");
        reason.labelLanguage = label->optionalText("locale");
    }
    return reason;
}

QJsonObject toJson(const RecoReason& reason)
{
    QJsonObject json{{QStringLiteral("template"), reason.templateName}, {QStringLiteral("newIn"), reason.isNew}};
    if (reason.value)
        json.insert(QStringLiteral("params"), QJsonObject{{QStringLiteral("value"), *reason.value}});
    QJsonObject label;
    if (reason.label)
        label.insert(QStringLiteral("value"), *reason.label);
    if (reason.labelLanguage)
        label.insert(QStringLiteral("locale"), *reason.labelLanguage);
    if (!label.isEmpty())
        json.insert(QStringLiteral("paramLabel"), label);
    return json;
}

bool namesLanguage(const QString& code, AppLanguage language)
{
    if (code == QLatin1String(appLanguageCodes.at(static_cast<std::size_t>(language))))
        return true;
    SystemLocale locale;
    const QStringView whole(code);
    for (qsizetype start = 0, end = 0; start <= whole.size(); start = end + 1) {
        end = start;
        while (end < whole.size() && whole[end] != u'-' && whole[end] != u'_')
            ++end;
        const QStringView part = whole.sliced(start, end - start);
        if (start == 0)
            locale.language = part.toString().toLower();
        else if (part.size() == 4 && locale.script.isEmpty())
            locale.script = part.first(1).toString().toUpper() + part.sliced(1).toString().toLower();
        else if ((part.size() == 2 || part.size() == 3) && locale.region.isEmpty())
            locale.region = part.toString().toUpper();
    }
    const AppLanguage named = appLanguageFor(locale);
    // A language the store does not have is no English.
    return named == language && (named != AppLanguage::English || locale.language == QLatin1String("en"));
}

QString plainReason(bool isNew)
{
    return isNew ? newThisWeek.translated() : handpicked.translated();
}

QString newAndReason(const QString& reason)
{
    return filled(newPrefix, reason);
}

} // namespace loom
