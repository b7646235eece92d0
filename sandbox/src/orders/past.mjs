import { sampleEmail } from '../accounts/people.mjs';
import { dateText } from '../catalog/dates.mjs';
import { marketOf } from '../markets/markets.mjs';
import { pastParcel } from './parcels.mjs';
import { addressOf, moneyIn, receiptLine, totals } from './receipt.mjs';

const day = 24 * 3600 * 1000;
const us = 'US';
const stages = ['label', 'collected', 'sorted', 'out', 'delivered'];

const home = { name: 'Ines Marinho', address: '218 Weaver Street, Apt 5', postcode: '11211', city: 'Brooklyn, NY', country: us };
const lisbon = { name: 'Ines Marinho', address: 'Rua do Tear 14, 2.º', postcode: '1200-001', city: 'Lisbon', country: 'PT' };
const wales = {
  name: 'Anna-Sophia Wilhelmina Montgomery-Featherstonehaugh de la Vega',
  address: 'c/o The Worshipful Company of Weavers, Dyers and Fullers, Third Courtyard, Staircase 14, Top Floor Left',
  postcode: 'LL61 5UJ', city: 'Llanfairpwllgwyngyllgogerychwyrndrobwllllantysiliogogogoch', country: 'GB',
};

/**
 * Ages are in days, lines [handle, choice, quantity]. A parcel is [number, carrier, ages of the stages it has reached,
 * extras]. Of every state that an order, a parcel or a refund can be in there is one.
 */
const orders = [
  {
    number: 'LST10483', age: 0.2, shipping: 12,
    lines: [['wren-striped-shirt', 'Chalk / M', 1], ['tern-cable-pullover', 'Ecru / S', 1], ['pleated-mini-skirt', 'Bottle / 38', 1]],
  },
  {
    number: 'LST10482', age: 9, tax: 22.01,
    lines: [['sabine-bias-slip-dress', 'Sage / M', 1]],
    parcels: [['LP4401827', 'Loom Post', [7, 6.6, 5.5], { expectedIn: 2 }]],
  },
  {
    number: 'LST10471', age: 11, off: 96.6,
    lines: [['linden-tailored-blazer', 'Dusk / M', 1], ['ferry-silk-shirt', 'Butter / S', 1]],
    parcels: [['LP4402960', 'Loom Post', [0.4], { expectedIn: 4 }]],
  },
  {
    number: 'LST10455', age: 13,
    lines: [['harrow-belted-trench-coat', 'Camel / M', 1], ['brae-cable-rollneck', 'Madder / M', 1], ['block-heel-ankle-boots', 'Ink / 38', 1]],
    parcels: [
      ['1Z4470129902', 'Northline', [5, 4.5, 2, 0.1], { expectedIn: 0.3 }],
      ['LP4399314', 'Loom Post', [6, 5.5, 4], { problem: [1, 'The carrier could not find the address'] }],
    ],
  },
  {
    number: 'LST10440', age: 24,
    lines: [['odile-tiered-dress', 'Rose / M', 1], ['lune-crescent-bag', 'Plum / One size', 1]],
    parcels: [['LP4390077', 'Loom Post', [22, 21.6, 20, 17.3, 17.1]]],
  },
  { number: 'LST10398', age: 33, lines: [['thea-evening-slip', 'Plum / M', 1]], cancelled: true },
  {
    number: 'LST10367', age: 45, off: 25,
    lines: [['block-heel-ankle-boots', 'Camel / 38', 1], ['ferry-striped-poplin-shirt', 'Chalk / M', 2]],
    parcels: [['1Z4461800417', 'Northline', [43, 42.5, 41, 39.3, 39]]],
  },
  {
    number: 'LST10214', age: 212, country: 'PT', to: lisbon, shipping: 12,
    lines: [['lune-crescent-bag', 'Butter / One size', 1]],
    unlisted: { title: 'Alva linen scarf', variantTitle: 'Ecru', price: 64 },
    parcels: [['CT551209773PT', 'Correio do Tejo', [210, 209.5, 208, 206.4, 206.2]]],
  },
  {
    number: 'LST10466', age: 8, owner: 'long.lines@example.com', country: 'GB', to: wales, curiosities: true,
    parcels: [4, 3.5, 3, 2.5, 2, 1.5].map((age, place) => [`NL77100${place}`, 'Northline Parcel & Freight Company of the Outer Isles', [6, 5, age]]),
  },
];

const refunds = [
  { order: 'LST10440', age: 2, status: 'requested', amount: 312, reason: 'Too long for me' },
  { order: 'LST10440', age: 11, status: 'approved', amount: 385, rmaNo: 'RMA-20771' },
  { order: 'LST10398', age: 32, status: 'refunded', amount: 286, reason: 'Cancelled before it was packed' },
  { order: 'LST10367', age: 30, status: 'refused', amount: 138, rmaNo: 'RMA-20592', reason: 'The piece was worn' },
  { order: 'LST10367', age: 36, status: 'refunded', amount: 138, rmaNo: 'RMA-20588', reason: 'Ordered one too many' },
];

/** Met and not met, of each kind. */
const alerts = [
  { kind: 'restock', handle: 'sabine-bias-slip-dress', choice: 'Sage / L', age: 3 },
  { kind: 'price', handle: 'marlow-wrap-dress', choice: 'Madder / M', price: 276, age: 21 },
  { kind: 'price', handle: 'harrow-belted-trench-coat', age: 5 },
  { kind: 'restock', handle: 'lune-crescent-bag', choice: 'Butter / One size', age: 40 },
];

/** What was ordered and given back before the store was started. */
export function pastAt(catalog, startedAt) {
  const ago = (days) => startedAt - Math.round(days * day);
  return {
    orders: orders.map((order) => pastOrder(order, catalog, ago)),
    refunds: refunds.map(({ order, age, amount, ...facts }, place) => ({
      id: `77${order.slice(3)}${place}`, orderName: order, createdAt: dateText(ago(age)), amount: moneyIn(marketOf(us), amount), ...facts,
    })),
  };
}

export function pastAlertsAt(startedAt) {
  return alerts.map(({ age, ...alert }) => ({ ...alert, email: sampleEmail, createdAt: startedAt - age * day }));
}

function pastOrder({ number, age, owner = sampleEmail, to = home, parcels = [], cancelled = false, ...bought }, catalog, ago) {
  return {
    number, owner, cancelled,
    email: owner,
    placedAt: ago(age),
    receipt: pastReceipt(bought, catalog),
    address: addressOf(to),
    parcels: parcels.map(([own, carrier, ages, { expectedIn = 3, problem } = {}]) => pastParcel({
      number: own, carrier, city: to.city,
      times: Object.fromEntries(ages.map((reached, place) => [stages[place], ago(reached)])),
      problem: problem ? { at: ago(problem[0]), text: problem[1] } : null,
      expectedAt: ago(-expectedIn),
    })),
  };
}

/** unlisted is a piece that is not sold any more, so that nothing but its name is left. */
function pastReceipt({ country = us, lines = [], curiosities = false, unlisted, shipping = 0, off = 0, tax = 0 }, catalog) {
  const market = marketOf(country);
  const bought = curiosities ? oneOfEach(catalog) : lines.map(([handle, choice, quantity]) => [variantOf(catalog, handle, choice), quantity]);
  const rows = bought.map(([variant, quantity]) => receiptLine(variant, quantity, moneyIn(market, market.price(variant.price))));
  if (unlisted) rows.push({ ...unlisted, quantity: 1, price: moneyIn(market, market.price(unlisted.price)) });
  const full = market.round(rows.reduce((sum, { quantity, price }) => sum + quantity * Number(price.amount), 0));
  return { lines: rows, ...totals(market, { full, shipping: market.price(shipping), off: market.price(off), tax: market.price(tax) }) };
}

function variantOf(catalog, handle, choice) {
  return catalog.piece(handle).variants.find(({ title }) => title === choice);
}

/** One of each piece that is hard to show, and a dozen of one. */
function oneOfEach(catalog) {
  const curious = catalog.pieces.filter(({ curiosity, variants }) => curiosity && variants.length > 0);
  return curious.map(({ variants }, place) => [variants[0], place === 3 ? 12 : 1]);
}
