/** What is worn together for an occasion: one entry for each piece, with the drawings that it may be, the best first. */
const blueprints = {
  work: 'blazer, shirt knit, trousers skirt, tophandle',
  interview: 'blazer, shirt, trousers skirt, tophandle',
  'date night': 'slip wrap, blazer, crescent, boot',
  party: 'slip wrap, crescent, blazer, boot',
  'night out': 'slip wrap, crescent, boot, blazer',
  wedding: 'wrap tiered slip, crescent tophandle, blazer',
  'formal events': 'slip wrap, crescent, blazer',
  'gallery opening': 'wrap slip, blazer, tophandle, boot',
  graduation: 'wrap tiered, blazer, tophandle',
  vacation: 'tiered wrap, shirt, crescent',
  beach: 'tiered, shirt, crescent',
  travel: 'trench, knit shirt, trousers, boot',
  brunch: 'tiered wrap skirt, knit, crescent, boot',
  festival: 'tiered skirt, knit, boot, crescent',
  school: 'shirt knit, skirt trousers, boot, tophandle',
  weekend: 'knit shirt, trousers skirt, boot, crescent',
  everyday: 'shirt knit, trousers skirt, boot, tophandle crescent',
  gym: 'knit, trousers, tophandle',
};
const forMen = {
  work: 'blazer, shirt, trousers, boot',
  everyday: 'knit shirt, trousers, boot, trench',
  festive: 'blazer, shirt, trousers, boot',
};
const relaxed = new Set(['everyday', 'weekend', 'travel', 'school', 'gym', 'beach', 'vacation', 'festival', 'brunch']);
const warmDrawings = new Set(['trench', 'knit', 'blazer', 'boot']);

export const occasions = Object.keys(blueprints);

/** The drawings for each piece of a look; climate says what the weather asks for. */
export function blueprintOf(occasion, department, climate) {
  const key = department === 'men' ? (occasion === 'work' || relaxed.has(occasion) ? (occasion === 'work' ? 'work' : 'everyday') : 'festive') : occasion;
  const parts = (department === 'men' ? forMen : blueprints)[key].split(', ').map((drawings) => drawings.split(' '));
  if (climate.warm) return light(parts);
  const covered = parts.some(([first]) => first === 'trench');
  if ((climate.cold || climate.wet) && !covered) return [...parts.filter(([first]) => first !== 'blazer').slice(0, 3), ['trench']];
  return parts;
}

function light(parts) {
  const kept = parts.map((drawings) => drawings.filter((drawing) => !warmDrawings.has(drawing))).filter((drawings) => drawings.length > 0);
  return kept.length >= 2 ? kept : parts;
}
