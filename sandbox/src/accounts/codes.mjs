import { randomInt } from 'node:crypto';

import { keyOf } from './accounts.mjs';

const lifetime = 10 * 60 * 1000;
const mostTries = 5;

/** The one-time codes that were sent to addresses. The latest of an address is the only one that counts. */
export class Codes {
  #now;
  #announce;
  #open = new Map();

  /** announce(line) is where the mail of a real store would leave. */
  constructor({ now, announce }) {
    this.#now = now;
    this.#announce = announce;
  }

  get latest() {
    return Object.fromEntries([...this.#open].map(([email, { code }]) => [email, code]));
  }

  send(email) {
    const key = keyOf(email);
    const code = String(randomInt(1000000)).padStart(6, '0');
    this.#open.set(key, { code, tries: 0, endsAt: this.#now() + lifetime });
    this.#announce(`code for ${key}: ${code}`);
  }

  /** Uses a code up when it is right: "right", "wrong", or "none" when there is no code (any more) to be right about. */
  use(email, code) {
    const key = keyOf(email);
    const open = this.#open.get(key);
    if (!open || open.endsAt <= this.#now() || open.tries >= mostTries) {
      this.#open.delete(key);
      return 'none';
    }
    if (open.code === code) {
      this.#open.delete(key);
      return 'right';
    }
    open.tries += 1;
    return 'wrong';
  }

  clear() {
    this.#open.clear();
  }
}
