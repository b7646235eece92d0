import { randomBytes } from 'node:crypto';

/**
 * What was said, by whom: a guest is known by a visitor token, a customer by the account. Signing in takes along what the
 * guest said, so that nothing of it stays for whoever uses the machine after signing out.
 */
export class Conversations {
  #now;
  #byToken = new Map();
  #byAccount = new Map();

  constructor({ now }) {
    this.#now = now;
  }

  get all() {
    return [...new Set([...this.#byAccount.values(), ...this.#byToken.values()])];
  }

  /** {visitorToken, conversation}: a token that stands for nobody is replaced. */
  open({ visitorToken, visitorId, account }) {
    const token = this.#byToken.has(visitorToken) ? visitorToken : randomBytes(24).toString('base64url');
    if (token !== visitorToken) this.#byToken.set(token, this.#begin());
    const conversation = this.of({ visitorToken: token, account });
    if (typeof visitorId === 'string') conversation.visitorId = visitorId;
    return { visitorToken: token, conversation };
  }

  /** Where somebody's messages go; null for a guest without a token that is good. */
  of({ visitorToken, account }) {
    const visitors = this.#byToken.get(visitorToken) ?? null;
    if (!account) return visitors;
    if (!this.#byAccount.has(account.email)) this.#byAccount.set(account.email, this.#begin());
    const customers = this.#byAccount.get(account.email);
    if (visitors?.messages.length > 0) {
      merge(visitors, customers);
      this.#byToken.set(visitorToken, this.#begin());
    }
    return customers;
  }

  /** The one that a visitor's calls without a token belong to; null when there was none yet. */
  ofVisitor(visitorId, account) {
    if (account) return this.#byAccount.get(account.email) ?? null;
    return typeof visitorId === 'string' ? ([...this.#byToken.values()].findLast((one) => one.visitorId === visitorId) ?? null) : null;
  }

  /** One that nobody will find again. */
  stranger() {
    return this.#begin();
  }

  /** A message is never older than the one before it, to the millisecond. */
  add(conversation, { direction, body, attachments, at = this.#now() }) {
    const before = conversation.messages.at(-1);
    const own = Math.max(at, before ? (Date.parse(before.createdAt) || 0) + 1 : 0);
    const message = { id: `m${randomBytes(9).toString('hex')}`, direction, body, attachments, createdAt: new Date(own).toISOString() };
    conversation.messages.push(message);
    return message;
  }

  forget(account) {
    this.#byAccount.delete(account.email);
  }

  expireTokens() {
    this.#byToken.clear();
  }

  clear() {
    this.#byToken.clear();
    this.#byAccount.clear();
  }

  #begin() {
    return { id: `c${randomBytes(9).toString('hex')}`, visitorId: null, messages: [], memory: {}, measurements: null, turn: 0 };
  }
}

function merge(from, into) {
  into.messages = [...into.messages, ...from.messages].sort((one, other) => String(one.createdAt).localeCompare(String(other.createdAt)));
  into.memory = from.memory;
  into.measurements = from.measurements ?? into.measurements;
  into.turn += from.turn;
}
