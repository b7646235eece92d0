/** The documents as the application sends them, byte for byte where the wire matters. */
export const listItem =
  'fragment ListItem on Product {\n  id\n  handle\n  title\n  vendor\n  tags\n  availableForSale\n  featuredImage { url }\n  createdAt\n' +
  '  priceRange { minVariantPrice { amount currencyCode } }\n  compareAtPriceRange { minVariantPrice { amount currencyCode } }\n' +
  '  styleVariants: variants(first: 10) { nodes { image { url } } }\n  cardImages: images(first: 4) { nodes { url } }\n}';

const metafields = [
  ['custom', 'specs'], ['custom', 'highlights'], ['custom', 'composition'], ['custom', 'aeo_details'], ['custom', 'presale'],
  ['custom', 'reviews'], ['custom', 'source_item_id'], ['pdp', 'topcartsize'], ['reviews', 'rating'], ['reviews', 'rating_count'],
];

const productDetail =
  'fragment ProductDetail on Product {\n  ...ListItem\n  description\n  descriptionHtml\n  productType\n  collections(first: 10) { nodes { handle } }\n' +
  '  images(first: 30) { nodes { url } }\n  options { name optionValues { name } }\n  variants(first: 100) { nodes { id title availableForSale ' +
  'quantityAvailable price { amount currencyCode } compareAtPrice { amount currencyCode } selectedOptions { name value } image { url } } }\n' +
  `  metafields(identifiers: [${metafields.map(([namespace, key]) => `{namespace: "${namespace}", key: "${key}"}`).join(', ')}]) { namespace key type value }\n}`;

const cartFields =
  'fragment CartFields on Cart {\n  id\n  checkoutUrl\n  attributes { key value }\n  totalQuantity\n  discountCodes { code applicable }\n' +
  '  cost { subtotalAmount { amount currencyCode } totalAmount { amount currencyCode } }\n  lines(first: 100) { nodes { id quantity ' +
  'cost { totalAmount { amount currencyCode } } merchandise { ... on ProductVariant { id title availableForSale price { amount currencyCode } ' +
  'compareAtPrice { amount currencyCode } selectedOptions { name value } image { url } product { id title handle vendor } } } } }\n}';

const filters = 'filters { id label type values { id label count input } }';
const page = 'pageInfo { hasNextPage endCursor }';

function inContext(kind, name, declarations, selection, fragments = '') {
  const own = declarations ? `${declarations}, ` : '';
  return `${fragments}${kind} ${name}(${own}$country: CountryCode, $language: LanguageCode) @inContext(country: $country, language: $language) {\n  ${selection}\n}`;
}

function cartMutation(name, declarations, field) {
  return inContext('mutation', name, declarations, `${field} { cart { ...CartFields } userErrors { message } }`, `${cartFields}\n`);
}

/** One aliased field per handle, as a batch asks. */
function batch(name, handles, selection) {
  const declared = handles.map((_, place) => `$h${place}: String!`).join(', ');
  const fields = handles.map((_, place) => `p${place}: product(handle: $h${place}) { handle ${selection} }`).join('\n');
  const variables = Object.fromEntries(handles.map((handle, place) => [`h${place}`, handle]));
  return [`query ${name}($country: CountryCode, ${declared}) @inContext(country: $country) {\n  ${fields}\n}`, variables];
}

export const cardAvailability = (handles) => batch('CardAvailability', handles, 'availableForSale');
export const searchCardImages = (handles) => batch('SearchCardImages', handles, 'images(first: 4) { nodes { url } }');

export function collectionProbe(handles) {
  const fields = handles.map((handle, place) =>
    `c${place}: collection(handle: ${JSON.stringify(handle)}) { handle title image { url } firstProduct: products(first: 1) { nodes { featuredImage { url } } } }`);
  return `query CollectionProbe($country: CountryCode, $language: LanguageCode) @inContext(country: $country, language: $language) {\n${fields.join('\n')}\n}`;
}

export const operations = {
  Product: inContext('query', 'Product', '$handle: String!', 'product(handle: $handle) { ...ProductDetail }', `${listItem}\n${productDetail}\n`),
  ProductsByIDs: inContext('query', 'ProductsByIDs', '$ids: [ID!]!', 'nodes(ids: $ids) { ... on Product { ...ListItem } }', `${listItem}\n`),
  LivePrices: inContext('query', 'LivePrices', '$ids: [ID!]!', 'nodes(ids: $ids) { ... on Product { handle availableForSale priceRange { minVariantPrice { amount } } } }'),
  Recommendations: inContext('query', 'Recommendations', '$productId: ID!', 'productRecommendations(productId: $productId) { ...ListItem }', `${listItem}\n`),
  Products: inContext('query', 'Products', '$first: Int!, $after: String, $query: String, $sortKey: ProductSortKeys, $reverse: Boolean',
    `products(first: $first, after: $after, query: $query, sortKey: $sortKey, reverse: $reverse) { nodes { ...ListItem } ${page} }`, `${listItem}\n`),
  SkuImage: 'query SkuImage($handle: String!) { product(handle: $handle) { featuredImage { url } variants(first: 100) { nodes { title image { url } } } } }',
  CollectionProducts: inContext('query', 'CollectionProducts',
    '$handle: String!, $first: Int!, $after: String, $filters: [ProductFilter!], $sortKey: ProductCollectionSortKeys, $reverse: Boolean',
    `collection(handle: $handle) { id handle title image { url } products(first: $first, after: $after, filters: $filters, sortKey: $sortKey, reverse: $reverse) { nodes { ...ListItem } ${page} ${filters} } }`, `${listItem}\n`),
  CollectionProductCount:
    'query CollectionProductCount($handle: String!, $after: String, $filters: [ProductFilter!], $country: CountryCode) @inContext(country: $country) ' +
    `{ collection(handle: $handle) { products(first: 250, after: $after, filters: $filters) { nodes { id } ${page} } } }`,
  Countries:
    'query Countries($language: LanguageCode) @inContext(language: $language) {\n  localization { availableCountries { isoCode name currency { isoCode } } }\n}',
  RateSample:
    'query RateSample($country: CountryCode) @inContext(country: $country) {\n  products(first: 10, sortKey: PRICE, reverse: true) {\n    nodes { priceRange { minVariantPrice { amount currencyCode } } }\n  }\n}',
  GetCart: inContext('query', 'GetCart', '$cartId: ID!', 'cart(id: $cartId) { ...CartFields }', `${cartFields}\n`),
  CartCreate: cartMutation('CartCreate', '$input: CartInput!', 'cartCreate(input: $input)'),
  CartLinesAdd: cartMutation('CartLinesAdd', '$cartId: ID!, $lines: [CartLineInput!]!', 'cartLinesAdd(cartId: $cartId, lines: $lines)'),
  CartLinesUpdate: cartMutation('CartLinesUpdate', '$cartId: ID!, $lines: [CartLineUpdateInput!]!', 'cartLinesUpdate(cartId: $cartId, lines: $lines)'),
  CartLinesRemove: cartMutation('CartLinesRemove', '$cartId: ID!, $lineIds: [ID!]!', 'cartLinesRemove(cartId: $cartId, lineIds: $lineIds)'),
  ApplyDiscount: cartMutation('ApplyDiscount', '$cartId: ID!, $codes: [String!]!', 'cartDiscountCodesUpdate(cartId: $cartId, discountCodes: $codes)'),
  CartAppAttribution: cartMutation('CartAppAttribution', '$cartId: ID!, $attributes: [AttributeInput!]!', 'cartAttributesUpdate(cartId: $cartId, attributes: $attributes)'),
  CartBuyerIdentity: cartMutation('CartBuyerIdentity', '$cartId: ID!, $buyerIdentity: CartBuyerIdentityInput!', 'cartBuyerIdentityUpdate(cartId: $cartId, buyerIdentity: $buyerIdentity)'),
};
