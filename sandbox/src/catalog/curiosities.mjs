import { hosts } from '../hosts.mjs';
import { dateText } from './dates.mjs';
import { fabrics } from './fabrics.mjs';
import { garments } from './garments/index.mjs';
import { colourName, image, planImages } from './images.mjs';
import { slug } from './pieces.mjs';
import { setVariants } from './variants.mjs';

const hostileHtml = [
  '<h3 onclick="alert(1)">Read <em>this</em> first</h3>',
  '<p onmouseover="alert(2)">A paragraph that would like to run. <script>document.title = "taken"</script></p>',
  '<p>A picture from elsewhere: <img src="https://images.example.net/pixel.gif" onerror="alert(3)" alt=""></p>',
  '<p><a href="javascript:alert(4)">A link that is a script</a>, <a href="https://press.example.org/">one that leaves</a> ',
  `and <a href="https://${hosts.web}/collections/dresses">one that stays</a>.</p>`,
  '<style>* { display: none }</style><iframe src="https://images.example.net/frame"></iframe>',
  '<details open><summary>Care &amp; <b>more</b></summary><p>5 &lt; 6 &amp;&amp; 7 &gt; 6 &mdash; always.</p></details>',
  '<details><summary>Never closed<p>The end tags <b>of this <i>part are missing<ul><li>one<li>two',
].join('\n');

const longTitle =
  'The extraordinarily long-named double-faced reversible hand-finished garment-dyed limited-edition anniversary re-issue of the ' +
  'original nineteen-seventy-four expedition coat with detachable hood, storm collar and Wolkenkuckucksheimverschlussknöpfen';

const longVendor = 'A House Whose Name Goes On For Rather Longer Than Any Label Could Ever Hold';

/** One piece for each thing that merchants' data does to a shopping client sooner or later. */
const wanted = [
  { title: '<b>Bold</b> & <img src=x onerror=alert(1)>', drawing: 'shirt', handle: 'bold-markup-shirt' },
  { title: 'فستان حريري بقصّة مائلة', drawing: 'slip', handle: 'silk-dress-in-arabic' },
  { title: 'מעיל גשם עם חגורה', drawing: 'trench' },
  { title: '👗✨ Party dress 🎉 (really!) 👩🏽‍🎤', drawing: 'tiered', handle: 'party-dress' },
  { title: longTitle, drawing: 'trench', handle: 'long-title-coat', vendor: longVendor },
  { title: 'Skirt without a maker', drawing: 'skirt', vendor: '' },
  { title: 'Shirt nobody photographed', drawing: 'shirt', pictures: 'none' },
  { title: 'Knit with a lost picture', drawing: 'knit', pictures: 'missing' },
  { title: 'Bag with a torn picture', drawing: 'crescent', pictures: 'broken' },
  {
    title: 'Boots in every size', drawing: 'boot', colours: ['ink', 'camel', 'olive', 'plum', 'bottle'],
    sizes: Array.from({ length: 20 }, (_, index) => String(33 + index)),
  },
  { title: 'Gift wrapping', drawing: 'tophandle', bare: true },
  { title: 'Blazer with a script in its lining', drawing: 'blazer', html: hostileHtml },
  { title: 'Dress that sold out overnight', drawing: 'wrap', stock: 0 },
  {
    title: 'Coat from the future', drawing: 'trench', presale: 'Ships from 29 February',
    tags: ['Presale', 'made to order', 'Luxury', 'Final Sale'],
  },
  { title: 'Sample that costs nothing', drawing: 'trousers', price: 0 },
];

export const curiosityCount = wanted.length;

export function makeCuriosities({ random, calendar, firstIndex }) {
  return wanted.map((want, place) => makeOne(want, firstIndex + place, place, random.fork(`curiosity ${place}`), calendar));
}

function makeOne(want, index, place, random, calendar) {
  const garment = garments[want.drawing];
  const createdAt = dateText(calendar.past(random));
  const piece = {
    __typename: 'Product',
    curiosity: true,
    index,
    id: `gid://shopify/Product/${8100000000001 + index}`,
    title: want.title,
    handle: want.handle ?? slug(want.title),
    vendor: want.vendor ?? 'Cabinet of Curiosities',
    drawing: want.drawing,
    garment,
    style: {},
    cloth: fabrics[garment.styles[0].fabrics[0]],
    department: garment.departments[0],
    productType: want.bare ? '' : garment.productType,
    tags: want.bare ? [] : (want.tags ?? ['curiosity']),
    colours: want.colours ?? ['sage', 'madder'],
    sizes: want.sizes ?? ['S', 'M', 'L'],
    price: want.price ?? 40 + place * 7,
    presale: want.presale ?? null,
    finalSale: want.tags?.includes('Final Sale') ?? false,
    madeToOrder: want.tags?.includes('made to order') ?? false,
    createdAt,
    updatedAt: createdAt,
    popularity: -1 - place,
    curation: place,
    label: random.label,
    ownHtml: want.html ?? (want.bare ? '' : `<p>${want.drawing[0].toUpperCase()}${want.drawing.slice(1)}, one of a kind.</p>`),
    ownMetafields: metafieldsFor(want),
    collections: [],
  };
  piece.images = picturesFor(want, piece, random);
  setVariants(piece, want.bare ? [bareVariant(piece)] : variantsFor(want, piece));
  piece.options = want.bare
    ? [{ name: 'Title', values: ['Default Title'] }]
    : [{ name: 'Colour', values: piece.colours.map(colourName) }, { name: 'Size', values: piece.sizes }];
  return piece;
}

function picturesFor(want, piece, random) {
  const planned = planImages(piece, random);
  if (want.pictures === 'none') return [];
  if (want.pictures === 'missing' || want.pictures === 'broken') {
    return planned.map((planned, place) => image(piece.handle, planned.number, planned.view, place === 0 ? want.pictures : null));
  }
  return planned;
}

function variantsFor(want, piece) {
  return piece.colours.flatMap((colour) =>
    piece.sizes.map((size) => ({
      title: `${colourName(colour)} / ${size}`,
      price: piece.price,
      compareAt: null,
      stock: want.stock ?? (piece.madeToOrder ? null : 5),
      selectedOptions: [{ name: 'Colour', value: colourName(colour) }, { name: 'Size', value: size }],
      image: piece.images.find(({ view }) => view.colour === colour) ?? null,
    })),
  );
}

function bareVariant(piece) {
  return {
    title: 'Default Title', price: piece.price, compareAt: null, stock: null, image: null,
    selectedOptions: [{ name: 'Title', value: 'Default Title' }],
  };
}

function metafieldsFor(want) {
  const fields = [['custom.source_item_id', 'single_line_text_field', '']];
  if (want.presale) fields.push(['custom.presale', 'single_line_text_field', want.presale]);
  if (want.html) {
    fields.push(
      ['custom.specs', 'json', '{"rows":[{"key":"Lining","value":"<script>alert(5)</script>"}],"sizeTables":[{"title":"Sizes","rows":[['],
      ['custom.highlights', 'list.single_line_text_field', '"not a list"'],
      ['custom.reviews', 'json', '{"total":"many","reviews":{}}'],
      ['reviews.rating', 'rating', 'five'],
      ['reviews.rating_count', 'number_integer', '9999999999999999999999'],
    );
  }
  return fields;
}
