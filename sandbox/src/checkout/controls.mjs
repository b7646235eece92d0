import { marketOf } from '../markets/markets.mjs';
import { BadRequest } from '../server/exchange.mjs';
import { checkoutUrl } from './addresses.mjs';
import { prefilledValues } from './fields.mjs';
import { summaryOf } from './summary.mjs';

/** What the control port can ask of carts, of what they may hold, and of checkout. */
export function checkoutControls({ carts, checkouts, customers, settings, pages, stock, prices }) {
  const valuesOf = (cart, email) => {
    const values = prefilledValues(marketOf(cart.country).country, { customer: customers.of(cart) });
    return typeof email === 'string' ? { ...values, email } : values;
  };
  const each = async (exchange, act) => {
    const { id, email } = await exchange.json();
    const chosen = id === undefined ? carts.all : [carts.find(id)].filter(Boolean);
    if (id !== undefined && chosen.length === 0) throw new BadRequest('there is no such cart', 404);
    chosen.forEach((cart) => act(cart, email));
    return { carts: chosen.length };
  };
  return {
    'GET /carts': () => carts.all.map((cart) => overview(cart, settings.values)),
    'POST /carts/expire': (exchange) => each(exchange, ({ id }) => carts.end(id)),
    'POST /carts/complete': (exchange) => each(exchange, (cart, email) => checkouts.place(cart, valuesOf(cart, email))),
    'POST /stock': async (exchange) => stock.set(await exchange.json()),
    'POST /price': async (exchange) => prices.set(await exchange.json()),
    'GET /orders': () => checkouts.orders.map(({ number, confirmation, cartId, email, placedAt, summary: { pieces, total } }) => (
      { number, confirmation, cartId, email, placedAt: new Date(placedAt).toISOString(), pieces, total }
    )),
    'GET /checkout': () => settings.values,
    'POST /checkout': async (exchange) => {
      settings.change(await exchange.json());
      pages.release();
      return settings.values;
    },
    'DELETE /checkout': () => {
      settings.clear();
      pages.release();
      return settings.values;
    },
  };
}

function overview(cart, settings) {
  const { id, attributes, buyer, updatedAt } = cart;
  const { pieces, total, currencyCode, lines, discount } = summaryOf(cart);
  return {
    id, updatedAt, attributes, pieces, total, currencyCode,
    country: buyer.countryCode ?? null,
    code: discount?.code ?? null,
    checkoutUrl: checkoutUrl(cart, settings),
    lines: lines.map(({ title, choice, quantity }) => ({ title, choice, quantity })),
  };
}
