#pragma once

#include <QDate>

class QLocale;

namespace loom
{

inline constexpr qsizetype longestName = 100;

/// What is wrong with a field of the profile.
enum class ProfileFlaw { None, NameTooLong, NotAPhone, NotADate, NotInThePast };

[[nodiscard]] ProfileFlaw checkName(const QString& name);
/// Digits, blanks, "+", "-" and round brackets; nothing at all is right, too.
[[nodiscard]] ProfileFlaw checkPhone(const QString& phone);
/// `text` as parseDay() reads it; nothing at all is right, too.
[[nodiscard]] ProfileFlaw checkBirthday(const QString& text, const QLocale& locale, QDate today);

/// The sentence for it, in the language of the window; `locale` is for the example of a date.
[[nodiscard]] QString flawText(ProfileFlaw flaw, const QLocale& locale);

/// A day as people of that place write it in figures, with the year in full.
[[nodiscard]] QString dayText(QDate day, const QLocale& locale);
/// Some day, written so.
[[nodiscard]] QString exampleDayText(const QLocale& locale);
/// A month and its year, in the order of the place: "April 1991", "1991年4月". Within a sentence many languages inflect
/// the month, on its own they do not.
enum class MonthForm { InSentence, OnItsOwn };
[[nodiscard]] QString monthText(QDate day, const QLocale& locale, MonthForm form);
/// The day that was typed: three numbers in the order of the place, or year first, with the year in full and anything
/// between them. Not valid where it is none.
[[nodiscard]] QDate parseDay(const QString& text, const QLocale& locale);

} // namespace loom
