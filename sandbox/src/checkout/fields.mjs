import { markets } from '../markets/markets.mjs';

const required = (words) => (value) => (value === '' ? words : null);

/** The fields of the form in their order, and what is wrong with a value that was sent for one. */
export const fields = [
  { name: 'email', part: 'Contact', label: 'Email', type: 'email', autocomplete: 'email', check: checkEmail },
  { name: 'name', part: 'Delivery', label: 'Full name', autocomplete: 'name', check: required('Enter your name.') },
  { name: 'address', part: 'Delivery', label: 'Address', autocomplete: 'street-address', check: required('Enter your address.') },
  { name: 'postcode', part: 'Delivery', label: 'Postcode', autocomplete: 'postal-code', half: true, check: required('Enter your postcode.') },
  { name: 'city', part: 'Delivery', label: 'City', autocomplete: 'address-level2', half: true, check: required('Enter your city.') },
  { name: 'country', part: 'Delivery', label: 'Country or region', autocomplete: 'country', options: countries, check: checkCountry },
  { name: 'card', part: 'Payment', label: 'Card number', autocomplete: 'cc-number', numeric: true, check: checkCard },
  { name: 'expiry', part: 'Payment', label: 'Expiry date (MM / YY)', autocomplete: 'cc-exp', half: true, check: checkExpiry },
  { name: 'code', part: 'Payment', label: 'Security code', autocomplete: 'cc-csc', numeric: true, half: true, check: checkCode },
];

const longest = 200;

/** What the form shows to begin with, so that one press on "Pay now" is enough; of a customer, what is known. */
export function prefilledValues(country, { customer = null, now = new Date() } = {}) {
  const { email = 'ines@example.com', account } = customer ?? {};
  const name = account?.name || 'Ines Marques';
  return {
    email, name, address: 'Rua do Tear 14', postcode: '1200-001', city: 'Lisbon', country, ...account?.address,
    card: '4000 1234 5678 0008', expiry: `12 / ${String(now.getFullYear() + 3).slice(-2)}`, code: '123',
  };
}

/** {values, problems} of a form as it was sent; problems maps a field's name to a sentence and is empty when all is well. */
export function readFields(sent) {
  const values = Object.fromEntries(fields.map(({ name }) => [name, (sent[name] ?? '').trim()]));
  const problems = {};
  for (const { name, check } of fields) {
    const problem = values[name].length > longest ? 'This is too long.' : check(values[name]);
    if (problem) problems[name] = problem;
  }
  return { values, problems };
}

function checkEmail(value) {
  return /^[^\s@<>]+@[^\s@<>.]+(\.[^\s@<>.]+)+$/.test(value) ? null : 'Enter a valid email.';
}

function countries() {
  const names = new Intl.DisplayNames(['en'], { type: 'region' });
  const list = [...markets.keys()].map((code) => ({ code, name: names.of(code) }));
  return list.sort((one, other) => one.name.localeCompare(other.name));
}

function checkCountry(value) {
  return markets.has(value) ? null : 'Choose a country we deliver to.';
}

function checkCard(value) {
  const digits = value.replace(/[ -]/g, '');
  if (!/^\d{12,19}$/.test(digits) || !checksumHolds(digits)) return 'Enter a valid card number.';
  return digits.endsWith('0016') ? 'Your card was declined. Use another one.' : null;
}

/** The check digit that card numbers end in. */
function checksumHolds(digits) {
  const values = [...digits].reverse().map((digit, place) => (place % 2 === 0 ? Number(digit) : Number(digit) * 2));
  return values.reduce((sum, value) => sum + (value > 9 ? value - 9 : value), 0) % 10 === 0;
}

function checkExpiry(value) {
  const [, month, year] = /^(0[1-9]|1[0-2])\s*\/\s*(\d\d)$/.exec(value) ?? [];
  if (!month) return 'Enter the date as MM / YY.';
  return new Date(2000 + Number(year), Number(month)) > new Date() ? null : 'Your card has expired.';
}

function checkCode(value) {
  return /^\d{3,4}$/.test(value) ? null : 'Enter the three or four digits on your card.';
}
