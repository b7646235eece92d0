import { setTimeout as sleep } from 'node:timers/promises';

import { Ear } from './ear.mjs';
import { Mouth } from './mouth.mjs';
import { readOpening } from './opening.mjs';
import { Received } from './received.mjs';
import { Script } from './script.mjs';
import { Talk } from './talk.mjs';
import { wordsOf } from './words.mjs';

const openingWithin = 10000; // milliseconds
const perWord = 350; // milliseconds of speech
const pauseBeforeEnd = 300; // milliseconds
const lingering = 400; // milliseconds

/** One call, from the opened socket to the closed one. */
export class Call {
  #ws;
  #socket;
  #context;
  #opening = null;
  #account = null;
  #talk = null;
  #script = null;
  #ear;
  #mouth;
  #line = null;
  #answering = new AbortController();
  #timer;
  #isClosing = false;
  #isStill = false;
  #stranger = null;

  /** ringing, talking or over. */
  state = 'ringing';
  turns = [];
  received = new Received();
  sent = {};
  interruptions = 0;
  closed = null;

  /** answer is how it is answered; context has {settings, speech, stylist, accounts, catalog, seed, now}. */
  constructor({ ws, socket, answer, context }) {
    this.#ws = ws;
    this.#socket = socket;
    this.#context = context;
    this.startedAt = new Date(context.now()).toISOString();
    const { settings, speech, seed } = context;
    this.#ear = new Ear({ settings, listener: { began: () => this.#began(), heard: (milliseconds) => this.#heard(milliseconds), ended: () => this.#ended() } });
    this.#mouth = new Mouth({ send: (event) => this.send(event), speech, settings, seed });
    this.#timer = setTimeout(() => this.#close(1008, 'no opening'), openingWithin);
    ws.on('message', (data, isBinary) => this.#take(data, isBinary, answer));
    ws.on('error', (error) => this.received.problem(error.message));
    ws.on('close', (code) => this.#over(code));
  }

  get facts() {
    const { state, startedAt, turns, received, sent, interruptions, closed } = this;
    return { state, startedAt, customer: this.#account?.email ?? null, ...received.facts, interruptions, turns, sent, closed };
  }

  /** Sends an event, or any frame: a text, or bytes. */
  send(frame) {
    if (this.#ws.readyState !== this.#ws.OPEN || this.#isStill) return;
    const isEvent = typeof frame !== 'string' && !Buffer.isBuffer(frame);
    const name = isEvent ? String(frame?.type) : 'raw';
    this.sent[name] = (this.sent[name] ?? 0) + 1;
    this.#ws.send(isEvent ? JSON.stringify(frame) : frame);
  }

  /** As if the shopper had said it. */
  hear(words) {
    this.#began({ heard: words });
    this.#ended();
  }

  /** She says something by herself. */
  speak(line) {
    this.#answer((signal) => this.#say(this.#talk.scripted(line), signal));
  }

  /** Ends it in one of the ways that calls end. */
  end(how, code = 1011) {
    const ways = {
      ended: () => this.#farewell(1),
      'ended-twice': () => this.#farewell(2),
      normal: () => this.#close(1000, ''),
      close: () => this.#close(code, 'as it was asked for'),
      drop: () => this.#cut(),
      'mid-frame': () => this.#cut(Buffer.concat([Buffer.from([0x81, 126, 0x04, 0]), Buffer.from('{"type":"chat","text":"I was about to s')])),
      silence: () => {
        this.#isStill = true;
      },
    };
    ways[how]();
  }

  #take(data, isBinary, answer) {
    if (isBinary) {
      this.received.problem('a binary frame');
      return;
    }
    if (this.#opening === null) this.#open(data.toString('utf8'), answer);
    else this.#follow(this.received.frame(data.toString('utf8'), this.state));
  }

  #open(text, answer) {
    clearTimeout(this.#timer);
    const opening = readOpening(text);
    if (!opening) {
      this.#close(1008, 'the opening is not a JSON object');
      return;
    }
    const { settings, accounts, ...rest } = this.#context;
    this.#opening = opening;
    this.received.opening = { ...opening.raw, ...(opening.appToken === '' ? {} : { appToken: '…' }) };
    this.#account = accounts.ofToken(opening.appToken);
    this.#talk = new Talk({ ...rest, opening });
    this.#script = new Script(settings.values.script, this.#talk.language);
    this.#timer = setTimeout(() => this.#pickUp(answer), settings.values.ring);
  }

  #pickUp(answer) {
    const { settings, stylist } = this.#context;
    const { errorCode, closeCode, greets } = settings.values;
    const fail = (code) => {
      this.send({ type: 'error', ...(code === null ? {} : { code }), message: 'As it was asked for' });
      this.#linger();
    };
    if (answer === 'busy') fail('busy');
    else if (answer === 'error') fail(errorCode);
    else if (answer !== 'ready' && answer !== 'silent') this.end(answer, closeCode);
    if (answer !== 'ready') return;
    this.state = 'talking';
    this.send({ type: 'ready' });
    this.send({ type: 'session', guideName: stylist.settings.values.guideName, language: this.#talk.language });
    if (greets) this.#answer((signal) => this.#say(this.#talk.greeting({ name: this.#account?.name }), signal));
  }

  #follow({ hangup, samples }) {
    if (hangup) this.#stopTalking();
    if (samples && this.state === 'talking' && !this.received.hangup) this.#ear.listen(samples);
  }

  /** Somebody speaks: whatever she says is interrupted. */
  #began(line = this.#script.next()) {
    if (performance.now() < this.#mouth.playedAt) this.interruptions += 1;
    this.#answering.abort();
    this.#mouth.hush();
    this.#line = line && { ...line, told: 0 };
  }

  #heard(milliseconds) {
    if (!this.#line) return;
    const words = wordsOf(this.#line.heard, this.#talk.language);
    const count = Math.min(Math.floor(milliseconds / perWord), words.length - 1);
    if (count <= this.#line.told) return;
    this.#line.told = count;
    this.send({ type: 'asr', text: words.slice(0, count).join('').trim(), final: false });
  }

  #ended() {
    const line = this.#line;
    this.#line = null;
    if (!line) return;
    this.send({ type: 'asr', text: line.heard, final: true });
    this.#note('user', line.heard);
    this.#answer((signal) => this.#respond(line, signal));
  }

  async #respond({ heard, means = heard, says, events = [], ends = false, ...line }, signal) {
    await sleep(this.#context.settings.values.think, undefined, { signal }).catch(() => {});
    if (signal.aborted) return;
    if (says !== undefined) {
      await this.#say(this.#talk.scripted({ says, events, ends, ...line }), signal);
      return;
    }
    const answer = this.#talk.answer(means, this.#conversation());
    await this.#say({ ...answer, events: [...answer.events, ...events], ends: answer.ends || ends }, signal);
  }

  async #say({ text, cards, events, ends }, signal) {
    let shown = [];
    const show = () => {
      if (cards.length === 0 || shown.length > 0) return;
      shown = cards;
      this.send({ type: 'products', products: cards.map(({ handle, title, image, price }) => ({ handle, title, image, price })) });
    };
    events.forEach((event) => this.send(event));
    const begins = (sentence) => {
      if (cards.some(({ title }) => sentence.includes(title))) show();
    };
    const said = await this.#mouth.say(text, { language: this.#talk.language, signal, begins });
    if (!signal.aborted) show();
    if (said !== '') this.send({ type: 'chat', text: said });
    if (said !== '' || shown.length > 0) this.#note('mira', said, shown);
    if (!ends || signal.aborted) return;
    await sleep(this.#mouth.playedAt - performance.now() + pauseBeforeEnd, undefined, { signal }).catch(() => {});
    if (!signal.aborted) this.end('ended');
  }

  /** One answer at a time; what a script gets wrong ends none but its own. */
  async #answer(give) {
    this.#answering.abort();
    this.#answering = new AbortController();
    try {
      await give(this.#answering.signal);
    } catch (error) {
      this.received.problem(`no answer: ${error.message}`);
    }
  }

  #note(role, text, cards = []) {
    this.turns.push({ role, text, cards, at: this.#context.now() });
  }

  /** Whose conversation it is: that of a stranger is forgotten with the call. */
  #conversation() {
    const { stylist } = this.#context;
    const { visitorToken } = this.#opening;
    this.#stranger ??= stylist.conversations.stranger();
    return { account: this.#account, conversation: stylist.conversations.of({ visitorToken, account: this.#account }) ?? this.#stranger };
  }

  #farewell(times) {
    for (let count = 0; count < times; count += 1) this.send({ type: 'ended' });
    this.#linger();
  }

  /** The other side may close first. */
  #linger() {
    this.#timer = setTimeout(() => this.#close(1000, ''), lingering);
  }

  #close(code, reason) {
    this.#isClosing ||= this.#ws.readyState === this.#ws.OPEN;
    this.#stopTalking();
    this.#ws.close(code, reason);
  }

  /** The connection is gone without a word, or in the middle of one. */
  #cut(last) {
    this.#isClosing = true;
    this.#stopTalking();
    if (last) this.#socket.end(last, () => setTimeout(() => this.#socket.destroy(), lingering));
    else this.#socket.destroy();
  }

  #stopTalking() {
    this.#answering.abort();
    this.#ear.close();
    clearTimeout(this.#timer);
  }

  #over(code) {
    this.#stopTalking();
    this.state = 'over';
    this.closed = { code, by: this.#isClosing ? 'service' : 'application' };
    this.#writeDown();
  }

  /** What was said is in the conversation from here on, unless the customer it belongs to is no longer signed in. */
  #writeDown() {
    const { accounts, stylist } = this.#context;
    const isStillTheirs = this.#account === null || accounts.ofToken(this.#opening.appToken) === this.#account;
    if (this.turns.length > 0 && isStillTheirs) stylist.noteCall(this.#conversation().conversation, this.turns);
  }
}
