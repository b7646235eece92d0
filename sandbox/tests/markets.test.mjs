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
