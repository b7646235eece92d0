import { readFileSync } from 'node:fs';

import { hosts } from '../hosts.mjs';
import { layout, notFoundPage } from './layout.mjs';
import { pageFor } from './routes.mjs';

const icon =
  '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32"><rect width="32" height="32" rx="6" fill="#1F4D40"/>' +
  '<path d="M11 7v17h11" fill="none" stroke="#FFFDF9" stroke-width="2.4"/><path d="M11 12h9M11 17h6" stroke="#9CCBB6" stroke-width="1.6"/></svg>';

/** The store's own web pages, with their pictures from the same host. */
export class WebSite {
  #store;
  #pictures;
  #journal;
  #styles = null;

  constructor({ catalog, storefront, pictures, journal }) {
    this.#store = { catalog, search: (query) => storefront.index.find(query, { prefix: true }) };
    this.#pictures = pictures;
    this.#journal = journal;
  }

  async handle(exchange) {
    if (exchange.path.startsWith('/pictures/')) {
      await this.#pictures.handle(exchange);
      return;
    }
    if (exchange.method !== 'GET' && exchange.method !== 'HEAD') {
      exchange.reply(405, { allow: 'GET, HEAD' });
      return;
    }
    if (exchange.path === '/assets/store.css') {
      this.#styles ??= readFileSync(new URL('../../data/web/store.css', import.meta.url));
      exchange.reply(200, { 'content-type': 'text/css; charset=utf-8', 'cache-control': 'max-age=300' }, this.#styles);
    } else if (exchange.path === '/favicon.ico') {
      exchange.reply(200, { 'content-type': 'image/svg+xml', 'cache-control': 'max-age=86400' }, icon);
    } else {
      this.#page(exchange);
    }
  }

  #page(exchange) {
    let page = pageFor(exchange, this.#store);
    if (page === undefined) {
      this.#journal.unknownPath(exchange);
      page = null;
    }
    page ??= notFoundPage();
    if (page.redirect) exchange.redirect(page.redirect);
    else exchange.sendHtml(page.status ?? 200, layout(page));
  }
}

/** The address without www only points to the one with it. */
export class BareWebSite {
  handle(exchange) {
    const query = exchange.query.toString();
    exchange.redirect(`https://${hosts.web}${exchange.path}${query ? `?${query}` : ''}`, 301);
  }
}
