/** Finds pieces by words. Built once from the catalog, at the first search. */
export class SearchIndex {
  #entries;
  #phrases;

  constructor(catalog) {
    this.#entries = catalog.pieces.map((piece) => ({ piece, words: weighedWords(piece) }));
    this.#phrases = countPhrases(catalog.pieces);
  }

  /** Pieces that have every word of the query, best first. With prefix, the last word may be a beginning. */
  find(query, { prefix }) {
    const wanted = words(query);
    if (wanted.length === 0) return [];
    const hits = [];
    for (const { piece, words: known } of this.#entries) {
      const score = scoreOf(wanted, known, prefix);
      if (score > 0) hits.push({ piece, score: score + piece.popularity });
    }
    return hits.sort((one, other) => other.score - one.score || one.piece.index - other.piece.index).map(({ piece }) => piece);
  }

  /** What people usually look for when they start to type this. */
  phrases(query, limit) {
    const wanted = words(query);
    if (wanted.length === 0) return [];
    const last = wanted.length - 1;
    const has = (parts, word, place) => parts.some((part) => stem(part) === word || (place === last && part.startsWith(word)));
    return this.#phrases
      .filter(({ parts }) => wanted.every((word, place) => has(parts, word, place)))
      .slice(0, limit)
      .map(({ text }) => text);
  }
}

function weighedWords(piece) {
  const known = new Map();
  const add = (text, weight) => {
    for (const word of words(text)) known.set(word, Math.max(weight, known.get(word) ?? 0));
  };
  add(piece.department, 1);
  piece.tags.forEach((tag) => add(tag, 2));
  piece.options.forEach(({ name, values }) => name === 'Colour' && values.forEach((value) => add(value, 2)));
  add(`${piece.productType} ${piece.garment.noun}`, 3);
  add(`${piece.cloth.name} ${piece.cloth.tag}`, 3);
  add(piece.vendor, 4);
  add(piece.title, 6);
  return known;
}

function scoreOf(wanted, known, prefix) {
  let score = 0;
  for (const [place, word] of wanted.entries()) {
    let best = known.get(word) ?? 0;
    if (best === 0 && prefix && place === wanted.length - 1) {
      for (const [other, weight] of known) {
        if (other.startsWith(word)) best = Math.max(best, weight * 0.7);
      }
    }
    if (best === 0) return 0;
    score += best;
  }
  return score;
}

function countPhrases(pieces) {
  const counts = new Map();
  for (const { curiosity, garment, cloth, style, colours } of pieces) {
    if (curiosity) continue;
    const phrases = [`${cloth.name} ${garment.noun}`, `${colours[0]} ${garment.noun}`, style.name].filter(Boolean);
    for (const phrase of phrases) counts.set(phrase.toLowerCase(), (counts.get(phrase.toLowerCase()) ?? 0) + 1);
  }
  return [...counts]
    .sort(([one, often], [other, seldom]) => seldom - often || one.localeCompare(other))
    .map(([text]) => ({ text, parts: text.normalize('NFKD').replace(/\p{M}/gu, '').split(/[^\p{L}\p{N}]+/u) }));
}

/** The words of a text without case, accents and plural, in any script. */
export function words(text) {
  return text.normalize('NFKD').replace(/\p{M}/gu, '').toLowerCase().split(/[^\p{L}\p{N}]+/u).filter(Boolean).map(stem);
}

function stem(word) {
  if (/(ss|us)$/.test(word) || word.length < 4) return word;
  return word.replace(/(ss|x|ch|sh)es$/, '$1').replace(/s$/, (tail, at) => (word.at(at - 1) === 's' ? tail : ''));
}
