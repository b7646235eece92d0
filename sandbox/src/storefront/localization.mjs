import { translatedLanguages } from '../catalog/titles.mjs';
import { marketOf, markets } from '../markets/markets.mjs';

const imperial = new Set(['US', 'GB']);

const Localization = {
  availableCountries: (_, __, { language }) => [...markets.keys()].map((code) => country(code, language)).sort(byName(language)),
  availableLanguages: (_, __, { language }) => translatedLanguages.map((code) => languageRecord(code, language)),
  country: (_, __, { market, language }) => country(market.country, language),
  language: (_, __, { language }) => languageRecord(language, language),
  market: (_, __, { market }) => marketRecord(market.country),
};

const Country = {
  availableLanguages: (_, __, { language }) => translatedLanguages.map((code) => languageRecord(code, language)),
  market: ({ isoCode }) => marketRecord(isoCode),
  unitSystem: ({ isoCode }) => (imperial.has(isoCode) ? 'IMPERIAL_SYSTEM' : 'METRIC_SYSTEM'),
};

const Market = {
  metafield: () => null,
  metafields: (_, { identifiers }) => identifiers.map(() => null),
};

export const localizationResolvers = { Localization, Country, Market };

function country(isoCode, language) {
  const { currencyCode } = marketOf(isoCode);
  return {
    isoCode,
    name: named(language, 'region', isoCode),
    currency: { isoCode: currencyCode, name: named(language, 'currency', currencyCode), symbol: symbolOf(currencyCode) },
  };
}

function languageRecord(code, language) {
  return { isoCode: code, name: named(language, 'language', localeOf(code)), endonymName: named(code, 'language', localeOf(code)) };
}

function marketRecord(isoCode) {
  return { __typename: 'Market', id: `gid://shopify/Market/${isoCode}`, handle: isoCode.toLowerCase() };
}

function named(language, type, code) {
  try {
    return new Intl.DisplayNames([localeOf(language), 'en'], { type }).of(code) ?? code;
  } catch {
    return code;
  }
}

function byName(language) {
  const collator = new Intl.Collator([localeOf(language), 'en']);
  return (one, other) => collator.compare(one.name, other.name);
}

function symbolOf(currency) {
  return new Intl.NumberFormat('en', { style: 'currency', currency, currencyDisplay: 'narrowSymbol' })
    .formatToParts(0).find(({ type }) => type === 'currency').value;
}

/** The platform writes its languages as in PT_BR. */
function localeOf(code) {
  return code.replace('_', '-').toLowerCase();
}
