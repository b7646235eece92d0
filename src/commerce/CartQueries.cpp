#include "commerce/CartQueries.h"

namespace loom::queries
{

namespace
{

const char* const cartFields = R"(fragment CartFields on Cart {
  id
  checkoutUrl
  attributes { key value }
  totalQuantity
  discountCodes { code applicable }
  cost {
    subtotalAmount { amount currencyCode }
    totalAmount { amount currencyCode }
  }
  lines(first: 100) {
    nodes {
      id
      quantity
      cost { totalAmount { amount currencyCode } }
      merchandise {
        ... on ProductVariant {
          id
          title
          availableForSale
          price { amount currencyCode }
          compareAtPrice { amount currencyCode }
          selectedOptions { name value }
          image { url }
          product { id title handle vendor }
        }
      }
    }
  }
})";

/// "mutation Name(parameters, $country …) { field(arguments) { cart, userErrors } }"
QString mutation(const char* name, const char* parameters, const char* field, const char* arguments)
{
    return QString::fromLatin1(cartFields) +
           QStringLiteral("\nmutation %1(%2, $country: CountryCode, $language: LanguageCode)\n"
                          "@inContext(country: $country, language: $language) {\n"
                          "  %3(%4) { cart { ...CartFields } userErrors { message } }\n}")
               .arg(QLatin1String(name), QLatin1String(parameters), QLatin1String(field), QLatin1String(arguments));
}

} // namespace

QString getCart()
{
    return QString::fromLatin1(cartFields) +
           QStringLiteral("\nquery GetCart($cartId: ID!, $country: CountryCode, $language: LanguageCode)\n"
                          "@inContext(country: $country, language: $language) {\n"
                          "  cart(id: $cartId) { ...CartFields }\n}");
}

QString cartCreate()
{
    return mutation("CartCreate", "$input: CartInput!", "cartCreate", "input: $input");
}

QString cartLinesAdd()
{
    return mutation("CartLinesAdd", "$cartId: ID!, $lines: [CartLineInput!]!", "cartLinesAdd",
                    "cartId: $cartId, lines: $lines");
}

QString cartLinesUpdate()
{
    return mutation("CartLinesUpdate", "$cartId: ID!, $lines: [CartLineUpdateInput!]!", "cartLinesUpdate",
                    "cartId: $cartId, lines: $lines");
}

QString cartLinesRemove()
{
    return mutation("CartLinesRemove", "$cartId: ID!, $lineIds: [ID!]!", "cartLinesRemove",
                    "cartId: $cartId, lineIds: $lineIds");
}

QString applyDiscount()
{
    return mutation("ApplyDiscount", "$cartId: ID!, $codes: [String!]!", "cartDiscountCodesUpdate",
                    "cartId: $cartId, discountCodes: $codes");
}

QString cartAppAttribution()
{
    return mutation("CartAppAttribution", "$cartId: ID!, $attributes: [AttributeInput!]!", "cartAttributesUpdate",
                    "cartId: $cartId, attributes: $attributes");
}

QString cartBuyerIdentity()
{
    return mutation("CartBuyerIdentity", "$cartId: ID!, $buyerIdentity: CartBuyerIdentityInput!",
                    "cartBuyerIdentityUpdate", "cartId: $cartId, buyerIdentity: $buyerIdentity");
}

} // namespace loom::queries
