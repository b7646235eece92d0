import { Random } from '../random.mjs';
import { makeCollections } from './collections.mjs';
import { curiosityCount, makeCuriosities } from './curiosities.mjs';
import { Calendar } from './dates.mjs';
import { makePieces } from './pieces.mjs';

/**
 * Everything the store sells. The same seed and count give the same catalog on every machine; only the dates of recent
 * pieces follow the day the store was started.
 */
export class Catalog {
  constructor({ seed, count, startedAt = Date.now() }) {
    const random = new Random(seed);
    this.calendar = new Calendar(seed, startedAt);
    const regular = makePieces({ random, calendar: this.calendar, count: count - curiosityCount });
    const curious = makeCuriosities({ random, calendar: this.calendar, firstIndex: regular.length });
    this.pieces = [...regular, ...curious];
    this.collections = makeCollections(this.pieces);

    this.byHandle = new Map(this.pieces.map((piece) => [piece.handle, piece]));
    this.byId = new Map([
      ...this.pieces.map((piece) => [piece.id, piece]),
      ...this.pieces.flatMap(({ variants }) => variants.map((variant) => [variant.id, variant])),
      ...this.collections.map((collection) => [collection.id, collection]),
    ]);
    this.collectionByHandle = new Map(this.collections.map((collection) => [collection.handle, collection]));
  }

  piece(handle) {
    return this.byHandle.get(handle) ?? null;
  }

  collection(handle, market) {
    return market.sells(handle) ? (this.collectionByHandle.get(handle) ?? null) : null;
  }
}
