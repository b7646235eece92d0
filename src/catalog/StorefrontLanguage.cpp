#include "catalog/StorefrontLanguage.h"

#include <string_view>

namespace loom
{

namespace
{

/// The values of the Storefront schema 2025-04.
constexpr std::string_view countryCodes =
    "AC AD AE AF AG AI AL AM AN AO AR AT AU AW AX AZ BA BB BD BE BF BG BH BI BJ BL BM BN BO BQ BR BS "
    "BT BV BW BY BZ CA CC CD CF CG CH CI CK CL CM CN CO CR CU CV CW CX CY CZ DE DJ DK DM DO DZ EC EE "
    "EG EH ER ES ET FI FJ FK FO FR GA GB GD GE GF GG GH GI GL GM GN GP GQ GR GS GT GW GY HK HM HN HR "
    "HT HU ID IE IL IM IN IO IQ IR IS IT JE JM JO JP KE KG KH KI KM KN KP KR KW KY KZ LA LB LC LI LK "
    "LR LS LT LU LV LY MA MC MD ME MF MG MK ML MM MN MO MQ MR MS MT MU MV MW MX MY MZ NA NC NE NF NG "
    "NI NL NO NP NR NU NZ OM PA PE PF PG PH PK PL PM PN PS PT PY QA RE RO RS RU RW SA SB SC SD SE SG "
    "SH SI SJ SK SL SM SN SO SR SS ST SV SX SY SZ TA TC TD TF TG TH TJ TK TL TM TN TO TR TT TV TW TZ "
    "UA UG UM US UY UZ VA VC VE VG VN VU WF WS XK YE YT ZA ZM ZW ZZ ";

} // namespace

QString storefrontLanguageCode(AppLanguage language, const QString& systemRegion)
{
    switch (language) {
    case AppLanguage::Portuguese:
        if (systemRegion.compare(QLatin1String("BR"), Qt::CaseInsensitive) == 0)
            return QStringLiteral("PT_BR");
        if (systemRegion.compare(QLatin1String("PT"), Qt::CaseInsensitive) == 0)
            return QStringLiteral("PT_PT");
        return QStringLiteral("PT");
    case AppLanguage::ZhHant:
        return QStringLiteral("ZH_TW");
    case AppLanguage::ZhHans:
        return QStringLiteral("ZH_CN");
    default:
        return appLanguageCode(language).replace(QLatin1Char('-'), QLatin1Char('_')).toUpper();
    }
}

bool isStorefrontCountry(const QString& code)
{
    if (code.size() != 2)
        return false;
    const std::string wanted = code.toStdString() + ' ';
    return countryCodes.find(wanted) != std::string_view::npos;
}

QString defaultCountry(const SystemLocale& locale)
{
    const QString region = locale.region.toUpper();
    return isStorefrontCountry(region) ? region : QStringLiteral("US");
}

} // namespace loom
