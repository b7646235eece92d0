import { setTimeout as sleep } from 'node:timers/promises';

import { Random } from '../random.mjs';
import { sampleRate, speechEvent } from './sound.mjs';
import { wordsOf } from './words.mjs';

const chunk = 100; // milliseconds
const chunkSamples = (sampleRate * chunk) / 1000;

/** Says lines: their words and their sound, chunk by chunk, at the pace of a network that the settings describe. */
export class Mouth {
  #send;
  #speech;
  #settings;
  #random;
  #playedAt = 0;

  constructor({ send, speech, settings, seed }) {
    this.#send = send;
    this.#speech = speech;
    this.#settings = settings;
    this.#random = new Random(`${seed}/voice`);
  }

  /** When the last of what was sent will have been heard. */
  get playedAt() {
    return this.#playedAt;
  }

  /** Nothing of what was sent is listened to any more. */
  hush() {
    this.#playedAt = 0;
  }

  /**
   * Sends a line. Resolves to as much of it as was said before the signal came. begins(sentence) is called before the first
   * sound of each sentence.
   */
  async say(text, { language, signal, begins = () => {} }) {
    const line = new Line(this.#settings.values, this.#random);
    const sentences = [...new Intl.Segmenter(language, { granularity: 'sentence' }).segment(text)].map(({ segment }) => segment);
    const soundOf = (sentence) => sentence && this.#speech.of(sentence, { language, kind: this.#settings.values.speech, signal });
    let said = '';
    let next = soundOf(sentences[0]);
    for (const [place, sentence] of sentences.entries()) {
      const samples = await next;
      next = soundOf(sentences[place + 1]);
      if (signal.aborted) return said.trim();
      begins(sentence);
      const before = said;
      const isWhole = await this.#utter(samples, line, {
        signal, words: wordsOf(sentence, language),
        told: (words) => {
          said = before + words;
          this.#send({ type: 'chat_partial', text: said.trim() });
        },
      });
      if (!isWhole) return said.trim();
      said = before + sentence;
    }
    return said.trim();
  }

  /** Sends the words as their sound goes out. False when it was interrupted. */
  async #utter(samples, line, { words, told, signal }) {
    const { burst } = this.#settings.values;
    const count = Math.max(1, Math.ceil(samples.length / chunkSamples));
    let toldWords = 0;
    let held = [];
    for (let place = 0; place < count; place += 1) {
      const part = samples.subarray(place * chunkSamples, (place + 1) * chunkSamples);
      const due = line.next(part.length);
      held.push(part);
      if (held.length < burst && place + 1 < count) continue;
      await sleep(due - performance.now(), undefined, { signal }).catch(() => {});
      if (signal.aborted) return false;
      const reached = Math.ceil(((place + 1) / count) * words.length);
      if (reached > toldWords) told(words.slice(0, reached).join(''));
      toldWords = reached;
      held.forEach((waiting) => this.#send(speechEvent(waiting)));
      this.#playedAt = Math.max(this.#playedAt, line.heardAt);
      held = [];
    }
    return true;
  }
}

/** When the chunks of one line leave, and when they will have been heard. */
class Line {
  #values;
  #random;
  #startedAt = performance.now();
  #sent = 0; // milliseconds of sound
  #count = 0;
  #lastDue = 0;
  #playsFrom = null;

  constructor(values, random) {
    this.#values = values;
    this.#random = random;
  }

  /** The delays of a network move chunks, and never change their order. */
  next(samples) {
    const { speed, ahead, latency, jitter, delays } = this.#values;
    const steady = this.#startedAt + Math.max(this.#sent / speed, this.#sent - ahead);
    const delay = latency + jitter * this.#random.next() + (delays.length > 0 ? delays[this.#count % delays.length] : 0);
    this.#lastDue = Math.max(this.#lastDue, steady + delay);
    this.#playsFrom ??= this.#lastDue;
    this.#count += 1;
    this.#sent += (samples / sampleRate) * 1000;
    return this.#lastDue;
  }

  get heardAt() {
    return Math.max(this.#playsFrom + this.#sent, this.#lastDue);
  }
}
