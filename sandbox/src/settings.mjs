import { BadRequest } from './server/exchange.mjs';

/** How a part of the store is to behave, as told through the control port; what was not told stays as it is. */
export class Settings {
  #subject;
  #defaults;
  #checks;
  #values;

  /** checks maps the name of a setting to [whether a value will do, what would do]. */
  constructor(subject, defaults, checks) {
    this.#subject = subject;
    this.#defaults = defaults;
    this.#checks = checks;
    this.#values = { ...defaults };
  }

  get values() {
    return this.#values;
  }

  change(wanted) {
    if (wanted === null || typeof wanted !== 'object' || Array.isArray(wanted)) throw new BadRequest('the settings are a JSON object');
    for (const [name, value] of Object.entries(wanted)) {
      if (!Object.hasOwn(this.#checks, name)) throw new BadRequest(`${this.#subject} has no setting "${name}"`);
      const [holds, explanation] = this.#checks[name];
      if (!holds(value)) throw new BadRequest(`${name} is ${explanation}`);
    }
    this.#values = { ...this.#values, ...wanted };
  }

  clear() {
    this.#values = { ...this.#defaults };
  }
}

export function oneOf(...names) {
  return [(value) => names.includes(value), `one of ${names.join(', ')}`];
}
