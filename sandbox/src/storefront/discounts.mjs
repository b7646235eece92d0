/**
 * The codes this store knows. An order code lowers the total; a piece code lowers the lines it concerns, and so the
 * subtotal. Amounts and minimums are in US dollars.
 */
const discounts = {
  WELCOME10: { percent: 10 },
  STREET25: { amount: 25 },
  ATELIER15: { percent: 15, minimum: 300 },
  KNIT20: { percent: 20, concerns: ({ product }) => product.productType === 'Knitwear' },
  SPRING20: { percent: 20, over: true },
};

/** A code applies when it is known, is not over and has something to apply to. */
export function findDiscount(code, lines, market, subtotal) {
  const discount = discounts[code.toUpperCase()];
  if (!discount || discount.over || subtotal <= 0) return null;
  if (discount.minimum && subtotal < market.price(discount.minimum)) return null;
  if (discount.concerns && !lines.some(({ variant, quantity }) => quantity > 0 && discount.concerns(variant))) return null;
  return discount;
}

/** The way the store writes a code, which may differ from the way it was typed. */
export function canonicalCode(code) {
  return discounts[code.toUpperCase()] ? code.toUpperCase() : code;
}
