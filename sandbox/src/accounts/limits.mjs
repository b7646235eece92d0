import { keyOf } from './accounts.mjs';

const most = 5;
const within = 60 * 1000;

/** Counts what is tried in an address's name: five times a minute is enough for anybody. */
export class Limits {
  #now;
  #times = new Map();

  constructor({ now }) {
    this.#now = now;
  }

  allows(kind, email) {
    return this.#recent(kind, email).length < most;
  }

  count(kind, email) {
    this.#times.set(`${kind} ${keyOf(email)}`, [...this.#recent(kind, email), this.#now()]);
  }

  #recent(kind, email) {
    const since = this.#now() - within;
    return (this.#times.get(`${kind} ${keyOf(email)}`) ?? []).filter((time) => time > since);
  }

  clear() {
    this.#times.clear();
  }
}
