import { description, descriptionHtml } from '../catalog/copy.mjs';
import { metafieldsOf } from '../catalog/metafields.mjs';
import { hosts } from '../hosts.mjs';
import { connect } from './connection.mjs';
import { priceIn } from './money.mjs';

const Product = {
  availableForSale: (piece) => piece.available,
  collections: (piece, args, { market }) => connect(piece.collections.filter(({ handle }) => market.sells(handle)), args),
  compareAtPriceRange: ({ earlier }, _, { market }) => ({
    minVariantPrice: priceIn(market, earlier?.lowest ?? 0),
    maxVariantPrice: priceIn(market, earlier?.highest ?? 0),
  }),
  description: (piece, { truncateAt }) => {
    const text = description(piece);
    return typeof truncateAt === 'number' && text.length > truncateAt ? `${text.slice(0, Math.max(0, truncateAt - 1))}…` : text;
  },
  descriptionHtml: (piece) => descriptionHtml(piece),
  featuredImage: (piece) => piece.images[0] ?? null,
  images: (piece, args) => connect(piece.images, args),
  isGiftCard: () => false,
  media: (piece, args) => connect(piece.images.map((image) => ({ __typename: 'MediaImage', image })), args),
  onlineStoreUrl: ({ handle }) => `https://${hosts.web}/products/${encodeURIComponent(handle)}`,
  options: (piece, { first }) => {
    const id = piece.id.replace('Product', 'ProductOption');
    const options = piece.options.map((option, place) => ({ ...option, id: `${id}${place}`, piece }));
    return typeof first === 'number' ? options.slice(0, first) : options;
  },
  priceRange: (piece, _, { market }) => ({
    minVariantPrice: priceIn(market, piece.lowest),
    maxVariantPrice: priceIn(market, piece.highest),
  }),
  publishedAt: ({ createdAt }) => createdAt,
  requiresSellingPlan: () => false,
  selectedOrFirstAvailableVariant: (piece, { selectedOptions }) =>
    (selectedOptions && variantWith(piece, selectedOptions)) ?? piece.variants.find(({ available }) => available) ?? piece.variants[0],
  seo: (piece) => ({ title: piece.title, description: description(piece).slice(0, 320) }),
  totalInventory: (piece) => piece.variants.reduce((sum, { stock }) => sum + (stock ?? 0), 0),
  variantBySelectedOptions: (piece, { selectedOptions }) => variantWith(piece, selectedOptions),
  variants: (piece, args) => connect(piece.variants, args),
  variantsCount: (piece) => ({ count: piece.variants.length, precision: 'EXACT' }),
  metafield: (piece, identifier, { catalog }) => metafield(piece, metafieldsOf(piece, catalog.calendar), identifier),
  metafields: (piece, { identifiers }, { catalog }) => {
    const fields = metafieldsOf(piece, catalog.calendar);
    return identifiers.map((identifier) => metafield(piece, fields, identifier));
  },
};

const ProductVariant = {
  availableForSale: ({ available }) => available,
  compareAtPrice: ({ compareAt }, _, { market }) => (compareAt === null ? null : priceIn(market, compareAt)),
  currentlyNotInStock: () => false,
  image: ({ image, product }) => image ?? product.images[0] ?? null,
  price: ({ price }, _, { market }) => priceIn(market, price),
  quantityAvailable: ({ stock }) => stock,
  quantityRule: () => ({ minimum: 1, maximum: null, increment: 1 }),
  requiresComponents: () => false,
  requiresShipping: () => true,
  taxable: () => true,
  weight: () => 0.6,
  weightUnit: () => 'KILOGRAMS',
  metafield: () => null,
  metafields: (_, { identifiers }) => identifiers.map(() => null),
};

const ProductOption = {
  optionValues: ({ id, values, name, piece }) =>
    values.map((value, place) => ({ id: `${id.replace('ProductOption', 'ProductOptionValue')}${place}`, name: value, option: name, piece })),
};

const ProductOptionValue = {
  firstSelectableVariant: ({ name, option, piece }) => variantWith(piece, [{ name: option, value: name }]),
};

const Image = {
  id: ({ url }) => `gid://shopify/ImageSource/${Buffer.from(new URL(url).pathname).toString('hex').slice(-16)}`,
  altText: ({ alt }) => alt ?? null,
  width: () => 1200,
  height: () => 1600,
  url: ({ url }, { transform }) =>
    transform?.maxWidth ? `${url}&width=${transform.maxWidth * (transform.scale ?? 1)}` : url,
};

const MediaImage = {
  id: ({ image }) => Image.id(image).replace('ImageSource', 'MediaImage'),
  mediaContentType: () => 'IMAGE',
  previewImage: ({ image }) => image,
};

export const productResolvers = { Product, ProductVariant, ProductOption, ProductOptionValue, Image, MediaImage };

function variantWith(piece, wanted) {
  return piece.variants.find(({ selectedOptions }) =>
    wanted.every(({ name, value }) => selectedOptions.some((option) => option.name === name && option.value === value)),
  ) ?? null;
}

/** An identifier the piece lacks gives null, in its place in the list. */
function metafield(piece, fields, { namespace, key }) {
  const field = fields.get(`${namespace}.${key}`);
  if (!field) return null;
  const { createdAt, updatedAt } = piece;
  const id = `${piece.id.replace('Product', 'Metafield')}-${namespace}-${key}`;
  return { id, namespace, key, createdAt, updatedAt, parentResource: piece, ...field };
}
