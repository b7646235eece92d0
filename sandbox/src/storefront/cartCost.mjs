import { marketOf } from '../markets/markets.mjs';
import { canonicalCode, findDiscount } from './discounts.mjs';

/**
 * What a cart costs in its own market: that of the buyer, or of the request where no buyer is known. Only the first
 * applicable code counts, because codes do not combine.
 */
export function costOf(cart, requestMarket) {
  const market = cart.buyer.countryCode ? marketOf(cart.buyer.countryCode) : requestMarket;
  const priced = new Map(cart.lines.map((line) => {
    const unit = market.price(line.variant.price);
    const subtotal = market.round(unit * line.quantity);
    return [line, { unit, subtotal, total: subtotal, off: 0 }];
  }));
  const full = sum(priced, market);

  let applied = null;
  const codes = cart.codes.map((code) => {
    const discount = applied ? null : findDiscount(code, cart.lines, market, full);
    if (discount) applied = { ...discount, code: canonicalCode(code) };
    return { code: canonicalCode(code), applicable: discount !== null };
  });

  if (applied?.concerns) {
    for (const [line, cost] of priced) {
      if (!applied.concerns(line.variant)) continue;
      cost.off = market.round((cost.subtotal * applied.percent) / 100);
      cost.total = market.round(cost.subtotal - cost.off);
    }
  }
  const subtotal = sum(priced, market);
  const off = applied && !applied.concerns ? orderDiscount(applied, subtotal, market) : 0;
  return { market, priced, codes, applied, subtotal, off, total: market.round(subtotal - off) };
}

function orderDiscount({ percent, amount }, subtotal, market) {
  return percent ? market.round((subtotal * percent) / 100) : Math.min(subtotal, market.price(amount));
}

function sum(priced, market) {
  return market.round([...priced.values()].reduce((total, cost) => total + cost.total, 0));
}
