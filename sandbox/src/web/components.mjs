import { colourName, palettes } from '../catalog/images.mjs';
import { html } from './html.mjs';

const dollars = new Intl.NumberFormat('en-US', { style: 'currency', currency: 'USD' });

export function money(amount) {
  return dollars.format(amount);
}

export function pieceLink(piece) {
  return `/products/${encodeURIComponent(piece.handle)}`;
}

const emptyPicture = "data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 3 4'/%3E";

/** A picture of a piece from this host, in two widths; a piece without pictures gets the empty paper. */
export function picture(piece, { place = 0, width = 400, alt = piece.title, eager = false } = {}) {
  const image = piece.images[place] ?? piece.images[0];
  if (!image) return html`<img src="${emptyPicture}" width="3" height="4" alt="${alt}">`;
  const source = (pixels) => `/pictures/${encodeURIComponent(piece.handle)}/${image.number}.jpg?v=1&width=${pixels}`;
  return html`<img src="${source(width)}" srcset="${source(width)} 1x, ${source(width * 2)} 2x"
    width="3" height="4" alt="${alt}" loading="${eager ? 'eager' : 'lazy'}" decoding="async">`;
}

export function price(piece) {
  const from = piece.lowest !== piece.highest ? 'from ' : '';
  if (!piece.earlier) return html`<span class="price">${from}${money(piece.lowest)}</span>`;
  return html`<span class="price reduced"><ins>${money(piece.lowest)}</ins><del>${money(piece.earlier.lowest)}</del></span>`;
}

export function card(piece, { eager = false } = {}) {
  const label = piece.finalSale ? 'Final sale' : piece.presale ? 'Presale' : piece.recent ? 'New' : null;
  return html`<a class="card${piece.available ? '' : ' gone'}" href="${pieceLink(piece)}">
    ${label && html`<span class="label">${label}</span>`}
    ${picture(piece, { eager })}
    <p class="overline">${piece.vendor}</p>
    <span class="name">${piece.title}</span>
    ${price(piece)}${!piece.available && html` <span class="muted small">Sold out</span>`}
    <span class="dots" aria-hidden="true">${piece.colours.slice(0, 4).map(dot)}</span>
  </a>`;
}

function dot(colour) {
  return html`<i style="background:${palettes[colour][0]}" title="${colourName(colour)}"></i>`;
}

export function grid(pieces, { short = false } = {}) {
  return html`<ul class="grid${short ? ' short' : ''}">${pieces.map((piece, place) => html`<li>${card(piece, { eager: place < 4 })}</li>`)}</ul>`;
}

export function section(title, body, { more = null } = {}) {
  const link = more && html`<a href="${more}">See all</a>`;
  return html`<section class="section"><header><h2>${title}</h2>${link}</header>${body}</section>`;
}

export function heading(title, { lead = null, count = null, overline = null } = {}) {
  return html`<header>${overline && html`<p class="overline">${overline}</p>`}
    <h1>${title}${count !== null && html`<span class="count">${count}</span>`}</h1>
    ${lead && html`<p class="lead">${lead}</p>`}</header>`;
}

export function avatar(name) {
  const initials = name.split(/\s+/).map((part) => part[0]).join('').slice(0, 2);
  return html`<span class="avatar" aria-hidden="true">${initials}</span>`;
}
