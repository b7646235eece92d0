import { oneOf, Settings } from '../settings.mjs';
import { BadRequest } from '../server/exchange.mjs';
import { promotionAt } from './promotion.mjs';

const documentKeys = ['revision', 'features', 'copy', 'home', 'tools'];
const dashboard = ['orders', 'wishlist', 'following', 'vessa', 'member', 'closet'];

const faultDefaults = { raw: null, status: null, delay: 0, redirect: null, size: 0 };
const faultChecks = {
  raw: [(value) => value === null || typeof value === 'string', 'null or the text of the answer'],
  status: [(value) => value === null || (Number.isInteger(value) && value >= 200 && value <= 599), 'null or from 200 to 599'],
  delay: [(value) => Number.isInteger(value) && value >= 0 && value <= 600000, 'from 0 to 600000 milliseconds'],
  redirect: oneOf(null, 'endless'),
  size: [(value) => Number.isInteger(value) && value >= 0 && value <= 2 ** 26, 'from 0 to 67108864 bytes'],
};

/**
 * The document that configures the application, and how sending it is to fail. Applications refuse a revision below the one
 * they have, so revisions rise from start to start, and when the defaults come back.
 */
export class RemoteConfig {
  #startedAt;
  #document;
  #highest;
  #faults = new Settings('the configuration', faultDefaults, faultChecks);

  constructor({ startedAt }) {
    this.#startedAt = startedAt;
    this.#highest = Math.floor(startedAt / 1000);
    this.#document = this.#initial();
  }

  get values() {
    return { document: this.#document, ...this.#faults.values };
  }

  /** Members of the document are merged, null takes one away; the others say how to fail. A revision that is given stays. */
  change(wanted) {
    if (!isObject(wanted)) throw new BadRequest('the configuration is a JSON object');
    const entries = Object.entries(wanted);
    const own = entries.filter(([key]) => documentKeys.includes(key));
    this.#faults.change(Object.fromEntries(entries.filter(([key]) => !documentKeys.includes(key))));
    if (own.length === 0) return;
    this.#document = merged({ ...this.#document, revision: this.#highest + 1 }, Object.fromEntries(own));
    const { revision } = this.#document;
    if (Number.isSafeInteger(revision)) this.#highest = Math.max(this.#highest, revision);
  }

  /** The text of the document, at least as long as a test may have asked. */
  text() {
    const { size } = this.#faults.values;
    const text = JSON.stringify(this.#document);
    if (size <= text.length) return text;
    const entry = { en: 'x'.repeat(1000) };
    const padding = Object.fromEntries(Array.from({ length: Math.ceil((size - text.length) / 1000) }, (_, at) => [`padding.${at}`, entry]));
    return JSON.stringify({ ...this.#document, copy: { ...this.#document.copy, ...padding } });
  }

  clear() {
    this.#faults.clear();
    this.#highest += 1;
    this.#document = this.#initial();
  }

  #initial() {
    return { revision: this.#highest, features: {}, copy: {}, home: { dashboard, promo: promotionAt(this.#startedAt) }, tools: { hidden: [] } };
  }
}

function isObject(value) {
  return value !== null && typeof value === 'object' && !Array.isArray(value);
}

function merged(old, change) {
  if (!isObject(old) || !isObject(change)) return change;
  const result = { ...old };
  for (const [key, value] of Object.entries(change)) {
    if (value === null) delete result[key];
    else result[key] = merged(old[key], value);
  }
  return result;
}
