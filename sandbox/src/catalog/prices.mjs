import { BadRequest } from '../server/exchange.mjs';
import { setPriceRange } from './variants.mjs';

/** Sells whole pieces for another price while the store runs, and puts everything back. */
export class Prices {
  #catalog;
  #changed;
  #original = new Map();

  constructor(catalog, { changed }) {
    this.#catalog = catalog;
    this.#changed = changed;
  }

  /** What every variant of a piece costs from now on, in US dollars. */
  set({ piece: handle, price }) {
    const piece = this.#catalog.piece(handle);
    if (!piece) throw new BadRequest('piece is the handle of one', 404);
    if (!(Number.isFinite(price) && price >= 0)) throw new BadRequest('price is a number of US dollars');
    if (!this.#original.has(piece)) this.#original.set(piece, piece.variants.map((variant) => variant.price));
    const before = piece.lowest;
    put(piece, piece.variants.map(() => price));
    this.#changed(piece, before);
  }

  clear() {
    this.#original.forEach((prices, piece) => put(piece, prices));
    this.#original.clear();
  }
}

function put(piece, prices) {
  piece.variants.forEach((variant, index) => {
    variant.price = prices[index];
  });
  setPriceRange(piece);
}
