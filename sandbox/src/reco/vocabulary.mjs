import { designers } from '../catalog/designers.mjs';
import { words } from '../storefront/searchIndex.mjs';
import { characterOf } from './character.mjs';

/** What words say about pieces: [facet, how the summary puts it, words, whether a piece is so, the collection of it]. */
const meanings = [
  kind('dresses', 'dress, gown, frock'),
  kind('knitwear', 'knit, knitwear, sweater, jumper, rollneck, pullover, cardigan'),
  kind('tops', 'top, shirt, blouse'),
  kind('skirts', 'skirt'),
  kind('trousers', 'trousers, pants, slacks'),
  kind('coats', 'coat, trench, raincoat, outerwear'),
  kind('blazers', 'blazer, jacket, tailoring'),
  kind('bags', 'bag, handbag, purse, clutch'),
  kind('boots', 'boot, shoe'),
  colour('green', 'sage olive bottle'),
  colour('red', 'madder'),
  colour('black', 'ink'),
  colour('white', 'chalk ecru', 'white, cream, ivory'),
  colour('beige', 'camel ecru', 'beige, brown, tan'),
  colour('blue', 'dusk', 'blue, navy'),
  colour('pink', 'rose'),
  colour('purple', 'plum'),
  colour('yellow', 'butter'),
  colour('burgundy', 'plum madder', 'burgundy, wine, bordeaux'),
  ...['sage', 'olive', 'bottle', 'madder', 'ink', 'chalk', 'ecru', 'camel', 'dusk', 'rose', 'plum', 'butter'].map((name) => colour(name, name)),
  occasion('work', 'work, office, business'),
  occasion('date night', 'date, date night, dinner'),
  occasion('party', 'party, cocktail, birthday', 'evening'),
  occasion('wedding', 'wedding, wedding guest', 'evening'),
  occasion('vacation', 'vacation, holiday, resort'),
  occasion('beach', 'beach'),
  occasion('travel', 'travel, trip'),
  occasion('everyday', 'everyday, daily'),
  occasion('weekend', 'weekend'),
  occasion('school', 'school'),
  occasion('interview', 'interview'),
  occasion('graduation', 'graduation'),
  occasion('festival', 'festival'),
  occasion('night out', 'night out, club'),
  occasion('brunch', 'brunch'),
  occasion('gallery opening', 'gallery, museum, exhibition, theatre, theater, concert'),
  occasion('formal events', 'formal, gala, black tie, opera'),
  season('summer', 'summer, hot', ({ cloth: { tag, name }, drawing }) => drawing !== 'trench' && (name === 'linen' || tag === 'Silk' || tag === 'Cotton')),
  season('winter', 'winter, cold, snow', ({ cloth: { tag }, drawing }) => ['Wool', 'Cashmere'].includes(tag) || ['boot', 'trench'].includes(drawing)),
  season('autumn', 'autumn, fall', ({ drawing }) => ['trench', 'boot', 'knit', 'blazer'].includes(drawing)),
  season('spring', 'spring', ({ drawing }) => ['trench', 'shirt', 'wrap', 'skirt'].includes(drawing)),
  ...['silk', 'satin', 'cotton', 'linen', 'wool', 'cashmere', 'leather', 'suede'].map((name) => (
    ['cloth', name, name, ({ cloth }) => cloth.name.includes(name) || cloth.tag.toLowerCase() === name, name === 'silk' ? 'silk' : null]
  )),
  ['department', 'for women', 'women, woman, her, womens', ({ department }) => department === 'women', 'women'],
  ['department', 'for men', 'men, man, him, mens', ({ department }) => department === 'men', 'men'],
  ['rank', 'from our best houses', 'luxury, designer', ({ luxury }) => luxury, 'luxury'],
  ['rank', 'reduced', 'sale, reduced, cheap', ({ earlier }) => Boolean(earlier), 'final-sale'],
  ...designers.map(({ name, handle }) => ['vendor', `by ${name}`, name, ({ vendor }) => vendor === name, handle]),
];

export const longestPhrase = 3;

/** Every meaning {facet, says, holds, collection} by the phrase that has it, as words() leaves it. */
export const vocabulary = new Map(meanings.flatMap(([facet, says, phrases, holds, collection = null]) => (
  phrases.split(', ').map((phrase) => [words(phrase).join(' '), { facet, says, holds, collection }])
)));

export const fillers = new Set(words('a an and any are at best by can could do find for from get good got have i idea in is it like look looking me my need nice of on or outfit piece please ' +
  'show some something stuff that the to want wear what with would you'));

function kind(collection, phrases) {
  return ['kind', collection, phrases, ({ garment }) => garment.collections.includes(collection), collection];
}

function colour(name, palettes, phrases = name) {
  const wanted = palettes.split(' ');
  return ['colour', `in ${name}`, phrases, ({ colours }) => colours.some((own) => wanted.includes(own))];
}

function occasion(name, phrases, collection = null) {
  return ['occasion', name, phrases, (piece) => characterOf(piece).occasions.includes(name), collection];
}

function season(name, phrases, holds) {
  return ['season', `in ${name}`, phrases, holds];
}
