#include "stylist/MiraContext.h"

#include "catalog/DisplayText.h"
#include "stylist/WeatherWords.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace loom
{

namespace
{

constexpr std::array slotNames{"outerwear", "top", "bottom", "dress", "shoes", "bag", "extra"};
constexpr std::array sourceNames{"owned", "cart", "wishlist"};
constexpr qsizetype longestName = 200;

/// A name that can neither end the block it stands in nor begin another.
QString nameInBlock(const QString& name)
{
    QString line = displayLine(name, longestName);
    line.replace(u'[', u'(').replace(u']', u')').replace(u';', u',');
    return line;
}

/// A handle with one of these would make another link of the path.
bool canStandInPath(const QString& handle)
{
    return !handle.isEmpty() && std::ranges::none_of(handle, [](QChar character) {
        return character.isSpace() || !character.isPrint() || QStringView(u"/?#").contains(character);
    });
}

QString wardrobeBlock(const std::vector<WardrobeItem>& wardrobe)
{
    QStringList items;
    for (const WardrobeItem& item : wardrobe) {
        const QString title = nameInBlock(item.title);
        if (title.isEmpty())
            continue;
        QString text = title + QStringLiteral(" [") + wardrobeSlotName(item.slot);
        if (item.source != WardrobeSource::Owned)
            text += u'/' + wardrobeSourceName(item.source);
        items.append(text + u']');
        if (items.size() == static_cast<qsizetype>(MiraContext::maximumWardrobe))
            break;
    }
    if (items.isEmpty())
        return {};
    return QStringLiteral("\n[MY WARDROBE — style me using THESE pieces first, only suggest something new if a slot is "
                          "truly missing: ") +
           items.join(QStringLiteral("; ")) + u']';
}

QString weatherBlock(const MiraWeather& weather)
{
    QString text = QStringLiteral("[Weather: ") + temperatureText(weather.temperature) + QStringLiteral("°C ") +
                   weatherWord(weather.code);
    if (const QString city = nameInBlock(weather.city); !city.isEmpty())
        text += QStringLiteral(" in ") + city;
    return text + u']';
}

} // namespace

QString MiraContext::body() const
{
    QStringList pieces{words};
    if (canStandInPath(productHandle))
        pieces.append(QStringLiteral("/products/") + productHandle);
    if (const QString block = wardrobeBlock(wardrobe); !block.isEmpty())
        pieces.append(block);
    if (const QString name = nameInBlock(anchorName); !name.isEmpty())
        pieces.append(QStringLiteral("[Build the look around: ") + name + u']');
    if (weather)
        pieces.append(weatherBlock(*weather));
    return pieces.join(u'\n');
}

QString wardrobeSlotName(WardrobeSlot slot)
{
    return QString::fromLatin1(slotNames.at(static_cast<std::size_t>(slot)));
}

QString wardrobeSourceName(WardrobeSource source)
{
    return QString::fromLatin1(sourceNames.at(static_cast<std::size_t>(source)));
}

} // namespace loom
