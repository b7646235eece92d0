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

test('price bounds are in the currency of the market and may be open on one side', async () => {
  const [all, { nodes }] = [await dresses({ country: 'JP' }), await dresses({ country: 'JP', filters: [{ price: { min: 30000, max: 40000 } }] })];
  assert.ok(nodes.length > 0 && nodes.length < all.nodes.length);
  assert.ok(nodes.every(({ handle }) => catalog.piece(handle).variants.some(({ price }) => price > 190 && price < 280)));
  assert.equal((await dresses({ country: 'JP', filters: [{ price: { min: 1 } }] })).nodes.length, all.nodes.length);
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

async function search(query, variables = {}) {
  return (await client.data(operations.Search, { query, first: 250, country: 'US', ...variables })).search;
}

test('search finds every word, in any form, counts all and puts what is sold out last', async () => {
  const found = await search('SLIP dresses');
  assert.equal(found.totalCount, found.nodes.length);
  assert.ok(found.nodes.length > 3);
  assert.ok(found.nodes.every(({ handle }) => catalog.piece(handle).drawing === 'slip'));
  const available = (await search('dress', { sortKey: 'PRICE', reverse: true })).nodes.map(({ availableForSale }) => availableForSale);
  assert.ok(available.includes(false));
  assert.deepEqual(available, [...available].sort((one, other) => other - one));
  const reversed = await search('dress', { sortKey: 'PRICE', reverse: true, filters: [{ available: true }] });
  assert.deepEqual(amounts(reversed.nodes), amounts(reversed.nodes).sort((one, other) => other - one));
  assert.ok(reversed.productFilters.find(({ label }) => label === 'Colour').values.length > 3);
  for (const [query, handle] of [['crepe marlow', 'marlow-wrap-dress'], ['فستان', 'silk-dress-in-arabic'], ['tallis & rook thea', 'thea-evening-slip']]) {
    assert.equal((await search(query)).nodes[0]?.handle, handle, query);
  }
  for (const query of ['', '   ', '""', 'xylophone']) assert.equal((await search(query)).totalCount, 0, query);
});

test('suggestions share six places between words, collections and pieces', async () => {
  const { predictiveSearch } = await client.data(operations.Suggest, { q: 'silk dr' });
  const { queries, products, collections } = predictiveSearch;
  assert.equal(queries.length + products.length + collections.length, 6);
  assert.ok(queries.some(({ text }) => text === 'silk dress'));
  assert.deepEqual(collections.map(({ handle }) => handle).sort(), ['dresses', 'silk']);
  const nothing = (await client.data(operations.Suggest, { q: 'xylophone' })).predictiveSearch;
  assert.deepEqual([nothing.queries, nothing.products, nothing.collections], [[], [], []]);
});
