import { bestsellers } from '../choices.mjs';
import { grid, heading, section } from '../components.mjs';
import { html } from '../html.mjs';

export function wishlistPage({ catalog }) {
  const saved = bestsellers(catalog, 12);
  const cheaper = catalog.pieces.filter(({ earlier, available, curiosity }) => earlier && available && !curiosity).slice(0, 6);
  return {
    title: 'Wishlist',
    body: html`${heading('Wishlist', { count: `${saved.length} pieces`, lead: 'What most people keep here at the moment. Your own list is in the application and travels with your account.' })}
      <div class="section">${grid(saved)}</div>
      ${section('Cheaper than before', grid(cheaper), { more: '/collections/final-sale' })}`,
  };
}
