import { grid, heading } from '../components.mjs';
import { html } from '../html.mjs';

/** All of what a rail shows a part of: the collection of that name, or the newest pieces. */
export function railPage({ catalog }, key) {
  const collection = catalog.collectionByHandle.get(key) ?? catalog.collectionByHandle.get('new-in');
  return { title: collection.title, body: html`${heading(collection.title, { lead: collection.description })}<div class="section">${grid(collection.pieces.slice(0, 48))}</div>` };
}
