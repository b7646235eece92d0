import { hosts } from '../../hosts.mjs';
import { html } from '../../web/html.mjs';
import { scriptValue } from '../layout.mjs';

export function bankPage({ session, amount, cardEnd, way }) {
  return {
    title: 'Weaver & Warp Bank',
    plain: true,
    body: html`<main class="bank"><p class="bank-name">Weaver &amp; Warp Bank</p><h1>Is it you?</h1>
      <p class="lead">LOOMSTREET asks for ${amount} from your card ending in ${cardEnd}.</p>
      <form method="post" action="/confirm?session=${session}&amp;in=${way}">
        <button class="primary" id="approve" name="outcome" value="approved">Confirm</button>
        <button class="secondary" id="decline" name="outcome" value="declined">Decline</button>
      </form></main>`,
  };
}

/** Tells the shop's page that there is an answer, not which: the shop asks the bank itself. */
export function bankAnswerPage({ session, approved, way }) {
  const script = `(() => {
  const shop = ${way === 'frame' ? 'parent' : 'opener'};
  shop?.postMessage({ session: ${scriptValue(session)} }, ${scriptValue(`https://${hosts.shop}`)});
  ${way === 'frame' ? '' : 'close();'}
})();`;
  return {
    title: 'Weaver & Warp Bank',
    plain: true,
    script,
    body: html`<main class="bank"><p class="bank-name">Weaver &amp; Warp Bank</p><h1>${approved ? 'Thank you' : 'The payment was declined'}</h1>
      <p class="lead">${way === 'frame' ? 'The shop goes on by itself.' : 'You may close this window.'}</p></main>`,
  };
}

export function unknownSessionPage() {
  return {
    title: 'Weaver & Warp Bank',
    plain: true,
    body: html`<main class="bank"><p class="bank-name">Weaver &amp; Warp Bank</p><h1>There is nothing to confirm</h1></main>`,
  };
}
