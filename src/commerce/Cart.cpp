#include "commerce/Cart.h"

#include "catalog/StorefrontReading.h"

#include <QHash>
#include <QJsonArray>

namespace loom
{

namespace
{

QList<SelectedOption> decodeOptions(const JsonReader& json)
{
    QList<SelectedOption> options;
    for (const JsonReader& option : json.optionalList("selectedOptions"))
        options.append({.name = option.text("name"), .value = option.text("value")});
    return options;
}

CartLine decodeLine(const JsonReader& json)
{
    const JsonReader merchandise = json.object("merchandise");
    const JsonReader product = merchandise.object("product");
    CartLine line;
    line.id = json.text("id");
    line.quantity = json.integer("quantity");
    line.lineTotal = decodeMoney(json.object("cost").object("totalAmount"));
    line.variantID = merchandise.text("id");
    line.variantTitle = merchandise.optionalText("title").value_or(QString());
    line.availableForSale = merchandise.optionalBoolean("availableForSale").value_or(false);
    line.unitPrice = decodeMoney(merchandise.object("price"));
    line.compareAtPrice = decodeOptionalMoney(merchandise, "compareAtPrice");
    line.selectedOptions = decodeOptions(merchandise);
    line.imageURL = readImageAddress(merchandise, "image");
    line.productID = product.text("id");
    line.productTitle = product.text("title");
    line.productHandle = product.text("handle");
    line.vendor = product.optionalText("vendor").value_or(QString());
    return line;
}

/// What is merchandise of another kind, or none any more, comes as an empty object.
bool hasMerchandise(const JsonReader& line)
{
    const auto merchandise = line.optionalObject("merchandise");
    return merchandise && merchandise->has("id");
}

CartLine decodeStoredLine(const JsonReader& json)
{
    CartLine line;
    line.id = json.text("id");
    line.quantity = json.integer("quantity");
    line.variantID = json.text("variantID");
    line.variantTitle = json.text("variantTitle");
    line.unitPrice = decodeMoney(json.object("unitPrice"));
    line.compareAtPrice = decodeOptionalMoney(json, "compareAtPrice");
    line.lineTotal = decodeMoney(json.object("lineTotal"));
    line.imageURL = json.optionalText("imageURL");
    line.productID = json.text("productID");
    line.productTitle = json.text("productTitle");
    line.productHandle = json.text("productHandle");
    line.vendor = json.text("vendor");
    line.availableForSale = json.boolean("availableForSale");
    line.selectedOptions = decodeOptions(json);
    return line;
}

QJsonObject toJson(const CartLine& line)
{
    QJsonArray options;
    for (const SelectedOption& option : line.selectedOptions)
        options.append(QJsonObject{{QStringLiteral("name"), option.name}, {QStringLiteral("value"), option.value}});
    QJsonObject json{{QStringLiteral("id"), line.id},
                     {QStringLiteral("quantity"), line.quantity},
                     {QStringLiteral("variantID"), line.variantID},
                     {QStringLiteral("variantTitle"), line.variantTitle},
                     {QStringLiteral("unitPrice"), toJson(line.unitPrice)},
                     {QStringLiteral("lineTotal"), toJson(line.lineTotal)},
                     {QStringLiteral("productID"), line.productID},
                     {QStringLiteral("productTitle"), line.productTitle},
                     {QStringLiteral("productHandle"), line.productHandle},
                     {QStringLiteral("vendor"), line.vendor},
                     {QStringLiteral("availableForSale"), line.availableForSale},
                     {QStringLiteral("selectedOptions"), options}};
    if (line.compareAtPrice)
        json.insert(QStringLiteral("compareAtPrice"), toJson(*line.compareAtPrice));
    if (line.imageURL)
        json.insert(QStringLiteral("imageURL"), *line.imageURL);
    return json;
}

/// What the wire and the stored record write alike.
void decodeCommon(const JsonReader& json, Cart& cart)
{
    cart.id = json.text("id");
    cart.totalQuantity = json.integer("totalQuantity");
    for (const JsonReader& attribute : json.optionalList("attributes"))
        cart.attributes.push_back(
            {.key = attribute.text("key"), .value = attribute.optionalText("value").value_or(QString())});
    for (const JsonReader& code : json.optionalList("discountCodes"))
        cart.discountCodes.push_back({.code = code.text("code"), .applicable = code.boolean("applicable")});
}

/// Exactly as it came: what is wrong with it is judged before it is opened.
QUrl decodeAddress(const JsonReader& json, std::string_view key)
{
    return QUrl(json.text(key));
}

} // namespace

const CartLine* Cart::line(const QString& lineID) const
{
    const auto found = std::ranges::find(lines, lineID, &CartLine::id);
    return found == lines.end() ? nullptr : &*found;
}

const CartLine* Cart::lineOfVariant(const QString& wantedVariantID) const
{
    const auto found = std::ranges::find(lines, wantedVariantID, &CartLine::variantID);
    return found == lines.end() ? nullptr : &*found;
}

Cart decodeCart(const JsonReader& json)
{
    Cart cart;
    decodeCommon(json, cart);
    cart.checkoutURL = decodeAddress(json, "checkoutUrl");
    const JsonReader cost = json.object("cost");
    cart.subtotal = decodeMoney(cost.object("subtotalAmount"));
    cart.total = decodeMoney(cost.object("totalAmount"));
    for (const JsonReader& line : json.object("lines").list("nodes")) {
        if (hasMerchandise(line))
            cart.lines.push_back(decodeLine(line));
    }
    return cart;
}

Cart decodeStoredCart(const JsonReader& json)
{
    Cart cart;
    decodeCommon(json, cart);
    cart.checkoutURL = decodeAddress(json, "checkoutURL");
    cart.subtotal = decodeMoney(json.object("subtotal"));
    cart.total = decodeMoney(json.object("total"));
    for (const JsonReader& line : json.list("lines"))
        cart.lines.push_back(decodeStoredLine(line));
    return cart;
}

QJsonObject toJson(const Cart& cart)
{
    QJsonArray attributes;
    for (const CartAttribute& attribute : cart.attributes)
        attributes.append(
            QJsonObject{{QStringLiteral("key"), attribute.key}, {QStringLiteral("value"), attribute.value}});
    QJsonArray codes;
    for (const CartDiscountCode& code : cart.discountCodes)
        codes.append(QJsonObject{{QStringLiteral("code"), code.code}, {QStringLiteral("applicable"), code.applicable}});
    QJsonArray lines;
    for (const CartLine& line : cart.lines)
        lines.append(toJson(line));
    return {{QStringLiteral("id"), cart.id},
            {QStringLiteral("checkoutURL"), cart.checkoutURL.toString(QUrl::FullyEncoded)},
            {QStringLiteral("attributes"), attributes},
            {QStringLiteral("totalQuantity"), cart.totalQuantity},
            {QStringLiteral("discountCodes"), codes},
            {QStringLiteral("subtotal"), toJson(cart.subtotal)},
            {QStringLiteral("total"), toJson(cart.total)},
            {QStringLiteral("lines"), lines}};
}

std::size_t qHash(const CartLine& line, std::size_t seed)
{
    return qHashMulti(seed, line.id, line.quantity, line.variantID);
}

std::size_t qHash(const Cart& cart, std::size_t seed)
{
    return qHashRange(cart.lines.begin(), cart.lines.end(), qHashMulti(seed, cart.id, cart.totalQuantity));
}

const std::vector<CartAttribute>& appAttribution()
{
    static const std::vector<CartAttribute> attribution{
        {.key = QStringLiteral("source"), .value = QStringLiteral("app")},
        {.key = QStringLiteral("platform"), .value = QStringLiteral("macos")},
    };
    return attribution;
}

bool hasAppAttribution(const Cart& cart)
{
    return std::ranges::all_of(appAttribution(), [&cart](const CartAttribute& wanted) {
        return std::ranges::any_of(cart.attributes, [&wanted](const CartAttribute& attribute) {
            return attribute.key.toLower() == wanted.key && attribute.value == wanted.value;
        });
    });
}

} // namespace loom
