import { randomBytes } from 'node:crypto';

import { dateText } from '../catalog/dates.mjs';
import { answerTo } from './agent.mjs';
import { pastMessages } from './past.mjs';

/**
 * What shoppers and customer service write to each other. A conversation is known by a token that nobody can guess; one of
 * a customer is found by their account too. Answers are due after a while, and are there when somebody asks from then on.
 */
export class Conversations {
  #now;
  #startedAt;
  #settings;
  #orders;
  #conversations = new Map();
  #count = 0;

  constructor({ now, startedAt, settings, orders }) {
    this.#now = now;
    this.#startedAt = startedAt;
    this.#settings = settings;
    this.#orders = orders;
  }

  get all() {
    return [...this.#conversations.values()];
  }

  /** The conversation of a token; null when there is none (any more), or when it is another customer's. */
  find(token, account = null) {
    const found = this.#conversations.get(token) ?? null;
    if (found && account) found.email ??= account.email;
    return account && found?.email !== account.email ? null : found;
  }

  /** A new one, or the one that a customer had before. */
  open(account) {
    const known = account ? this.all.findLast(({ email }) => email === account.email) : null;
    if (known) return known;
    const conversation = { token: randomBytes(24).toString('base64url'), email: account?.email ?? null, messages: [], due: [], read: null };
    this.#conversations.set(conversation.token, conversation);
    for (const { age, ...facts } of account ? pastMessages(account) : []) this.#keep(conversation, { ...facts, at: this.#startedAt - age });
    conversation.read = conversation.messages.at(-1)?.id ?? null;
    return conversation;
  }

  /** What a shopper writes. The same clientID again is the same message, however often it comes. */
  write(conversation, { body, attachments = [], clientID, account }) {
    const twin = clientID === undefined ? undefined : conversation.messages.find((message) => message.clientID === clientID);
    const message = twin ?? this.#keep(conversation, { direction: 'outbound', body, attachments, clientID, at: this.#now() });
    if (!twin && this.#settings.values.answers) {
      const facts = { turn: this.#turnsOf(conversation), account, orders: account ? this.#orders.of(account) : null, hasAttachment: attachments.length > 0 };
      conversation.due.push({ at: this.#now() + this.#settings.values.delay, answer: answerTo(body, facts) });
    }
    return this.since(conversation, this.#before(conversation, message));
  }

  /** What an agent writes, whatever it is; null leaves a member out. */
  reply(conversation, changes) {
    const given = { direction: 'inbound', body: 'Is there anything else we can do for you?', attachments: [], agent: this.#settings.values.agent, ...changes };
    return this.#keep(conversation, { at: this.#now(), ...given });
  }

  /** The messages after one, oldest first; all of them when there is none with that identifier. */
  since(conversation, id) {
    this.#settle(conversation);
    const after = id === undefined || id === null ? -1 : conversation.messages.findIndex((message) => message.id === id);
    return conversation.messages.slice(after + 1);
  }

  unreadOf(conversation) {
    return this.since(conversation, conversation.read).filter(({ direction }) => direction === 'inbound').length;
  }

  /** Reading goes forward only. */
  markRead(conversation, id) {
    this.#settle(conversation);
    const placeOf = (wanted) => conversation.messages.findIndex((message) => message.id === wanted);
    if (placeOf(id) > placeOf(conversation.read)) conversation.read = id;
  }

  forget({ email }) {
    for (const [token, conversation] of this.#conversations) if (conversation.email === email) this.#conversations.delete(token);
  }

  clear() {
    this.#conversations.clear();
    this.#count = 0;
  }

  #settle(conversation) {
    const now = this.#now();
    const ready = conversation.due.filter(({ at }) => at <= now);
    conversation.due = conversation.due.filter(({ at }) => at > now);
    for (const { at, answer } of ready) {
      this.#keep(conversation, { direction: 'inbound', body: answer, attachments: [], agent: this.#settings.values.agent, at });
    }
  }

  #keep(conversation, { at, ...facts }) {
    this.#count += 1;
    const given = { id: `s${this.#count}`, createdAt: dateText(at), ...facts };
    const message = Object.fromEntries(Object.entries(given).filter(([, value]) => value !== null && value !== undefined));
    conversation.messages.push(message);
    return message;
  }

  #before({ messages }, message) {
    return messages[messages.indexOf(message) - 1]?.id;
  }

  #turnsOf({ messages }) {
    return messages.filter(({ direction }) => direction === 'outbound').length;
  }
}
