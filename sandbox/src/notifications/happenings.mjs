import { marketOf } from '../markets/markets.mjs';
import { moneyIn } from '../orders/receipt.mjs';
import { dateText } from '../catalog/dates.mjs';

/** What is said when a parcel reaches a status. */
const parcelWords = {
  transit: ['order_shipped', 'Your order is on its way', (number, carrier) => `Order ${number} left our house with ${carrier}. Tap to follow it.`],
  out: ['order_out', 'Out for delivery', (number) => `A parcel of order ${number} comes today.`],
  delivered: ['order_delivered', 'Delivered', (number) => `Order ${number} has arrived.`],
  problem: ['order_problem', 'A parcel needs you', (number) => `The carrier could not find the address of order ${number}.`],
};

/**
 * Tells customers what happens to what is theirs: orders placed since the start and their parcels, alerts that are met,
 * wished-for pieces that get cheaper. Parcels move by the clock, so it looks whenever somebody could ask.
 */
export class Happenings {
  #parts;
  #told = new Set();

  constructor({ accounts, alerts, catalog, notifications, orders, wishlists }) {
    this.#parts = { accounts, alerts, catalog, notifications, orders, wishlists };
    this.clear();
  }

  lookForAll() {
    this.#parts.accounts.all.forEach((account) => this.look(account));
  }

  look(account) {
    this.#tellOfOrders(account);
    this.#tellOfAlerts(account);
  }

  /** A piece costs something else from now on. Who set an alert is told of that, who wishes for the piece of the drop. */
  priceChanged(piece, before) {
    const { accounts, notifications, wishlists } = this.#parts;
    for (const account of accounts.all) {
      const alerted = this.#tellOfAlerts(account);
      if (piece.lowest >= before || alerted.has(piece.handle)) continue;
      const wished = wishlists.syncs.findLast(({ email }) => email?.toLowerCase() === account.email)?.items ?? [];
      if (!wished.some(({ handle }) => handle === piece.handle)) continue;
      const [now, then] = [piece.lowest, before].map((dollars) => priceText(account, dollars));
      notifications.push(account, { type: 'price_drop', title: 'Price drop', body: `${piece.title} is now ${now}, down from ${then}.`, ...pointing(piece) });
    }
  }

  /** What was so at the beginning is no news. */
  clear() {
    this.#told.clear();
    const { accounts, alerts, orders } = this.#parts;
    for (const account of accounts.all) {
      for (const order of orders.of(account).orders) this.#newsOf(order).forEach(({ key }) => this.#told.add(key));
      for (const alert of alerts.of(account)) if (alert.isMet) this.#told.add(keyOf(alert));
    }
  }

  #tellOfOrders(account) {
    for (const order of this.#parts.orders.of(account).orders) {
      for (const { key, ...news } of this.#newsOf(order)) {
        if (this.#told.has(key)) continue;
        this.#told.add(key);
        this.#parts.notifications.push(account, { ...news, link: `/account/orders/${order.name}`, image: order.lines[0]?.imageURL });
      }
    }
  }

  #newsOf({ name, placedAt, packages }) {
    const confirmed = { key: `placed ${name}`, type: 'order_confirmed', title: 'Order confirmed', body: `Thank you! Order ${name} is confirmed.`, date: placedAt };
    const moved = packages.filter(({ status }) => parcelWords[status]).map(({ number, carrier, status, events }) => {
      const [type, title, words] = parcelWords[status];
      return { key: `${status} ${number}`, type, title, body: words(name, carrier), date: events[0]?.at ?? dateText(Date.parse(placedAt)) };
    });
    return [confirmed, ...moved];
  }

  /** The handles of the pieces it told of. */
  #tellOfAlerts(account) {
    const news = this.#parts.alerts.of(account).filter((alert) => {
      const key = keyOf(alert);
      const isNew = alert.isMet && !this.#told.has(key);
      if (alert.isMet) this.#told.add(key);
      else this.#told.delete(key);
      return isNew;
    });
    for (const alert of news) {
      const piece = this.#parts.catalog.piece(alert.handle);
      this.#parts.notifications.push(account, { ...alertWords(alert), ...pointing(piece, alert.imageURL) });
    }
    return new Set(news.map(({ handle }) => handle));
  }
}

function keyOf({ id }) {
  return `alert ${id}`;
}

function alertWords({ kind, title, variantTitle, price, currentPrice }) {
  if (kind === 'restock') return { type: 'restock', title: 'Back in stock', body: `${title} is available again${variantTitle ? ` in ${variantTitle}` : ''}.` };
  return { type: 'price_drop', title: 'Price drop', body: `${title} is now ${moneyText(currentPrice)}, down from ${moneyText(price)}.` };
}

function pointing({ handle, images }, image = images[0]?.url) {
  return { link: `/products/${handle}`, image };
}

function priceText({ country }, dollars) {
  const market = marketOf(country);
  return moneyText(moneyIn(market, market.price(dollars)));
}

function moneyText({ amount, currencyCode }) {
  return new Intl.NumberFormat('en', { style: 'currency', currency: currencyCode }).format(Number(amount));
}
