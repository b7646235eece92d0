import { randomBytes, randomUUID } from 'node:crypto';

const mostLines = 500;
const mostOfOne = 1000000;
const mostCarts = 5000;

/** What a mutation returns when the shopper, not the store, got something wrong. */
export class CartProblem extends Error {
  constructor(message, field, code = 'INVALID') {
    super(message);
    this.userError = { message, field, code };
  }
}

/** The carts of this run, in memory. A cart is found only by its whole identifier, key included. */
export class Carts {
  #carts = new Map();

  create({ attributes, buyerIdentity, discountCodes, note }) {
    const token = `hWN${randomBytes(16).toString('hex')}`;
    const key = randomBytes(16).toString('hex');
    const now = timestamp();
    const cart = {
      __typename: 'Cart',
      id: `gid://shopify/Cart/${token}?key=${key}`,
      token, key, lines: [],
      codes: codesOf(discountCodes),
      attributes: attributesOf(attributes),
      buyer: { ...buyerIdentity },
      note: note ?? '',
      createdAt: now,
      updatedAt: now,
    };
    return cart;
  }

  /** Only a cart that came out without problems is kept. */
  keep(cart) {
    this.#carts.set(cart.id, cart);
    if (this.#carts.size > mostCarts) this.#carts.delete(this.#carts.keys().next().value);
  }

  find(id) {
    return this.#carts.get(id) ?? null;
  }

  get all() {
    return [...this.#carts.values()];
  }

  /** A cart that was paid for, or that nobody came back to, is gone for good. */
  end(id) {
    return this.#carts.delete(id);
  }

  clear() {
    this.#carts.clear();
  }
}

export function addLines(cart, inputs, variantOf) {
  const warnings = [];
  for (const [place, input] of (inputs ?? []).entries()) {
    const variant = knownVariant(variantOf, input.merchandiseId, ['lines', String(place), 'merchandiseId']);
    const quantity = input.quantity ?? 1;
    if (quantity < 1) throw tooSmall(1, place);
    const attributes = attributesOf(input.attributes);
    if (quantity > mostOfOne) throw tooLarge(place);
    let line = cart.lines.find((other) => other.variant === variant && sameAttributes(other.attributes, attributes));
    if (!line) {
      if (cart.lines.length >= mostLines) throw new CartProblem(`The cart cannot hold more than ${mostLines} lines`, ['lines'], 'MAXIMUM_EXCEEDED');
      line = newLine(cart, variant, attributes);
      cart.lines.push(line);
    }
    setQuantity(line, line.quantity + quantity, warnings);
  }
  return warnings;
}

export function updateLines(cart, inputs, variantOf) {
  const warnings = [];
  for (const [place, input] of inputs.entries()) {
    const line = knownLine(cart, input.id, ['lines', String(place), 'id']);
    if (input.merchandiseId) line.variant = knownVariant(variantOf, input.merchandiseId, ['lines', String(place), 'merchandiseId']);
    if (input.attributes) line.attributes = attributesOf(input.attributes);
    const quantity = input.quantity ?? line.quantity;
    if (quantity < 0) throw tooSmall(0, place);
    if (quantity > mostOfOne) throw tooLarge(place);
    if (quantity === 0) cart.lines.splice(cart.lines.indexOf(line), 1);
    else setQuantity(line, quantity, warnings);
  }
  return warnings;
}

export function removeLines(cart, ids) {
  const gone = ids.map((id, place) => knownLine(cart, id, ['lineIds', String(place)]));
  cart.lines = cart.lines.filter((line) => !gone.includes(line));
}

export function attributesOf(inputs) {
  return (inputs ?? []).map(({ key, value }) => ({ key, value }));
}

/** Codes count once, whatever their letter case. */
export function codesOf(codes) {
  return [...new Map((codes ?? []).map((code) => [code.trim().toUpperCase(), code.trim()])).values()].filter(Boolean);
}

export function touch(cart) {
  cart.updatedAt = timestamp();
}

function newLine(cart, variant, attributes) {
  const id = `gid://shopify/CartLine/${randomUUID()}?cart=${cart.token}`;
  return { __typename: 'CartLine', id, cart, variant, attributes, quantity: 0 };
}

function tooSmall(least, place) {
  return new CartProblem(`Quantity must be greater than or equal to ${least}`, ['lines', String(place), 'quantity'], 'LESS_THAN');
}

function tooLarge(place) {
  return new CartProblem(`Quantity must be less than or equal to ${mostOfOne}`, ['lines', String(place), 'quantity'], 'MAXIMUM_EXCEEDED');
}

/** More than there is becomes what there is, nothing included, and the shopper is told. */
function setQuantity(line, wanted, warnings) {
  const { stock, product, title } = line.variant;
  const target = line.id;
  line.quantity = stock === null ? wanted : Math.min(wanted, stock);
  if (line.quantity === wanted) return;
  warnings.push(
    line.quantity === 0
      ? { code: 'MERCHANDISE_OUT_OF_STOCK', target, message: `The product '${product.title} - ${title}' is already sold out.` }
      : { code: 'MERCHANDISE_NOT_ENOUGH_STOCK', target, message: `Only ${line.quantity} items were added to your cart.` },
  );
}

function knownVariant(variantOf, id, field) {
  const variant = variantOf(id);
  if (!variant) throw new CartProblem(`The merchandise with id ${id} does not exist.`, field);
  return variant;
}

function knownLine(cart, id, field) {
  const line = cart.lines.find((other) => other.id === id);
  if (!line) throw new CartProblem(`The merchandise line with id ${id} does not exist.`, field, 'INVALID_MERCHANDISE_LINE');
  return line;
}

function sameAttributes(one, other) {
  return JSON.stringify(one) === JSON.stringify(other);
}

function timestamp() {
  return `${new Date().toISOString().slice(0, 19)}Z`;
}
