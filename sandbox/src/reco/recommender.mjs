import { hash } from '../random.mjs';
import { goesWith } from './character.mjs';
import { reasonOf } from './reasons.mjs';

const day = 24 * 3600 * 1000;
const viewsCounted = 20;

/** What two pieces may have in common, and how much that says. */
const likenesses = [
  ['type', 2, (one, other) => one.productType === other.productType],
  ['vendor', 1.6, (one, other) => one.vendor === other.vendor],
  ['colour', 0.8, (one, other) => one.colours[0] === other.colours[0]],
];

/** Chooses pieces for shoppers. What comes out depends on the seed, on what was viewed lately and on the department. */
export class Recommender {
  #catalog;
  #seed;

  constructor({ catalog, seed }) {
    this.#catalog = catalog;
    this.#seed = seed;
  }

  /** Cards for somebody: like what they viewed, but not that again. */
  forYou({ department, viewed, without, language }) {
    const seen = this.#pieces(viewed);
    const pieces = this.#floor(department).filter((piece) => !seen.includes(piece) && !without.includes(piece.handle));
    return this.#rank(pieces, seen).map(({ piece, cause }) => this.card(piece, { cause, language }));
  }

  /** Newest first, whoever asks. */
  newArrivals({ department, without, language }) {
    const arrived = this.#catalog.collectionByHandle.get('new-in').pieces;
    return arrived
      .filter((piece) => piece.department === department && piece.available && !without.includes(piece.handle))
      .map((piece) => this.card(piece, { language, templates: ['new_in', 'new_in', 'trending', 'style_pick'] }));
  }

  /** The pieces of a collection; those of the other department only where there are no others. Null without a collection. */
  collection(handle, { department, viewed, without, language }) {
    const collection = this.#catalog.collectionByHandle.get(handle);
    if (!collection) return null;
    const sold = collection.pieces.filter((piece) => piece.available && !without.includes(piece.handle));
    const own = sold.filter((piece) => piece.department === department);
    return this.#rank(own.length > 0 ? own : sold, this.#pieces(viewed)).map(({ piece, cause }) => this.card(piece, { cause, language }));
  }

  /** What goes on a piece's page: {alsoViewed, outfit}. Null without the piece. */
  companions(handle, { viewed, limit, language }) {
    const piece = this.#catalog.piece(handle);
    if (!piece) return null;
    const floor = this.#floor(piece.department).filter((other) => other !== piece);
    const seen = [piece, ...this.#pieces(viewed)];
    const near = (other) => other.lowest >= piece.lowest * 0.5 && other.lowest <= piece.lowest * 2;
    const alike = floor.filter((other) => other.productType === piece.productType && near(other));
    const byKind = goesWith(piece).map((drawing) => this.#rank(floor.filter((other) => other.drawing === drawing), seen));
    const dressed = byKind.flatMap((ranked) => ranked.slice(0, limit).map((entry, place) => ({ ...entry, place })));
    return {
      alsoViewed: this.#rank(alike, seen).slice(0, limit).map(({ piece: other, cause }) => this.card(other, { cause, language })),
      outfit: dressed.sort((one, other) => one.place - other.place).slice(0, limit)
        .map(({ piece: other }) => this.card(other, { language, templates: ['style_pick', 'for_occasion', 'handpicked', 'similar_shoppers'] })),
    };
  }

  /** One piece as it goes into a feed, with its reason. */
  card(piece, { templates, ...circumstances }) {
    const isNew = this.isNew(piece);
    const { handle, title, vendor, lowest: price, images: [image] } = piece;
    const reason = reasonOf({ ...circumstances, piece, isNew, seed: this.#seed }, templates);
    return { handle, title, vendor, ...(image ? { image: image.url } : {}), price, isNew, ...reason };
  }

  /** Whether a piece came in during the thirty days before the store was started. */
  isNew({ createdAt }) {
    return Date.parse(createdAt) > this.#catalog.calendar.startedAt - 30 * day;
  }

  /** How many of a piece were sold, which is the better part of why it is popular. */
  sold({ handle, popularity }) {
    return popularity <= 0 ? 0 : Math.round(popularity ** 2 * 800) + (hash(`${this.#seed}/${handle}/sold`) % 40);
  }

  #pieces(handles) {
    return handles.slice(0, viewsCounted).map((handle) => this.#catalog.piece(handle)).filter(Boolean);
  }

  #floor(department) {
    return this.#catalog.pieces.filter((piece) => !piece.curiosity && piece.available && piece.department === department);
  }

  /** Best first, with what each piece shares with the one of those viewed that speaks loudest for it. */
  #rank(pieces, seen) {
    return pieces.map((piece) => {
      let score = piece.popularity / 2 + hash(`${this.#seed}/${piece.handle}/rank`) / 2 ** 32;
      let cause = null;
      seen.forEach((viewed, place) => {
        for (const [same, weight, holds] of likenesses) {
          if (!holds(piece, viewed)) continue;
          const gain = weight / (1 + place / 3);
          score += gain;
          if (gain > (cause?.gain ?? 0)) cause = { same, gain };
        }
      });
      return { piece, score, cause };
    }).sort((one, other) => other.score - one.score || one.piece.index - other.piece.index);
  }
}
