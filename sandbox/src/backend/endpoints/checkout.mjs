import { checkoutPath } from '../../checkout/addresses.mjs';
import { badCode } from '../../checkout/handOvers.mjs';
import { layout } from '../../checkout/layout.mjs';
import { usedHandOverPage } from '../../checkout/pages/gone.mjs';
import { hosts } from '../../hosts.mjs';
import { BackendError } from '../errors.mjs';

/** Hands a signed-in customer over to the checkout of a cart. A guest is nobody to hand over, unless a test wants so. */
export const prepareCheckout = {
  path: '/shopify-checkout/prepare',
  methods: ['POST'],
  handle({ input: { cartId, locale, platform, appToken }, account }, { carts, handOvers, settings }) {
    const { handOver } = settings.values;
    if (handOver === 'missing') throw new BackendError(404, undefined, 'There is no hand-over');
    if (handOver === 'widget-not-found') throw new BackendError(403, 'WIDGET_NOT_FOUND', 'No widget has this key');
    if (typeof cartId !== 'string' || platform !== 'macos' || !/^[A-Z]{2,3}(_[A-Z]{2})?$/.test(locale)) {
      throw new BackendError(400, 'BAD_INPUT', 'cartId, locale and platform are wanted');
    }
    if (handOver === 'unavailable' || (handOver === 'guest' && !account)) {
      throw new BackendError(409, 'CHECKOUT_AUTH_UNAVAILABLE', 'Guests are not handed over');
    }
    if (!carts.find(cartId)) throw new BackendError(404, 'NOT_FOUND', 'There is no such cart');
    const good = handOver === 'guest' || handOver === 'ready';
    return { mode: account ? 'customer' : 'app', code: good ? handOvers.make(cartId, appToken) : badCode(handOver) };
  },
};

/** Where the web view goes with the code: it serves once and leads to the cart's checkout, as somebody known there. */
export const startCheckout = {
  path: '/shopify-checkout/start',
  methods: ['GET'],
  keyless: true,
  anonymous: true,
  handle({ exchange }, { carts, handOvers, customers }) {
    const codes = [...exchange.query.values()];
    const handOver = codes.length === 1 ? handOvers.redeem(codes[0]) : null;
    const cart = handOver && customers.of({ handedOver: handOver }) ? carts.find(handOver.cartId) : null;
    if (!cart) {
      exchange.sendHtml(410, layout(usedHandOverPage()), { 'cache-control': 'no-store' });
      return;
    }
    cart.handedOver = handOver;
    exchange.redirect(`https://${hosts.shop}${checkoutPath(cart)}`);
  },
};

/** Ends a session that somebody signed out of, and every hand-over that came of it. */
export const revokeCheckout = {
  path: '/shopify-checkout/revoke',
  methods: ['POST'],
  anonymous: true,
  handle({ input: { appToken } }, { accounts, handOvers }) {
    if (typeof appToken !== 'string') throw new BackendError(400, 'BAD_INPUT', 'appToken is wanted');
    handOvers.revoke(appToken);
    accounts.endSession(appToken);
    return { code: 'OK' };
  },
};
