import { WebSocketServer } from 'ws';

import { Call } from './call.mjs';
import { VoiceSettings } from './settings.mjs';
import { Speech } from './speech.mjs';

const kept = 10;
const longestFrame = 1 << 20; // bytes

/** The voice line of the backend: takes calls, and remembers the last of them. */
export class Calls {
  #context;
  #server = new WebSocketServer({ noServer: true, maxPayload: longestFrame, perMessageDeflate: false });
  #count = 0;

  settings;
  /** The latest last; each has an id. */
  all = [];

  /** script is what shoppers say unless the control port says otherwise. */
  constructor({ accounts, catalog, stylist, seed, now, script }) {
    this.settings = new VoiceSettings({ script });
    this.#context = { accounts, catalog, stylist, seed, now, settings: this.settings, speech: new Speech() };
  }

  /** Those under way. */
  get open() {
    return this.all.filter(({ call }) => call.state !== 'over');
  }

  take(upgrade) {
    const answer = this.settings.takeAnswer();
    if (answer === 'refuse') {
      upgrade.sendJson(this.settings.values.refuseStatus, { code: 'VOICE_UNAVAILABLE', message: 'As it was asked for' });
      return;
    }
    const { req, socket, head } = upgrade.take();
    this.#server.handleUpgrade(req, socket, head, (ws) => {
      this.all.push({ id: `call${(this.#count += 1)}`, call: new Call({ ws, socket, answer, context: this.#context }) });
      if (this.all.length > kept) this.all.shift();
    });
  }

  clear() {
    this.settings.clear();
    this.open.forEach(({ call }) => call.end('drop'));
    this.all = [];
  }
}
