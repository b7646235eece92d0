import { BackendError } from '../errors.mjs';

export const listOrders = {
  path: '/orders',
  methods: ['POST'],
  customer: true,
  handle({ account }, { orders }) {
    return orders.of(account);
  },
};

/** Whoever has the number may follow a parcel; only its owner is told of the order. */
export const trackParcel = {
  path: '/tracking',
  methods: ['POST'],
  handle({ input: { number, carrier }, account }, { orders }) {
    const isNumber = typeof number === 'string' && number.trim() !== '' && number.length <= 200;
    if (!isNumber || !['string', 'undefined'].includes(typeof carrier)) {
      throw new BackendError(400, 'BAD_INPUT', 'number is that of a parcel or of an order');
    }
    const found = orders.track(number, { carrier, account });
    if (!found) throw new BackendError(404, 'NOT_FOUND', 'There is no parcel or order with this number');
    return found;
  },
};
