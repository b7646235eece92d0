import { choose } from '../choices.mjs';
import { grid, heading, picture, pieceLink, section } from '../components.mjs';
import { html } from '../html.mjs';

const outfits = [
  ['Office', ['trousers:ink', 'shirt:chalk', 'boot:camel']], ['Dinner', ['slip:sage', 'knit:dusk', 'crescent:butter']],
  ['Weekend', ['skirt:bottle', 'knit:dusk', 'boot:camel']], ['Travel', ['trench:camel', 'trousers:ink', 'tophandle:plum']],
];

function outfitTiles(catalog) {
  const find = (wish) => {
    const [drawing, colour] = wish.split(':');
    return choose(catalog, { drawing, colour });
  };
  return html`<div class="columns">${outfits.map(([title, wishes]) => html`<article class="tile"><h3>${title}</h3>
    <div class="trio">${wishes.map(find).map((piece) => html`<a href="${pieceLink(piece)}">${picture(piece, { width: 240 })}</a>`)}</div></article>`)}</div>`;
}

export function studioPage({ catalog }) {
  const pieces = catalog.collectionByHandle.get('dresses').pieces.slice(0, 8);
  return {
    title: 'Outfit studio',
    body: html`${heading('Outfit studio', { lead: 'Put pieces together and see them as one.' })}
      ${section('On the table', outfitTiles(catalog))}${section('To begin with', grid(pieces))}`,
  };
}

export function lookbookPage({ catalog }) {
  return {
    title: 'Lookbook',
    body: html`${heading('Lookbook', { lead: 'The outfits you kept.' })}${section('Kept', outfitTiles(catalog))}`,
  };
}

export function outfitIdeasPage({ catalog }) {
  return {
    title: 'Outfit ideas',
    body: html`${heading('Outfit ideas', { lead: 'New ways to wear what is in your closet.' })}${section('For this week', outfitTiles(catalog))}`,
  };
}
