import { cardsOf } from '../reasons.mjs';
import { dress } from './looks.mjs';
import { search } from './pieces.mjs';

const shown = 4;

/** What only means something after what was said before: cheaper, more, something else, in black. */
export function followUp(scene) {
  const { intents, memory, attached, voice, isShort } = scene;
  if (intents.cheaper && attached) return cheaperThan(attached, scene);
  if (!memory.mode) return null;
  const wish = merged(memory.wish, scene.wish);
  if (intents.cheaper) return cheaper(scene, wish);
  if (intents.more || intents.other) {
    const heading = voice.say(intents.more ? 'more' : 'instead');
    return again(scene, wish, { without: memory.shown, heading, empty: 'noMore' });
  }
  if (!isShort || !refines(scene)) return null;
  return memory.mode === 'look' && !suitsLook(scene) ? null : again(scene, wish, { without: new Set(), heading: null });
}

/** Nothing but a colour, a size, a cloth, a house or a price. */
function refines({ wish, has, intents, attached, envelope }) {
  const says = wish.facets.size > 0 || wish.price !== null || wish.size !== null;
  return says && !has('kind') && !has('occasion') && !intents.look && !attached && envelope.wardrobe.length === 0;
}

/** A look can be had in another colour, for another price or in another size; by one house it seldom can. */
function suitsLook({ text, wish }) {
  return [...wish.facets.keys()].every((facet) => facet === 'colour' || facet === 'season') && !/\b(?:some|any)thing\b|\bpieces?\b/.test(text);
}

function merged(before, now) {
  return {
    ...before,
    facets: new Map([...before.facets, ...now.facets]),
    price: now.price ?? before.price,
    size: now.size ?? before.size,
    department: now.department,
  };
}

function again(scene, wish, options) {
  const { memory, voice } = scene;
  if (memory.mode === 'pieces') return search(scene, wish, options);
  const { without, heading } = options;
  return dress({ ...scene, wish }, { ...memory.plan, ...anotherLead(scene, wish, without), without, heading: heading ?? voice.say('instead') });
}

/** A look that began with a piece of a kind begins with another one of it. */
function anotherLead({ memory: { plan }, shelf, climate, label }, wish, without) {
  if (!plan.leading) return {};
  const { pieces: [leading] } = shelf.find(wish, { climate, beside: [], without, label }, 1);
  return leading ? { leading: leading.handle } : {};
}

function cheaper(scene, wish) {
  const { memory, voice } = scene;
  const prices = memory.last.map(({ lowest }) => lowest);
  const total = prices.reduce((sum, price) => sum + price, 0);
  const to = memory.mode === 'look' ? Math.floor(total * 0.8) : Math.ceil(total / Math.max(1, prices.length));
  const lower = { ...wish, price: { from: 0, to } };
  const heading = voice.say('cheaper', { sum: voice.sum(to) });
  return again(scene, lower, { without: new Set(memory.last.filter(({ lowest }) => lowest >= to || memory.mode === 'pieces').map(({ handle }) => handle)), heading, empty: 'cheaperNone' });
}

function cheaperThan(piece, scene) {
  const { shelf, voice, climate, label, wish } = scene;
  const found = shelf.cheaperThan(piece, { climate, beside: [piece], without: new Set(), label }, shown);
  if (found.length === 0) return { text: voice.say('cheaperNone') };
  const cards = cardsOf(found, scene, { beside: [piece] }).map((card, place) => (place === 0 ? { ...card, reason: voice.say('reason.alike') } : card));
  return { text: voice.say('cheaper', { sum: voice.sum(Math.ceil(piece.lowest)) }), cards, memory: { mode: 'pieces', wish, last: found } };
}
