import { currencies } from '../markets/currencies.mjs';

const signs = { '€': 'EUR', '£': 'GBP', '¥': 'JPY', '₩': 'KRW', '₹': 'INR' };
const names = { euro: 'EUR', pound: 'GBP', yen: 'JPY', franc: 'CHF', krona: 'SEK', krone: 'NOK', ...Object.fromEntries(Object.keys(currencies).map((code) => [code.toLowerCase(), code])) };
const number = '(\\d[\\d.,]*)';
const before = new RegExp(`([${Object.keys(signs).join('')}])\\s?${number}`, 'g');
const after = new RegExp(`${number}\\s?(?:([${Object.keys(signs).join('')}])|(${Object.keys(names).join('|')})s?\\b)`, 'g');
const boundAfter = /(\$?\d[\d,]*(?:\.\d+)?)\s*(?:dollars?|usd|\$)?\s*(?:or less|at (?:the )?most|tops|budget|max(?:imum)?|以下|以內|以内)/g;

/** {text, currency}: a shopper's words with every sum in US dollars and "200 or less" as "under 200", and what was counted in. */
export function inDollars(text) {
  let currency = null;
  const dollars = (digits, code) => {
    currency = code;
    return `$${Math.round(Number(digits.replace(/[.,](?=\d{3}\b)/g, '').replace(',', '.')) / currencies[code].rate)}`;
  };
  const converted = text
    .replace(before, (whole, sign, digits) => readable(dollars(digits, signs[sign]), whole))
    .replace(after, (whole, digits, sign, name) => readable(dollars(digits, signs[sign] ?? names[name]), whole));
  return { text: converted.replace(boundAfter, 'under $1'), currency };
}

function readable(sum, whole) {
  return sum === '$NaN' ? whole : sum;
}
