import { choose } from '../choices.mjs';
import { heading, money, picture, pieceLink } from '../components.mjs';
import { html } from '../html.mjs';

const looks = [
  ['Rain, then dinner', 'A slip under a trench. The belt is tied behind the back and stays there.', 'slip:bottle trench:camel crescent:butter boot:ink'],
  ['Monday, on purpose', 'Wide trousers carry the whole look; the shirt only keeps them company.', 'trousers:ink shirt:chalk blazer:dusk tophandle:madder'],
  ['The long weekend', 'One dress, two days, sand in the hem.', 'tiered:ecru crescent:camel knit:rose boot:camel'],
  ['Opening night', 'Plum on plum, with one small light at the wrist.', 'slip:plum blazer:ink tophandle:plum boot:plum'],
  ['Letters from the moor', 'Cables, pleats and the good boots.', 'knit:ecru skirt:bottle boot:camel trench:olive'],
  ['A table by the window', 'The wrap does the work, the bag takes the credit.', 'wrap:madder tophandle:camel trench:ink boot:ink'],
  ['Half past six', 'Office until the jacket comes off.', 'blazer:ecru skirt:ink shirt:butter crescent:plum'],
  ['First frost', 'Everything warm at once, and none of it heavy.', 'trench:ink knit:madder trousers:olive boot:olive'],
];

export function starlookPage({ catalog }) {
  return {
    title: 'Starlook',
    body: html`${heading('Starlook', { lead: 'Eight looks by people who dress well for a living or just for the day. Everything in them is in the store.' })}
      <div class="looks section">${looks.map((look, place) => oneLook(catalog, look, place))}</div>`,
  };
}

function oneLook(catalog, [title, line, wishes], place) {
  const pieces = wishes.split(' ').map((wish) => {
    const [drawing, colour] = wish.split(':');
    return choose(catalog, { drawing, colour, skip: place });
  });
  const total = pieces.reduce((sum, { lowest }) => sum + lowest, 0);
  return html`<article>
    <div class="look">${pieces.map((piece, at) => html`<a href="${pieceLink(piece)}">${picture(piece, { width: at === 0 ? 640 : 320, place: at === 2 ? 1 : 0 })}</a>`)}</div>
    <h3>${title}</h3><p class="muted">${line}</p>
    <ul class="pieces">${pieces.map((piece) => html`<li><a href="${pieceLink(piece)}"><span>${piece.title} <span class="muted">${piece.vendor}</span></span><span class="price">${money(piece.lowest)}</span></a></li>`)}</ul>
    <p class="small muted" style="margin-top:10px">The whole look: ${money(total)}</p></article>`;
}
