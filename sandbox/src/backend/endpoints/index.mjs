import { prepareCheckout, revokeCheckout, startCheckout } from './checkout.mjs';
import { track } from './track.mjs';
import { wishlistSync } from './wishlist.mjs';

/**
 * Every endpoint is one module with {path, methods, public, keyless, handle}. A public one lies below /api/pub and needs
 * no widget key, the others lie below /api/support/widget and want it unless they are keyless, as the addresses a browser
 * opens are. handle(call, store) gets {input, files, query, exchange} and returns the JSON to answer with, throws a
 * BackendError, or answers the exchange itself.
 */
export const endpoints = [prepareCheckout, revokeCheckout, startCheckout, track, wishlistSync];
