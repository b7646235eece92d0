import { sendStyles } from '../checkout/styles.mjs';
import { supportKey } from '../hosts.mjs';
import { BadRequest } from '../server/exchange.mjs';
import { sendIcon } from '../web/icon.mjs';
import { endpoints } from './endpoints/index.mjs';
import { BackendError } from './errors.mjs';
import { parseMultipart } from './multipart.mjs';

export const widgetPrefix = '/api/support/widget';
const publicPrefix = '/api/pub';
const voicePath = `${widgetPrefix}/voice/rt`;
const uploadLimit = 16 * 1024 * 1024;

/** The backend's host: JSON by POST, reading by GET, uploads as multipart, and the few pages and files a browser sees of it. */
export class BackendSite {
  #store;
  #journal;
  #routes;

  constructor({ store, journal, routes = endpoints }) {
    this.#store = store;
    this.#journal = journal;
    this.#routes = new Map(routes.map((endpoint) => [(endpoint.public ? publicPrefix : widgetPrefix) + endpoint.path, endpoint]));
  }

  identify(exchange) {
    this.#store.releaseSite.identify(exchange);
  }

  async handle(exchange) {
    if (sendStyles(exchange)) return;
    if (exchange.path === '/favicon.ico') {
      sendIcon(exchange);
      return;
    }
    if (this.#store.supportFiles.takes(exchange)) {
      this.#store.supportFiles.send(exchange);
      return;
    }
    if (this.#store.releaseSite.takes(exchange)) {
      await this.#store.releaseSite.handle(exchange);
      return;
    }
    try {
      const answer = await this.#call(exchange);
      if (!exchange.finished) exchange.sendJson(200, answer ?? {});
    } catch (error) {
      if (!(error instanceof BackendError)) throw error;
      exchange.sendJson(error.status, { code: error.code, message: error.message });
    }
  }

  /** Calls come as a web socket. */
  upgrade(exchange) {
    if (exchange.path === voicePath) {
      this.#store.calls.take(exchange);
      return;
    }
    this.#journal.unknownPath(exchange);
    exchange.sendJson(404, { code: 'NOT_FOUND', message: `There is no web socket at ${exchange.path}` });
  }

  async #call(exchange) {
    if (exchange.path === voicePath) throw new BackendError(426, 'UPGRADE_REQUIRED', 'A call is a web socket');
    const widget = exchange.path.startsWith(`${widgetPrefix}/`);
    const call = await readCall(exchange);
    const endpoint = this.#routes.get(exchange.path);
    if (widget && !endpoint?.keyless && call.input.publicKey !== supportKey) {
      throw new BackendError(404, 'WIDGET_NOT_FOUND', 'No widget has this key');
    }
    if (!endpoint) {
      this.#journal.unknownPath(exchange);
      throw new BackendError(404, 'NOT_FOUND', `There is no ${exchange.path}`);
    }
    if (!endpoint.methods.includes(exchange.method)) {
      throw new BackendError(405, 'METHOD_NOT_ALLOWED', `${endpoint.path} does not take ${exchange.method}`);
    }
    return endpoint.handle({ ...call, account: this.#customer(endpoint, call.input) }, this.#store);
  }

  /** Who calls; null for a guest. A token that stands for nobody is refused even where guests are welcome. */
  #customer({ anonymous, customer }, { appToken }) {
    if (anonymous) return null;
    const account = appToken === undefined ? null : this.#store.accounts.ofToken(appToken);
    if (appToken !== undefined && !account) throw new BackendError(401, 'REAUTH', 'The session is over');
    if (customer && !account) throw new BackendError(401, 'UNAUTHORIZED', 'Nobody is signed in');
    return account;
  }
}

/** What was sent, in one shape whether it came as a query, as JSON or as a form. */
async function readCall(exchange) {
  const query = Object.fromEntries(exchange.query);
  if (exchange.method !== 'POST') return { input: query, files: {}, query, exchange };
  const type = exchange.headers['content-type'] ?? '';
  if (/^multipart\/form-data/i.test(type)) {
    const { fields, files } = parseMultipart(await exchange.body(uploadLimit), type);
    return { input: fields, files, query, exchange };
  }
  await exchange.body(uploadLimit); // long wishlists come whole
  const input = await exchange.json();
  if (input === null || typeof input !== 'object' || Array.isArray(input)) throw new BadRequest('the body is not a JSON object');
  return { input, files: {}, query, exchange };
}
