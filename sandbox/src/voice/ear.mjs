import { loudness, sampleRate } from './sound.mjs';

const leastSpeech = 120; // milliseconds; anything shorter was a knock on the table

/**
 * Listens for when somebody speaks, by the loudness of what comes in: began(), heard(milliseconds of speech so far), ended().
 * A microphone that stops sending has ended too.
 */
export class Ear {
  #settings;
  #listener;
  #isOpen = false;
  #speech = 0;
  #quiet = 0;
  #timer = null;

  constructor({ settings, listener }) {
    this.#settings = settings;
    this.#listener = listener;
  }

  listen(samples) {
    const { threshold, pause } = this.#settings.values;
    const length = (samples.length / sampleRate) * 1000;
    const isLoud = loudness(samples) >= threshold;
    this.#quiet = isLoud ? 0 : this.#quiet + length;
    clearTimeout(this.#timer);
    this.#timer = setTimeout(() => this.#end(), pause - this.#quiet);
    if (this.#quiet >= pause) this.#end();
    if (!isLoud) return;
    this.#speech += length;
    this.#follow();
  }

  close() {
    clearTimeout(this.#timer);
    this.#isOpen = false;
  }

  #follow() {
    if (!this.#isOpen && this.#speech < leastSpeech) return;
    if (!this.#isOpen) {
      this.#isOpen = true;
      this.#listener.began();
    }
    this.#listener.heard(this.#speech);
  }

  #end() {
    const wasOpen = this.#isOpen;
    this.close();
    this.#speech = 0;
    this.#quiet = 0;
    if (wasOpen) this.#listener.ended();
  }
}
