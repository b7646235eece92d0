import { marketOf } from '../markets/markets.mjs';
import { costOf } from '../storefront/cartCost.mjs';

const freeFrom = 99;
const shippingFee = 12;

/** What is to be paid for a cart, with all amounts as numbers. */
export function amountsOf(cart) {
  const cost = costOf(cart, marketOf(cart.country));
  const { market, subtotal, total } = cost;
  const pieces = cart.lines.reduce((sum, { quantity }) => sum + quantity, 0);
  const shipping = pieces === 0 || subtotal >= market.price(freeFrom) ? 0 : market.price(shippingFee);
  return { ...cost, pieces, shipping, total: market.round(total + shipping) };
}

/** The same with all amounts as text in the cart's currency. Lines without stock are not sold. */
export function summaryOf(cart) {
  const { market, priced, codes, applied, subtotal, off, pieces, shipping, total } = amountsOf(cart);
  const money = formatter(market);
  return {
    country: market.country,
    currencyCode: market.currencyCode,
    pieces,
    lines: cart.lines.map((line) => lineOf(line, priced.get(line), money)),
    refusedCodes: codes.filter(({ applicable }) => !applicable).map(({ code }) => code),
    discount: applied && { code: applied.code, amount: off > 0 ? `−${money(off)}` : null },
    subtotal: money(subtotal),
    shipping: shipping === 0 ? 'Free' : money(shipping),
    total: money(total),
  };
}

function lineOf({ variant, quantity }, { subtotal, total, off }, money) {
  const { product, title } = variant;
  const image = variant.image ?? product.images[0] ?? null;
  return {
    title: product.title,
    vendor: product.vendor,
    choice: title,
    quantity,
    picture: image && `${image.url}&width=144`,
    full: off > 0 ? money(subtotal) : null,
    total: money(total),
  };
}

function formatter({ currencyCode, decimals }) {
  const format = new Intl.NumberFormat('en-US', {
    style: 'currency', currency: currencyCode, minimumFractionDigits: decimals, maximumFractionDigits: decimals,
  });
  return (amount) => format.format(amount);
}
