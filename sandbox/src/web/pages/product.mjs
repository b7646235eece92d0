import { description, descriptionHtml } from '../../catalog/copy.mjs';
import { colourName, imageOfColour } from '../../catalog/images.mjs';
import { ratingOf } from '../../catalog/reviews.mjs';
import { sizeTablesFor } from '../../catalog/sizeTables.mjs';
import { Random } from '../../random.mjs';
import { grid, picture, price, section } from '../components.mjs';
import { html, raw } from '../html.mjs';

export function productPage({ catalog }, handle) {
  const piece = catalog.piece(handle);
  if (!piece) return null;
  const rating = ratingOf(piece);
  const tables = piece.curiosity ? [] : sizeTablesFor(piece, new Random(piece.label).fork('metafields'));
  const kin = catalog.pieces.filter((other) => other !== piece && !other.curiosity && other.vendor === piece.vendor).slice(0, 6);
  const sizes = [...new Set(piece.variants.flatMap(({ selectedOptions }) => selectedOptions.filter(({ name }) => name === 'Size').map(({ value }) => value)))];
  const hasSize = (size) => piece.variants.some(({ available, selectedOptions }) => available && selectedOptions.some(({ value }) => value === size));
  const house = piece.designer ? html`<a href="/collections/${piece.designer.handle}">${piece.vendor}</a>` : piece.vendor;
  return {
    title: piece.title,
    description: description(piece).slice(0, 160),
    body: html`<div class="two"><div class="gallery">${piece.images.map((_, place) => html`<div>${picture(piece, { place, width: 720, eager: place < 2, alt: `${piece.title}, picture ${place + 1}` })}</div>`)}</div>
      <div><p class="overline">${house}</p><h1>${piece.title}</h1>
        ${rating && html`<p class="muted">${rating.value.toFixed(1)} of 5 · ${rating.total === 1 ? '1 review' : `${rating.total} reviews`}</p>`}
        <p style="font-size:20px;line-height:26px;margin:12px 0 24px">${price(piece)}</p>
        ${piece.presale && html`<p><span class="badge">${piece.presale}</span></p>`}
        ${colours(piece)}
        ${sizes.length > 0 && html`<strong>Size</strong><ul class="sizes">${sizes.map((size) => html`<li class="${hasSize(size) ? '' : 'gone'}">${size}${!hasSize(size) && html`<span class="unseen"> sold out</span>`}</li>`)}</ul>`}
        <div>${piece.curiosity ? html`<p>${description(piece)}</p>` : raw(descriptionHtml(piece))}</div></div></div>
      ${tables.map(({ title, rows: [head, ...rows] }) => section(title, html`<div class="scroll"><table><thead><tr>${head.map((cell) => html`<th>${cell}</th>`)}</tr></thead>
        <tbody>${rows.map((row) => html`<tr>${row.map((cell) => html`<td>${cell}</td>`)}</tr>`)}</tbody></table></div>`))}
      ${kin.length > 0 && section(`More from ${piece.vendor}`, grid(kin, { short: true }))}`,
  };
}

function colours(piece) {
  const withPicture = piece.colours.map((colour) => [colour, piece.images.indexOf(imageOfColour(piece, colour))]).filter(([, place]) => place >= 0);
  return withPicture.length > 0 && html`<strong>Colour</strong><div class="swatches">${withPicture.map(([colour, place]) => html`<figure>${picture(piece, { place, width: 88, alt: '' })}<figcaption>${colourName(colour)}</figcaption></figure>`)}</div>`;
}
