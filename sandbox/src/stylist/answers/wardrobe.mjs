import { hash } from '../../random.mjs';
import { cardsOf } from '../reasons.mjs';
import { slotOf } from '../slots.mjs';
import { weatherLine } from './looks.mjs';

const dressy = new Set(['date night', 'party', 'wedding', 'night out', 'formal events', 'graduation', 'gallery opening', 'brunch']);
const drawingsOf = {
  outerwear: ['blazer', 'trench'], top: ['knit', 'shirt'], bottom: ['trousers', 'skirt'], dress: ['wrap', 'slip'], shoes: ['boot'], bag: ['tophandle', 'crescent'],
};

/** A look from what somebody has: something new only for a slot that nothing of theirs fills. */
export function fromWardrobe(scene) {
  const { envelope: { wardrobe }, intents, has, voice } = scene;
  if (wardrobe.length === 0) return intents.closet ? { text: voice.say('wardrobeEmpty') } : null;
  if (has('kind') && !intents.look && !intents.closet) return null;
  const { worn, missing } = composed(scene);
  const have = voice.list(worn.map(({ title }) => readable(title)));
  const known = worn.map(({ title, slot, source }) => ({ piece: scene.shelf.pieceByTitle(title), slot, source })).filter(({ piece }) => piece);
  const wished = known.filter(({ source, piece }) => source === 'wishlist' && piece.available).map(({ piece }) => piece);
  const suggested = suggestions(missing, known.map(({ piece }) => piece), scene);
  const gaps = suggested.map((piece) => voice.say(`missing.${slotOf(piece)}`));
  const text = voice.sentences([
    intents.today || intents.tonight ? weatherLine(scene) : '',
    gaps.length > 0 ? voice.say('wardrobe', { have, missing: voice.list(gaps) }) : voice.say('wardrobeComplete', { have }),
  ]);
  const cards = [
    ...cardsOf(wished, scene).map((card) => ({ ...card, reason: voice.say('reason.wishlist') })),
    ...cardsOf(suggested, scene, { beside: known.map(({ piece }) => piece) })
      .map((card, place) => ({ ...card, reason: card.reason ?? voice.say('reason.gap', { slot: voice.say(`slot.${slotOf(suggested[place])}`) }) })),
  ];
  return { text, cards, memory: { mode: 'pieces', wish: scene.wish, last: [...wished, ...suggested] } };
}

/** {worn: the pieces to wear, missing: the slots without one}. A dress, or a top and a bottom, whichever there is more of. */
function composed({ envelope: { wardrobe }, wish, intents, climate, label }) {
  const pick = (slot) => {
    const own = wardrobe.filter((item) => item.slot === slot);
    return own[hash(`${label}/${slot}`) % Math.max(1, own.length)];
  };
  const wantsDress = intents.tonight || dressy.has(wish.facets.get('occasion')?.[0].says);
  const separates = pick('top') && pick('bottom');
  const inDress = pick('dress') && (wantsDress || !separates);
  const outer = climate.warm ? [] : ['outerwear'];
  const slots = inDress ? ['dress', 'shoes', 'bag', ...outer] : ['top', 'bottom', 'shoes', 'bag', ...outer];
  const worn = slots.map((slot) => pick(slot)).filter(Boolean);
  const extra = pick('extra');
  return { worn: worn.length > 0 || !extra ? [...worn, ...(extra ? [extra] : [])] : [extra], missing: slots.filter((slot) => !pick(slot)) };
}

function suggestions(missing, beside, { shelf, wish, climate, label }) {
  const blueprint = missing.map((slot) => (slot === 'outerwear' && (climate.cold || climate.wet) ? ['trench'] : drawingsOf[slot]));
  return shelf.outfit(blueprint, wish, { climate, beside, without: new Set(), label });
}

function readable(title) {
  const plain = title.replace(/[\p{Cc}\p{Cf}\s]+/gu, ' ').trim();
  return plain.length > 60 ? `${plain.slice(0, 59)}…` : plain;
}
