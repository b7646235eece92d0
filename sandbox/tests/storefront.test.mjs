import assert from 'node:assert/strict';
import { test } from 'node:test';

import { cardAvailability, collectionProbe, operations, searchCardImages } from './support/operations.mjs';
import { storeForTests } from './support/store.mjs';

const { client, catalog, ready } = await storeForTests();
const sabine = 'sabine-bias-slip-dress';
const endpoint = `https://${ready.shopifyDomain}/api/2025-04/graphql.json`;

/** What the application sends surprises the store in nothing: no refused document, no deprecated field. */
async function assertNothingUnexpected() {
  assert.deepEqual((await client.control('GET', '/unexpected')).value, []);
}

test('a product arrives whole, in the market and with a null for each metafield it lacks', async () => {
  const { product } = await client.data(operations.Product, { handle: sabine, country: 'JP', language: 'JA' });
  assert.equal(product.id, 'gid://shopify/Product/8100000000001');
  assert.deepEqual(product.priceRange.minVariantPrice, { amount: '37100.0', currencyCode: 'JPY' });
  assert.deepEqual(product.compareAtPriceRange.minVariantPrice, { amount: '0.0', currencyCode: 'JPY' });
  assert.match(product.createdAt, /^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ$/);
  assert.deepEqual(product.options.map(({ name }) => name), ['Colour', 'Size']);
  assert.equal(product.variants.nodes.length, 30);
  assert.equal(product.variants.nodes.find(({ title }) => title === 'Sage / L').availableForSale, false);
  assert.equal(product.styleVariants.nodes.length, 10);
  assert.equal(product.cardImages.nodes.length, 4);
  assert.match(product.featuredImage.url, /^https:\/\/cdn\.loomstreet\.example\/pieces\/sabine-bias-slip-dress\/1\.jpg\?v=1$/);
  assert.equal(product.metafields.length, 10);
  assert.equal(product.metafields[4], null, 'it is not on presale');
  assert.deepEqual(JSON.parse(product.metafields[8].value), { value: '4.7', scale_min: '1.0', scale_max: '5.0' });
  assert.equal(product.metafields[9].value, '212');
  await assertNothingUnexpected();
});

test('unknown handles and identifiers are null, a malformed identifier fails the whole call', async () => {
  assert.deepEqual(await client.data(operations.Product, { handle: 'never-made' }), { product: null });
  const [known, unknown] = [catalog.pieces[3].id, 'gid://shopify/Product/1'];
  const { nodes } = await client.data(operations.ProductsByIDs, { ids: [unknown, known] });
  assert.equal(nodes[0], null);
  assert.equal(nodes[1].id, known);
  const live = await client.data(operations.LivePrices, { ids: [known] });
  assert.deepEqual(Object.keys(live.nodes[0]), ['handle', 'availableForSale', 'priceRange']);
  const failed = await client.query(operations.LivePrices, { ids: [known, '8100000000004'] });
  assert.match(failed.errors[0].message, /Invalid global id '8100000000004'/);
  assert.equal(failed.data, null);
  const tooMany = await client.query(operations.LivePrices, { ids: Array(251).fill(known) });
  assert.match(tooMany.errors[0].message, /251.*250/);
  await assertNothingUnexpected();
});

test('recommendations are of the same kind, without the piece itself, and null for an unknown piece', async () => {
  const { productRecommendations: kin } = await client.data(operations.Recommendations, { productId: catalog.piece(sabine).id });
  assert.ok(kin.length > 3 && kin.length <= 10);
  assert.ok(kin.every(({ handle, tags }) => handle !== sabine && tags.includes('Dresses')));
  assert.deepEqual(await client.data(operations.Recommendations, { productId: 'gid://shopify/Product/1' }), { productRecommendations: null });
  await assertNothingUnexpected();
});

test('the product list pages without gaps or repeats, by every order and query it is asked for', async () => {
  const seen = [];
  let after = null;
  do {
    const { products } = await client.data(operations.Products, { first: 60, after, query: null, sortKey: 'CREATED_AT', reverse: true });
    seen.push(...products.nodes);
    after = products.pageInfo.hasNextPage ? products.pageInfo.endCursor : null;
  } while (after);
  assert.equal(seen.length, catalog.pieces.length);
  assert.equal(new Set(seen.map(({ id }) => id)).size, seen.length);
  assert.deepEqual(seen.map(({ createdAt }) => createdAt), seen.map(({ createdAt }) => createdAt).sort().reverse());

  const queried = async (query) => (await client.data(operations.Products, { first: 250, query })).products.nodes;
  const byVendor = await queried('vendor:"Fenmoor Mill" AND -tag:men');
  assert.ok(byVendor.length > 0 && byVendor.every(({ vendor, tags }) => vendor === 'Fenmoor Mill' && !tags.includes('men')));
  const either = await queried("(tag:Boots OR tag:'Bags') available_for_sale:true");
  assert.ok(either.length > 0 && either.every(({ tags, availableForSale }) => availableForSale && (tags.includes('Boots') || tags.includes('Bags'))));
  assert.ok((await queried('variants.price:<60')).every(({ priceRange }) => Number(priceRange.minVariantPrice.amount) < 60));
  assert.ok((await queried('created_at:>2024-06-01')).every(({ createdAt }) => createdAt > '2024-06-01'));
  await assertNothingUnexpected();
});

test('batches answer by alias, with null for what does not exist', async () => {
  const [text, handles] = cardAvailability([sabine, 'never-made', 'dress-that-sold-out-overnight']);
  const { p0, p1, p2 } = await client.data(text, { ...handles, country: 'US' });
  assert.deepEqual([p0.availableForSale, p1, p2.availableForSale], [true, null, false]);
  const [imageText, imageHandles] = searchCardImages([sabine, 'shirt-nobody-photographed']);
  const images = await client.data(imageText, { ...imageHandles, country: 'US' });
  assert.equal(images.p0.images.nodes.length, 4);
  assert.deepEqual(images.p1.images.nodes, []);
  const [large, many] = cardAvailability(catalog.pieces.concat(catalog.pieces).slice(0, 250).map(({ handle }) => handle));
  assert.equal(Object.keys(await client.data(large, { ...many, country: 'US' })).length, 250);
  const probe = await client.data(collectionProbe(['dresses', 'autumn-preview', 'a "quoted" \\ handle']), { country: 'US', language: 'FR' });
  assert.equal(probe.c0.title, 'Robes');
  assert.ok(probe.c0.firstProduct.nodes[0].featuredImage.url);
  assert.deepEqual(probe.c1.firstProduct.nodes, []);
  assert.equal(probe.c2, null);
  const { value: requests } = await client.control('GET', '/requests');
  assert.ok(requests.some(({ operation, path, status }) => operation === 'CardAvailability' && path === '/api/2025-04/graphql.json' && status === 200));
  await assertNothingUnexpected();
});

test('a page size above 250, no page size and a made-up cursor are errors', async () => {
  for (const [selection, message] of [
    ['products(first: 251) { nodes { id } }', /250/],
    ['products { nodes { id } }', /first or last/],
    ['products(first: 1, after: "nonsense") { nodes { id } }', /cursor/i],
  ]) {
    const { errors } = await client.query(`{ ${selection} }`);
    assert.match(errors[0].message, message);
  }
});

test('what the schema refuses is refused and recorded', async () => {
  for (const [text, message] of [
    ['query Gone { product(handle: "x") { nope } }', /Cannot query field "nope"/],
    ['query Unused($country: CountryCode) { shop { name } }', /never used/],
    ['query Empty($country: CountryCode) @inContext(country: $country) { }', /Syntax Error/],
    ['query Sort { products(first: 1, sortKey: CREATED) { nodes { id } } }', /CREATED/],
  ]) {
    const { errors, data } = await client.query(text);
    assert.match(errors[0].message, message);
    assert.equal(data, undefined);
  }
  const wrong = await client.query(operations.RateSample, { country: 'Atlantis' });
  assert.match(wrong.errors[0].message, /CountryCode/);
  const { value } = await client.control('GET', '/unexpected');
  assert.deepEqual(value.map(({ kind, operation }) => [kind, operation]), [['document', 'Gone'], ['document', 'Unused'], ['document', null], ['document', 'Sort'], ['document', 'RateSample']]);
});

test('calls without the token, with a wrong one, to another version or by another method are turned away', async () => {
  const call = { query: '{ shop { name } }' };
  assert.equal((await client.post(endpoint, call)).status, 401);
  assert.equal((await client.post(endpoint, call, { 'x-shopify-storefront-access-token': 'guess' })).status, 403);
  assert.equal((await client.post(endpoint.replace('2025-04', '2024-10'), call)).status, 404);
  assert.equal((await client.request(endpoint)).status, 405);
  const token = { 'x-shopify-storefront-access-token': ready.storefrontToken };
  assert.equal((await client.request(endpoint, { method: 'POST', headers: token, body: '{"query":' })).status, 400);
});
