import assert from 'node:assert/strict';
import { test } from 'node:test';

import { operations } from './support/operations.mjs';
import { storeForTests } from './support/store.mjs';

const { client, catalog } = await storeForTests();

async function dresses(variables = {}) {
  const { collection } = await client.data(operations.CollectionProducts, { handle: 'dresses', first: 250, country: 'US', ...variables });
  return collection.products;
}

const amounts = (nodes) => nodes.map(({ priceRange }) => Number(priceRange.minVariantPrice.amount));

test('a collection comes in each of its five orders', async () => {
  const members = catalog.collectionByHandle.get('dresses').pieces.map(({ handle }) => handle);
  const byOrder = async (sortKey, reverse) => (await dresses({ sortKey, reverse })).nodes;
  assert.deepEqual((await byOrder('COLLECTION_DEFAULT', false)).map(({ handle }) => handle), members);
  const newest = (await byOrder('CREATED', true)).map(({ createdAt }) => createdAt);
  assert.deepEqual(newest, [...newest].sort().reverse());
  const cheapest = amounts(await byOrder('PRICE', false));
  assert.deepEqual(cheapest, [...cheapest].sort((one, other) => one - other));
  assert.deepEqual(amounts(await byOrder('PRICE', true)), [...cheapest].reverse());
  const best = (await byOrder('BEST_SELLING', false)).map(({ handle }) => catalog.piece(handle).popularity);
  assert.deepEqual(best, [...best].sort((one, other) => other - one));
});

test('a filter value counts what choosing it would leave, and its input sent back leaves just that', async () => {
  const { filters } = await dresses();
  assert.deepEqual(filters.map(({ label, type }) => [label, type]).slice(0, 5), [
    ['Availability', 'LIST'], ['Price', 'PRICE_RANGE'], ['Size', 'LIST'], ['Colour', 'LIST'], ['Designer', 'LIST'],
  ]);
  const sizes = filters.find(({ label }) => label === 'Size').values;
  assert.deepEqual(sizes.map(({ label }) => label), ['XXS', 'XS', 'S', 'M', 'L', 'XL']);
  for (const filter of filters.filter(({ type }) => type !== 'PRICE_RANGE')) {
    for (const { input, count } of [filter.values[0], filter.values.at(-1)]) {
      const { nodes } = await dresses({ filters: [JSON.parse(input)] });
      assert.equal(nodes.length, count, input);
    }
  }
});

test('choices within a filter add up, choices across filters narrow, and both hold for one variant', async () => {
  const size = (value) => ({ variantOption: { name: 'Size', value } });
  const [small, medium] = [(await dresses({ filters: [size('S')] })).nodes, (await dresses({ filters: [size('M')] })).nodes];
  const either = (await dresses({ filters: [size('S'), size('M')] })).nodes;
  assert.equal(either.length, new Set([...small, ...medium].map(({ id }) => id)).size);

  const soldOutInL = (await dresses({ filters: [size('L'), { available: false }, { variantOption: { name: 'Colour', value: 'Sage' } }] })).nodes;
  assert.ok(soldOutInL.some(({ handle }) => handle === 'sabine-bias-slip-dress'));
  const availableInL = (await dresses({ filters: [size('L'), { available: true }, { variantOption: { name: 'Colour', value: 'Sage' } }] })).nodes;
  assert.ok(!availableInL.some(({ handle }) => handle === 'sabine-bias-slip-dress'), 'L is sold out in sage, though not in rose');

  const narrowed = await dresses({ filters: [size('M'), { available: true }] });
  const large = narrowed.filters.find(({ label }) => label === 'Size').values.find(({ label }) => label === 'L');
  assert.equal(large.count, (await dresses({ filters: [size('L'), { available: true }] })).nodes.length, 'counts of a filter leave its own choice out');
});

test('a collection that the country does not see is null, an empty one is empty', async () => {
  const inJapan = await client.data(operations.CollectionProducts, { handle: 'alpine-archive', first: 5, country: 'JP' });
  assert.equal(inJapan.collection, null);
  const inFrance = await client.data(operations.CollectionProducts, { handle: 'alpine-archive', first: 5, country: 'FR' });
  assert.ok(inFrance.collection.products.nodes.length > 0);
  assert.equal(inFrance.collection.image, null);
  const { collection } = await client.data(operations.CollectionProducts, { handle: 'autumn-preview', first: 5 });
  assert.deepEqual([collection.products.nodes, collection.products.pageInfo], [[], { hasNextPage: false, endCursor: null }]);
});

test('counting walks a filtered collection in pages', async () => {
  const filters = [{ available: true }];
  const { collection } = await client.data(operations.CollectionProductCount, { handle: 'women', filters, country: 'US' });
  assert.equal(collection.products.pageInfo.hasNextPage, false);
  const paged = [];
  let after = null;
  do {
    const { products } = (await client.data(operations.CollectionProducts, { handle: 'women', first: 24, after, filters })).collection;
    paged.push(...products.nodes);
    after = products.pageInfo.hasNextPage ? products.pageInfo.endCursor : null;
  } while (after);
  assert.deepEqual(paged.map(({ id }) => id), collection.products.nodes.map(({ id }) => id));
});
