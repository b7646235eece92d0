import { html } from '../../web/html.mjs';
import { fields } from '../fields.mjs';
import { framed } from './frame.mjs';
import { wordsOf } from './words.mjs';

/** The form that is filled in and paid with. problems maps a field to what is wrong with it; "" stands for the whole. */
export function formPage({ action, summary, values, problems = {}, signedInAs = null }) {
  const wrong = Object.keys(problems).length > 0;
  const main = summary.pieces === 0 ? nothingToPay() : html`
    <h1>Checkout</h1>
    ${wrong && html`<div class="alert" role="alert"><strong>${problems[''] ?? 'Some of the details don’t look right.'}</strong>
      ${Object.keys(problems).some(Boolean) && html`<ul>${fields.filter(({ name }) => problems[name]).map(({ name }) => html`<li><a href="#${name}">${problems[name]}</a></li>`)}</ul>`}</div>`}
    <form method="post" action="${action}" id="checkout" novalidate>
      ${['Contact', 'Delivery', 'Payment'].map((part) => html`<fieldset><legend>${part}</legend>
        ${part === 'Contact' && signedInAs && html`<p class="note">Signed in as ${signedInAs}</p>`}
        ${part === 'Payment' && html`<p class="note">A card of this sandbox: nothing is ever charged.</p>`}
        <div class="fields">${fields.filter((field) => field.part === part).map((field) => fieldRow(field, values, problems[field.name]))}</div></fieldset>`)}
      <button class="primary" id="pay-now" type="submit">Pay now</button>
    </form>`;
  return { title: 'Checkout · LOOMSTREET', body: framed({ main, summary, words: wordsOf('en') }) };
}

function fieldRow({ name, label, type = 'text', autocomplete, options, numeric, half }, values, problem) {
  const state = problem ? html`aria-invalid="true" aria-describedby="${name}-problem"` : '';
  const value = values[name] ?? '';
  return html`<div class="field${half ? ' half' : ''}"><label for="${name}">${label}</label>
    ${options
      ? html`<select id="${name}" name="${name}" autocomplete="${autocomplete}" required ${state}>${options().map(({ code, name: country }) => html`<option value="${code}"${code === value && html` selected`}>${country}</option>`)}</select>`
      : html`<input id="${name}" name="${name}" type="${type}" autocomplete="${autocomplete}" value="${value}" maxlength="200" required ${numeric && html`inputmode="numeric"`} ${state}>`}
    ${problem && html`<p class="problem" id="${name}-problem">${problem}</p>`}</div>`;
}

function nothingToPay() {
  return html`<h1>There is nothing to pay for</h1><p class="lead">Your cart is empty, or what was in it has sold out meanwhile.</p>`;
}
