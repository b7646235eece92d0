import { checkoutPath } from '../../checkout/addresses.mjs';
import { badCode } from '../../checkout/handOvers.mjs';
import { layout } from '../../checkout/layout.mjs';
import { usedHandOverPage } from '../../checkout/pages/gone.mjs';
import { hosts } from '../../hosts.mjs';
import { BackendError } from '../errors.mjs';

/** Hands a signed-in customer over to the checkout of a cart. Nobody has an account yet, so that there is nobody to hand over. */
export const prepareCheckout = {
  path: '/shopify-checkout/prepare',
  methods: ['POST'],
  handle({ input: { cartId, locale, platform, appToken } }, { carts, handOvers, settings }) {
    const { handOver } = settings.values;
    if (handOver === 'missing') throw new BackendError(404, undefined, 'There is no hand-over');
    if (handOver === 'widget-not-found') throw new BackendError(403, 'WIDGET_NOT_FOUND', 'No widget has this key');
    if (typeof cartId !== 'string' || platform !== 'macos' || !/^[A-Z]{2,3}(_[A-Z]{2})?$/.test(locale)) {
      throw new BackendError(400, 'BAD_INPUT', 'cartId, locale and platform are wanted');
    }
    if (handOver === 'guest') throw new BackendError(409, 'CHECKOUT_AUTH_UNAVAILABLE', 'Guests are not handed over');
    if (!carts.find(cartId)) throw new BackendError(404, 'NOT_FOUND', 'There is no such cart');
    return { mode: 'app', code: handOver === 'ready' ? handOvers.make(cartId, appToken) : badCode(handOver) };
  },
};

/** Where the web view goes with the code: it serves once and leads to the cart's checkout, as somebody known there. */
export const startCheckout = {
  path: '/shopify-checkout/start',
  methods: ['GET'],
  keyless: true,
  handle({ exchange }, { carts, handOvers }) {
    const codes = [...exchange.query.values()];
    const id = codes.length === 1 ? handOvers.redeem(codes[0]) : null;
    const cart = id === null ? null : carts.find(id);
    if (!cart) {
      exchange.sendHtml(410, layout(usedHandOverPage()), { 'cache-control': 'no-store' });
      return;
    }
    cart.signedIn = true;
    exchange.redirect(`https://${hosts.shop}${checkoutPath(cart)}`);
  },
};

export const revokeCheckout = {
  path: '/shopify-checkout/revoke',
  methods: ['POST'],
  handle({ input: { appToken } }, { handOvers }) {
    if (typeof appToken !== 'string') throw new BackendError(400, 'BAD_INPUT', 'appToken is wanted');
    handOvers.revoke(appToken);
    return { code: 'OK' };
  },
};
