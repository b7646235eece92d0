import { collectionTitle } from '../catalog/titles.mjs';
import { hash } from '../random.mjs';
import { fits, understand } from './understanding.mjs';

const mostCollections = 6;
const longestQuery = 500;
/** What a search may do without when no piece is all it asks for, the least missed first. */
const dispensable = ['season', 'occasion', 'colour'];

const countLines = {
  en: (count) => (count === 1 ? '1 piece' : `${count} pieces`),
  fr: (count, query) => `${count} pièces pour « ${query} »`,
  de: (count, query) => `${count} Stücke zu „${query}“`,
  ja: (count, query) => `「${query}」の${count}点`,
  'zh-Hans': (count, query) => `“${query}”：${count} 件`,
};

/** Finds pieces by what a sentence means: kind, colour, cloth, occasion, season, price, house, and words of titles. */
export class SentenceSearch {
  #catalog;
  #recommender;
  #index;

  /** index() gives the index of words; it is made at the first search. */
  constructor({ catalog, recommender, index }) {
    this.#catalog = catalog;
    this.#recommender = recommender;
    this.#index = index;
  }

  find(text, { language, limit, offset, instant }) {
    const query = text.trim().slice(0, longestQuery);
    const { pieces, ...asked } = this.#answer(understand(query), instant);
    const occasion = asked.facets.get('occasion')?.[0].says;
    const templates = occasion ? ['matches_search', 'for_occasion'] : ['matches_search'];
    return {
      products: pieces.slice(offset, offset + limit).map((piece) => this.#recommender.card(piece, { query, occasion, language, templates })),
      collections: this.#collections(asked, pieces, language),
      summary: pieces.length > 0 ? summaryOf(asked, pieces.length, query, language) : '',
      total: pieces.length,
    };
  }

  /** {pieces, facets, price}: what was found, and what of the search it answers. */
  #answer({ facets, price, others }, instant) {
    const named = others.length > 0 ? this.#index().find(others.join(' '), { prefix: instant }) : [];
    if (facets.size === 0 && price === null) return { pieces: named, facets, price };
    const floor = named.length > 0 ? named : this.#catalog.pieces.filter(({ curiosity }) => !curiosity);
    const affordable = floor.filter(({ lowest }) => price === null || (lowest >= price.from && lowest <= price.to));
    const wanted = new Map(facets);
    for (const facet of [null, ...dispensable]) {
      wanted.delete(facet);
      if (wanted.size === 0 && price === null) break;
      const fitting = affordable.filter((piece) => fits(piece, wanted));
      if (fitting.length > 0) return { pieces: named.length > 0 ? fitting : byPopularity(fitting), facets: wanted, price };
    }
    return { pieces: [], facets, price };
  }

  /** Those the words name; of a search by name only, those the first finds belong to. */
  #collections({ facets }, pieces, language) {
    if (pieces.length === 0) return [];
    const meant = [...facets.values()].flat().map(({ collection }) => collection).filter(Boolean);
    const near = pieces.slice(0, 3).flatMap(({ collections }) => collections.slice(-1).map(({ handle }) => handle));
    const handles = [...new Set(meant.length > 0 ? meant : near)].slice(0, mostCollections);
    return handles.map((handle) => this.#catalog.collectionByHandle.get(handle))
      .map((collection) => ({ handle: collection.handle, title: collectionTitle(collection, language.toUpperCase()) }));
  }
}

function byPopularity(pieces) {
  const order = (piece) => piece.popularity + (hash(piece.handle) % 100) / 400;
  return [...pieces].sort((one, other) => order(other) - order(one) || one.index - other.index);
}

function summaryOf({ facets, price }, count, query, language) {
  if (language !== 'en' && Object.hasOwn(countLines, language)) return countLines[language](count, query);
  const said = (facet, before = '') => (facets.has(facet) ? [before + facets.get(facet).map(({ says }) => says).join(' or ')] : []);
  const parts = [
    ...said('cloth'), ...said('kind'), ...said('colour'), ...said('vendor'), ...said('department'), ...said('rank'), ...said('occasion', 'for '), ...said('season'),
    ...(price ? [priceText(price)] : []),
  ];
  return parts.length > 0 ? `${countLines.en(count)}: ${parts.join(' ')}` : `${countLines.en(count)} for “${query}”`;
}

function priceText({ from, to }) {
  if (to === Infinity) return `over $${from}`;
  return from > 0 ? `from $${from} to $${to}` : `under $${to}`;
}
