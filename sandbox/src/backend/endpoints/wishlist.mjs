import { BackendError } from '../errors.mjs';

const kept = 50;

/** The summaries of wishlists that came, newest last; the control server shows them under /wishlist. */
export class Wishlists {
  syncs = [];

  add(sync) {
    this.syncs.push({ time: new Date().toISOString(), ...sync });
    if (this.syncs.length > kept) this.syncs.shift();
  }

  clear() {
    this.syncs = [];
  }
}

function isItem(item) {
  return (
    item !== null &&
    typeof item === 'object' &&
    ['handle', 'title', 'currency'].every((key) => typeof item[key] === 'string') &&
    item.handle !== '' &&
    Number.isFinite(item.price)
  );
}

/** Takes the summary of a wishlist, each time the whole of it. */
export const wishlistSync = {
  path: '/wishlist-sync',
  methods: ['POST'],
  handle({ input: { items, email, platform } }, { wishlists }) {
    if (!Array.isArray(items) || !items.every(isItem)) throw new BackendError(400, 'BAD_INPUT', 'items is a list of {handle, title, price, currency}');
    if (email !== undefined && (typeof email !== 'string' || platform !== 'macos')) throw new BackendError(400, 'BAD_INPUT', 'email comes with the platform');
    wishlists.add({ items, ...(email === undefined ? {} : { email, platform }) });
    return { code: 'OK' };
  },
};
