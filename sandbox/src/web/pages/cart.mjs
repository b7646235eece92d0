import { bestsellers } from '../choices.mjs';
import { grid, section } from '../components.mjs';
import { html } from '../html.mjs';

export function cartPage({ catalog }) {
  return {
    title: 'Cart',
    body: html`<div class="empty"><h1>Your cart is empty</h1><p class="lead">Items you add will show up here.</p>
      <p class="actions" style="justify-content:center"><a class="button" href="/collections/new-in">Continue shopping</a></p></div>
      ${section('Loved by shoppers', grid(bestsellers(catalog, 6), { short: true }))}`,
  };
}
