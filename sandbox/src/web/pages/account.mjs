import { slug } from '../../catalog/pieces.mjs';
import { heading, money, picture, pieceLink } from '../components.mjs';
import { html } from '../html.mjs';
import { alertsPage, couponsPage, returnPage, reviewsPage, trackingPage } from './accountServices.mjs';

const stations = ['Placed', 'Packed', 'With the carrier', 'Delivered'];

/** Orders of the sample customer these pages show: number, when, how far, [title, choice, quantity]. */
const orders = [
  ['LST10483', 'Today', 0, [['Wren striped shirt', 'Chalk / M', 1], ['Tern cable pullover', 'Ecru / S', 1], ['Pleated mini skirt', 'Bottle / 38', 1]]],
  ['LST10482', '9 days ago', 2, [['Sabine bias slip dress', 'Sage / M', 1]]],
  ['LST10367', 'Six weeks ago', 3, [['Block-heel ankle boots', 'Camel / 38', 1], ['Ferry striped poplin shirt', 'Chalk / M', 2]]],
  ['LST10214', 'Last spring', 3, [['Lune crescent bag', 'Butter / One size', 1]]],
];

const parts = [
  ['Orders', '/account/orders', 'Where they are, what they were.'], ['Membership', '/account/membership', 'Free, with coupons now and then.'],
  ['Returns', '/account/returns', 'Send something back.'], ['Addresses', '/account/addresses', 'Where parcels go.'],
  ['Profile', '/account/profile', 'Name, language and sizes.'], ['Wishlist', '/pages/wishlist', 'What you saved.'],
];

export function accountPage({ catalog }, [part, detail], { query }) {
  const pages = {
    orders: () => ordersPage(catalog, detail),
    returns: () => (detail === undefined ? returns() : returnPage(detail)),
    tracking: () => trackingPage(query.get('number')),
    coupons: couponsPage, alerts: alertsPage, reviews: reviewsPage,
    membership, addresses, profile,
  };
  if (part === undefined) return overview();
  if (!Object.hasOwn(pages, part) || (detail !== undefined && part !== 'orders' && part !== 'returns')) return undefined;
  return pages[part]();
}

function overview() {
  return {
    title: 'Account',
    body: html`${heading('Good to see you, Ines', { overline: 'MyLST', lead: 'A member since the first winter. Two parcels are on their way.' })}
      <div class="columns section">${parts.map(([title, link, line]) => html`<div class="tile"><h3><a href="${link}">${title}</a></h3><p class="muted">${line}</p></div>`)}</div>`,
  };
}

function ordersPage(catalog, number) {
  if (number !== undefined) return orderPage(catalog, number);
  return {
    title: 'Orders',
    body: html`${heading('Orders', { overline: 'MyLST', count: `${orders.length} orders` })}
      <ul class="rows section">${orders.map(([own, when, station, lines]) => html`<li><span><a href="/account/orders/${own}"><strong>Order ${own}</strong></a> <span class="badge">${stations[station]}</span><br><span class="muted">${lines.map(([title]) => title).join(', ')}</span></span><span class="muted small">${when}</span></li>`)}</ul>`,
  };
}

function orderPage(catalog, number) {
  const order = orders.find(([own]) => own === number);
  if (!order) return null;
  const [own, when, station, lines] = order;
  const priced = lines.map(([title, choice, quantity]) => ({ piece: catalog.piece(slug(title)), choice, quantity }));
  const total = priced.reduce((sum, { piece, quantity }) => sum + piece.lowest * quantity, 0);
  return {
    title: `Order ${own}`,
    body: html`${heading(`Order ${own}`, { overline: 'Orders', lead: `Placed: ${when.toLowerCase()}.` })}
      <ol class="steps section">${stations.map((name, place) => html`<li class="${place <= station ? 'done' : ''}">${name}${place > station && html`<br><span class="muted small">to come</span>`}</li>`)}</ol>
      <div class="reading">${priced.map(({ piece, choice, quantity }) => html`<div class="line"><a href="${pieceLink(piece)}">${picture(piece, { width: 144 })}</a>
        <span><span class="overline">${piece.vendor}</span><br><a href="${pieceLink(piece)}">${piece.title}</a><br><span class="muted small">${choice}${quantity > 1 && ` · ${quantity} pieces`}</span></span><span class="price">${money(piece.lowest * quantity)}</span></div>`)}
      <div class="line" style="border:0;grid-template-columns:1fr auto"><strong>Total</strong><strong class="price">${money(total)}</strong></div>
      <p class="actions"><a class="button plain" href="/account/returns">Send something back</a><a href="/pages/help-center">Ask about this order</a></p></div>`,
  };
}

function membership() {
  return {
    title: 'Membership',
    body: html`<div class="reading">${heading('Membership', { overline: 'MyLST', lead: 'It is free. In return we ask you to wear things for a long time.' })}
      <h2>Coupons</h2><ul class="rows"><li><span><strong>WELCOME10</strong><br>Ten percent off everything</span><span class="badge">Ready</span></li>
        <li><span><strong>ATELIER15</strong><br>Fifteen percent off carts of $300.00 or more</span><span class="badge">Ready</span></li>
        <li><span><strong>KNIT20</strong><br>Twenty percent off knitwear</span><span class="badge">Ready</span></li></ul>
      <h2>Repairs</h2><p>Buttons, seams, soles and handles, at what it costs us. <a href="/pages/agreements/membership">Membership terms</a></p></div>`,
  };
}

function returns() {
  return {
    title: 'Returns',
    body: html`<div class="reading">${heading('Returns', { overline: 'MyLST', lead: 'Thirty days, at our cost. Final sale pieces stay with you.' })}
      <h2>How it goes</h2><ol><li>Open the order and choose the pieces.</li><li>Print the label, or show the code at the counter.</li><li>We look at the piece and pay you back within three working days.</li></ol>
      <p class="actions"><a class="button" href="/account/orders">Choose an order</a></p></div>`,
  };
}

function addresses() {
  return {
    title: 'Addresses',
    body: html`<div class="reading">${heading('Addresses', { overline: 'MyLST' })}<div class="columns section"><div class="tile"><h3>Home</h3><p>Ines Marques<br>Rua do Tear 14, 2.º<br>1200-001 Lisboa<br>Portugal</p></div>
      <div class="tile"><h3>Studio</h3><p>Ines Marques<br>Travessa da Lã 3<br>1250-010 Lisboa<br>Portugal</p></div></div></div>`,
  };
}

function profile() {
  return {
    title: 'Profile',
    body: html`<div class="reading">${heading('Profile', { overline: 'MyLST' })}<table class="section"><tbody>
      <tr><th>Name</th><td>Ines Marques</td></tr><tr><th>E-mail</th><td>ines@example.com</td></tr><tr><th>Language</th><td>English</td></tr>
      <tr><th>Usual size</th><td>M, shoes 38</td></tr><tr><th>Measurements</th><td>Bust 88 cm, waist 70 cm, hip 96 cm, 172 cm tall</td></tr></tbody></table></div>`,
  };
}
