#include "catalog/ServiceClass.h"

#include <QRegularExpression>

#include <algorithm>

namespace loom
{

ServiceClass serviceClass(const QStringList& tags, const QStringList& collectionHandles, const QString& title)
{
    static const QRegularExpression finalSale(QStringLiteral("final[ -]?sale"));
    static const QRegularExpression customMade(QStringLiteral("custom|made[ -]?to[ -]?order|personali[sz]ed"));
    static const QRegularExpression shoeTitle(QStringLiteral("shoe|boot|sneaker|sandal|heel|loafer|slipper|pump|mule"),
                                              QRegularExpression::CaseInsensitiveOption);

    QStringList lowered;
    lowered.reserve(tags.size());
    for (const QString& tag : tags)
        lowered.append(tag.toLower());
    const auto anyTag = [&lowered](const QRegularExpression& pattern) {
        return std::ranges::any_of(lowered, [&](const QString& tag) { return pattern.match(tag).hasMatch(); });
    };

    if (anyTag(finalSale))
        return ServiceClass::FinalSale;
    if (anyTag(customMade))
        return ServiceClass::CustomMade;
    const auto namesLuxury = [](const QString& handle) {
        return handle.contains(QLatin1String("luxury"));
    };
    if (lowered.contains(QLatin1String("luxury")) || std::ranges::any_of(collectionHandles, namesLuxury))
        return ServiceClass::Luxury;
    if (shoeTitle.match(title).hasMatch() || collectionHandles.contains(QLatin1String("shoes")) ||
        lowered.contains(QLatin1String("shoe")) || lowered.contains(QLatin1String("shoes")))
        return ServiceClass::Shoes;
    return ServiceClass::Standard;
}

} // namespace loom
