import { readFileSync } from 'node:fs';

let styles = null;

/** The looks of checkout and of the bank, from whichever host shows the page. False for any other address. */
export function sendStyles(exchange) {
  if (exchange.path !== '/checkouts/assets/checkout.css') return false;
  styles ??= readFileSync(new URL('../../data/web/checkout.css', import.meta.url));
  exchange.reply(200, { 'content-type': 'text/css; charset=utf-8', 'cache-control': 'max-age=300' }, styles);
  return true;
}
