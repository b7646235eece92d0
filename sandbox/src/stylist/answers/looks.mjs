import { goesWith } from '../../reco/character.mjs';
import { blueprintOf, occasions } from '../blueprints.mjs';
import { occasionPhrase } from '../describe.mjs';
import { cardsOf } from '../reasons.mjs';
import { slotOf, taken } from '../slots.mjs';

const mostBeside = 3;

/** An outfit for an occasion, for today or tonight, or because one was asked for. */
export function look(scene) {
  const { intents, has, wish, voice, shelf, climate, label, memory } = scene;
  const asked = has('occasion') || intents.today || intents.tonight || intents.look || intents.gym;
  if (!asked) return null;
  const said = intents.gym ? 'gym' : wish.facets.get('occasion')?.[0].says;
  const occasion = occasions.includes(said) ? said : intents.tonight ? 'date night' : (memory.occasion ?? 'everyday');
  const heading = said === undefined && intents.tonight ? voice.say('tonight')
    : said === undefined && intents.today ? voice.say('today')
      : intents.gym ? voice.say('gym')
        : voice.say('look', { occasion: occasionPhrase(occasion) });
  if (has('kind')) {
    const { pieces: [leading] } = shelf.find(wish, { climate, beside: [], without: new Set(), label }, 1);
    if (leading) return dress(scene, { occasion, leading: leading.handle, heading });
  }
  return dress(scene, { occasion, heading, aboutWeather: intents.today || intents.tonight });
}

/** What goes with an attached piece, or with the one that a look is anchored on. */
export function around(scene) {
  const { attached, mentioned, anchored, intents, voice } = scene;
  const piece = attached ?? (intents.look ? mentioned : null);
  if (piece) return dress(scene, { beside: piece.handle, occasion: occasionOf(scene), heading: voice.say('around', { title: piece.title }) });
  if (!anchored) return null;
  return dress(scene, { occasion: occasionOf(scene), heading: voice.say('aroundUnknown', { title: anchored.slice(0, 80) }) });
}

/**
 * A look by a plan {occasion, leading, beside}: leading is a piece that it begins with, beside one that somebody has already.
 * The plan is remembered, for those who want another.
 */
export function dress(scene, { heading, aboutWeather = false, without = new Set(), ...plan }) {
  const { shelf, climate, label, wish, voice } = scene;
  const { occasion, leading, beside } = plan;
  const core = [leading, beside].filter(Boolean).map((handle) => shelf.piece(handle)).filter(Boolean);
  const department = core[0]?.department ?? wish.department;
  const blueprint = core.length > 0 ? besideBlueprint(core[0], department, climate) : blueprintOf(occasion, department, climate);
  const own = leading ? core : [];
  const spent = own.reduce((sum, { lowest }) => sum + lowest, 0);
  const price = wish.price && { ...wish.price, to: wish.price.to - spent };
  const chosen = shelf.outfit(blueprint, { ...wish, price, department, occasion }, { climate, beside: core, without, label });
  const pieces = [...own, ...chosen];
  if (chosen.length === 0) return { text: voice.say('noMore') };
  const text = voice.sentences([aboutWeather ? weatherLine(scene) : '', heading]);
  const cards = cardsOf(pieces, scene, { beside: beside ? core : [], occasion, isLook: true });
  return {
    text, cards, tail: true, note: budgetNote(pieces, scene),
    memory: { mode: 'look', wish, plan, last: pieces, occasion, department, ...(core[0] ? { focus: core[0].handle } : {}) },
  };
}

/** One piece for each slot that the piece leaves free, an outer one only where the weather wants it or the piece is worn under it. */
function besideBlueprint(piece, department, climate) {
  const slots = new Map();
  for (const drawing of goesWith(piece)) {
    const slot = slotOf({ drawing });
    slots.set(slot, [...(slots.get(slot) ?? []), drawing]);
  }
  const blueprint = [];
  let worn = taken([slotOf(piece)]);
  for (const [slot, drawings] of slots) {
    if (worn.has(slot) || (slot === 'outerwear' && climate.warm)) continue;
    worn = taken([...worn, slot]);
    blueprint.push(climate.cold && slot === 'outerwear' && !drawings.includes('trench') ? ['trench', ...drawings] : drawings);
  }
  return blueprint.slice(0, mostBeside);
}

function occasionOf({ wish, memory, intents }) {
  const said = wish.facets.get('occasion')?.[0].says;
  return occasions.includes(said) ? said : intents.tonight ? 'date night' : (memory.occasion ?? 'everyday');
}

export function weatherLine({ climate, voice }) {
  return climate.known ? voice.say('weather', climate) : voice.say('season');
}

function budgetNote(pieces, { wish: { price }, voice }) {
  if (!price || price.to === Infinity) return '';
  const total = pieces.reduce((sum, { lowest }) => sum + lowest, 0);
  return voice.say(total <= price.to ? 'inBudget' : 'overBudget', { sum: voice.sum(price.to) });
}
