import { oneOf, Settings } from '../settings.mjs';
import { BadRequest } from '../server/exchange.mjs';
import { hostileNames } from './hostile.mjs';

export const recoPaths = ['/reco', '/pdp-reco', '/vessa/reco-rails', '/search-ai', '/vessa/product-stats', '/brand-stats'];
export const recoKinds = ['for-you', 'new-arrivals', 'collection'];

/** All of them, the ones of one path, and those of one kind of "/reco". */
const names = ['*', ...recoPaths, ...recoKinds.map((kind) => `/reco?kind=${kind}`)];

const defaults = { empty: false, status: null, delay: 0, hostile: [] };

const checks = {
  empty: oneOf(true, false),
  status: [(value) => value === null || (Number.isInteger(value) && value >= 400 && value <= 599), 'null or from 400 to 599'],
  delay: [(value) => Number.isInteger(value) && value >= 0 && value <= 600000, 'from 0 to 600000 milliseconds'],
  hostile: [(value) => Array.isArray(value) && value.every((name) => hostileNames.includes(name)), `a list of ${hostileNames.join(', ')}`],
};

/** How recommendations are to behave, by what is asked for. */
export class RecoModes {
  #told = new Map();

  get values() {
    return Object.fromEntries([...this.#told].map(([name, settings]) => [name, settings.values]));
  }

  /** wanted maps names to settings; null brings the defaults of a name back. */
  change(wanted) {
    if (wanted === null || typeof wanted !== 'object' || Array.isArray(wanted)) throw new BadRequest('the settings are a JSON object');
    const changed = Object.entries(wanted).map(([name, change]) => {
      if (!names.includes(name)) throw new BadRequest(`"${name}" is none of ${names.join(', ')}`);
      const settings = new Settings(name, { ...defaults, ...this.#told.get(name)?.values }, checks);
      if (change !== null) settings.change(change);
      return [name, change === null ? null : settings];
    });
    for (const [name, settings] of changed) {
      if (settings) this.#told.set(name, settings);
      else this.#told.delete(name);
    }
  }

  /** The most particular settings there are. */
  of(path, kind) {
    const told = [`${path}?kind=${kind}`, path, '*'].find((name) => this.#told.has(name));
    return told ? this.#told.get(told).values : defaults;
  }

  clear() {
    this.#told.clear();
  }
}
