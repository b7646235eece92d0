import { html, raw } from '../../web/html.mjs';
import { framed } from './frame.mjs';
import { wordsOf } from './words.mjs';

const bulk = 10 * 1024 * 1024;
/** Nearly an order number, over and over. */
const nearMiss = 'order number order no. confirmation : # order # LST confirmation number: 12345\n';

/** What is shown once an order was placed: its number in one of several ways, and for tests much worse. */
export function thankYouPage({ order, mode, language }) {
  const words = wordsOf(language);
  const say = (key, number) => words[key].replace(/\{(\w+)\}/, (_, name) => ({ name: order.name, email: order.email, number })[name]);
  const main = html`${mode === 'huge-tail' && bulkPart()}
    <p class="tick" aria-hidden="true">✓</p>
    ${numberPart(order, mode, say)}
    <h1>${say('thanks')}</h1><p class="lead">${say('sent')}</p>
    ${mode === 'hostile' && hostilePart()}${mode === 'huge' && bulkPart()}`;
  return {
    title: `${words.title} · LOOMSTREET`, language, rightToLeft: words.rightToLeft,
    body: framed({ main, summary: order.summary, words }),
  };
}

function numberPart({ number, confirmation }, mode, say) {
  switch (mode) {
    case 'unnumbered':
      return '';
    case 'hostile':
      return html`<p class="number">${hostileNumber}</p>`;
    case 'confirmation':
      return html`<p class="number">${say('confirmation', confirmation)}</p>`;
    case 'order-number':
      return html`<p class="number">${say('orderNumber', number)}</p>`;
    default:
      return html`<p class="number">${say('order', number)}</p>`;
  }
}

/** A number of five thousand digits, behind one that tries to be markup. */
const hostileNumber = `Order number: <img src=x onerror="document.title='taken'"> \u202E Order #${'9'.repeat(5000)}`;

function hostilePart() {
  return html`<p>&lt;/p&gt;<b>Order</b> ${'<script>document.title = "taken"</script>'} \u2066\u202E%n%s {{7*7}} ' OR 1=1 -- \u0007</p>
    <p>${'a\u0301\u0302\u0303\u0304'.repeat(500)}</p><p>${'W'.repeat(20000)}</p>`;
}

function bulkPart() {
  return html`<pre>${raw(nearMiss.repeat(Math.ceil(bulk / nearMiss.length)))}</pre>`;
}
