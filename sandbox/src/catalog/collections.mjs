import { hash } from '../random.mjs';
import { designers } from './designers.mjs';

const editorial = [
  ['new-in', 'New In', (piece, { newest }) => newest.has(piece), 'Everything that arrived lately, newest first.'],
  ['women', 'Women', (piece) => piece.department === 'women', 'The whole of the women’s floor.'],
  ['men', 'Men', (piece) => piece.department === 'men', 'Coats, knits, shirts and boots for men.'],
  ['luxury', 'Luxury', (piece) => piece.luxury, 'Houses that take their time.'],
  ['bags', 'Bags', type('bags'), 'Top handles, crescents and satchels that will outlive the season.'],
  ['accessories', 'Accessories', type('accessories'), 'What finishes a look.'],
  ['final-sale', 'Final Sale', (piece) => piece.finalSale, 'Last pieces at last prices. They cannot come back.'],
  ['dresses', 'Dresses', type('dresses'), 'Bias, tiered and wrapped.'],
  ['tops', 'Tops', type('tops'), 'Shirts and knits.'],
  ['knitwear', 'Knitwear', type('knitwear'), 'Cables, collars and cashmere.'],
  ['skirts', 'Skirts', type('skirts'), 'Pleats in every width.'],
  ['trousers', 'Trousers', type('trousers'), 'Wide, high and well pressed.'],
  ['coats', 'Coats', type('coats'), 'Weather, dressed for.'],
  ['blazers', 'Blazers', type('blazers'), 'Tailoring with its shoulders down.'],
  ['shoes', 'Shoes', type('shoes'), 'Made to be walked in, and resoled.'],
  ['boots', 'Boots', type('boots'), 'Ankle height and higher.'],
  ['evening', 'Evening', (piece) => piece.evening, 'For after six.'],
  ['silk', 'Silk', (piece) => piece.cloth.tag === 'Silk', 'The lightest thing in the wardrobe, and the strongest.'],
  ['presale', 'Presale', (piece) => Boolean(piece.presale), 'Order now, worn later.'],
  ['all-fashion-clothing-for-women', 'All Pieces', () => true, 'Everything on the floor, in one long walk.'],
  ['alpine-archive', 'Alpine Archive', isArchived, 'Knits and boots from mountain winters past.'],
  ['autumn-preview', 'Autumn Preview', () => false, 'The first pieces arrive with the first cold morning.'],
  ['curiosities', 'Curiosities', (piece) => piece.curiosity === true, 'One of each, and each of its own kind.'],
];

/** These have no picture of their own. */
const withoutPicture = new Set(['alpine-archive', 'curiosities']);

export function makeCollections(pieces) {
  const shop = pieces.filter((piece) => !piece.curiosity);
  const byAge = [...shop].sort((one, other) => other.createdAt.localeCompare(one.createdAt));
  const byCuration = [...pieces].sort((one, other) => one.curation - other.curation);
  const context = { newest: new Set(byAge.slice(0, Math.max(24, Math.round(shop.length * 0.14)))) };
  const wanted = [
    ...editorial,
    ...designers.map((designer) => [designer.handle, designer.name, (piece) => piece.vendor === designer.name, designer.line]),
  ];
  return wanted.map(([handle, title, belongs, description], index) => {
    const order = handle === 'new-in' ? byAge : byCuration;
    const members = order.filter((piece) => (piece.curiosity ? handle === 'curiosities' : belongs(piece, context)));
    const collection = {
      __typename: 'Collection',
      id: `gid://shopify/Collection/${410000000001 + index}`,
      handle, title, description,
      pieces: members,
      image: withoutPicture.has(handle) ? null : (members[hash(handle) % members.length]?.images[0] ?? null),
    };
    for (const piece of members) piece.collections.push(collection);
    return collection;
  });
}

function type(collection) {
  return (piece) => piece.garment.collections.includes(collection);
}

function isArchived({ garment, index }) {
  return garment.alpine === true && index % 3 === 0;
}
