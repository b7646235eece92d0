import { choose } from '../choices.mjs';
import { card, heading, picture, pieceLink, section } from '../components.mjs';
import { html } from '../html.mjs';

const shelves = [
  ['Dresses', ['slip:sage', 'wrap:ink', 'tiered:rose'], [14, 9, 6]],
  ['Layers', ['trench:camel', 'blazer:ecru', 'knit:dusk'], [41, 27, 33]],
  ['Basics', ['shirt:chalk', 'trousers:ink', 'skirt:bottle'], [52, 48, 12]],
  ['Leather', ['boot:camel', 'crescent:butter', 'tophandle:plum'], [60, 22, 18]],
];

const week = [
  ['Monday', ['trousers:ink', 'shirt:chalk', 'boot:camel']], ['Wednesday', ['wrap:ink', 'blazer:ecru', 'tophandle:plum']],
  ['Friday', ['slip:sage', 'knit:dusk', 'crescent:butter']], ['Sunday', ['skirt:bottle', 'knit:dusk', 'boot:camel']],
];

export function closetPage({ catalog }) {
  const find = (wish) => {
    const [drawing, colour] = wish.split(':');
    return choose(catalog, { drawing, colour });
  };
  return {
    title: 'Closet',
    body: html`${heading('Closet', { count: '12 pieces', lead: 'A closet as the application keeps it: what you own, how often you wear it, and what it costs you each time.' })}
      ${shelves.map(([title, wishes, wears]) => section(title, html`<ul class="grid">${wishes.map((wish, place) => {
        const piece = find(wish);
        return html`<li>${card(piece)}<p class="small muted">Worn ${wears[place]} times · $${(piece.lowest / wears[place]).toFixed(2)} a wear</p></li>`;
      })}</ul>`))}
      ${section('This week', html`<div class="columns">${week.map(([day, wishes]) => html`<article class="tile"><h3>${day}</h3>
        <div class="trio">${wishes.map(find).map((piece) => html`<a href="${pieceLink(piece)}">${picture(piece, { width: 240 })}</a>`)}</div></article>`)}</div>`)}`,
  };
}
