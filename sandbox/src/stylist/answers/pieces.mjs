import { describe } from '../describe.mjs';
import { cardsOf } from '../reasons.mjs';

const shown = 4;

/** Pieces of a kind, a colour, a house or a price. */
export function pieces(scene) {
  const { wish, intents, has, memory, attached, voice } = scene;
  const asked = wish.facets.size > 0 || wish.price !== null;
  const wantsLook = intents.look || (has('occasion') && !has('kind')) || ((intents.today || intents.tonight) && !has('kind'));
  if (!asked || wantsLook) return null;
  const beside = attached ? [attached] : [];
  const answer = search(scene, { ...wish, occasion: memory.occasion }, { beside, without: new Set() });
  if (attached && answer.cards) answer.text = voice.say('around', { title: attached.title });
  return answer;
}

/** A piece by its name, or by words of it. */
export function named(scene, index) {
  const { others, mentioned, wish, shelf, voice } = scene;
  const found = mentioned ? [mentioned] : shelf.named(others.length > 0 ? index().find(others.join(' '), { prefix: false }) : [], shown);
  if (found.length === 0) return null;
  const memory = { mode: 'pieces', wish, last: found, focus: found[0].handle };
  return { text: voice.say('found', { what: 'pieces of that name', count: found.length }), cards: cardsOf(found, scene), memory };
}

/** Looks for a wish and answers with what was found; heading replaces the usual words. */
export function search(scene, wish, { beside = [], without, heading = null, empty = 'nothing' }) {
  const { shelf, voice, climate, label } = scene;
  const { pieces: found, lacking } = shelf.find(wish, { climate, beside, without, label }, shown);
  if (found.length === 0) return { text: voice.say(empty), memory: { wish, mode: 'pieces' } };
  const what = describe(wish, lacking) + (wish.department === 'men' ? ' for men' : '');
  const text = heading ?? voice.say(lacking.length > 0 ? 'foundNear' : 'found', { what, count: found.length });
  const cards = cardsOf(found, { ...scene, wish }, { beside });
  return { text, cards, tail: true, mayHaveLine: true, memory: { mode: 'pieces', wish, last: found, department: wish.department } };
}
