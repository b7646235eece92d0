import { cardsOf } from '../reasons.mjs';

const shown = 3;

/** Words that want no pieces. A long sentence that thanks as well wants something else. */
export function courtesy({ intents, isShort, wish, account, voice, attached, envelope }) {
  const about = wish.facets.size > 0 || wish.price !== null || attached || envelope.wardrobe.length > 0;
  if (intents.who) return { text: voice.say('who') };
  if (about || !isShort || intents.today || intents.help) return null;
  if (intents.thanks) return { text: voice.say('thanks') };
  if (intents.goodbye) return { text: voice.say('goodbye') };
  const [first] = account?.name.split(' ') ?? [];
  return intents.greeting ? { text: voice.say('greeting', { name: first ? `, ${first}` : '' }) } : null;
}

/** Somebody who does not know yet, and whoever was not understood. */
export function guidance(scene) {
  const { intents, voice, shelf, wish, climate, label } = scene;
  const key = intents.help ? 'help' : 'fallback';
  const { pieces } = shelf.find(wish, { climate, beside: [], without: new Set(), label }, shown);
  return { text: voice.say(key), cards: cardsOf(pieces, scene), memory: { mode: 'pieces', wish, last: pieces } };
}
