#include "stylist/WardrobeSlots.h"

#include "base/FoldedText.h"

#include <QHash>
#include <QRegularExpression>

#include <optional>

namespace loom
{

namespace
{

struct SlotWords {
    WardrobeSlot slot;
    const char* words; ///< in small letters and in the singular, unless there is none
};

/// Nouns for what one wears. Extras are here so that a "bag charm" is not taken for a bag.
constexpr SlotWords slotWords[] = {
    {WardrobeSlot::Outerwear, "coat overcoat raincoat trenchcoat trench jacket blazer parka anorak puffer gilet cape "
                              "poncho bomber windbreaker outerwear cardigan cardi kimono peacoat duster shacket"},
    {WardrobeSlot::Top, "top shirt blouse tee tshirt polo sweater jumper pullover knit knitwear sweatshirt hoodie "
                        "tank camisole cami bodysuit tunic vest turtleneck henley corset bustier crewneck overshirt"},
    {WardrobeSlot::Bottom, "bottom trouser trousers pant pants jean jeans denim skirt miniskirt short shorts legging "
                           "leggings chino chinos culotte culottes jogger joggers sweatpants slacks bermudas skort"},
    {WardrobeSlot::Dress, "dress gown sundress minidress jumpsuit playsuit romper dungarees onepiece swimsuit qipao "
                          "cheongsam caftan kaftan abaya pinafore"},
    {WardrobeSlot::Shoes, "shoe boot bootie sneaker trainer sandal heel loafer slipper pump mule flat flats oxford "
                          "brogue espadrille clog stiletto footwear ballerina derby moccasin slingback wedge"},
    {WardrobeSlot::Bag, "bag handbag tote clutch backpack purse satchel crossbody hobo pouch briefcase rucksack "
                        "minaudiere duffle duffel holdall baguette"},
    {WardrobeSlot::Extra, "hat cap beanie beret scarf shawl glove belt tie sock tights jewellery jewelry necklace "
                          "earring bracelet ring brooch watch sunglasses glasses wallet cardholder charm strap "
                          "umbrella bra underwear lingerie bikini kit insole lace keyring accessory accessories"},
};

QHash<QString, WardrobeSlot> slotsByWord()
{
    QHash<QString, WardrobeSlot> known;
    for (const auto& [slot, words] : slotWords) {
        for (const QString& word : QString::fromLatin1(words).split(u' '))
            known.insert(word, slot);
    }
    return known;
}

std::optional<WardrobeSlot> slotOfWord(const QString& word)
{
    static const QHash<QString, WardrobeSlot> known = slotsByWord();
    for (const QLatin1String ending : {QLatin1String(""), QLatin1String("s"), QLatin1String("es")}) {
        if (!word.endsWith(ending))
            continue;
        if (const auto found = known.constFind(word.chopped(ending.size())); found != known.cend())
            return *found;
    }
    return std::nullopt;
}

/// The last word that names something to wear, in English the noun: a "shirt dress" is a dress, and so is a dress
/// "with a belt".
std::optional<WardrobeSlot> slotIn(const QString& text)
{
    constexpr qsizetype longestText = 400;
    static const QStringList asides{QStringLiteral("with"), QStringLiteral("in"), QStringLiteral("for"),
                                    QStringLiteral("by"), QStringLiteral("from")};
    std::optional<WardrobeSlot> slot;
    for (const QString& word : FoldedText::fold(text.left(longestText)).split(u' ', Qt::SkipEmptyParts)) {
        if (slot && asides.contains(word))
            break;
        if (const auto named = slotOfWord(word))
            slot = named;
    }
    return slot;
}

} // namespace

WardrobeSlot guessedSlot(const QString& productType, const QString& title, const QStringList& tags)
{
    for (const QString& text : QStringList{productType, title} + tags) {
        if (const auto slot = slotIn(text))
            return *slot;
    }
    return WardrobeSlot::Extra;
}

} // namespace loom
