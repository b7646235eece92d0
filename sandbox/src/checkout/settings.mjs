import { hosts } from '../hosts.mjs';
import { oneOf, Settings } from '../settings.mjs';
import { handOverModes } from './handOvers.mjs';
import { trickNames } from './pages/tricks.mjs';
import { languages } from './pages/words.mjs';

const defaults = {
  address: 'cart',
  url: null,
  page: 'form',
  status: 503,
  target: `https://${hosts.web}/pages/about-us`,
  tricks: [],
  prefilled: true,
  bank: 'none',
  thankYou: 'order',
  thankYouPath: 'thank-you',
  language: 'en',
  handOver: 'guest',
};

const checks = {
  address: oneOf('cart', 'checkouts'),
  url: [(value) => value === null || (typeof value === 'string' && value.length <= 65536), 'null or a text of at most 65536 characters'],
  page: oneOf('form', 'redirect', 'stall', 'error'),
  status: [(value) => Number.isInteger(value) && value >= 400 && value <= 599, 'from 400 to 599'],
  target: [(value) => typeof value === 'string' && URL.canParse(value), 'an absolute address'],
  tricks: [(value) => Array.isArray(value) && value.every((name) => trickNames.includes(name)), `a list of ${trickNames.join(', ')}`],
  prefilled: [(value) => typeof value === 'boolean', 'true or false'],
  bank: oneOf('none', 'popup', 'frame'),
  thankYou: oneOf('order', 'order-number', 'confirmation', 'unnumbered', 'hostile', 'huge', 'huge-tail'),
  thankYouPath: oneOf('thank-you', 'thank_you', 'orders'),
  language: oneOf(...languages),
  handOver: oneOf(...handOverModes),
};

/** How checkout is to behave. */
export class CheckoutSettings extends Settings {
  constructor() {
    super('checkout', defaults, checks);
  }
}
