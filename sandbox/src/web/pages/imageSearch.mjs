import { grid, heading, section } from '../components.mjs';
import { html } from '../html.mjs';

/** Search by a picture: the form takes none here, and shows what people found with theirs. */
export function imageSearchPage({ catalog }) {
  const found = catalog.collectionByHandle.get('dresses').pieces.slice(0, 8);
  return {
    title: 'Search by image',
    body: html`${heading('Search by image', { lead: 'A photograph of a street, a film still, a page of a magazine: we look for what hangs here and comes close.' })}
      <form class="form section" action="/pages/image-search"><label>Address of a picture<input name="image" type="url" placeholder="https://" size="40"></label><button class="button">Search</button></form>
      ${section('Found with a picture this week', grid(found))}`,
  };
}
