import { currencies } from './currencies.mjs';

/** Where the store sells, by currency. A country that is not listed is served as the first one. */
const countriesByCurrency = {
  USD: ['US', 'EC', 'SV'],
  EUR: ['FR', 'DE', 'IT', 'ES', 'PT', 'NL', 'BE', 'IE', 'AT', 'FI', 'GR', 'HR', 'SK', 'LU'],
  GBP: ['GB'],
  JPY: ['JP'],
  KRW: ['KR'],
  CAD: ['CA'],
  AUD: ['AU'],
  NZD: ['NZ'],
  CHF: ['CH'],
  SEK: ['SE'],
  DKK: ['DK'],
  NOK: ['NO'],
  ISK: ['IS'],
  PLN: ['PL'],
  CZK: ['CZ'],
  HUF: ['HU'],
  RON: ['RO'],
  TRY: ['TR'],
  UAH: ['UA'],
  ILS: ['IL'],
  AED: ['AE'],
  SAR: ['SA'],
  KWD: ['KW'],
  INR: ['IN'],
  IDR: ['ID'],
  MYR: ['MY'],
  PHP: ['PH'],
  SGD: ['SG'],
  THB: ['TH'],
  VND: ['VN'],
  HKD: ['HK'],
  TWD: ['TW'],
  CNY: ['CN'],
  MXN: ['MX'],
  BRL: ['BR'],
};

/** Collections that a country does not see. */
const withheld = { JP: new Set(['alpine-archive']) };

class Market {
  #rate;
  #step;

  constructor(country, currencyCode) {
    const { rate, step, decimals } = currencies[currencyCode];
    this.#rate = rate;
    this.#step = step;
    this.country = country;
    this.currencyCode = currencyCode;
    this.decimals = decimals;
  }

  /** The price a merchant would set here for a price in US dollars. */
  price(dollars) {
    if (dollars === 0 || this.currencyCode === 'USD') return dollars;
    return tidy(Math.max(this.#step, Math.round((dollars * this.#rate) / this.#step) * this.#step));
  }

  /** An amount worked out from prices, such as a discount, exact to the smallest coin. */
  round(amount) {
    const unit = 10 ** this.decimals;
    return tidy(Math.round(amount * unit) / unit);
  }

  sells(collectionHandle) {
    return !withheld[this.country]?.has(collectionHandle);
  }
}

export const markets = new Map(
  Object.entries(countriesByCurrency).flatMap(([currencyCode, countries]) =>
    countries.map((country) => [country, new Market(country, currencyCode)]),
  ),
);

export const primaryMarket = markets.get('US');

export function marketOf(country) {
  return markets.get(country) ?? primaryMarket;
}

/** Takes the binary dust off a sum such as 0.1 + 0.2. */
function tidy(amount) {
  return Number(amount.toFixed(4));
}

/** Decimals travel as text with at least one digit after the point. */
export function decimalText(amount) {
  return Number.isInteger(amount) ? `${amount}.0` : String(amount);
}
