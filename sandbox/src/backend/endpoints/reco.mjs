import { emptied, spoil } from '../../reco/hostile.mjs';
import { languageOf } from '../../reco/languages.mjs';
import { recoKinds } from '../../reco/modes.mjs';
import { railsOf } from '../../reco/rails.mjs';
import { wait } from '../../server/faults.mjs';
import { BackendError } from '../errors.mjs';

const mostCards = 60;
const mostHandles = 250;
const answerKeys = { 'for-you': 'forYou', 'new-arrivals': 'newArrivals', collection: 'products' };

/** One page of a feed. */
export const feed = recommending('/reco', (input, { recommender }) => {
  const { kind, handle } = input;
  if (!recoKinds.includes(kind)) refuse(`kind is one of ${recoKinds.join(', ')}`);
  if (kind === 'collection' && !handle) refuse('handle is that of a collection');
  const { limit, offset } = pageOf(input);
  const shopper = { ...shopperOf(input), without: listOf(input.excludeHandle) };
  const cards = {
    'for-you': () => recommendedTo(recommender, shopper, handle),
    'new-arrivals': () => recommender.newArrivals(shopper),
    collection: () => recommender.collection(handle, shopper),
  }[kind]();
  if (!cards) throw new BackendError(404, 'NOT_FOUND', 'There is no such collection');
  return { [answerKeys[kind]]: cards.slice(offset, offset + limit) };
});

/** What goes on the page of a piece. */
export const companions = recommending('/pdp-reco', (input, { recommender }) => {
  if (!input.handle) refuse('handle is that of a piece');
  const found = recommender.companions(input.handle, { ...shopperOf(input), limit: pageOf(input).limit });
  if (!found) throw new BackendError(404, 'NOT_FOUND', 'There is no such piece');
  return found;
});

export const rails = recommending('/vessa/reco-rails', (input, { catalog }) => (
  { rails: railsOf(catalog, shopperOf(input).department).slice(0, pageOf(input).limit) }
));

export const searchAI = recommending('/search-ai', (input, { sentenceSearch }) => {
  const { q, instant = 'false' } = input;
  if (q === undefined) refuse('q is what to search for');
  return sentenceSearch.find(q, { ...pageOf(input), language: languageOf(input.locale), instant: ['true', '1'].includes(instant) });
});

/** How often pieces were sold; the ones nobody knows are left out. */
export const productStats = recommending('/vessa/product-stats', (input, { catalog, recommender }) => {
  const handles = listOf(input.handles);
  if (handles.length === 0 || handles.length > mostHandles) refuse(`handles has 1 to ${mostHandles} of them`);
  const pieces = handles.map((handle) => catalog.piece(handle)).filter(Boolean);
  return { stats: Object.fromEntries(pieces.map((piece) => [piece.handle, { sold: recommender.sold(piece) }])) };
});

export const brandStats = recommending('/brand-stats', ({ vendor }, { catalog, recommender }) => {
  if (!vendor) refuse('vendor is the name of a designer');
  const pieces = catalog.pieces.filter((piece) => piece.vendor === vendor);
  return { items: pieces.length, new30d: pieces.filter((piece) => recommender.isNew(piece)).length };
});

/** An endpoint that answers a query, unless the control port wants it to fail. */
function recommending(path, answer) {
  return {
    path,
    methods: ['GET'],
    anonymous: true,
    async handle({ input, exchange }, store) {
      const { empty, status, delay, hostile } = store.recoModes.of(path, input.kind);
      if (delay > 0) await wait(delay, exchange);
      if (status !== null) throw new BackendError(status, undefined, 'As it was asked for');
      const good = answer(input, store);
      return empty ? emptied(good) : spoil(good, hostile);
    },
  };
}

/** A piece that was asked about counts as the one viewed last, and is not recommended. */
function recommendedTo(recommender, shopper, handle) {
  return recommender.forYou(handle ? { ...shopper, viewed: [handle, ...shopper.viewed] } : shopper);
}

function shopperOf({ gender = 'women', sessionViewed, locale }) {
  if (gender !== 'women' && gender !== 'men') refuse('gender is women or men');
  return { department: gender, viewed: listOf(sessionViewed), language: languageOf(locale) };
}

function pageOf({ limit = '24', offset = '0' }) {
  if (!/^\d{1,4}$/.test(limit) || limit < 1 || limit > mostCards) refuse(`limit is from 1 to ${mostCards}`);
  if (!/^\d{1,6}$/.test(offset)) refuse('offset is a number');
  return { limit: Number(limit), offset: Number(offset) };
}

function listOf(text = '') {
  return text.split(',').map((handle) => handle.trim()).filter(Boolean);
}

function refuse(message) {
  throw new BackendError(400, 'BAD_INPUT', message);
}
