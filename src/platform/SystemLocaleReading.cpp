#include "platform/SystemLocaleReading.h"

#include <QLocale>

namespace loom
{

SystemLocale readSystemLocale()
{
    SystemLocale locale = readLocale(QLocale::system());
    // Whoever reads another language than the country's still lives there. Qt takes the place from the language; how
    // money is written tells it better.
    for (const char* const name : {"LC_ALL", "LC_MONETARY", "LANG"}) {
        const QString value = qEnvironmentVariable(name);
        if (value.isEmpty())
            continue;
        if (const QLocale place(value); place.language() != QLocale::C)
            locale.region = readLocale(place).region;
        break;
    }
    return locale;
}

SystemLocale readLocale(const QLocale& locale)
{
    if (locale.language() == QLocale::C)
        return {.language = QStringLiteral("en")};
    return {.language = QLocale::languageToCode(locale.language()),
            .script = QLocale::scriptToCode(locale.script()),
            .region = QLocale::territoryToCode(locale.territory())};
}

} // namespace loom
