import { addLines, attributesOf, CartProblem, codesOf, removeLines, touch, updateLines } from './carts.mjs';
import { costOf } from './cartCost.mjs';
import { connect } from './connection.mjs';
import { requireGlobalId, requireSize } from './inputs.mjs';
import { amountIn } from './money.mjs';

const Cart = {
  appliedGiftCards: () => [],
  attribute: ({ attributes }, { key }) => attributes.find((attribute) => attribute.key === key) ?? null,
  buyerIdentity: ({ buyer }) => ({ countryCode: buyer.countryCode ?? null, email: buyer.email ?? null, phone: buyer.phone ?? null }),
  checkoutUrl: (cart, _, { checkoutUrl }) => checkoutUrl(cart),
  cost: (cart, _, { market }) => {
    const cost = costOf(cart, market);
    const subtotal = amountIn(cost.market, cost.subtotal);
    const total = amountIn(cost.market, cost.total);
    const estimated = { subtotalAmountEstimated: true, totalAmountEstimated: true };
    return { subtotalAmount: subtotal, totalAmount: total, checkoutChargeAmount: total, ...estimated };
  },
  discountAllocations: (cart, _, { market }) => {
    const { applied, off, market: own } = costOf(cart, market);
    return off > 0 ? [allocation(applied, off, own)] : [];
  },
  discountCodes: (cart, _, { market }) => costOf(cart, market).codes,
  lines: (cart, args) => connect(cart.lines, args),
  metafield: () => null,
  metafields: (_, { identifiers }) => identifiers.map(() => null),
  totalQuantity: ({ lines }) => lines.reduce((sum, { quantity }) => sum + quantity, 0),
};

const CartLine = {
  attribute: ({ attributes }, { key }) => attributes.find((attribute) => attribute.key === key) ?? null,
  cost: (line, _, { market }) => {
    const cost = costOf(line.cart, market);
    const { unit, subtotal, total } = cost.priced.get(line);
    const { compareAt } = line.variant;
    return {
      amountPerQuantity: amountIn(cost.market, unit),
      compareAtAmountPerQuantity: compareAt === null ? null : amountIn(cost.market, cost.market.price(compareAt)),
      subtotalAmount: amountIn(cost.market, subtotal),
      totalAmount: amountIn(cost.market, total),
    };
  },
  discountAllocations: (line, _, { market }) => {
    const { applied, priced, market: own } = costOf(line.cart, market);
    const { off } = priced.get(line);
    return off > 0 ? [allocation(applied, off, own)] : [];
  },
  merchandise: ({ variant }) => variant,
};

const Mutation = {
  cartCreate: (_, { input }, context) =>
    answer(() => {
      requireSizes(input ?? {});
      const cart = context.carts.create(input ?? {});
      cart.country = context.market.country;
      const warnings = addLines(cart, input?.lines, variantsOf(context));
      context.carts.keep(cart);
      return { cart, warnings };
    }),
  cartLinesAdd: change((cart, { lines }, context) => addLines(cart, lines, variantsOf(context))),
  cartLinesUpdate: change((cart, { lines }, context) => updateLines(cart, lines, variantsOf(context))),
  cartLinesRemove: change((cart, { lineIds }) => removeLines(cart, lineIds)),
  cartDiscountCodesUpdate: change((cart, { discountCodes }) => {
    cart.codes = codesOf(discountCodes);
  }),
  cartAttributesUpdate: change((cart, { attributes }) => {
    cart.attributes = attributesOf(attributes);
  }),
  cartBuyerIdentityUpdate: change((cart, { buyerIdentity }) => {
    Object.assign(cart.buyer, buyerIdentity);
  }),
  cartNoteUpdate: change((cart, { note }) => {
    cart.note = note;
  }),
};

export const cartResolvers = { Cart, CartLine, Mutation };

/** A change is made to a copy of the lines, so that one which turns out wrong half-way leaves the cart as it was. */
function change(apply) {
  return (_, args, context) =>
    answer(() => {
      requireGlobalId(args.cartId);
      requireSizes(args);
      const cart = context.carts.find(args.cartId);
      if (!cart) throw new CartProblem('The specified cart does not exist.', ['cartId']);
      const before = cart.lines.map((line) => ({ line, was: { ...line } }));
      const lines = [...cart.lines];
      try {
        const warnings = apply(cart, args, context) ?? [];
        touch(cart);
        cart.country = context.market.country;
        return { cart, warnings };
      } catch (error) {
        before.forEach(({ line, was }) => Object.assign(line, was));
        cart.lines = lines;
        throw error;
      }
    });
}

/** Of any list a call may bring at most 250. */
function requireSizes(input) {
  Object.values(input).filter(Array.isArray).forEach(requireSize);
}

function answer(work) {
  try {
    return { userErrors: [], ...work() };
  } catch (error) {
    if (!(error instanceof CartProblem)) throw error;
    return { cart: null, userErrors: [error.userError], warnings: [] };
  }
}

function variantsOf({ catalog }) {
  return (id) => {
    requireGlobalId(id);
    const found = catalog.byId.get(id);
    return found?.__typename === 'ProductVariant' ? found : null;
  };
}

function allocation({ code, percent, amount, concerns }, off, market) {
  return {
    __typename: 'CartCodeDiscountAllocation',
    code,
    discountedAmount: amountIn(market, off),
    targetType: 'LINE_ITEM',
    discountApplication: {
      allocationMethod: 'ACROSS',
      targetSelection: concerns ? 'ENTITLED' : 'ALL',
      targetType: 'LINE_ITEM',
      value: percent
        ? { __typename: 'PricingPercentageValue', percentage: percent }
        : { __typename: 'MoneyV2', ...amountIn(market, market.price(amount)) },
    },
  };
}
