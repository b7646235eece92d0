import { sizeIn } from '../stylist/intents.mjs';

const intoBag = /\b(?:add|put|place|pop|throw)\b.*\b(?:in|into|to)\s+(?:my|the)\s+(?:shopping\s+)?(?:bag|cart|basket)\b|\b(?:i'?ll take|i will take|i'?ll have|buy)\s+(?:it|this|that|the)\b/;
const opens = /\b(open|show(?: me)?|go (?:back )?to|take me to|bring me to|let me see)\s+(.+)/;
const searches = /\b(?:search(?: the store)? for|look up)\s+(.+)/;
const leaves = /\b(?:bye|goodbye|see you|good night|hang up)\b/;
const asksWhatThereIs = /\bwhat(?:'s| is| do i have| have i| did i)\b(?!.*\bwear\b).*\b(bag|cart|basket|wish ?list|closet|wardrobe)\b/;
const pointing = /^(?:it|this|that|the (?:first|second|third|fourth|last)|(?:this|that|the) (?:one|piece))\b/;
const places = [
  ['wishlist', /\bwish ?list\b|\bsaved pieces\b|\bfavou?rites\b/], ['returns', /\breturns?\b|\brefunds?\b/], ['orders', /\borders?\b/],
  ['coupons', /\bcoupons?\b|\bvouchers?\b/], ['membership', /\bmembership\b|\bmy points\b/], ['brands', /\bbrands\b|\bdesigners\b/],
];
const ordinals = ['first', 'second', 'third', 'fourth'];
const heaps = { bag: 'cart', cart: 'cart', basket: 'cart', closet: 'closet', wardrobe: 'closet' };

/**
 * What somebody on the phone wants of the application instead of advice: {does: 'cart' | 'open' | 'tell' | 'leave' | 'unclear', …};
 * null for everything else. shown are the pieces she showed last, named the one a sentence names.
 */
export function commandIn(text, { shown, named, collections }) {
  if (intoBag.test(text)) {
    const piece = named ?? pointedAt(text, shown) ?? shown[0];
    return piece ? { does: 'cart', piece, ...variantOf(piece, text) } : { does: 'unclear' };
  }
  if (leaves.test(text) && text.split(/\s+/).length <= 8) return { does: 'leave' };
  const [, heap] = asksWhatThereIs.exec(text) ?? [];
  if (heap) return { does: 'tell', list: heaps[heap] ?? 'wishlist' };
  const [, wanted] = searches.exec(text) ?? [];
  if (wanted) return { does: 'open', event: { kind: 'search', path: `/search?q=${encodeURIComponent(plain(wanted))}` }, name: plain(wanted) };
  const [, verb, object] = opens.exec(text) ?? [];
  return verb ? opening(verb, plain(object), { shown, named, collections }) : null;
}

function opening(verb, object, { shown, named, collections }) {
  const [kind] = object.split(' ').length <= 5 ? (places.find(([, pattern]) => pattern.test(object)) ?? []) : [];
  if (kind) return { does: 'open', event: { kind } };
  const isPointed = pointing.test(object);
  const piece = named ?? (isPointed || /^(?:the|that|this) /.test(object) ? pointedAt(object, shown) : null) ?? (isPointed ? shown[0] : null);
  if (piece) return { does: 'open', event: { kind: 'product', handle: piece.handle }, name: piece.title, piece };
  const asked = object.replace(/^(?:the|your|all) /, '').replace(/ (?:collection|page|rail)$/, '');
  const isCertain = !verb.startsWith('show') || /\bcollection\b/.test(object);
  const collection = isCertain && collections.find(({ handle, title }) => [handle, title.toLowerCase()].includes(asked));
  return collection ? { does: 'open', event: { kind: 'collection', handle: collection.handle }, name: collection.title } : null;
}

/** Of the pieces shown the one at a place, else the one that has most of the words. */
function pointedAt(text, shown) {
  const place = ordinals.findIndex((ordinal) => text.includes(ordinal));
  if (place >= 0) return shown[place] ?? null;
  if (/\blast one\b/.test(text)) return shown.at(-1) ?? null;
  const words = text.match(/\p{L}+/gu) ?? [];
  const counted = shown.map((piece) => ({ piece, count: words.filter((word) => wordsOf(piece).has(word)).length }));
  return counted.filter(({ count }) => count > 0).sort((one, other) => other.count - one.count)[0]?.piece ?? null;
}

function wordsOf({ title, garment, productType }) {
  const words = `${title} ${garment?.noun ?? ''} ${productType}`.toLowerCase().match(/\p{L}+/gu) ?? [];
  const common = new Set(['bag', 'cart', 'basket', 'the', 'my', 'in', 'to', 'one']);
  return new Set(words.filter((word) => !common.has(word)));
}

/** {variant, size}: one that can be bought, in the size and the colour that were said; null when there is none. */
function variantOf({ variants }, text) {
  const size = sizeIn(text);
  const values = ({ selectedOptions }) => selectedOptions.map(({ value }) => value.toLowerCase());
  const fitting = variants.filter((variant) => variant.available && (size === null || values(variant).includes(size.toLowerCase())));
  const coloured = fitting.find((variant) => values(variant).some((value) => value.length > 2 && text.includes(value)));
  return { variant: coloured ?? fitting[0] ?? null, size };
}

function plain(words) {
  return words.replace(/[.!?…,]+$/u, '').replace(/ (?:please|now)$/, '').trim();
}
