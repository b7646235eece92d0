import { html } from './html.mjs';

/** The whole document. It has no navigation of its own: the application frames these pages with its own. */
export function layout({ title, body, description = 'LOOMSTREET, a store for designers’ pieces.' }) {
  return `<!doctype html>${html`
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>${title} · LOOMSTREET</title>
<meta name="description" content="${description}">
<meta name="referrer" content="same-origin">
<link rel="icon" href="/favicon.ico">
<link rel="stylesheet" href="/assets/store.css">
</head>
<body>
<main>${body}</main>
<footer>
<span>© LOOMSTREET</span><a href="/pages/help-center">Help Center</a><a href="/pages/agreements">Agreements</a><a href="/pages/about-us">About us</a>
<span>Import duties included. Free shipping on carts of $99.00 or more.</span>
</footer>
</body>
</html>`}`;
}

export function notFoundPage() {
  return {
    status: 404,
    title: 'Page not found',
    body: html`<div class="empty"><p class="overline">404</p><h1>This page has gone out of fashion</h1>
      <p class="lead">It may have been renamed, or it never came in our size. The new pieces are still where they were.</p>
      <p class="actions" style="justify-content:center">
        <a class="button" href="/collections/new-in">See what is new</a>
        <a class="button plain" href="/pages/help-center">Help Center</a></p></div>`,
  };
}
