import { track } from './track.mjs';

/**
 * Every endpoint is one module with {path, methods, public, handle}. A public one lies below /api/pub and needs no
 * widget key, the others lie below /api/support/widget. handle(call, store) gets {input, files, query, exchange} and
 * returns the JSON to answer with, or throws a BackendError.
 */
export const endpoints = [track];
