import { hash } from '../random.mjs';

/** The collections that make a rail, and the badge each of them wears. */
const badges = {
  'new-in': 'Just in',
  dresses: 'Most loved',
  knitwear: 'Warm now',
  coats: 'Warm now',
  evening: 'After six',
  bags: 'Icons',
  boots: 'Resoled for life',
  silk: 'Editors’ choice',
  blazers: 'Desk to dinner',
  trousers: 'Well pressed',
  tops: 'Every day',
  skirts: 'In motion',
  luxury: 'The houses',
  'final-sale': 'Last pieces',
};

const fewest = 4;

/** The rails of a department, each with the number of its pieces that are sold there and a picture of one of them. */
export function railsOf(catalog, department) {
  return Object.entries(badges).flatMap(([handle, label]) => {
    const { title, pieces } = catalog.collectionByHandle.get(handle);
    const own = pieces.filter((piece) => piece.department === department && piece.available);
    if (own.length < fewest) return [];
    return [{ handle, title, label, count: own.length, image: own[hash(handle) % own.length].images[0].url }];
  });
}
