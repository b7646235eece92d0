import { designers } from '../../catalog/designers.mjs';
import { choose } from '../choices.mjs';
import { heading, picture, pieceLink } from '../components.mjs';
import { html } from '../html.mjs';

/** Links and pictures from elsewhere belong on a page like this; an application that frames it has to keep them out. */
export function aboutPage({ catalog }) {
  const pieces = ['blazer', 'skirt', 'crescent'].map((drawing) => choose(catalog, { drawing }));
  return {
    title: 'About us',
    body: html`${heading('About us', { lead: `A store for ${designers.length} houses we know by name, run by nine people who used to work for some of them.` })}
      <div class="two even section"><div class="reading">
        <p>LOOMSTREET began with a market stall on a street of closed weaving mills. The looms had gone; the people who knew how to use them had not. We sold what they made on Saturdays, and wrote on a card who had made it.</p>
        <h2>What we carry</h2><p>Pieces from houses small enough to pick up the telephone. We pay them when they ship, not when we sell, and we say no to anything we would not repair.</p>
        <h2>What we do not</h2><p>No countdowns, no “only two left” unless there are two left, and no price that was never asked before it was reduced.</p>
        <h2>In the press</h2><p>“The only store that has ever told me not to buy something.” You can read the rest at <a href="https://press.example.org/loomstreet">press.example.org</a>.</p>
        <p><img src="https://images.example.net/seal.png" width="160" height="60" style="width:160px" alt="Seal of the guild of fair traders"></p></div>
        <div class="gallery">${pieces.map((piece, place) => html`<a href="${pieceLink(piece)}" style="${place === 0 ? 'grid-column:span 2' : ''}">${picture(piece, { width: place === 0 ? 800 : 400 })}</a>`)}</div></div>`,
  };
}
