import assert from 'node:assert/strict';
import { test } from 'node:test';

import { decimalText, marketOf, markets } from '../src/markets/markets.mjs';
import { operations } from './support/operations.mjs';
import { storeForTests } from './support/store.mjs';

const { client } = await storeForTests();

test('prices are what a merchant of the country would ask', () => {
  for (const [country, dollars, amount] of [
    ['US', 193.2, '193.2'], ['US', 248, '248.0'], ['JP', 248, '37100.0'], ['KR', 34, '47000.0'], ['CH', 248, '218.25'], ['KW', 248, '76.25'],
    ['FR', 22, '20.0'], ['ID', 0.1, '10000.0'], ['JP', 0, '0.0'],
  ]) {
    assert.equal(decimalText(marketOf(country).price(dollars)), amount, `${dollars} in ${country}`);
  }
});

test('a country outside the markets is served as the primary one, silently', async () => {
  const { products } = await client.data(operations.RateSample, { country: 'AX' });
  assert.ok(products.nodes.every(({ priceRange }) => priceRange.minVariantPrice.currencyCode === 'USD'));
});

test('a country may come as a variable, as its default or as a literal; none at all is the primary one', async () => {
  const asked = async (declaration, directive, variables) => {
    const text = `query Own${declaration} ${directive} { localization { country { isoCode } } }`;
    return (await client.data(text, variables)).localization.country.isoCode;
  };
  assert.equal(await asked('($c: CountryCode = JP)', '@inContext(country: $c)', {}), 'JP');
  assert.equal(await asked('($c: CountryCode = JP)', '@inContext(country: $c)', { c: 'KR' }), 'KR');
  assert.equal(await asked('', '@inContext(country: FR)', {}), 'FR');
  assert.equal(await asked('($c: CountryCode)', '@inContext(country: $c)', { c: null }), 'US');
  assert.equal(await asked('', '', {}), 'US');
});

test('the sum of ten prices tells the rate of a currency', async () => {
  const sum = async (country) => {
    const { products } = await client.data(operations.RateSample, { country });
    assert.equal(products.nodes.length, 10);
    return products.nodes.reduce((total, { priceRange }) => total + Number(priceRange.minVariantPrice.amount), 0);
  };
  const rate = (await sum('KR')) / (await sum('US'));
  assert.ok(Math.abs(rate - 1375) < 5, String(rate));
});

test('countries have names in the language asked for and the currency they pay in', async () => {
  const named = async (language) => {
    const { localization } = await client.data(operations.Countries, { language });
    return new Map(localization.availableCountries.map((country) => [country.isoCode, country]));
  };
  const english = await named('EN');
  assert.equal(english.size, markets.size);
  assert.ok(new Set([...english.values()].map(({ currency }) => currency.isoCode)).size >= 6);
  assert.deepEqual(english.get('KR'), { isoCode: 'KR', name: 'South Korea', currency: { isoCode: 'KRW' } });
  assert.equal((await named('DE')).get('DE').name, 'Deutschland');
  assert.equal((await named('ZH_TW')).get('JP').name, '日本');
  assert.equal((await named('PT_BR')).get('NL').name, 'Países Baixos');
});

test('titles and filter labels follow the language where the store has them', async () => {
  const { collection } = await client.data(operations.CollectionProducts, { handle: 'knitwear', first: 1, language: 'DE', country: 'DE' });
  assert.equal(collection.title, 'Strick');
  assert.equal(collection.products.filters[2].label, 'Größe');
  assert.equal(collection.products.nodes[0].priceRange.minVariantPrice.currencyCode, 'EUR');
});
