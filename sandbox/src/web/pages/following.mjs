import { designers } from '../../catalog/designers.mjs';
import { grid, heading } from '../components.mjs';
import { html } from '../html.mjs';

export function followingPage({ catalog }) {
  const followed = designers.filter((_, place) => place % 5 === 0);
  const latest = ({ handle }) => [...catalog.collectionByHandle.get(handle).pieces].sort((one, other) => other.createdAt.localeCompare(one.createdAt)).slice(0, 6);
  return {
    title: 'Following',
    body: html`${heading('Following', { count: `${followed.length} designers`, lead: 'The houses people follow most, and the last pieces each of them sent us.' })}
      ${followed.map((designer) => html`<section class="section"><header><div><h2>${designer.name}</h2><p class="muted" style="margin:4px 0 0">${designer.line}</p></div><a href="/collections/${designer.handle}">See all</a></header>
        ${grid(latest(designer), { short: true })}</section>`)}`,
  };
}
