import { createHash } from 'node:crypto';

const widget = '/api/support/widget';

/** Somebody with an account, who signs in as the application does. */
export class Member {
  #client;
  #ready;

  constructor(client, ready) {
    this.#client = client;
    this.#ready = ready;
  }

  /** A call of the backend: {status, ...the members of its answer}. */
  async call(path, body = {}) {
    const response = await this.#client.backend(widget + path, { publicKey: this.#ready.supportKey, ...body });
    return { status: response.status, ...response.json() };
  }

  signIn(email = 'ines.marinho@example.com', password = 'atelier24') {
    return this.call('/app-auth/login', { email, password });
  }

  /** Asks for a code and reads the mail. */
  async code(email) {
    await this.call('/app-auth/request-code', { email });
    return (await this.#client.control('GET', '/codes')).value[email.toLowerCase()];
  }

  /** What the callback says once a choice was made on the provider's page; null while the page is shown. */
  async provider(name, { verifier = 'v'.repeat(64), state = 'the-state', choice = 'ines' } = {}) {
    const cc = createHash('sha256').update(verifier).digest('base64url');
    const query = new URLSearchParams({ publicKey: this.#ready.supportKey, cc, as: state, ...(choice && { choice }) });
    const { status, headers } = await this.#client.request(`${this.#ready.supportBase}${widget}/app-auth/oauth/${name}/start?${query}`);
    if (status !== 302) return null;
    const { protocol, host, searchParams } = new URL(headers.location);
    return protocol === 'wrenfieldstore:' && host === 'auth' ? searchParams : null;
  }

  async handOver({ cartId, appToken }) {
    const token = appToken ?? (await this.signIn()).token;
    return this.call('/shopify-checkout/prepare', { cartId, appToken: token, locale: 'EN', platform: 'macos' });
  }
}
