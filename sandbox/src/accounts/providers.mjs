import { createHash, randomBytes } from 'node:crypto';

const lifetime = 60 * 1000;

export const providers = { apple: 'Apple', google: 'Google', facebook: 'Facebook' };

/** Sign-ins that a provider has vouched for and that wait for the application to fetch their session. */
export class ProviderSignIns {
  #now;
  #open = new Map();

  constructor({ now }) {
    this.#now = now;
  }

  /** The code that the callback carries; only who made the challenge can use it. */
  begin(account, challenge) {
    const code = randomBytes(24).toString('base64url');
    this.#open.set(code, { account, challenge, endsAt: this.#now() + lifetime });
    return code;
  }

  /** Whom a code stands for, the first time it is shown; null when it is spent, too old, or the verifier is another's. */
  finish(code, verifier) {
    const open = this.#open.get(code);
    this.#open.delete(code);
    if (!open || open.endsAt <= this.#now()) return null;
    return createHash('sha256').update(verifier).digest('base64url') === open.challenge ? open.account : null;
  }

  clear() {
    this.#open.clear();
  }
}
