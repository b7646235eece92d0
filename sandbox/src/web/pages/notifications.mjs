import { signaturePieces } from '../../catalog/signature.mjs';
import { slug } from '../../catalog/pieces.mjs';
import { heading, money } from '../components.mjs';
import { html } from '../html.mjs';

export function notificationsPage() {
  const reduced = signaturePieces.find(({ title }) => title.startsWith('Block-heel'));
  const back = signaturePieces.find(({ title }) => title.startsWith('Pleated midi'));
  const messages = [
    ['Order placed', 'Order LST10483 is confirmed. It will show under Orders in a few minutes.', 'Today, 10:46', '/account/orders/LST10483'],
    ['Customer Service', 'Your parcel is with the carrier. You can follow it under Orders.', 'Today, 09:30', '/account/orders/LST10482'],
    ['Price drops', `${reduced.title} now ${money(reduced.price)}, down from ${money(reduced.compareAt)}.`, 'Today, 08:05', `/products/${slug(reduced.title)}`],
    ['Vessa activity', 'Hana K. and 6 others liked your note.', 'Today, 07:41', '/pages/vessa'],
    ['Back in stock', `${back.title} is available again in size 38.`, 'Thursday', `/products/${slug(back.title)}`],
    ['Membership and coupons', 'A new coupon is in your account: WELCOME10 takes ten percent off.', 'Wednesday', '/account/membership'],
    ['Designers you follow', 'Fenmoor Mill sent four new knits.', 'Monday', '/collections/fenmoor-mill'],
  ];
  return {
    title: 'Notifications',
    body: html`${heading('Notifications', { lead: 'Orders, prices and people. You choose in the settings of the application which of them may ring.' })}
      <ul class="rows section">${messages.map(([title, words, time, link]) => html`<li><span><a href="${link}"><strong>${title}</strong></a><br>${words}</span><span class="muted small">${time}</span></li>`)}</ul>`,
  };
}
