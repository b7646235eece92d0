/** In the order in which pieces are named. */
export const slotNames = ['outerwear', 'top', 'bottom', 'dress', 'shoes', 'bag', 'extra'];

const slots = {
  trench: 'outerwear', blazer: 'outerwear',
  knit: 'top', shirt: 'top',
  skirt: 'bottom', trousers: 'bottom',
  slip: 'dress', tiered: 'dress', wrap: 'dress',
  boot: 'shoes',
  tophandle: 'bag', crescent: 'bag',
};

/** What a piece is worn as. */
export const slotOf = ({ drawing }) => slots[drawing];

/** The slots that are taken once these are worn: a dress leaves nothing to a top, nor the other way round. */
export function taken(worn) {
  const all = new Set(worn);
  if (all.has('dress')) ['top', 'bottom'].forEach((slot) => all.add(slot));
  if (all.has('top') || all.has('bottom')) all.add('dress');
  return all;
}
