#include "platform/SystemLocaleReading.h"

#include <QLocale>

namespace loom
{

SystemLocale readSystemLocale()
{
    return readLocale(QLocale::system());
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
