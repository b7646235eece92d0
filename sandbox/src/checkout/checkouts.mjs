import { randomBytes } from 'node:crypto';

import { newParcel } from '../orders/parcels.mjs';
import { addressOf, receiptOf } from '../orders/receipt.mjs';
import { Random } from '../random.mjs';
import { summaryOf } from './summary.mjs';

const firstNumber = 10484;
const confirmationLetters = [...'ABCDEFGHJKLMNPQRSTUVWXYZ23456789'];

/** Payments that wait for the buyer's bank, and the orders that came of carts. Both are known by the cart's identifier. */
export class Checkouts {
  #carts;
  #customers;
  #now;
  #payments = new Map();
  #orders = new Map();

  constructor({ carts, customers, now }) {
    this.#carts = carts;
    this.#customers = customers;
    this.#now = now;
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

  /** Makes the cart an order, which ends it. It is that of the customer who came signed in, else of the address typed. */
  place(cart, values) {
    const { email, name } = values;
    const placedAt = this.#now();
    const number = `LST${firstNumber + this.#orders.size}`;
    const random = new Random(number);
    const order = {
      number,
      confirmation: Array.from({ length: 9 }, () => random.pick(confirmationLetters)).join(''),
      reference: randomBytes(16).toString('hex'),
      cartId: cart.id, token: cart.token, key: cart.key,
      email, name, placedAt,
      owner: this.#customers.of(cart)?.account?.email ?? null,
      summary: summaryOf(cart),
      receipt: receiptOf(cart),
      address: addressOf(values),
      parcels: [newParcel({ number: `LP${random.int(4500000, 4999999)}`, placedAt, city: values.city })],
      cancelled: false,
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
