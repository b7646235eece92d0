#include "stylist/MiraMeasurements.h"

#include "stylist/EnteredNumber.h"

#include <QCoreApplication>

#include <array>
#include <charconv>
#include <cmath>

namespace loom
{

namespace
{

constexpr double centimetresPerInch = 2.54;
constexpr double inchesPerFoot = 12;
constexpr double kilogramsPerPound = 0.45359237;

constexpr std::array fitNames{"regular", "loose", "fitted"};

struct Range {
    double least;
    double greatest;

    [[nodiscard]] bool contains(double value) const { return value >= least && value <= greatest; }
};
constexpr Range heights{90, 250};
constexpr Range weights{25, 300};
constexpr Range girths{40, 200};

/// The girths, by the names of their fields, in the order in which they are said.
struct Girth {
    const char* name;
    QString MiraMeasurements::Entry::* text;
    std::optional<double> MiraMeasurements::* value;
};
constexpr std::array<Girth, 3> girthFields{{{"bust", &MiraMeasurements::Entry::bust, &MiraMeasurements::bust},
                                            {"waist", &MiraMeasurements::Entry::waist, &MiraMeasurements::waist},
                                            {"hip", &MiraMeasurements::Entry::hip, &MiraMeasurements::hip}}};

bool isWithin(std::optional<double> value, const Range& range)
{
    return value && range.contains(*value);
}

} // namespace

std::optional<double> MiraMeasurements::enteredHeight(const Entry& entry)
{
    if (entry.unit == SizeUnit::Metric)
        return enteredNumber(entry.height);
    const bool hasFeet = !entry.feet.trimmed().isEmpty();
    const bool hasInches = !entry.inches.trimmed().isEmpty();
    const auto feet = hasFeet ? enteredNumber(entry.feet) : std::optional(0.0);
    const auto inches = hasInches ? enteredNumber(entry.inches) : std::optional(0.0);
    // "5.7" feet are meant as 5 feet 7 as often as not.
    if ((!hasFeet && !hasInches) || !feet || !inches || std::trunc(*feet) != *feet)
        return std::nullopt;
    return (*feet * inchesPerFoot + *inches) * centimetresPerInch;
}

std::optional<double> MiraMeasurements::enteredWeight(const QString& text, SizeUnit unit)
{
    const auto number = enteredNumber(text);
    return number && unit == SizeUnit::Imperial ? std::optional(*number * kilogramsPerPound) : number;
}

std::optional<double> MiraMeasurements::enteredGirth(const QString& text, SizeUnit unit)
{
    const auto number = enteredNumber(text);
    return number && unit == SizeUnit::Imperial ? std::optional(*number * centimetresPerInch) : number;
}

Result<MiraMeasurements, MiraMeasurements::Flaw> MiraMeasurements::fromEntry(const Entry& entry)
{
    const auto height = enteredHeight(entry);
    const auto weight = enteredWeight(entry.weight, entry.unit);
    Flaw flaw{.problem = Problem::HeightOrWeight, .fields = {}};
    if (!isWithin(height, heights))
        flaw.fields += entry.unit == SizeUnit::Metric ? QStringList{QStringLiteral("height")}
                                                      : QStringList{QStringLiteral("feet"), QStringLiteral("inches")};
    if (!isWithin(weight, weights))
        flaw.fields.append(QStringLiteral("weight"));
    if (!flaw.fields.isEmpty())
        return Unexpected(flaw);

    MiraMeasurements measurements{.unit = entry.unit, .height = *height, .weight = *weight, .fit = entry.fit};
    flaw.problem = Problem::Other;
    for (const Girth& girth : girthFields) {
        const QString& text = entry.*girth.text;
        if (text.trimmed().isEmpty())
            continue;
        measurements.*girth.value = enteredGirth(text, entry.unit);
        if (!isWithin(measurements.*girth.value, girths))
            flaw.fields.append(QLatin1String(girth.name));
    }
    if (!flaw.fields.isEmpty())
        return Unexpected(flaw);
    return measurements;
}

bool MiraMeasurements::isPlausible() const
{
    return heights.contains(height) && weights.contains(weight) &&
           std::ranges::all_of(girthFields, [this](const Girth& girth) {
               return !(this->*girth.value) || isWithin(this->*girth.value, girths);
           });
}

MiraMeasurements::Entry MiraMeasurements::entry(SizeUnit shownUnit) const
{
    Entry entry{.unit = shownUnit, .weight = shownWeight(weight, shownUnit), .fit = fit};
    if (shownUnit == SizeUnit::Metric) {
        entry.height = shownMeasure(height);
    } else {
        const FeetAndInches shown = shownHeight(height);
        entry.feet = shown.feet;
        entry.inches = shown.inches;
    }
    for (const Girth& girth : girthFields) {
        if (this->*girth.value)
            entry.*girth.text = shownGirth(*(this->*girth.value), shownUnit);
    }
    return entry;
}

QString MiraMeasurements::message() const
{
    QStringList parts{QStringLiteral("height ") + shownMeasure(height) + QStringLiteral("cm"),
                      QStringLiteral("weight ") + shownMeasure(weight) + QStringLiteral("kg")};
    for (const Girth& girth : girthFields) {
        if (this->*girth.value)
            parts.append(QLatin1String(girth.name) + u' ' + shownMeasure(*(this->*girth.value)) + QStringLiteral("cm"));
    }
    parts.append(QStringLiteral("I prefer a ") + miraFitName(fit) + QStringLiteral(" fit"));
    return QStringLiteral("📏 My measurements: ") + parts.join(QStringLiteral(", ")) +
           QStringLiteral(". What size should I take?");
}

MiraMeasurements::FeetAndInches MiraMeasurements::shownHeight(double centimetres)
{
    // Rounded before it is parted, so that there are never 12 inches.
    const double inches = std::round(centimetres / centimetresPerInch * 10) / 10;
    const double feet = std::floor(inches / inchesPerFoot);
    return {.feet = shownMeasure(feet), .inches = shownMeasure(inches - feet * inchesPerFoot)};
}

QString MiraMeasurements::shownWeight(double kilograms, SizeUnit unit)
{
    return shownMeasure(unit == SizeUnit::Imperial ? kilograms / kilogramsPerPound : kilograms);
}

QString MiraMeasurements::shownGirth(double centimetres, SizeUnit unit)
{
    return shownMeasure(unit == SizeUnit::Imperial ? centimetres / centimetresPerInch : centimetres);
}

QString errorDescription(MiraMeasurements::Problem problem)
{
    if (problem == MiraMeasurements::Problem::HeightOrWeight)
        return QCoreApplication::translate(
            "Loomstreet", "That height or weight doesn't look right. Check the numbers and the units.");
    return QCoreApplication::translate(
        "Loomstreet", "One of these measurements doesn't look right. Check the number, or leave it empty.");
}

QString shownMeasure(double value)
{
    // As "%.1f" of C rounds: what is exactly in the middle to the even digit, which Qt's own does not.
    std::array<char, 400> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed, 1).ptr;
    QString text = QString::fromLatin1(digits.data(), end - digits.data());
    if (text.endsWith(QLatin1String(".0")))
        text.chop(2);
    return text;
}

QString miraFitName(MiraFit fit)
{
    return QString::fromLatin1(fitNames.at(static_cast<std::size_t>(fit)));
}

MiraFit miraFitFrom(const QString& name)
{
    for (std::size_t i = 0; i < fitNames.size(); ++i) {
        if (name == QLatin1String(fitNames.at(i)))
            return static_cast<MiraFit>(i);
    }
    return MiraFit::Regular;
}

QString miraFitLabel(MiraFit fit)
{
    switch (fit) {
    case MiraFit::Regular:
        break;
    case MiraFit::Loose:
        return QCoreApplication::translate("Loomstreet", "Loose");
    case MiraFit::Fitted:
        return QCoreApplication::translate("Loomstreet", "Fitted");
    }
    return QCoreApplication::translate("Loomstreet", "Regular");
}

} // namespace loom
