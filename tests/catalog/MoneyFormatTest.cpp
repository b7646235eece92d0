#include "catalog/MoneyFormat.h"

#include "catalog/Money.h"

#include <gtest/gtest.h>

namespace loom
{

namespace
{

struct Row {
    AppLanguage language;
    double amount;
    const char* currency;
    const char* text;
};

/// Without what cannot be seen: marks of direction, and blanks of every width as plain ones.
std::string visible(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("[\u200e\u200f\u061c]")));
    return text.replace(QRegularExpression(QStringLiteral("[\u00a0\u202f]")), QStringLiteral(" ")).toStdString();
}

} // namespace

TEST(MoneyFormatTest, PricesAreWrittenAsTheLanguageDoesAndWithTheDigitsOfTheCurrency)
{
    for (const Row& row : {
             Row{AppLanguage::English, 248, "USD", "$248.00"},
             Row{AppLanguage::English, 1234567.5, "EUR", "€1,234,567.50"},
             Row{AppLanguage::English, 48000, "JPY", "¥48,000"},
             Row{AppLanguage::English, 12.345, "KWD", "KWD 12.345"},
             Row{AppLanguage::English, -5, "USD", "-$5.00"},
             Row{AppLanguage::German, 1234.5, "EUR", "1.234,50 €"},
             Row{AppLanguage::French, 1234.5, "EUR", "1 234,50 €"},
             Row{AppLanguage::Japanese, 48000, "JPY", "￥48,000"},
             Row{AppLanguage::ZhHant, 48, "TWD", "$48.00"},
             Row{AppLanguage::Hebrew, 48, "ILS", "48.00 ₪"},
             Row{AppLanguage::Hindi, 1234567, "INR", "₹12,34,567.00"},
             Row{AppLanguage::English, 5, "XQZ", "XQZ 5.00"},
             Row{AppLanguage::English, 5, "", "5.00"},
             Row{AppLanguage::English, 5.678, "credits", "5.68 credits"},
         }) {
        EXPECT_EQ(visible(MoneyFormat(row.language)
                              .text({.amount = row.amount, .currencyCode = QString::fromUtf8(row.currency)})),
                  row.text)
            << appLanguageCode(row.language).toStdString();
    }
}

TEST(MoneyFormatTest, WhereLinesBeginOnTheRightASignStaysWithItsLetters)
{
    const auto endsWithMark = [](AppLanguage language, const char* currency) {
        return MoneyFormat(language)
            .text({.amount = 48, .currencyCode = QString::fromLatin1(currency)})
            .endsWith(QChar(0x200e));
    };
    EXPECT_TRUE(endsWithMark(AppLanguage::Arabic, "USD"));
    EXPECT_TRUE(endsWithMark(AppLanguage::Hebrew, "HKD"));
    EXPECT_FALSE(endsWithMark(AppLanguage::Arabic, "EUR"));
    EXPECT_FALSE(endsWithMark(AppLanguage::Arabic, "SAR"));
    EXPECT_FALSE(endsWithMark(AppLanguage::Thai, "USD"));
}

// Its letters and its sign stay together, and on the side that a price above zero has them on.
TEST(MoneyFormatTest, ACurrencyStandsOnTheSameSideOfANumberBelowZero)
{
    const MoneyFormat arabic(AppLanguage::Arabic);
    for (const double amount : {31.2, -31.2}) {
        const QString text = arabic.text({.amount = amount, .currencyCode = QStringLiteral("USD")});
        EXPECT_TRUE(text.startsWith(QChar(0x200f)) && text.endsWith(QStringLiteral("US$\u200e"))) << amount;
        EXPECT_EQ(text.contains(QStringLiteral("\u200f\u00a0US$")), amount < 0);
    }
}

} // namespace loom
