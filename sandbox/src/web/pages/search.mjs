import { newest } from '../choices.mjs';
import { grid, heading } from '../components.mjs';
import { html } from '../html.mjs';

const shown = 60;

export function searchPage({ catalog, search }, { query }) {
  const wanted = (query.get('q') ?? '').trim().slice(0, 200);
  const pieces = wanted ? search(wanted) : [];
  const form = html`<form class="form" action="/search" role="search"><label>Search the store<input name="q" value="${wanted}" type="search" size="36" autocomplete="off"></label><button class="button">Search</button></form>`;
  if (!wanted) return { title: 'Search', body: html`${heading('Search')}${form}<div class="section">${grid(newest(catalog, 12))}</div>` };
  const count = pieces.length === 1 ? '1 result' : `${pieces.length} results`;
  return {
    title: `Search for ${wanted}`,
    body: html`${heading(`“${wanted}”`, { count, overline: 'Search' })}${form}
      ${pieces.length > 0 ? grid(pieces.slice(0, shown)) : html`<div class="empty"><h2>No results for “${wanted}”</h2><p class="lead">Check the spelling, try a broader word, or browse <a href="/collections/new-in">New In</a>.</p></div>`}`,
  };
}
