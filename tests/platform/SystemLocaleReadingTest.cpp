#include "platform/SystemLocaleReading.h"

#include "Session.h"

#include <QLocale>

using namespace loom;

namespace
{

TEST(SystemLocaleReadingTest, TheLanguageIsThatOfTheWindowsAndThePlaceThatOfTheMoney)
{
    struct Row {
        QMap<QString, QString> environment;
        const char* read;
    };
    const QString lang = QStringLiteral("LANG");
    const QString language = QStringLiteral("LANGUAGE");
    const QString monetary = QStringLiteral("LC_MONETARY");
    const QString all = QStringLiteral("LC_ALL");
    const QString american = QStringLiteral("en_US.UTF-8");
    const QString swiss = QStringLiteral("de_CH.UTF-8");
    for (const Row& row : {
             Row{{}, "en--"},
             Row{{{lang, QStringLiteral("C.UTF-8")}}, "en--"},
             Row{{{lang, swiss}}, "de-Latn-CH"},
             Row{{{lang, QStringLiteral("zh_TW.UTF-8")}}, "zh-Hant-TW"},
             Row{{{lang, swiss}, {language, QStringLiteral("en")}}, "en-Latn-CH"},
             Row{{{lang, american}, {monetary, swiss}}, "en-Latn-CH"},
             Row{{{lang, swiss}, {monetary, QStringLiteral("C")}}, "de-Latn-CH"},
             Row{{{lang, american}, {all, swiss}, {monetary, american}}, "de-Latn-CH"},
             Row{{{lang, swiss}, {all, QStringLiteral("C.UTF-8")}}, "en--"},
         }) {
        Session session(Session::Bus::Absent);
        for (auto one = row.environment.cbegin(); one != row.environment.cend(); ++one)
            session.environment.insert(one.key(), one.value());
        EXPECT_EQ(session.probe({QStringLiteral("locale")})->line(), QLatin1String(row.read)) << testing::PrintToString(
            session.environment.toStringList().filter(QRegularExpression(QStringLiteral("^L(ANG|C_)"))));
    }
}

} // namespace
