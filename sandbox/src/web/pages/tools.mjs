import { fabrics } from '../../catalog/fabrics.mjs';
import { heading, section } from '../components.mjs';
import { html } from '../html.mjs';

const clothing = [
  ['XXS', '32', '38', '4', '0', '5'], ['XS', '34', '40', '6', '2', '7'], ['S', '36', '42', '8', '4', '9'],
  ['M', '38', '44', '10', '6', '11'], ['L', '40', '46', '12', '8', '13'], ['XL', '42', '48', '14', '10', '15'],
];
const scales = ['Letters', 'Germany', 'Italy', 'United Kingdom', 'United States', 'Japan'];

const measuring = [
  ['Bust', 'Around the fullest part, tape level, arms down.'],
  ['Waist', 'Where you bend to the side. Breathe out first.'],
  ['Hip', 'Around the fullest part, feet together.'],
  ['Inseam', 'From the crotch to the floor, along the leg, without shoes.'],
  ['Foot', 'Heel to longest toe, standing, in the evening. Feet are a little longer by then.'],
];

export function toolsPage(_, { query }) {
  const scale = Math.max(0, scales.indexOf(query.get('scale') ?? 'Letters'));
  const rows = clothing;
  const chosen = rows.find((row) => row[scale] === query.get('size')) ?? rows[3];
  const centimetres = Math.min(400, Math.max(0, Number(query.get('cm') ?? 88) || 0));
  return {
    title: 'Tools',
    body: html`${heading('Tools', { lead: 'Sizes of other countries, measuring without a tailor, and how to keep things alive.' })}
      ${section('Size converter', html`<form class="form" action="/pages/tools"><label>I usually wear<select name="scale">${scales.map((name, place) => html`<option ${place === scale && 'selected'}>${name}</option>`)}</select></label>
        <label>Size<select name="size">${rows.map((row) => html`<option ${row === chosen && 'selected'}>${row[scale]}</option>`)}</select></label><button class="button">Convert</button></form>
        <div class="scroll"><table><thead><tr>${scales.map((name) => html`<th>${name}</th>`)}</tr></thead><tbody>${rows.map((row) => html`<tr style="${row === chosen ? 'background:var(--accent-tint);font-weight:600' : ''}">${row.map((cell) => html`<td>${cell}</td>`)}</tr>`)}</tbody></table></div>`)}
      ${section('Centimetres and inches', html`<form class="form" action="/pages/tools"><label>Centimetres<input name="cm" inputmode="decimal" value="${centimetres}" size="8"></label><button class="button">Convert</button></form>
        <p>${centimetres} cm is <strong>${(centimetres / 2.54).toFixed(1)} in</strong>.</p>`)}
      ${section('Measure yourself', html`<div class="columns">${measuring.map(([title, line]) => html`<div class="tile"><h3>${title}</h3><p class="muted">${line}</p></div>`)}</div>`)}
      ${section('Care', html`<div class="columns">${Object.values(fabrics).map(({ name, care }) => html`<div class="tile"><h3>${name[0].toUpperCase()}${name.slice(1)}</h3><ul class="muted">${care.map((line) => html`<li>${line}</li>`)}</ul></div>`)}</div>`)}`,
  };
}
