import { signaturePieces } from '../../catalog/signature.mjs';
import { slug } from '../../catalog/pieces.mjs';
import { heading, money } from '../components.mjs';
import { html } from '../html.mjs';

/** What the sample customer finds around their orders: coupons, alerts, parcels, returns and reviews. */

export function couponsPage() {
  const coupons = [
    ['WELCOME10', 'Ten percent off everything', 'until the end of the year'],
    ['ATELIER15', 'Fifteen percent off carts of $300.00 or more', 'until the end of the season'],
    ['KNIT20', 'Twenty percent off knitwear', 'until the first warm day'],
  ];
  return {
    title: 'Coupons',
    body: html`<div class="reading">${heading('Coupons', { overline: 'MyLST', count: `${coupons.length} ready` })}
      <ul class="rows section">${coupons.map(([code, words, until]) => html`<li><span><strong>${code}</strong><br>${words}</span><span class="muted small">${until}</span></li>`)}</ul></div>`,
  };
}

export function alertsPage() {
  const alerts = signaturePieces.slice(0, 3).map((piece, place) => [piece, place === 1 ? 'Tells you when it is back in size M.' : `Tells you when it costs less than ${money(piece.price)}.`]);
  return {
    title: 'Alerts',
    body: html`<div class="reading">${heading('Alerts', { overline: 'MyLST', lead: 'We write once, and then no more.' })}
      <ul class="rows section">${alerts.map(([piece, words]) => html`<li><span><a href="/products/${slug(piece.title)}"><strong>${piece.title}</strong></a><br>${words}</span></li>`)}</ul></div>`,
  };
}

export function trackingPage(number) {
  const known = number ? html`<p>Parcel <strong>${number}</strong></p>` : html`<p>Parcel <strong>LP4401827</strong>, order <a href="/account/orders/LST10482">LST10482</a></p>`;
  const stations = [['Handed to the carrier', 'Monday, 17:20'], ['Left the sorting centre', 'Tuesday, 03:05'], ['On its way to you', 'today']];
  return {
    title: 'Tracking',
    body: html`<div class="reading">${heading('Tracking', { overline: 'Orders' })}${known}
      <ul class="rows section">${stations.map(([words, time]) => html`<li><span>${words}</span><span class="muted small">${time}</span></li>`)}</ul></div>`,
  };
}

export function returnPage(number) {
  return {
    title: `Return ${number}`,
    body: html`<div class="reading">${heading(`Return ${number}`, { overline: 'Returns', lead: 'The piece is on its way back to us.' })}
      <ol class="steps section"><li class="done">Announced</li><li class="done">Handed in</li><li>Looked at<br><span class="muted small">to come</span></li><li>Paid back<br><span class="muted small">to come</span></li></ol></div>`,
  };
}

export function reviewsPage() {
  const waiting = signaturePieces.slice(2, 4);
  return {
    title: 'Reviews',
    body: html`<div class="reading">${heading('Reviews', { overline: 'MyLST', lead: 'What you wore for a while, and what you would tell a friend about it.' })}
      <ul class="rows section">${waiting.map((piece) => html`<li><span><a href="/products/${slug(piece.title)}"><strong>${piece.title}</strong></a><br>Waits for your review.</span></li>`)}</ul></div>`,
  };
}
