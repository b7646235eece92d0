import { once } from 'node:events';

import { WebSocket } from 'ws';

import { bytesOf, sampleRate } from '../../src/voice/sound.mjs';
import { tones } from '../../src/voice/tones.mjs';

const path = '/api/support/widget/voice/rt';
const frameSamples = 960;
export const sentence = tones('a sentence of some length, about clothes');

/** Somebody on the phone with the stylist, as the application is. */
export class Caller {
  #ws;
  #waiting = [];
  #taken = 0;

  /** Everything that came, speech with its samples counted instead of itself. */
  events = [];

  /** opening: an object, or the text of the first frame; null sends none. */
  static async call(client, ready, opening = {}) {
    const socket = await client.secure(new URL(ready.supportBase).hostname);
    return new Caller(new WebSocket(ready.supportBase.replace('https', 'wss') + path, { createConnection: () => socket }), opening);
  }

  constructor(ws, opening) {
    this.#ws = ws;
    this.opened = once(ws, 'open').then(() => {
      if (opening !== null) ws.send(typeof opening === 'string' ? opening : JSON.stringify(opening));
      return this;
    });
    this.closed = new Promise((resolve) => {
      ws.on('close', (code) => resolve(code));
    });
    ws.on('message', (data, isBinary) => this.#take(isBinary ? { type: 'binary', bytes: data } : read(data.toString())));
    ws.on('error', () => {});
  }

  /** The next event of a type, after the last one that was waited for. */
  async next(type) {
    for (;;) {
      const at = this.events.findIndex((event, place) => place >= this.#taken && event.type === type);
      if (at >= 0) {
        this.#taken = at + 1;
        return this.events[at];
      }
      await new Promise((resolve) => {
        this.#waiting.push(resolve);
      });
    }
  }

  /** Speaks as fast as the network takes it. */
  speak(samples = sentence) {
    for (let at = 0; at < samples.length; at += frameSamples) this.send({ type: 'audio', b64: bytesOf(samples.subarray(at, at + frameSamples)).toString('base64') });
  }

  beQuiet(seconds) {
    this.speak(new Float32Array(seconds * sampleRate).fill(0.001));
  }

  send(frame) {
    this.#ws.send(typeof frame === 'string' || Buffer.isBuffer(frame) ? frame : JSON.stringify(frame));
  }

  hangUp() {
    this.send({ type: 'hangup' });
    this.#ws.close(1000);
    return this.closed;
  }

  #take(event) {
    this.events.push(event.type === 'tts' ? { type: 'tts', samples: Buffer.from(String(event.b64), 'base64').length / 4 } : event);
    this.#waiting.splice(0).forEach((resolve) => resolve());
  }
}

function read(text) {
  try {
    return JSON.parse(text) ?? { type: 'text', text };
  } catch {
    return { type: 'text', text };
  }
}
