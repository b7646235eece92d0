import { randomBytes } from 'node:crypto';

import { dateText } from '../catalog/dates.mjs';

const sessionLength = 60 * 24 * 3600 * 1000;
const firstNumber = 77100001;

/** The customers of this run and the tokens they are signed in with, in memory. */
export class Accounts {
  #now;
  #people;
  #byEmail = new Map();
  #sessions = new Map();
  #count = 0;

  /** people are there from the beginning, and again after clear(). */
  constructor({ now, people }) {
    this.#now = now;
    this.#people = people;
    this.clear();
  }

  get all() {
    return [...this.#byEmail.values()];
  }

  find(email) {
    return this.#byEmail.get(keyOf(email)) ?? null;
  }

  findOrMake(email, facts = {}) {
    const known = this.find(email);
    if (known) return known;
    const account = {
      numericId: String(firstNumber + this.#count),
      email: keyOf(email),
      name: '', password: null, phone: null, birthday: null, country: null, address: null,
      newsletters: { email: false, sms: false },
      memberSince: dateText(this.#now()),
      ...facts,
    };
    this.#count += 1;
    this.#byEmail.set(account.email, account);
    return account;
  }

  /** Signs somebody in: their token, which nobody can guess. */
  startSession(account) {
    const token = randomBytes(32).toString('base64url');
    this.#sessions.set(token, { account, endsAt: this.#now() + sessionLength });
    return token;
  }

  /** Who is signed in with a token; null when nobody is, any more or ever. */
  ofToken(token) {
    const session = this.#sessions.get(token);
    return session && session.endsAt > this.#now() ? session.account : null;
  }

  sessionsOf(account) {
    return [...this.#sessions.values()].filter((session) => session.account === account).length;
  }

  endSession(token) {
    this.#sessions.delete(token);
  }

  endAllSessions() {
    this.#sessions.clear();
  }

  remove(account) {
    this.#byEmail.delete(account.email);
    for (const [token, session] of this.#sessions) if (session.account === account) this.#sessions.delete(token);
  }

  clear() {
    this.#byEmail.clear();
    this.#sessions.clear();
    this.#count = 0;
    for (const { email, ...facts } of this.#people()) this.findOrMake(email, facts);
  }
}

/** The letter case of an address tells nobody apart. */
export function keyOf(email) {
  return email.trim().toLowerCase();
}
