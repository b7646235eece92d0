import { Conversations } from './conversations.mjs';
import { oldThread, spoil } from './hostile.mjs';
import { sizeOfPiece } from './measurements.mjs';
import { Mira } from './mira.mjs';
import { StylistSettings } from './settings.mjs';

const kept = 50;

/** The stylist's side of the backend: conversations, her replies, and how all of it is told to go wrong. */
export class Stylist {
  #catalog;
  #mira;
  #now;

  conversations;
  settings = new StylistSettings();
  /** What was sent to "/message" lately, as it came but for the session; the control server shows it. */
  received = [];

  constructor({ catalog, orders, index, seed, now }) {
    this.#catalog = catalog;
    this.#now = now;
    this.#mira = new Mira({ catalog, orders, index, seed, now });
    this.conversations = new Conversations({ now });
  }

  open(caller) {
    const { visitorToken, conversation } = this.conversations.open(caller);
    const { hasConversation, failureCode, history, hostile } = this.settings.values;
    const messages = [...oldThread(history, Date.parse(conversation.messages[0]?.createdAt) || this.#now()), ...conversation.messages];
    return {
      visitorToken,
      hasConversation: hasConversation ?? messages.length > 0,
      ...(failureCode === null ? {} : { failureCode }),
      messages: spoil(messages, hostile),
    };
  }

  /** The echo of a message and the replies to it; null without a conversation for it. */
  take({ body, attachments, lang, visitorToken, account, input }) {
    const conversation = this.conversations.of({ visitorToken, account });
    if (!conversation) return null;
    this.#note(input);
    const from = conversation.messages.length;
    this.conversations.add(conversation, { direction: 'outbound', body, attachments });
    const script = this.#script();
    if (script) script.forEach((entry) => this.#say(conversation, entry));
    else this.conversations.add(conversation, { direction: 'inbound', ...this.#mira.reply({ body, attachments, lang, account, conversation }) });
    return { messages: spoil(conversation.messages.slice(from), this.settings.values.hostile) };
  }

  /** What she answers without writing it down: {body, attachments}. */
  reply({ body, lang, account, conversation }) {
    return this.#mira.reply({ body, attachments: [], lang, account, conversation });
  }

  /** Writes down what was said on the phone: turns of {role, text, cards, at}. */
  noteCall(conversation, turns) {
    for (const { role, text, cards, at } of turns) {
      this.conversations.add(conversation, { direction: role === 'user' ? 'outbound' : 'inbound', body: text, attachments: cards, at });
    }
  }

  /** The size that somebody takes in a piece; undefined when there is no advice, null when there is no such piece. */
  size({ handle, visitorId, account }) {
    const piece = this.#catalog.piece(handle);
    if (!piece) return null;
    const measurements = this.conversations.ofVisitor(visitorId, account)?.measurements ?? null;
    return this.settings.values.recommendedSize ?? sizeOfPiece(piece, measurements) ?? undefined;
  }

  /** Whether the answer to a message that was taken is to be lost on the way. */
  loses() {
    const { lose } = this.settings.values;
    if (lose > 0) this.settings.change({ lose: lose - 1 });
    return lose > 0;
  }

  /** A scripted message: a text, or members that replace the usual ones; null takes one away, cards may be handles. */
  #say(conversation, entry) {
    const message = this.conversations.add(conversation, { direction: 'inbound', body: '', attachments: [] });
    Object.assign(message, typeof entry === 'string' ? { body: entry } : entry);
    if (Array.isArray(message.attachments)) message.attachments = message.attachments.map((card) => (typeof card === 'string' ? (this.#mira.card(card) ?? { handle: card, title: card }) : card));
    for (const [name, value] of Object.entries(message)) if (value === null) delete message[name];
  }

  #script() {
    const { next } = this.settings.values;
    if (next !== null) this.settings.change({ next: null });
    return next;
  }

  #note({ publicKey, appToken, ...input }) {
    this.received.push(input);
    if (this.received.length > kept) this.received.shift();
  }

  forget(account) {
    this.conversations.forget(account);
  }

  clear() {
    this.settings.clear();
    this.conversations.clear();
    this.received = [];
  }
}
