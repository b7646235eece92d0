import { words } from '../storefront/searchIndex.mjs';
import { fillers, longestPhrase, vocabulary } from './vocabulary.mjs';

/** {facets: facet → meanings, price: {from, to} or null, others: words without a meaning of their own}. */
export function understand(query) {
  const { price, rest } = priceIn(query);
  const parts = words(rest);
  const facets = new Map();
  const others = [];
  for (let at = 0; at < parts.length;) {
    let length = Math.min(longestPhrase, parts.length - at);
    while (length > 0 && !vocabulary.has(parts.slice(at, at + length).join(' '))) length -= 1;
    if (length > 0) {
      const meaning = vocabulary.get(parts.slice(at, at + length).join(' '));
      facets.set(meaning.facet, [...(facets.get(meaning.facet) ?? []), meaning]);
    } else if (!fillers.has(parts[at])) {
      others.push(parts[at]);
    }
    at += Math.max(1, length);
  }
  return { facets, price, others };
}

/** Meanings of one facet are alternatives, facets narrow each other. */
export function fits(piece, facets) {
  return [...facets.values()].every((meanings) => meanings.some(({ holds }) => holds(piece)));
}

const amount = '(?:US)?\\$?\\s?(\\d{1,3}(?:,\\d{3})+(?:\\.\\d\\d)?|\\d{1,6}(?:\\.\\d\\d)?)(?:\\s?(?:dollars?|usd|\\$))?';
const most = '(?:under|below|less than|up to|at most|max(?:imum)?|no more than|within|not above|cheaper than|budget(?: is| of)?:?)';
const prices = [
  [new RegExp(`\\b(?:between|from)\\s+${amount}\\s+(?:and|to)\\s+${amount}`, 'i'), (from, to) => ({ from: Math.min(from, to), to: Math.max(from, to) })],
  [new RegExp(`\\b${most}\\s+${amount}`, 'i'), (to) => ({ from: 0, to })],
  [new RegExp(`\\b(?:over|above|more than|at least)\\s+${amount}`, 'i'), (from) => ({ from, to: Infinity })],
  [new RegExp(`\\b(?:around|about|roughly)\\s+${amount}`, 'i'), (near) => ({ from: near * 0.7, to: near * 1.2 })],
];

function priceIn(query) {
  for (const [pattern, read] of prices) {
    const match = pattern.exec(query);
    if (match) return { price: read(...match.slice(1).map((digits) => Number(digits.replaceAll(',', '')))), rest: query.replace(match[0], ' ') };
  }
  return { price: null, rest: query };
}
