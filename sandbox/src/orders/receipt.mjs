import { amountsOf } from '../checkout/summary.mjs';

/** An amount as the application reads it, with the digits of its currency. */
export function moneyIn({ currencyCode, decimals }, amount) {
  return { amount: amount.toFixed(decimals), currencyCode };
}

/** What was bought and what it cost, as an order keeps it: nothing in it changes when the catalog does. */
export function receiptOf(cart) {
  const { market, priced, total: toPay, shipping } = amountsOf(cart);
  const lines = cart.lines.filter(({ quantity }) => quantity > 0);
  const full = market.round(lines.reduce((sum, line) => sum + priced.get(line).subtotal, 0));
  return {
    lines: lines.map((line) => receiptLine(line.variant, line.quantity, moneyIn(market, priced.get(line).unit))),
    ...totals(market, { full, shipping, off: market.round(full + shipping - toPay) }),
  };
}

export function receiptLine(variant, quantity, price) {
  const { product } = variant;
  const picture = (variant.image ?? product.images[0])?.url;
  return {
    title: product.title,
    ...(variant.title === 'Default Title' ? {} : { variantTitle: variant.title }),
    handle: product.handle,
    ...(picture ? { imageURL: picture } : {}),
    quantity,
    price,
  };
}

export function totals(market, { full, shipping, off = 0, tax = 0 }) {
  const money = (amount) => moneyIn(market, amount);
  return {
    subtotal: money(full),
    shipping: money(shipping),
    ...(off > 0 ? { discount: money(off) } : {}),
    ...(tax > 0 ? { tax: money(tax) } : {}),
    total: money(market.round(full + shipping + tax - off)),
  };
}

/** Where an order goes, from the fields of the form it was placed with. */
export function addressOf({ name, address, postcode, city, country }) {
  const countryName = country ? new Intl.DisplayNames(['en'], { type: 'region' }).of(country) : null;
  return { name, lines: [address, `${postcode} ${city}`.trim(), countryName].filter(Boolean) };
}
