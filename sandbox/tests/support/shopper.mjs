import { prefilledValues } from '../../src/checkout/fields.mjs';
import { operations } from './operations.mjs';

/** Someone who fills a cart and goes through checkout the way a browser does, one request after the other. */
export class Shopper {
  #client;

  constructor(client) {
    this.#client = client;
  }

  async run(operation, variables) {
    const [payload] = Object.values(await this.#client.data(operations[operation], variables));
    return payload;
  }

  async cart(merchandiseId, { quantity = 1, country = 'US' } = {}) {
    const input = { buyerIdentity: { countryCode: country }, lines: [{ merchandiseId, quantity }] };
    return (await this.run('CartCreate', { input, country })).cart;
  }

  /** Opens an address and follows where it leads: the last answer, with its own address as url. */
  async open(url) {
    const response = await this.#client.request(url);
    return this.#follow(url, response);
  }

  /** Sends a form to an address, as the prefilled page would, and follows where that leads. */
  async send(url, values) {
    const headers = { 'content-type': 'application/x-www-form-urlencoded' };
    const response = await this.#client.request(url, { method: 'POST', headers, body: new URLSearchParams(values).toString() });
    return this.#follow(url, response);
  }

  /** Presses "Pay now" with all fields as the page filled them in, but for the changes. */
  pay(url, changes = {}) {
    return this.send(url, { ...prefilledValues('US'), ...changes });
  }

  settings(wanted) {
    return this.#client.control('POST', '/checkout', wanted);
  }

  #follow(url, response) {
    const { location } = response.headers;
    return location ? this.open(new URL(location, url).href) : { ...response, url };
  }
}
