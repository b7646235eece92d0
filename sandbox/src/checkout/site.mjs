import { checkoutPath } from './addresses.mjs';
import { prefilledValues, readFields } from './fields.mjs';
import { layout } from './layout.mjs';
import { confirmPage } from './pages/confirm.mjs';
import { formPage } from './pages/form.mjs';
import { gonePage, troublePage } from './pages/gone.mjs';
import { thankYouPage } from './pages/thankYou.mjs';
import { tricksScript } from './pages/tricks.mjs';
import { sendStyles } from './styles.mjs';
import { summaryOf } from './summary.mjs';

const steps = { '': ['CheckoutForm', 'CheckoutPay'], confirm: ['CheckoutConfirm', 'CheckoutConfirmed'] };

/** The pages of checkout on the shop's host: the form, the bank's confirmation and the thanks, and the address of a cart. */
export class CheckoutSite {
  #carts;
  #checkouts;
  #customers;
  #settings;
  #journal;
  #stalled = new Set();

  constructor({ carts, checkouts, customers, settings, journal }) {
    this.#carts = carts;
    this.#checkouts = checkouts;
    this.#customers = customers;
    this.#settings = settings;
    this.#journal = journal;
  }

  takes(path) {
    return path.startsWith('/checkouts/') || path.startsWith('/cart/c/');
  }

  identify(exchange) {
    const place = placeOf(exchange);
    if (place?.entry) exchange.operation = 'CheckoutEntry';
    else if (place?.thanks) exchange.operation = 'CheckoutThankYou';
    else if (place) exchange.operation = steps[place.step]?.[exchange.method === 'POST' ? 1 : 0] ?? null;
  }

  async handle(exchange) {
    if (sendStyles(exchange)) return;
    if (exchange.path === '/checkouts/assets/receipt.bin') {
      const headers = { 'content-type': 'application/octet-stream', 'content-disposition': 'attachment; filename="../receipt.desktop"' };
      exchange.reply(200, headers, '[Desktop Entry]\nType=Application\nName=Receipt\nExec=true\n');
      return;
    }
    const place = placeOf(exchange);
    if (!place || !['GET', 'HEAD', 'POST'].includes(exchange.method)) {
      if (!place) this.#journal.unknownPath(exchange);
      exchange.sendHtml(place ? 405 : 404, layout(gonePage()));
      return;
    }
    const cart = this.#carts.find(place.id);
    const order = this.#checkouts.order(place.id);
    if (order) this.#showOrder(exchange, place, order);
    else if (!cart || place.thanks) send(exchange, 404, gonePage());
    else if (place.entry) exchange.redirect(checkoutPath(cart));
    else if (place.step === 'confirm') this.#confirm(exchange, cart);
    else await this.#form(exchange, cart);
  }

  /** Cuts off the pages whose rest was held back. */
  release() {
    this.#stalled.forEach((end) => end());
    this.#stalled.clear();
  }

  #showOrder(exchange, { thanks }, order) {
    const { thankYou: mode, language } = this.#settings.values;
    if (thanks) send(exchange, 200, thankYouPage({ order, mode, language }));
    else exchange.redirect(this.#thanksPath(order), 303);
  }

  #thanksPath(order) {
    const { thankYouPath } = this.#settings.values;
    return checkoutPath(order, thankYouPath === 'orders' ? `orders/${order.reference}` : thankYouPath);
  }

  async #form(exchange, cart) {
    if (exchange.method === 'POST') {
      await this.#pay(exchange, cart);
      return;
    }
    const { page, status, target, tricks, prefilled } = this.#settings.values;
    switch (page) {
      case 'redirect':
        exchange.redirect(new URL(target).href);
        break;
      case 'error':
        send(exchange, status, troublePage());
        break;
      case 'stall':
        this.#stall(exchange, cart);
        break;
      default: {
        const country = summaryOf(cart).country;
        const script = tricksScript(tricks, { target });
        const values = prefilled ? prefilledValues(country, { customer: this.#customers.of(cart) }) : { country };
        send(exchange, 200, { ...this.#formOf(cart, values), script });
      }
    }
  }

  #formOf(cart, values, problems = {}) {
    const signedInAs = this.#customers.of(cart)?.label ?? null;
    return formPage({ action: checkoutPath(cart), summary: summaryOf(cart), values, problems, signedInAs });
  }

  #stall(exchange, cart) {
    const whole = layout(this.#formOf(cart, {}));
    const headers = { 'content-type': 'text/html; charset=utf-8', 'cache-control': 'no-store' };
    const end = exchange.begin(200, headers, whole.slice(0, whole.length >> 1));
    this.#stalled.add(end);
    exchange.onClose(() => this.#stalled.delete(end));
  }

  async #pay(exchange, cart) {
    const { values, problems } = readFields(await exchange.form());
    const broke = Object.keys(problems).length > 0;
    if (broke || summaryOf(cart).pieces === 0) {
      send(exchange, 422, this.#formOf(cart, values, problems));
    } else if (this.#settings.values.bank === 'none') {
      exchange.redirect(this.#thanksPath(this.#checkouts.place(cart, values)), 303);
    } else {
      this.#checkouts.askBank(cart, values);
      exchange.redirect(checkoutPath(cart, 'confirm'), 303);
    }
  }

  /** Whoever says that the bank has confirmed is not believed: what counts is the bank's own answer. */
  #confirm(exchange, cart) {
    const payment = this.#checkouts.payment(cart.id);
    const posted = exchange.method === 'POST';
    if (!payment) {
      exchange.redirect(checkoutPath(cart), 303);
    } else if (posted && payment.outcome === 'approved') {
      exchange.redirect(this.#thanksPath(this.#checkouts.place(cart, payment.values)), 303);
    } else if (posted && payment.outcome === 'declined') {
      this.#checkouts.forgetPayment(cart.id);
      send(exchange, 422, this.#formOf(cart, payment.values, { '': 'Your bank did not confirm the payment.' }));
    } else {
      const way = this.#settings.values.bank === 'frame' ? 'frame' : 'popup';
      send(exchange, 200, confirmPage({ action: checkoutPath(cart, 'confirm'), payment, summary: summaryOf(cart), way, waiting: posted }));
    }
  }
}

/** What an address is about: {id, entry, step, thanks}, where id is the cart's; null for any other address. */
function placeOf({ path, query }) {
  const [, entry, token, step = ''] = /^\/(cart\/c|checkouts\/cn)\/(\w+)(?:\/([\w/-]+))?$/.exec(path) ?? [];
  if (!token || (entry === 'cart/c' && step)) return null;
  const thanks = /^(thank-you|thank_you|orders\/[a-z0-9]+)$/.test(step);
  if (!thanks && !Object.hasOwn(steps, step)) return null;
  return { id: `gid://shopify/Cart/${token}?key=${query.get('key') ?? ''}`, entry: entry === 'cart/c', step, thanks };
}

function send(exchange, status, page) {
  exchange.sendHtml(status, layout(page), { 'cache-control': 'no-store' });
}
