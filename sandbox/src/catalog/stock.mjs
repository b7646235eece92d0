import { BadRequest } from '../server/exchange.mjs';

/** Sells out or restocks single variants while the store runs, and puts everything back. */
export class Stock {
  #catalog;
  #changed;
  #original = new Map();

  constructor(catalog, { changed }) {
    this.#catalog = catalog;
    this.#changed = changed;
  }

  /** How many there are from now on: a whole number, or null for as many as anyone wants. */
  set({ variant: id, stock }) {
    const variant = this.#catalog.byId.get(id);
    if (variant?.__typename !== 'ProductVariant') throw new BadRequest('variant is the ID of one', 404);
    if (stock !== null && !(Number.isInteger(stock) && stock >= 0)) throw new BadRequest('stock is a whole number, or null');
    if (!this.#original.has(variant)) this.#original.set(variant, variant.stock);
    put(variant, stock);
    this.#changed();
  }

  clear() {
    this.#original.forEach((stock, variant) => put(variant, stock));
    this.#original.clear();
  }
}

function put(variant, stock) {
  const { product } = variant;
  variant.stock = stock;
  variant.available = stock === null || stock > 0;
  product.available = product.variants.some(({ available }) => available);
}
