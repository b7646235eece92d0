import { imageOfColour } from '../catalog/images.mjs';
import { hash } from '../random.mjs';
import { characterOf } from '../reco/character.mjs';
import { fits } from '../reco/understanding.mjs';
import { suits } from './climate.mjs';
import { harmony } from './colours.mjs';

/** What a wish may do without when nothing is all of it, the least missed first. */
const dispensable = ['season', 'occasion', 'cloth', 'colour'];

/** Takes pieces from the catalog: the ones somebody asks for, and whole looks. The same wish with the same label gets the same. */
export class Shelf {
  #catalog;
  #seed;

  constructor({ catalog, seed }) {
    this.#catalog = catalog;
    this.#seed = seed;
  }

  /** A piece that cannot be bought may be talked about, but is not suggested. */
  piece(handle) {
    return this.#catalog.piece(handle);
  }

  pieceByTitle(title) {
    const wanted = title.trim().toLowerCase();
    return this.#catalog.pieces.find((piece) => piece.title.toLowerCase() === wanted) ?? null;
  }

  /**
   * {pieces, lacking}: the best for a wish {facets, price, size, department}, and the facets that had to be given up for it.
   * circumstances are {climate, beside, without, label}: the weather, pieces it is worn with, handles not to repeat.
   */
  find(wish, circumstances, count) {
    const { facets, price, size, department } = wish;
    const affordable = this.#floor(department).filter((piece) => !circumstances.without.has(piece.handle) && within(piece, price) && hasSize(piece, size));
    const wanted = new Map(facets);
    const lacking = [];
    for (const facet of [null, ...dispensable]) {
      if (facet !== null && !wanted.has(facet)) continue;
      if (facet !== null) lacking.push(facet);
      wanted.delete(facet);
      if (facets.size > 0 && wanted.size === 0) break;
      const fitting = affordable.filter((piece) => fits(piece, wanted));
      if (fitting.length > 0) return { pieces: this.#spread(this.#ranked(fitting, wish, circumstances), wanted).slice(0, count), lacking };
    }
    return { pieces: [], lacking };
  }

  /** A look: one piece for each part of a blueprint, together within the price, none for a part that there is nothing for. */
  outfit(blueprint, wish, circumstances) {
    const { price, department, size } = wish;
    const parts = blueprint.map((drawings) => this.#part(drawings, { ...wish, price: null, size, department }, circumstances)).filter((part) => part.length > 0);
    while (parts.length > 2 && cheapest(parts) > (price?.to ?? Infinity)) parts.pop();
    const chosen = [];
    parts.forEach((part, place) => {
      const spent = chosen.reduce((sum, { lowest }) => sum + lowest, 0);
      const left = (price?.to ?? Infinity) - spent - cheapest(parts.slice(place + 1));
      const payable = part.filter(({ lowest }) => lowest <= left);
      const ranked = this.#ranked(payable.length > 0 ? payable : [part.reduce(cheaper)], wish, { ...circumstances, beside: [...circumstances.beside, ...chosen] });
      chosen.push(ranked[0]);
    });
    return chosen;
  }

  /** Like a piece, but for less. */
  cheaperThan({ productType, department, lowest, handle }, circumstances, count) {
    const alike = this.#floor(department).filter((piece) => piece.productType === productType && piece.lowest < lowest && piece.handle !== handle && !circumstances.without.has(piece.handle));
    return this.#ranked(alike, { facets: new Map() }, circumstances).slice(0, count);
  }

  /** The piece with the longest title that a sentence has in it; a single word is no mention of one. */
  pieceNamedIn(words) {
    const said = words.toLowerCase();
    const mentioned = this.#catalog.pieces.filter(({ title }) => title.includes(' ') && said.includes(title.toLowerCase()));
    return mentioned.sort((one, other) => other.title.length - one.title.length)[0] ?? null;
  }

  named(pieces, count) {
    return pieces.filter(({ curiosity, available }) => !curiosity && available).slice(0, count);
  }

  /** The card of a piece, with the picture of a colour that was asked for. */
  card({ handle, title, vendor, lowest, images, ...piece }, { reason, colour } = {}) {
    const image = (colour && imageOfColour({ images, ...piece }, colour)) ?? images[0];
    return { handle, title, vendor, price: lowest, ...(image ? { image: image.url } : {}), ...(reason ? { reason } : {}) };
  }

  #floor(department) {
    return this.#catalog.pieces.filter((piece) => !piece.curiosity && piece.available && piece.department === (department ?? 'women'));
  }

  /** The first drawing that there is anything of; its pieces that are wanted where some are. */
  #part(drawings, { department, facets, size }, { without, label }) {
    const start = hash(`${this.#seed}/${label}/part`) % 3 === 0 && drawings.length > 1 ? 1 : 0;
    for (const drawing of [...drawings.slice(start), ...drawings.slice(0, start)]) {
      const pieces = this.#floor(department).filter((piece) => piece.drawing === drawing && !without.has(piece.handle) && hasSize(piece, size));
      const colour = new Map([...facets].filter(([facet]) => facet === 'colour' || facet === 'vendor' || facet === 'rank'));
      const wanted = pieces.filter((piece) => fits(piece, colour));
      if (pieces.length > 0) return wanted.length > 0 ? wanted : pieces;
    }
    return [];
  }

  #ranked(pieces, { facets }, { climate, beside, label, occasion }) {
    const occasions = [...(facets.get('occasion') ?? []).map(({ says }) => says), ...(occasion ? [occasion] : [])];
    const scored = pieces.map((piece) => {
      const together = beside.length > 0 ? beside.reduce((sum, other) => sum + harmony(colourOf(piece, facets), other.colours[0]), 0) / beside.length : 0;
      const meant = occasions.some((name) => characterOf(piece).occasions.includes(name)) ? 0.8 : 0;
      const taste = Math.min(piece.popularity, 1) * 0.5 + (hash(`${this.#seed}/${label}/${piece.handle}`) / 2 ** 32) * 0.6;
      return { piece, score: together * 2 + meant + suits(piece, climate) + taste };
    });
    return scored.sort((one, other) => other.score - one.score || one.piece.index - other.piece.index).map(({ piece }) => piece);
  }

  /** Where no kind was asked for, one kind after the other instead of five coats. */
  #spread(pieces, facets) {
    if (facets.has('kind')) return pieces;
    const rounds = new Map();
    const round = pieces.map((piece) => {
      const count = rounds.get(piece.drawing) ?? 0;
      rounds.set(piece.drawing, count + 1);
      return count;
    });
    return pieces.map((piece, place) => [round[place], place, piece]).sort((one, other) => one[0] - other[0] || one[1] - other[1]).map(([, , piece]) => piece);
  }
}

/** The colour of a piece that somebody asked for, else the first. */
export function colourOf({ colours }, facets) {
  const wanted = facets?.get('colour') ?? [];
  return colours.find((colour) => wanted.some(({ holds }) => holds({ colours: [colour] }))) ?? colours[0];
}

function within({ lowest }, price) {
  return price === null || (lowest >= price.from && lowest <= price.to);
}

/** Garments that come in other sizes than the one named are not held against it. */
function hasSize({ sizes, variants }, size) {
  if (!size || !sizes.some((own) => /^\d/.test(own) === /^\d/.test(size) && own !== 'One size')) return true;
  return variants.some(({ available, selectedOptions }) => available && selectedOptions.some(({ value }) => value === size));
}

function cheapest(parts) {
  return parts.reduce((sum, part) => sum + part.reduce(cheaper).lowest, 0);
}

function cheaper(one, other) {
  return other.lowest < one.lowest ? other : one;
}
