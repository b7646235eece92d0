import { randomBytes } from 'node:crypto';

/** Codes that a careful application refuses, by the name they are asked for. */
const badCodes = {
  'short-code': () => letters(31),
  'plus-code': () => `${letters(20)}+${letters(22)}`,
  'long-code': () => letters(257),
  'empty-code': () => '',
  'number-code': () => 4316,
  'no-code': () => undefined,
};

export const handOverModes = ['guest', 'ready', 'unavailable', 'missing', 'widget-not-found', ...Object.keys(badCodes)];

/** The codes that carry a signed-in customer into a checkout. Each serves once and ends with the session it came from. */
export class HandOvers {
  #open = new Map();

  make(cartId, appToken) {
    const code = randomBytes(32).toString('base64url');
    this.#open.set(code, { cartId, appToken });
    return code;
  }

  /** What a code was made for, {cartId, appToken}, the first time; null afterwards. */
  redeem(code) {
    const handOver = this.#open.get(code) ?? null;
    this.#open.delete(code);
    return handOver;
  }

  revoke(appToken) {
    for (const [code, handOver] of this.#open) if (handOver.appToken === appToken) this.#open.delete(code);
  }

  clear() {
    this.#open.clear();
  }
}

/** The code to answer with in a mode that is about a wrong one. */
export function badCode(mode) {
  return badCodes[mode]();
}

function letters(count) {
  return 'a'.repeat(count);
}
