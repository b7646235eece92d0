import { choose } from '../choices.mjs';
import { avatar, heading, picture, pieceLink } from '../components.mjs';
import { html } from '../html.mjs';

const notes = [
  ['Hana K.', 'Kyoto', 'slip:sage', 'Wore it to my sister’s graduation and then, without changing, to the fish market at five in the morning.', 128, 14],
  ['Ines M.', 'Lisbon', 'trench:camel', 'Year two with this coat. The cuffs have started to tell stories.', 94, 9],
  ['Maud L.', 'Lyon', 'knit:ecru', 'My grandmother counted the stitches and gave me the nod. There is no higher award.', 211, 32],
  ['Signe R.', 'Aarhus', 'boot:camel', 'Resoled for the first time. The cobbler said he would buy them off me.', 67, 5],
  ['Camille D.', 'Montreal', 'skirt:plum', 'Pleats against the wind on the bridge. The pleats won.', 143, 18],
  ['Giulia T.', 'Turin', 'wrap:madder', 'Is it too much for a Tuesday? I have decided that it is not.', 88, 41],
  ['Orla B.', 'Cork', 'crescent:butter', 'It fits one paperback exactly. I have stopped buying hardbacks.', 172, 22],
  ['Noa P.', 'Haifa', 'trousers:olive', 'Hemmed them by a thumb. Thank you to whoever left the extra cloth inside.', 54, 3],
  ['Ji-won S.', 'Busan', 'blazer:dusk', 'Sleeves rolled once. Lining: unexpectedly wonderful.', 119, 11],
  ['Tess V.', 'Utrecht', 'shirt:chalk', 'Stolen from my brother, who stole it from the store. Kept within the family.', 76, 8],
];

const circles = [
  ['Mended, not replaced', '2,140 members', 'Visible mending, resoling and the art of the spare button.'],
  ['Tall and fine with it', '1,312 members', 'Inseams, sleeve lengths and houses that remember us.'],
  ['Capsule of twelve', '3,806 members', 'Twelve pieces, one season, honest accounts of boredom.'],
  ['Office, but make it soft', '987 members', 'Tailoring without the armour.'],
];

export function vessaPage({ catalog }) {
  return {
    title: 'Vessa',
    body: html`${heading('Vessa', { lead: 'Notes from people who wear what they bought. No filters, plenty of weather.' })}
      <div class="two section"><div class="notes">${notes.map(([name, city, wish, words, likes, answers], place) => {
        const [drawing, colour] = wish.split(':');
        const piece = choose(catalog, { drawing, colour, skip: place });
        return html`<article class="note"><a href="${pieceLink(piece)}">${picture(piece, { width: 420 })}</a>
          <p class="by">${avatar(name)}<span>${name}<br><span class="muted small">${city}</span></span></p>
          <p>${words}</p><p class="small muted"><a href="${pieceLink(piece)}">${piece.title}</a> · ${likes} likes · ${answers} answers</p></article>`;
      })}</div>
      <aside><h2>Circles</h2>${circles.map(([title, members, line]) => html`<div class="tile" style="margin-top:16px"><h3>${title}</h3><p class="small muted">${members}</p><p>${line}</p></div>`)}
        <div class="tile" style="margin-top:16px"><h3>House rules</h3><p>Be kind, be specific, and name the size you took. The rest is in the <a href="/pages/agreements/community-rules">community rules</a>.</p></div></aside></div>`,
  };
}
