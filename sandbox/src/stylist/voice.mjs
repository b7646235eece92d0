import { currencies } from '../markets/currencies.mjs';
import { hash } from '../random.mjs';
import { languageOf } from '../reco/languages.mjs';
import { ar } from './phrases/ar.mjs';
import { de } from './phrases/de.mjs';
import { en } from './phrases/en.mjs';
import { fr } from './phrases/fr.mjs';
import { ja } from './phrases/ja.mjs';
import { zhHant } from './phrases/zhHant.mjs';

export const phrasebooks = { en, de, fr, ja, ar, 'zh-Hant': zhHant };

/** Says things in the shopper's language, of several ways the one that is the turn's; in English where it has none. */
export class Voice {
  #book;
  #label;

  /** currency is the one that the shopper counts in. */
  constructor(lang, label) {
    this.currency = 'USD';
    const language = typeof lang === 'string' ? languageOf(lang) : 'en';
    this.language = Object.hasOwn(phrasebooks, language) ? language : 'en';
    this.#book = phrasebooks[this.language];
    this.#label = label;
  }

  say(key, facts = {}, draw = '') {
    const ways = [this.#book[key]].flat();
    const way = ways[hash(`${this.#label}/${key}/${draw}`) % ways.length];
    return typeof way === 'function' ? way(facts) : way;
  }

  list(items) {
    return new Intl.ListFormat(this.language, { type: 'conjunction' }).format(items);
  }

  day(iso) {
    return new Intl.DateTimeFormat(this.language, { weekday: 'long', day: 'numeric', month: 'long', timeZone: 'UTC' }).format(new Date(iso));
  }

  sentences(parts) {
    return parts.filter(Boolean).join(['ja', 'zh-Hant'].includes(this.language) ? '' : ' ');
  }

  sum(dollars) {
    const format = new Intl.NumberFormat(this.language, { style: 'currency', currency: this.currency, currencyDisplay: 'narrowSymbol', maximumFractionDigits: 0 });
    return format.format(dollars * currencies[this.currency].rate);
  }

  money({ amount, currencyCode }) {
    return new Intl.NumberFormat(this.language, { style: 'currency', currency: currencyCode }).format(Number(amount));
  }

  chance(name, oneIn) {
    return hash(`${this.#label}/${name}`) % oneIn === 0;
  }
}
