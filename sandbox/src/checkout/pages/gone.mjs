import { html } from '../../web/html.mjs';

export function gonePage() {
  return notice('This checkout is no longer there', 'The cart it belonged to was paid for or has expired. Your bag in LOOMSTREET shows what is in it now.');
}

export function usedHandOverPage() {
  return notice('This link was used before', 'It opens a checkout once. Start the checkout again from your bag.');
}

export function troublePage() {
  return notice('Checkout is not available', 'There was a problem on our side. Your cart stays as it is.');
}

function notice(title, lead) {
  return { title: `${title} · LOOMSTREET`, plain: true, body: html`<main><p class="word-mark">LOOMSTREET</p><h1>${title}</h1><p class="lead">${lead}</p></main>` };
}
