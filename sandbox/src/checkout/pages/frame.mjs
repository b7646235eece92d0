import { html } from '../../web/html.mjs';

/** What every page of checkout has: the shop's name, the page's own part, and beside it what is paid for. */
export function framed({ main, summary, words }) {
  return html`<div class="checkout"><main><p class="word-mark">LOOMSTREET</p>${main}</main>
    <aside aria-label="${words.summary}">${summaryPart(summary, words)}</aside></div>`;
}

function summaryPart({ lines, refusedCodes, discount, subtotal, shipping, total, currencyCode }, words) {
  return html`<h2 class="unseen">${words.summary}</h2>
    <ul class="lines">${lines.map(lineRow)}</ul>
    <dl class="totals">
      <div><dt>${words.subtotal}</dt><dd>${subtotal}</dd></div>
      ${discount && html`<div><dt>${words.discount} <span class="code">${discount.code}</span></dt><dd>${discount.amount}</dd></div>`}
      <div><dt>${words.shipping}</dt><dd>${shipping}</dd></div>
      <div class="total"><dt>${words.total}</dt><dd><span class="currency">${currencyCode}</span> ${total}</dd></div>
    </dl>
    ${refusedCodes.map((code) => html`<p class="note">“${code}” doesn’t apply to these pieces.</p>`)}
    <p class="note">${words.duties}</p>`;
}

function lineRow({ title, vendor, choice, quantity, picture, full, total }) {
  return html`<li class="${quantity === 0 ? 'gone' : ''}">
    ${picture ? html`<img src="${picture}" width="64" height="85" alt="">` : html`<span class="no-picture"></span>`}
    <div><span class="overline">${vendor}</span><span>${title}</span>
      <span class="note">${choice}${quantity > 1 && ` × ${quantity}`}${quantity === 0 && ' · sold out'}</span></div>
    <span class="price">${full && html`<del>${full}</del> `}${total}</span></li>`;
}
