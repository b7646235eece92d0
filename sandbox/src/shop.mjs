import { sendIcon } from './web/icon.mjs';

/** The shop's host: the pages of checkout below their own paths, the Storefront API with everything else. */
export class ShopSite {
  #storefront;
  #checkout;

  constructor({ storefront, checkout }) {
    this.#storefront = storefront;
    this.#checkout = checkout;
  }

  takesCalls(exchange) {
    return this.#storefront.takesCalls(exchange);
  }

  identify(exchange) {
    return this.#partFor(exchange).identify(exchange);
  }

  handle(exchange) {
    if (exchange.path === '/favicon.ico') return sendIcon(exchange);
    return this.#partFor(exchange).handle(exchange);
  }

  #partFor({ path }) {
    return this.#checkout.takes(path) ? this.#checkout : this.#storefront;
  }
}
