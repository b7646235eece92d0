import { dateText } from '../catalog/dates.mjs';
import { marketOf } from '../markets/markets.mjs';
import { moneyIn } from './receipt.mjs';

export const alertKinds = ['restock', 'price'];

/** What customers want to hear of: a piece that is back, or one that costs less than it did. */
export class Alerts {
  #catalog;
  #now;
  #past;
  #alerts = [];
  #count = 0;

  /** past() lists {email, kind, handle, choice, price, age} of alerts that are there from the beginning. */
  constructor({ catalog, now, past }) {
    this.#catalog = catalog;
    this.#now = now;
    this.#past = past;
    this.clear();
  }

  of(account) {
    return this.#alerts.filter(({ email }) => email === account.email)
      .sort((one, other) => other.createdAt - one.createdAt)
      .map((alert) => this.#record(alert, account));
  }

  /** The alert as it is kept, be it new or wanted before; null when there is no such piece or variant. */
  add(account, { kind, handle, variantId }) {
    const found = this.#find(handle, variantId);
    if (!found) return null;
    const wanted = { email: account.email, kind, handle, variantId };
    const known = this.#alerts.find((alert) => Object.keys(wanted).every((key) => alert[key] === wanted[key]));
    return this.#record(known ?? this.#keep({ ...wanted, price: priceOf(found), createdAt: this.#now() }), account);
  }

  remove(account, id) {
    const at = this.#alerts.findIndex((alert) => alert.email === account.email && alert.id === id);
    if (at >= 0) this.#alerts.splice(at, 1);
    return at >= 0;
  }

  forget(account) {
    this.#alerts = this.#alerts.filter(({ email }) => email !== account.email);
  }

  clear() {
    this.#alerts = [];
    this.#count = 0;
    for (const { email, kind, handle, choice, price, createdAt } of this.#past()) {
      const piece = this.#catalog.piece(handle);
      const variant = piece.variants.find(({ title }) => title === choice);
      this.#keep({ email, kind, handle, variantId: variant?.id, price: price ?? priceOf(variant ?? piece), createdAt });
    }
  }

  #keep(alert) {
    this.#count += 1;
    const kept = { id: `a${this.#count}`, ...alert };
    this.#alerts.push(kept);
    return kept;
  }

  /** A variant, or the whole piece when none is named. */
  #find(handle, variantId) {
    const piece = this.#catalog.piece(handle);
    return variantId === undefined ? piece : (piece?.variants.find(({ id }) => id === variantId) ?? null);
  }

  #record({ id, kind, handle, variantId, price, createdAt }, { country }) {
    const market = marketOf(country);
    const found = this.#find(handle, variantId);
    const piece = this.#catalog.piece(handle);
    const picture = (variantId === undefined ? null : found.image) ?? piece.images[0];
    const money = (dollars) => moneyIn(market, market.price(dollars));
    return {
      id, kind, handle,
      title: piece.title,
      ...(piece.vendor ? { vendor: piece.vendor } : {}),
      ...(variantId === undefined ? {} : { variantId, variantTitle: found.title }),
      ...(picture ? { imageURL: picture.url } : {}),
      price: money(price),
      currentPrice: money(priceOf(found)),
      isMet: kind === 'restock' ? found.available : priceOf(found) < price,
      createdAt: dateText(createdAt),
    };
  }
}

/** Of a piece, that of its cheapest variant. */
function priceOf(found) {
  return found.lowest ?? found.price;
}
