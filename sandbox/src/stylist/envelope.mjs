import { slotNames } from './slots.mjs';

const marks = ['\n[MY WARDROBE', '\n[Build the look', '\n[Weather:'];
const productLine = /^[ \t]*\/products\/([^/?#\s]+)[ \t]*$/m;
const itemEnd = new RegExp(` \\[(${slotNames.join('|')})(?:/(cart|wishlist))?\\]`, 'g');

/**
 * What an outgoing message says: the shopper's own words, and what the application put behind them.
 * {words, handle, wardrobe: [{title, slot, source}], anchor, weather: {temperature, condition, city}}; null for what is not there.
 */
export function openEnvelope(body) {
  const begins = marks.map((mark) => body.indexOf(mark)).filter((at) => at >= 0);
  const end = begins.length > 0 ? Math.min(...begins) : body.length;
  const words = body.slice(0, end);
  const blocks = body.slice(end);
  const handle = productLine.exec(words)?.[1] ?? null;
  return {
    words: words.replace(productLine, '').trim(),
    handle: handle === null ? null : decoded(handle),
    wardrobe: wardrobeIn(blocks),
    anchor: blockOf(blocks, '\n[Build the look around: '),
    weather: weatherIn(blockOf(blocks, '\n[Weather: ')),
  };
}

/** Titles may hold anything, brackets and semicolons too; an item ends where a slot is named. */
function wardrobeIn(blocks) {
  const begin = blocks.indexOf('\n[MY WARDROBE');
  if (begin < 0) return [];
  const from = blocks.indexOf(': ', begin) + 2;
  const ends = marks.slice(1).map((mark) => blocks.indexOf(mark, from)).filter((at) => at >= 0);
  const list = blocks.slice(from, Math.min(blocks.length, ...ends));
  let at = 0;
  return [...list.matchAll(itemEnd)].map((match) => {
    const [whole, slot, source = 'closet'] = match;
    const title = list.slice(at, match.index).replace(/^; /, '');
    at = match.index + whole.length;
    return { title, slot, source };
  });
}

/** A block ends with the last bracket of its line, so that a name may have brackets of its own. */
function blockOf(blocks, begin) {
  const at = blocks.indexOf(begin);
  if (at < 0) return null;
  const line = blocks.slice(at + begin.length).split('\n', 1)[0];
  return line.endsWith(']') ? line.slice(0, -1) : null;
}

function weatherIn(text) {
  const [, temperature, condition, city = ''] = /^(-?[\d.]+(?:e[+-]?\d+)?)°C ([\p{L} ]+?)(?: in (.+))?$/u.exec((text ?? '').slice(0, 200)) ?? [];
  if (temperature === undefined) return null;
  return { temperature: Number(temperature), condition: condition.toLowerCase(), city };
}

function decoded(handle) {
  try {
    return decodeURIComponent(handle);
  } catch {
    return handle;
  }
}
