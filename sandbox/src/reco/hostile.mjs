const many = 1000;
const markup = '<b>Bold</b><img src=x onerror=alert(1)>';
const long = 'nachhaltig '.repeat(931); // 10 kB

/** What recommendations go wrong with, each a change to a list of cards or rails. */
const ways = {
  many: (list) => (list.length === 0 ? list : Array.from({ length: many }, (_, at) => {
    const round = Math.floor(at / list.length);
    const entry = list[at % list.length];
    return round === 0 ? entry : { ...entry, handle: `${entry.handle}-${round + 1}` };
  })),
  duplicates: (list) => list.flatMap((entry) => [entry, entry]),
  templates: (list) => list.map((entry, at) => reasoned(entry, { template: ['', 'astrology', 'NEW_IN', 'because_like ', '__proto__'][at % 5] })),
  long: (list) => list.map((entry) => ({
    ...reasoned(entry, { params: { value: long }, paramLabel: { value: long, locale: 'en' } }), title: long, vendor: long, label: long,
  })),
  markup: (list) => list.map((entry) => ({
    ...reasoned(entry, { params: { value: markup }, paramLabel: { value: markup, locale: 'en' } }), title: markup, vendor: markup, label: markup, reason: markup,
  })),
  types: (list) => list.map((entry, at) => [
    reasoned(entry, { newIn: 'yes' }), reasoned(entry, { params: 'wedding' }), reasoned(entry, { paramLabel: [] }), { ...entry, reasonMeta: 7 },
    { ...entry, price: '248', count: 'many' }, { ...entry, title: null }, { ...entry, image: { url: entry.image } }, { ...entry, handle: 12 }, null, 'card',
    { ...entry, isNew: 1 }, {},
  ][at % 12]),
  unknown: (list) => list.map((entry) => ({ ...entry, handle: `never-sold-${entry.handle}` })),
};

export const hostileNames = Object.keys(ways);

/** An answer with every list in it spoilt. */
export function spoil(answer, names) {
  return changeLists(answer, (list) => names.reduce((spoilt, name) => ways[name](spoilt), list));
}

/** An answer of the same shape that has nothing to say. */
export function emptied(answer) {
  const nothing = { string: '', number: 0 };
  return Object.fromEntries(Object.entries(answer).map(([key, value]) => [key, Array.isArray(value) ? [] : (nothing[typeof value] ?? {})]));
}

function changeLists(answer, change) {
  return Object.fromEntries(Object.entries(answer).map(([key, value]) => [key, Array.isArray(value) ? change(value) : value]));
}

/** A card with its reason changed; a rail has none and stays as it is. */
function reasoned(entry, change) {
  if (!('price' in entry)) return entry;
  return { ...entry, reasonMeta: { template: 'because_like', newIn: false, ...entry.reasonMeta, ...change } };
}
