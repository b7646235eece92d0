import { hosts } from '../hosts.mjs';

/** Where a step of a cart's checkout is, on the shop's host. The same key that reads the cart opens the page. */
export function checkoutPath({ token, key }, step = '') {
  return `/checkouts/cn/${token}${step && `/${step}`}?key=${key}`;
}

/** The address a cart names as its checkout; one set for a test may hold {token} and {key}. */
export function checkoutUrl({ token, key }, { address, url }) {
  if (url !== null) return url.replaceAll('{token}', token).replaceAll('{key}', key);
  if (address === 'checkouts') return `https://${hosts.shop}${checkoutPath({ token, key })}`;
  return `https://${hosts.shop}/cart/c/${token}?key=${key}`;
}
