const icon =
  '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32"><rect width="32" height="32" rx="6" fill="#1F4D40"/>' +
  '<path d="M11 7v17h11" fill="none" stroke="#FFFDF9" stroke-width="2.4"/><path d="M11 12h9M11 17h6" stroke="#9CCBB6" stroke-width="1.6"/></svg>';

/** Browsers ask every host for its icon. */
export function sendIcon(exchange) {
  exchange.reply(200, { 'content-type': 'image/svg+xml', 'cache-control': 'max-age=86400' }, icon);
}
