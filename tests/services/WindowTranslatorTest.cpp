#include "services/WindowTranslator.h"

#include "services/PseudoTranslator.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QtConcurrent>
#include <gtest/gtest.h>

using namespace loom;

namespace
{

class WindowTranslatorTest : public testing::Test
{
protected:
    WindowTranslatorTest() { QCoreApplication::installTranslator(&translator); }

    static QString pieces(int count) { return QCoreApplication::translate("Loomstreet", "%Ln pieces", nullptr, count); }
    static QString close() { return QCoreApplication::translate("Loomstreet", "Close"); }

    WindowTranslator translator;
};

TEST_F(WindowTranslatorTest, EveryLanguageIsBroughtAlong)
{
    for (std::size_t i = 0; i < appLanguageCodes.size(); ++i)
        EXPECT_TRUE(translator.setLanguage(static_cast<AppLanguage>(i))) << appLanguageCodes.at(i);
}

TEST_F(WindowTranslatorTest, ANumberTakesTheFormOfItsLanguage)
{
    EXPECT_EQ(pieces(1), QStringLiteral("1 piece"));
    EXPECT_EQ(pieces(2), QStringLiteral("2 pieces"));
    EXPECT_EQ(close(), QStringLiteral("Close"));
    // So many forms are there at least of these numbers.
    struct Row {
        AppLanguage language;
        QList<int> numbers;
        int forms;
    };
    for (const Row& row : {Row{AppLanguage::German, {0, 1, 2, 5}, 2}, Row{AppLanguage::Polish, {1, 2, 5, 22}, 2},
                           Row{AppLanguage::Arabic, {0, 1, 2, 5, 11, 100}, 4}, Row{AppLanguage::Japanese, {1, 2}, 1}}) {
        ASSERT_TRUE(translator.setLanguage(row.language));
        QSet<QString> forms;
        for (const int number : row.numbers)
            forms.insert(pieces(number).remove(QRegularExpression(QStringLiteral("\\d"))).trimmed());
        EXPECT_GE(forms.size(), row.forms) << appLanguageCode(row.language).toStdString();
        EXPECT_NE(close(), QStringLiteral("Close"));
    }
    translator.setLanguage(AppLanguage::English);
    EXPECT_EQ(close(), QStringLiteral("Close"));
}

TEST_F(WindowTranslatorTest, WhatALanguageLacksIsEnglish)
{
    ASSERT_TRUE(translator.setLanguage(AppLanguage::German));
    EXPECT_EQ(QCoreApplication::translate("Loomstreet", "Nobody ever said this"),
              QStringLiteral("Nobody ever said this"));
    EXPECT_EQ(translator.translate("AnotherContext", "Close"), QString());
}

TEST_F(WindowTranslatorTest, ASentenceThatBeginsWithANameKeepsItsDirection)
{
    const auto more = [] {
        return QCoreApplication::translate("Loomstreet", "%1 and %Ln more", nullptr, 2)
            .arg(QStringLiteral("Silk dress"));
    };
    EXPECT_FALSE(more().isRightToLeft());
    for (const AppLanguage language : {AppLanguage::Arabic, AppLanguage::Hebrew}) {
        ASSERT_TRUE(translator.setLanguage(language));
        EXPECT_TRUE(more().isRightToLeft()) << more().toStdString();
        EXPECT_FALSE(close().startsWith(QChar(0x200f)));
        // A name is apart from what stands around it.
        EXPECT_TRUE(more().contains(QString::fromUtf8("\u2068Silk dress\u2069"))) << more().toStdString();
    }
}

TEST_F(WindowTranslatorTest, TextsAreLookedUpWhileTheLanguageChanges)
{
    ASSERT_TRUE(translator.setLanguage(AppLanguage::German));
    const QString german = close();
    std::atomic<bool> isOver = false;
    const QFuture<int> strange = QtConcurrent::run([&] {
        int count = 0;
        while (!isOver) {
            const QString text = close();
            count += text != german && text != QLatin1String("Close") ? 1 : 0;
        }
        return count;
    });
    for (int i = 0; i < 200; ++i)
        translator.setLanguage(i % 2 == 0 ? AppLanguage::English : AppLanguage::German);
    isOver = true;
    EXPECT_EQ(strange.result(), 0);
}

TEST(PseudoTranslatorTest, ATextIsLongerAccentedAndBetweenBrackets)
{
    struct Row {
        const char* text;
        const char* pseudo;
    };
    for (const Row& row : {
             Row{"Bag", "[Ḃååĝ~]"},
             Row{" Add to bag\n", " [Àåđđ ţöö ḃååĝ~]\n"},
             Row{"%1 of %L2", "[%1 ööḟ %L2~]"},
             Row{"%Ln pieces", "[%Ln þîîééçééš]"},
             Row{"<b>%n</b> &amp; %12", "[<b>%n</b> &amp; %12~]"},
             Row{"", ""},
             Row{"  ", "  "},
             Row{"100%", "[100%~~]"},
         })
        EXPECT_EQ(pseudoText(QString::fromUtf8(row.text)).toStdString(), row.pseudo);
    const QString sentence = QStringLiteral("You appear to be offline. Check your connection and try again.");
    EXPECT_GE(5 * pseudoText(sentence).size(), 7 * sentence.size());
}

TEST(PseudoTranslatorTest, NumbersTakeTheEnglishFormsAndOtherContextsAreLeftAlone)
{
    const WindowTranslator english;
    PseudoTranslator pseudo(english);
    QCoreApplication::installTranslator(&pseudo);
    const QString one = QCoreApplication::translate("Loomstreet", "%Ln pieces", nullptr, 1);
    EXPECT_TRUE(one.startsWith(QStringLiteral("[1 þî"))) << one.toStdString();
    EXPECT_FALSE(one.contains(QStringLiteral("š"))) << one.toStdString();
    EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Open"), QStringLiteral("Open"));
}

} // namespace
