import { hosts } from '../../hosts.mjs';
import { html } from '../../web/html.mjs';
import { scriptValue } from '../layout.mjs';
import { framed } from './frame.mjs';
import { wordsOf } from './words.mjs';

/** Waits for the bank, which answers from a window of its own or from a frame in this page. */
export function confirmPage({ action, payment: { session }, summary, way, waiting = false }) {
  const bank = `https://${hosts.bank}/confirm?session=${session}&in=${way}`;
  const main = html`<h1>Confirm your payment</h1>
    <p class="lead">Your bank wants to know that it is you who pays ${summary.total}.</p>
    ${way === 'frame'
      ? html`<iframe id="bank" src="${bank}" title="Your bank" width="480" height="420"></iframe>`
      : html`<p><button class="primary" id="confirm-bank" type="button">Confirm with your bank</button></p>`}
    <p class="note" id="bank-state" role="status">${waiting && 'Your bank has not confirmed yet.'}</p>
    <form method="post" action="${action}" id="confirmed"><button class="secondary" id="continue" type="submit">I have confirmed</button></form>`;
  return { title: 'Confirm your payment · LOOMSTREET', body: framed({ main, summary, words: wordsOf('en') }), script: script({ bank, session }) };
}

function script({ bank, session }) {
  return `(() => {
  const bank = ${scriptValue(bank)};
  const session = ${scriptValue(session)};
  const state = document.getElementById('bank-state');
  let answered = false;

  addEventListener('message', ({ origin, data }) => {
    if (answered || origin !== new URL(bank).origin || data?.session !== session) return;
    answered = true;
    state.textContent = 'Your bank has answered.';
    document.getElementById('confirmed').submit();
  });

  document.getElementById('confirm-bank')?.addEventListener('click', () => {
    const bankWindow = open(bank, 'bank', 'popup,width=480,height=640');
    if (!bankWindow) {
      state.textContent = 'The window of your bank could not be opened.';
      return;
    }
    state.textContent = 'Waiting for your bank…';
    const watch = setInterval(() => {
      if (!bankWindow.closed && !answered) return;
      clearInterval(watch);
      if (!answered) state.textContent = 'The window of your bank was closed before it answered.';
    }, 250);
  });
})();`;
}
