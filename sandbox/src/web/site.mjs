import { readFileSync } from 'node:fs';

import { hosts } from '../hosts.mjs';
import { sendIcon } from './icon.mjs';
import { layout, notFoundPage } from './layout.mjs';
import { pageFor } from './routes.mjs';

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
      sendIcon(exchange);
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
