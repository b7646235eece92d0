import { hash } from '../random.mjs';
import { characterOf } from './character.mjs';
import { labelOf, nameLabel } from './languages.mjs';

const freeTexts = [
  'The fitting room keeps  asking for this one',
  'Back in the size most people wear',
  'Our buyer wears it to work',
];

/** The reasons that may hold for a card: {value, label} or null where one does not. An empty one has no parameter. */
const candidates = {
  browsing: ({ cause }) => (cause ? {} : null),
  because_like: ({ cause, piece, language }) => (
    cause?.same === 'vendor' ? { value: piece.vendor, label: nameLabel(piece.vendor, language) }
      : cause?.same === 'type' ? translated(piece.garment.collections[0], language)
        : null
  ),
  matches_search: ({ query, cause, piece, draw }) => (
    query ? { value: query } : cause ? (draw('search') % 3 === 0 ? {} : { value: `${piece.cloth.name} ${piece.garment.noun}` }) : null
  ),
  new_in: ({ isNew }) => (isNew ? {} : null),
  trending: ({ piece }) => (piece.popularity > 0.7 ? {} : null),
  for_occasion: ({ piece, language, draw, occasion }) => translated(occasion ?? pick(characterOf(piece).occasions, draw('occasion')), language),
  style_pick: ({ piece, language, draw }) => translated(pick(characterOf(piece).styles, draw('style')), language),
  similar_shoppers: () => ({}),
  handpicked: ({ piece }) => (piece.luxury ? {} : null),
};

/**
 * Why a card is shown: {reasonMeta} which the application words itself, {reason} with the backend's own words, or nothing.
 * templates narrows what is chosen from. The same card in the same circumstances always has the same reason.
 */
export function reasonOf(circumstances, templates = Object.keys(candidates)) {
  const { piece, seed, cause = null, isNew } = circumstances;
  const draw = (what) => hash(`${seed}/${piece.handle}/${cause?.same ?? ''}/${what}`);
  const wording = draw('wording') % 12;
  if (wording === 0) return {};
  if (wording === 1) return { reason: pick(freeTexts, draw('text')) };
  const fitting = templates
    .map((template) => [template, candidates[template]({ ...circumstances, cause, draw })])
    .filter(([, parameter]) => parameter !== null);
  if (fitting.length === 0) return {};
  const [template, { value, label }] = pick(fitting, draw('template'));
  const reasonMeta = { template, newIn: isNew };
  if (value !== undefined) reasonMeta.params = { value };
  if (label !== undefined) reasonMeta.paramLabel = label;
  return { reasonMeta };
}

/** Nobody needs a translation of English; elsewhere a word comes with what it is called there. */
function translated(value, language) {
  return language === 'en' ? { value } : { value, label: labelOf(value, language) };
}

function pick(list, number) {
  return list[number % list.length];
}
