#include "services/CopyTranslator.h"

#include "ConfigFixture.h"
#include "base/KeyedText.h"
#include "services/WindowTranslator.h"

using namespace loom;

namespace
{

/// Knows one text.
class FrenchHome final : public QTranslator
{
public:
    [[nodiscard]] QString translate(const char*, const char* text, const char*, int) const override
    {
        return qstrcmp(text, "Home") == 0 ? QStringLiteral("Accueil") : QString();
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

class CopyTranslatorTest : public ConfigFixture
{
protected:
    static std::string shown(const char* english, const char* key = nullptr)
    {
        return KeyedText{english, key}.translated().toStdString();
    }
};

TEST_F(CopyTranslatorTest, TheStoresTextsStandInThePlaceOfTheWindows)
{
    make();
    CopyTranslator translator(*config);
    int changes = 0;
    QObject::connect(&translator, &CopyTranslator::changed, &translator, [&changes] { ++changes; });
    QCoreApplication::installTranslator(&translator);
    fetch(R"({"copy": {"tools.title": {"en": "Toolbox", "de": "Werkzeug"}, "Tools": {"en": "by English"},
        "Caf\u00e9": {"en": "<b>Bar</b>"}, "%1 pieces": {"en": "%1 of %2", "de": "%1 Teile"}, "Home": {"ja": "x"}}})");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(shown("Tools", "tools.title"), "Toolbox");
    EXPECT_EQ(shown("Tools", "another.key"), "Tools");
    EXPECT_EQ(shown("Tools"), "by English");
    EXPECT_EQ(shown("Café"), "<b>Bar</b>");
    EXPECT_EQ(shown("%1 pieces"), "%1 pieces"); // there is nothing for a second place
    EXPECT_EQ(shown("Home"), "Home");
    EXPECT_EQ(QCoreApplication::translate("OtherContext", "Tools"), QStringLiteral("Tools"));

    config->setLanguage(AppLanguage::German);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(shown("Tools", "tools.title"), "Werkzeug");
    EXPECT_EQ(shown("%1 pieces"), "%1 Teile");
    EXPECT_EQ(shown("Tools"), "by English"); // the window says it in English, too
    fetch(R"({"copy": {}})");
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(shown("Tools", "tools.title"), "Tools");
    config->setLanguage(AppLanguage::French);
    EXPECT_EQ(changes, 3);
}

TEST_F(CopyTranslatorTest, EnglishDoesNotReplaceATranslation)
{
    make();
    config->setLanguage(AppLanguage::French);
    const FrenchHome french;
    const CopyTranslator translator(*config, &french);
    fetch(R"({"copy": {"Home": {"en": "Start"}, "Sale": {"en": "Bargains"}}})");
    EXPECT_EQ(translator.translate("Loomstreet", "Home"), QString());
    EXPECT_EQ(translator.translate("Loomstreet", "Sale"), QStringLiteral("Bargains"));
}

TEST_F(CopyTranslatorTest, AnOverrideHasOneFormForAllNumbersAndTheSamePlaces)
{
    make();
    WindowTranslator builtIn;
    builtIn.setLanguage(AppLanguage::German);
    config->setLanguage(AppLanguage::German);
    CopyTranslator translator(*config, &builtIn);
    QCoreApplication::installTranslator(&builtIn);
    QCoreApplication::installTranslator(&translator);
    const auto pieces = [](int count) {
        return QCoreApplication::translate("Loomstreet", "%Ln pieces", nullptr, count);
    };
    const QString own = pieces(2);
    EXPECT_NE(own, QStringLiteral("2 pieces"));
    fetch(R"({"copy": {"%Ln pieces": {"de": "Stücke: %n"}, "Close": {"en": "Shut"}}})");
    EXPECT_EQ(pieces(1), QStringLiteral("Stücke: 1"));
    EXPECT_EQ(pieces(2), QStringLiteral("Stücke: 2"));
    EXPECT_NE(shown("Close"), "Shut"); // German stands
    for (const char* const hostile :
         {"Stücke", "%1 Stücke", "%Ln von %1", "%n %L99", "%Ln %Ln %2", "\u202e%1%2%3%4%5%6%7%8%9"}) {
        fetch(QByteArray(R"({"copy": {"%Ln pieces": {"de": ")") + hostile + R"("}}})");
        EXPECT_EQ(pieces(2), own) << hostile;
    }
}

} // namespace
