import { keyOf } from '../accounts/accounts.mjs';
import { dateText } from '../catalog/dates.mjs';
import { BadRequest } from '../server/exchange.mjs';
import { bringTo, deliveredAt, parcelAt, parcelStatuses } from './parcels.mjs';

const day = 24 * 3600 * 1000;
const returnDays = 30;
const untilPacked = 60 * 1000;

/**
 * Everything that was ever ordered, and by whom. An order is {number, owner, email, placedAt, receipt, address, parcels,
 * cancelled}; its owner is the address of an account, null when only the address typed at checkout tells, and false when
 * nobody may see it any more.
 */
export class Orders {
  #checkouts;
  #past;
  #now;
  #orders = [];
  #refunds = [];

  /** past() gives {orders, refunds} that are there from the beginning. */
  constructor({ checkouts, past, now }) {
    this.#checkouts = checkouts;
    this.#past = past;
    this.#now = now;
    this.clear();
  }

  /** {orders, refunds} of an account, newest first. */
  of(account) {
    const own = this.#all.filter((order) => belongsTo(order, account));
    const numbers = new Set(own.map(({ number }) => number));
    const refunds = this.#refunds.filter(({ orderName }) => numbers.has(orderName));
    return {
      orders: own.sort((one, other) => other.placedAt - one.placedAt).map((order) => this.#record(order)),
      refunds: refunds.sort((one, other) => other.createdAt.localeCompare(one.createdAt)),
    };
  }

  /** The parcels a number stands for, which is one's own or that of an order; null when there is no such number. */
  track(number, { carrier, account }) {
    const wanted = number.trim().replace(/^#/, '').toUpperCase();
    for (const order of this.#all) {
      const named = order.parcels.filter((parcel) => order.number === wanted || parcel.number.toUpperCase() === wanted);
      const parcels = named.filter((parcel) => !carrier || parcel.carrier.toLowerCase() === carrier.trim().toLowerCase());
      if (parcels.length === 0 && order.number !== wanted) continue;
      const owned = account !== null && belongsTo(order, account);
      return {
        packages: parcels.map((parcel) => parcelAt(parcel, this.#now())),
        ...(owned ? { orderId: idOf(order), orderName: order.number } : {}),
      };
    }
    return null;
  }

  /** What became of its parcels can be hurried along. */
  ship({ order: number, status }) {
    const order = this.#all.find((other) => other.number === number);
    if (!order) throw new BadRequest('order is the number of one', 404);
    if (!parcelStatuses.includes(status)) throw new BadRequest(`status is one of ${parcelStatuses.join(', ')}`);
    order.parcels.forEach((parcel) => bringTo(parcel, status, this.#now()));
  }

  disown(account) {
    this.#all.filter((order) => belongsTo(order, account)).forEach((order) => {
      order.owner = false;
    });
  }

  clear() {
    const { orders, refunds } = this.#past();
    this.#orders = orders;
    this.#refunds = refunds.map((refund) => ({ ...refund, orderId: idOf({ number: refund.orderName }) }));
  }

  get #all() {
    return [...this.#orders, ...this.#checkouts.orders];
  }

  #record(order) {
    const { number, placedAt, receipt, address, parcels } = order;
    const now = this.#now();
    const status = this.#statusOf(order, now);
    const delivered = parcels.map((parcel) => deliveredAt(parcel, now)).filter(Boolean);
    return {
      id: idOf(order),
      name: number,
      placedAt: dateText(placedAt),
      status,
      packages: parcels.map((parcel) => parcelAt(parcel, now)),
      ...receipt,
      ...(address ? { address } : {}),
      canReturn: status === 'delivered' && Math.max(...delivered) + returnDays * day > now,
    };
  }

  #statusOf({ cancelled, parcels, placedAt }, now) {
    if (cancelled) return 'cancelled';
    const statuses = parcels.map((parcel) => parcelAt(parcel, now).status);
    if (statuses.length === 0) return 'confirmed';
    if (statuses.every((status) => status === 'delivered')) return 'delivered';
    if (statuses.some((status) => status !== 'label')) return 'shipped';
    return placedAt + untilPacked > now ? 'confirmed' : 'packed';
  }
}

function belongsTo({ owner, email }, account) {
  return owner === null ? keyOf(email) === account.email : owner === account.email;
}

function idOf({ number }) {
  return `5512000${number.slice(3)}`;
}
