import { colourName, imageOfColour } from './images.mjs';

/**
 * Gives a piece its options and one variant for each colour and size. Prices are in US dollars; a variant whose stock is
 * null is not tracked and can always be bought.
 */
export function addVariants(piece, random) {
  const colourOption = { name: 'Colour', values: piece.colours.map(colourName) };
  const sizeOption = { name: 'Size', values: piece.sizes };
  piece.options = [colourOption, sizeOption];
  const reducedColour = piece.compareAt && !piece.signature && piece.colours.length > 1 && random.chance(0.15) ? piece.colours[0] : null;

  const chosenSizes = piece.sizes.map((size) => ({ name: 'Size', value: size }));
  const variants = piece.colours.flatMap((colour) => {
    const chosenColour = { name: 'Colour', value: colourName(colour) };
    const image = imageOfColour(piece, colour);
    return chosenSizes.map((chosenSize) => {
      const size = chosenSize.value;
      const title = `${chosenColour.value} / ${size}`;
      const surcharge = size === 'Large' ? 1.2 : 1;
      const reduced = piece.compareAt && (reducedColour === null || colour === reducedColour);
      const full = Math.round((piece.compareAt ?? piece.price) * surcharge);
      return {
        title,
        price: piece.compareAt ? (reduced ? round(piece.price * surcharge) : full) : round(piece.price * surcharge),
        compareAt: reduced ? full : null,
        stock: stockOf(piece, title, random),
        selectedOptions: [chosenColour, chosenSize],
        image,
      };
    });
  });
  setVariants(piece, variants);
}

/** Numbers the variants and sets what follows from them; the curiosities come with variants of their own. */
export function setVariants(piece, variants) {
  piece.variants = variants.map((variant, index) => ({
    __typename: 'ProductVariant',
    ...variant,
    id: `gid://shopify/ProductVariant/${46100000000000 + piece.index * 100 + index + 1}`,
    sku: `LS${String(piece.index + 1).padStart(5, '0')}-${String(index + 1).padStart(2, '0')}`,
    available: variant.stock === null || variant.stock > 0,
    product: piece,
  }));
  piece.available = piece.variants.some(({ available }) => available);
  setPriceRange(piece);
}

/** What follows from the prices of a piece's variants. */
export function setPriceRange(piece) {
  const prices = piece.variants.map(({ price }) => price);
  piece.lowest = Math.min(...prices);
  piece.highest = Math.max(...prices);
  const earlier = piece.variants.flatMap(({ compareAt }) => compareAt ?? []);
  piece.earlier = earlier.length > 0 ? { lowest: Math.min(...earlier), highest: Math.max(...earlier) } : null;
}

function stockOf(piece, title, random) {
  const draw = random.next();
  if (piece.allSoldOut) return 0;
  if (piece.madeToOrder) return null;
  if (piece.soldOut) return piece.soldOut.includes(title) ? 0 : 3 + Math.floor(draw * 20);
  if (draw < 0.14) return 0;
  if (draw < 0.26) return 1 + Math.floor(draw * 100) % 3;
  return 4 + Math.floor(draw * 26);
}

function round(amount) {
  return Math.round(amount * 100) / 100;
}
