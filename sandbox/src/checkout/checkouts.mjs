import { randomBytes } from 'node:crypto';

import { Random } from '../random.mjs';
import { summaryOf } from './summary.mjs';

const firstNumber = 10484;
const confirmationLetters = [...'ABCDEFGHJKLMNPQRSTUVWXYZ23456789'];

/** Payments that wait for the buyer's bank, and the orders that came of carts. Both are known by the cart's identifier. */
export class Checkouts {
  #carts;
  #payments = new Map();
  #orders = new Map();

  constructor(carts) {
    this.#carts = carts;
  }

  get orders() {
    return [...this.#orders.values()];
  }

  order(id) {
    return this.#orders.get(id) ?? null;
  }

  payment(id) {
    return this.#payments.get(id) ?? null;
  }

  paymentOfSession(session) {
    return [...this.#payments.values()].find((payment) => payment.session === session) ?? null;
  }

  /** The bank is asked under a session of its own, which tells it nothing about the cart. */
  askBank(cart, values) {
    const payment = { session: randomBytes(16).toString('hex'), amount: summaryOf(cart).total, outcome: null, values };
    this.#payments.set(cart.id, payment);
    return payment;
  }

  forgetPayment(id) {
    this.#payments.delete(id);
  }

  /** Makes the cart an order, which ends it. */
  place(cart, { email, name }) {
    const number = `LST${firstNumber + this.#orders.size}`;
    const random = new Random(number);
    const order = {
      number,
      confirmation: Array.from({ length: 9 }, () => random.pick(confirmationLetters)).join(''),
      reference: randomBytes(16).toString('hex'),
      cartId: cart.id, token: cart.token, key: cart.key,
      email, name,
      summary: summaryOf(cart),
      placedAt: new Date().toISOString(),
    };
    this.#orders.set(cart.id, order);
    this.#payments.delete(cart.id);
    this.#carts.end(cart.id);
    return order;
  }

  clear() {
    this.#payments.clear();
    this.#orders.clear();
  }
}
