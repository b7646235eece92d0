import { labelsIn } from '../catalog/titles.mjs';
import { compareSizes } from '../catalog/sizes.mjs';
import { decimalText } from '../markets/markets.mjs';

/**
 * Filtering by variants. Choices within one group are alternatives, groups narrow each other, and what concerns a
 * variant has to hold for one and the same variant: "M in stock" is not "M, and L in stock".
 */
export function filterPieces(pieces, filters, market) {
  if (!filters || filters.length === 0) return pieces;
  const groups = grouped(filters);
  return pieces.filter((piece) => piece.variants.some((variant) => fits(groups, piece, variant, market)));
}

/** The filters a list offers, with how many pieces each value would leave under the choices made in other groups. */
export function offerFilters(pieces, chosen, market, language) {
  const groups = grouped(chosen ?? []);
  const offers = offersFor(labelsIn(language));
  const counts = new Map(offers.map((offer) => [offer, new Map()]));
  let dearest = 0;

  for (const piece of pieces) {
    const seen = new Map(offers.map((offer) => [offer, new Set()]));
    for (const variant of piece.variants) {
      dearest = Math.max(dearest, variant.price);
      const failing = [...groups.keys()].filter((group) => !groupFits(groups, group, piece, variant, market));
      for (const offer of offers) {
        const key = offer.keyOf(piece, variant);
        if (key === null) continue;
        const count = counts.get(offer);
        if (!count.has(key)) count.set(key, 0);
        const counted = failing.length === 0 || (failing.length === 1 && failing[0] === offer.group);
        if (!counted || seen.get(offer).has(key)) continue;
        seen.get(offer).add(key);
        count.set(key, count.get(key) + 1);
      }
    }
  }
  return offers
    .map((offer) => present(offer, counts.get(offer), decimalText(market.price(dearest))))
    .filter(({ values }) => values.length > 0);
}

function offersFor(label) {
  const option = (name, compare) => ({
    id: `filter.v.option.${name.toLowerCase()}`, label: label[name], type: 'LIST', group: `option ${name}`,
    keyOf: (piece, variant) => variant.selectedOptions.find((option) => option.name === name)?.value ?? null,
    labelOf: (value) => value,
    input: (value) => ({ variantOption: { name, value } }),
    compare,
  });
  return [
    {
      id: 'filter.v.availability', label: label.availability, type: 'LIST', group: 'available',
      keyOf: (piece, variant) => (variant.available ? '1' : '0'),
      labelOf: (key) => (key === '1' ? label.inStock : label.soldOut),
      input: (key) => ({ available: key === '1' }),
      compare: (one, other) => other.localeCompare(one),
    },
    {
      id: 'filter.v.price', label: label.price, type: 'PRICE_RANGE', group: 'price',
      keyOf: () => 'price',
      labelOf: () => label.price,
      compare: () => 0,
    },
    option('Size', compareSizes),
    option('Colour', (one, other) => one.localeCompare(other)),
    {
      id: 'filter.p.vendor', label: label.designer, type: 'LIST', group: 'productVendor',
      keyOf: (piece) => piece.vendor || null,
      labelOf: (vendor) => vendor,
      input: (vendor) => ({ productVendor: vendor }),
      compare: (one, other) => one.localeCompare(other),
    },
    {
      id: 'filter.p.m.custom.made_to_order', label: label.madeToOrder, type: 'BOOLEAN', group: 'metafield custom.made_to_order',
      keyOf: (piece) => (piece.madeToOrder ? 'true' : null),
      labelOf: () => label.yes,
      input: () => ({ productMetafield: { namespace: 'custom', key: 'made_to_order', value: 'true' } }),
      compare: () => 0,
    },
  ];
}

function present(offer, count, dearest) {
  const values = [...count].sort(([one], [other]) => offer.compare(one, other)).map(([key, found]) => ({
    id: offer.type === 'PRICE_RANGE' ? offer.id : `${offer.id}.${key.toLowerCase().replace(/[^\p{L}\p{N}]+/gu, '-')}`,
    label: offer.labelOf(key),
    count: found,
    input: offer.input ? JSON.stringify(offer.input(key)) : `{"price":{"min":0,"max":${dearest}}}`,
  }));
  return { id: offer.id, label: offer.label, type: offer.type, presentation: offer.type === 'LIST' ? 'TEXT' : null, values };
}

/** Filters by the group they belong to. */
function grouped(filters) {
  const groups = new Map();
  for (const filter of filters) {
    for (const [field, value] of Object.entries(filter)) {
      if (value === null || value === undefined) continue;
      const group = groupOf(field, value);
      groups.set(group, [...(groups.get(group) ?? []), { field, value }]);
    }
  }
  return groups;
}

function groupOf(field, value) {
  if (field === 'variantOption') return `option ${value.name}`;
  return field === 'productMetafield' ? `metafield ${value.namespace}.${value.key}` : field;
}

function fits(groups, piece, variant, market) {
  for (const group of groups.keys()) {
    if (!groupFits(groups, group, piece, variant, market)) return false;
  }
  return true;
}

function groupFits(groups, group, piece, variant, market) {
  return groups.get(group).some(({ field, value }) => holds[field]?.(value, piece, variant, market) ?? false);
}

const holds = {
  available: (value, piece, variant) => variant.available === value,
  price: ({ min, max }, piece, variant, market) => {
    const price = market.price(variant.price);
    return price >= (min ?? 0) && price <= (max ?? Infinity);
  },
  variantOption: ({ name, value }, piece, variant) =>
    variant.selectedOptions.some((option) => option.name === name && option.value === value),
  productVendor: (value, piece) => piece.vendor === value,
  productType: (value, piece) => piece.productType === value,
  tag: (value, piece) => piece.tags.some((tag) => tag.toLowerCase() === value.toLowerCase()),
  productMetafield: ({ namespace, key, value }, piece) =>
    namespace === 'custom' && key === 'made_to_order' && String(piece.madeToOrder === true) === value,
};
