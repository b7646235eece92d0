import { primaryMarket } from '../../markets/markets.mjs';
import { sortPieces } from '../../storefront/sorting.mjs';
import { grid, heading } from '../components.mjs';
import { html } from '../html.mjs';

const perPage = 48;
const allOf = 'all-fashion-clothing-for-women';

const sorts = {
  featured: ['Featured', 'COLLECTION_DEFAULT', false],
  newest: ['Newest', 'CREATED', true],
  'price-low': ['Price: Low to High', 'PRICE', false],
  'price-high': ['Price: High to Low', 'PRICE', true],
  'best-selling': ['Best Selling', 'BEST_SELLING', false],
};

export function collectionPage({ catalog }, handle, { query }) {
  if (handle === 'all') return { redirect: `/collections/${allOf}` };
  const collection = catalog.collection(handle, primaryMarket);
  if (!collection) return null;
  const sort = Object.hasOwn(sorts, query.get('sort') ?? '') ? query.get('sort') : 'featured';
  const [, key, reverse] = sorts[sort];
  const pieces = sortPieces(collection.pieces, key, reverse);
  const pages = Math.max(1, Math.ceil(pieces.length / perPage));
  const page = Math.min(pages, Math.max(1, Number.parseInt(query.get('page') ?? '1', 10) || 1));
  const link = (wanted, at = 1) => `/collections/${handle}?sort=${wanted}${at > 1 ? `&page=${at}` : ''}`;
  return {
    title: collection.title,
    description: collection.description,
    body: html`${heading(collection.title, { count: pieces.length === 1 ? '1 piece' : `${pieces.length} pieces`, lead: collection.description })}
      <ul class="chips" aria-label="Sort">${Object.entries(sorts).map(([name, [label]]) => html`<li><a class="chip${name === sort ? ' on' : ''}" href="${link(name)}">${label}</a></li>`)}</ul>
      <div class="section">${pieces.length > 0 ? grid(pieces.slice((page - 1) * perPage, page * perPage)) : html`<div class="empty"><h2>Nothing here yet</h2><p class="lead">${collection.description}</p></div>`}</div>
      ${pages > 1 && html`<nav class="actions" aria-label="Pages">${page > 1 && html`<a class="button plain" href="${link(sort, page - 1)}">Previous</a>`}<span class="muted">Page ${page} of ${pages}</span>${page < pages && html`<a class="button plain" href="${link(sort, page + 1)}">Next</a>`}</nav>`}`,
  };
}

export function collectionsPage({ catalog }) {
  return {
    title: 'Collections',
    body: html`${heading('Collections')}<div class="columns section">${catalog.collections.map(({ handle, title, description, pieces }) => html`
      <div class="tile"><h3><a href="/collections/${handle}">${title}</a><span class="count">${pieces.length}</span></h3><p class="muted">${description}</p></div>`)}</div>`,
  };
}
