import { Random } from '../random.mjs';
import { sizeTablesFor } from './sizeTables.mjs';
import { ratingOf, reviewSummary } from './reviews.mjs';

/**
 * The metafields of a piece, by "namespace.key", each {type, value} with the value as the text that travels. They are
 * worked out when asked for: a product page needs them, the thousand cards of a walk do not.
 */
export function metafieldsOf(piece, calendar) {
  const random = new Random(piece.label).fork('metafields');
  const fields = new Map();
  const put = (name, type, value) => fields.set(name, { type, value: typeof value === 'string' ? value : JSON.stringify(value) });
  if (piece.ownMetafields) {
    for (const [name, type, value] of piece.ownMetafields) put(name, type, value);
    return fields;
  }

  const { garment, cloth } = piece;
  const tables = sizeTablesFor(piece, random);
  const rows = specRows(piece);
  if (piece.signature || random.chance(0.93)) {
    put('custom.specs', 'json', tables.length > 0 && (piece.signature || random.chance(0.85)) ? { rows, sizeTables: tables } : rows);
  }
  if (random.chance(0.9)) put('custom.highlights', 'list.single_line_text_field', random.sample(garment.highlights, random.int(3, 5)));
  if (random.chance(0.94)) put('custom.composition', 'list.single_line_text_field', cloth.composition);
  if (random.chance(0.7)) put('custom.aeo_details', 'json', { sections: answers(piece) });
  if (piece.presale) put('custom.presale', 'single_line_text_field', piece.presale);
  if (piece.madeToOrder) put('custom.made_to_order', 'boolean', 'true');
  put('custom.source_item_id', 'single_line_text_field', `SRC-${700000 + piece.index * 13}`);

  const cartSize = piece.cartSize ?? (garment.sizes === 'letters' && random.chance(0.6) ? random.pick(piece.sizes.slice(1, -1)) : null);
  if (cartSize) put('pdp.topcartsize', 'single_line_text_field', cartSize);

  const rating = ratingOf(piece);
  if (rating) {
    put('custom.reviews', 'json', reviewSummary(piece, calendar));
    put('reviews.rating', 'rating', { value: rating.value.toFixed(1), scale_min: '1.0', scale_max: '5.0' });
    put('reviews.rating_count', 'number_integer', String(rating.total));
  }
  if (!piece.signature && random.chance(0.015)) spoil(fields, random);
  return fields;
}

function specRows(piece) {
  const { garment, cloth, designer } = piece;
  const rows = [
    { key: 'Designer', value: designer.name },
    { key: garment.table === 'bag' || garment.table === 'shoes' ? 'Leather' : 'Cloth', value: cloth.name },
    { key: 'Length', value: piece.style.length && piece.style.length < 90 ? 'Short' : 'Regular' },
    { key: 'Season', value: piece.cloth.tag === 'Wool' || piece.cloth.tag === 'Cashmere' ? 'Autumn and winter' : 'All year' },
    { key: 'Style number', value: `LST-${String(10000 + piece.index)}` },
  ];
  if (garment.productType !== 'Bags') return rows;
  const sizes = [{ key: 'Width', value: '31 cm / 12 in' }, { key: 'Height', value: '22cm' }, { key: 'Depth', value: '11 cm' }];
  return [...rows.filter(({ key }) => key !== 'Length'), ...sizes];
}

function answers(piece) {
  const { garment, cloth, finalSale } = piece;
  const them = garment.noun === 'boots' || garment.noun === 'trousers' ? 'them' : 'it';
  const sendBack = finalSale ? 'No. Final sale pieces stay with you.' : 'Yes, within 30 days, unworn and with its tags.';
  return [
    {
      title: 'Is it right for me?',
      paragraphs: [garment.openings[0], garment.styling[0]],
      faqs: [
        {
          question: 'Does it run true to size?',
          answer: 'Yes. Between two sizes, take the smaller for a close fit and the larger for an easy one.',
        },
        { question: 'Can I send it back?', answer: sendBack },
      ],
    },
    {
      title: 'Looking after it',
      paragraphs: [cloth.line],
      faqs: [{ question: `How do I look after ${them}?`, answer: `${cloth.care.join('. ')}.` }],
    },
  ];
}

/** Merchants paste things. A few values arrive cut off or of another shape than their type promises. */
function spoil(fields, random) {
  const name = random.pick(['custom.specs', 'custom.reviews', 'custom.highlights', 'reviews.rating']);
  const field = fields.get(name);
  if (field) field.value = random.chance(0.5) ? field.value.slice(0, Math.ceil(field.value.length / 2)) : '"see the label"';
}
