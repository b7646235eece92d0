import { understand } from '../reco/understanding.mjs';
import { climateOf } from './climate.mjs';
import { openEnvelope } from './envelope.mjs';
import { intentsOf, orderNumbersIn, sizeIn } from './intents.mjs';
import { englished } from './lexicon.mjs';
import { measurementsIn } from './measurements.mjs';
import { inDollars } from './sums.mjs';
import { Voice } from './voice.mjs';

const departments = { 'for men': 'men', 'for women': 'women' };
const longestWords = 2000;

/** Everything that an answer goes by: what was said and meant, who says it, what was said before, and the means to answer. */
export function sceneOf({ body, attachments, lang, account, conversation, shelf, seed, now }) {
  const { memory } = conversation;
  const envelope = openEnvelope(body);
  const words = envelope.words.slice(0, longestWords);
  const label = `${seed}/${conversation.turn}/${words}`;
  const voice = new Voice(lang, label);

  const handle = envelope.handle ?? attachments[0]?.handle ?? null;
  const anchored = envelope.anchor ?? attachments[0]?.title ?? null;
  const attached = (handle && shelf.piece(handle)) || (envelope.anchor && shelf.pieceByTitle(envelope.anchor)) || null;
  const mentioned = attached ?? shelf.pieceNamedIn(words);

  const { text, currency } = inDollars(englished(without(words, attached?.title ?? anchored ?? mentioned?.title), voice.language));
  const { facets, price, others } = understand(text);
  voice.currency = currency ?? (price ? 'USD' : memory.currency) ?? 'USD';
  const size = sizeIn(text);
  const intents = intentsOf(text);
  const department = departments[facets.get('department')?.at(-1).says] ?? mentioned?.department ?? memory.department ?? 'women';
  const season = facets.get('season')?.[0].says.replace(/^in /, '');
  facets.delete('department');
  return {
    words, text, intents: { ...intents, sizes: intents.sizes && size === null }, others, envelope, attached, mentioned, anchored,
    isShort: words.split(/\s+/).length <= 5,
    wish: { facets, price, size, department },
    orderNumbers: orderNumbersIn(words),
    measurements: measurementsIn(words),
    climate: climateOf(envelope.weather, { rain: intents.rain, season }, now),
    account, conversation, memory, voice, shelf, label,
    has: (facet) => facets.has(facet),
  };
}

function without(words, title) {
  return title ? words.replace(title, ' ') : words;
}
