import { decimalText } from '../markets/markets.mjs';

/** A price in US dollars as the market sells it. */
export function priceIn(market, dollars) {
  return amountIn(market, market.price(dollars));
}

/** An amount that is in the market's currency already. */
export function amountIn(market, amount) {
  return { amount: decimalText(amount), currencyCode: market.currencyCode };
}
