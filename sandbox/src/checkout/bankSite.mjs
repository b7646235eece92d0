import { sendIcon } from '../web/icon.mjs';
import { layout } from './layout.mjs';
import { bankAnswerPage, bankPage, unknownSessionPage } from './pages/bank.mjs';
import { sendStyles } from './styles.mjs';

/** The buyer's bank, on a host of its own: asks whether the payment is wanted and keeps the answer for the shop. */
export class BankSite {
  #checkouts;
  #journal;

  constructor({ checkouts, journal }) {
    this.#checkouts = checkouts;
    this.#journal = journal;
  }

  identify(exchange) {
    if (exchange.path === '/confirm') exchange.operation = exchange.method === 'POST' ? 'BankAnswer' : 'BankPage';
  }

  async handle(exchange) {
    if (sendStyles(exchange)) return;
    if (exchange.path === '/favicon.ico') {
      sendIcon(exchange);
    } else if (exchange.path !== '/confirm') {
      this.#journal.unknownPath(exchange);
      exchange.sendHtml(404, layout(unknownSessionPage()));
    } else {
      await this.#confirm(exchange);
    }
  }

  async #confirm(exchange) {
    const session = exchange.query.get('session');
    const way = exchange.query.get('in') === 'frame' ? 'frame' : 'popup';
    const payment = this.#checkouts.paymentOfSession(session);
    const page = payment ? await this.#page(exchange, payment, way) : unknownSessionPage();
    exchange.sendHtml(payment ? 200 : 404, layout(page), { 'cache-control': 'no-store' });
  }

  async #page(exchange, payment, way) {
    const { session, amount, values } = payment;
    if (exchange.method !== 'POST') return bankPage({ session, amount, cardEnd: values.card.slice(-4), way });
    const approved = (await exchange.form()).outcome === 'approved';
    payment.outcome = approved ? 'approved' : 'declined';
    return bankAnswerPage({ session, approved, way });
  }
}
