#pragma once

#include "base/Result.h"
#include "catalog/SizeCell.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace loom
{

/// How the shopper likes clothes to sit.
enum class MiraFit { Regular, Loose, Fitted };

/// The shopper's body, in metric whatever it was entered in.
struct MiraMeasurements {
    /// The sheet as it was filled in. Empty fields are left out.
    struct Entry {
        SizeUnit unit = SizeUnit::Metric; ///< which of the fields count, and what their numbers mean
        QString height;                   ///< centimetres
        QString feet;                     ///< in place of `height` for imperial, with `inches`
        QString inches;
        QString weight; ///< kilograms or pounds
        QString bust;   ///< centimetres or inches, as those below
        QString waist;
        QString hip;
        MiraFit fit = MiraFit::Regular;

        bool operator==(const Entry&) const = default;
    };
    enum class Problem {
        HeightOrWeight, ///< missing, no number, or not that of a person
        Other,          ///< one of the others
    };
    struct Flaw {
        Problem problem = Problem::HeightOrWeight;
        QStringList fields; ///< of the entry that are to blame, by their names here

        bool operator==(const Flaw&) const = default;
    };
    /// A height as imperial writes it.
    struct FeetAndInches {
        QString feet;
        QString inches;

        bool operator==(const FeetAndInches&) const = default;
    };

    SizeUnit unit = SizeUnit::Metric; ///< the shopper's
    double height = 0;                ///< centimetres
    double weight = 0;                ///< kilograms
    std::optional<double> bust;       ///< centimetres, as those below
    std::optional<double> waist;
    std::optional<double> hip;
    MiraFit fit = MiraFit::Regular;

    bool operator==(const MiraMeasurements&) const = default;

    [[nodiscard]] static Result<MiraMeasurements, Flaw> fromEntry(const Entry& entry);
    /// Whether these are the measures of a person, wherever they come from.
    [[nodiscard]] bool isPlausible() const;
    /// The sheet with these in it, in `shownUnit`.
    [[nodiscard]] Entry entry(SizeUnit shownUnit) const;
    /// What the shopper tells the stylist.
    [[nodiscard]] QString message() const;

    // Single fields: what was entered in metric, none where it is empty or no number; what is shown of it. Whether it
    // is plausible is not looked at.

    [[nodiscard]] static std::optional<double> enteredHeight(const Entry& entry);
    [[nodiscard]] static std::optional<double> enteredWeight(const QString& text, SizeUnit unit);
    [[nodiscard]] static std::optional<double> enteredGirth(const QString& text, SizeUnit unit);
    [[nodiscard]] static FeetAndInches shownHeight(double centimetres);
    [[nodiscard]] static QString shownWeight(double kilograms, SizeUnit unit);
    [[nodiscard]] static QString shownGirth(double centimetres, SizeUnit unit);
};

/// The sentence the shopper reads, in the language of the window.
[[nodiscard]] QString errorDescription(MiraMeasurements::Problem problem);

/// To one decimal, which is left out when it is zero: "170.2", "65".
[[nodiscard]] QString shownMeasure(double value);

/// "regular", "loose" or "fitted"; what is none of them is regular.
[[nodiscard]] QString miraFitName(MiraFit fit);
[[nodiscard]] MiraFit miraFitFrom(const QString& name);
/// "Regular", in the language of the window.
[[nodiscard]] QString miraFitLabel(MiraFit fit);

} // namespace loom
