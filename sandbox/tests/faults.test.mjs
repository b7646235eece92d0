import assert from 'node:assert/strict';
import { setTimeout as sleep } from 'node:timers/promises';
import { test } from 'node:test';

import { operations } from './support/operations.mjs';
import { storeForTests } from './support/store.mjs';

const { client, ready } = await storeForTests();
const endpoint = `https://${ready.shopifyDomain}/api/2025-04/graphql.json`;
const call = (name = 'Countries') => client.post(endpoint, { query: operations[name], variables: {} }, { 'x-shopify-storefront-access-token': ready.storefrontToken });
const fault = async (wanted) => (await client.control('POST', '/faults', wanted)).value.id;

test('a fault strikes what it matches, as often as it was told, and nothing else', async () => {
  await fault({ match: { operation: 'Countries' }, kind: 'status', status: 503, body: 'down for tea', times: 2 });
  assert.equal((await call('RateSample')).status, 200);
  const struck = await call();
  assert.deepEqual([struck.status, struck.text], [503, 'down for tea']);
  assert.equal((await call()).status, 503);
  assert.equal((await call()).status, 200);
  await fault({ match: { host: 'www.loomstreet.example', path: '/pages/*' }, kind: 'status', status: 500 });
  assert.equal((await client.request('https://www.loomstreet.example/pages/vessa')).status, 500);
  assert.equal((await client.request('https://www.loomstreet.example/cart')).status, 200);
});

test('throttling looks the way each host does it', async () => {
  await fault({ kind: 'throttled' });
  const storefront = await call();
  assert.deepEqual([storefront.status, storefront.json()], [200, { errors: [{ message: 'Throttled', extensions: { code: 'THROTTLED' } }] }]);
  assert.equal((await client.backend('/api/support/widget/track', { publicKey: ready.supportKey })).status, 429);
});

test('a dropped connection ends without an answer, on both protocols', async () => {
  await fault({ match: { path: '/cart' }, kind: 'drop' });
  await assert.rejects(client.request('https://www.loomstreet.example/cart'));
  await assert.rejects(client.request2('https://www.loomstreet.example/cart'));
  assert.deepEqual((await client.control('GET', '/requests')).value.map(({ status }) => status), [null, null]);
});

test('a stalled call waits until its fault is lifted, and then gets its answer', async () => {
  const id = await fault({ match: { operation: 'Countries' }, kind: 'stall' });
  let done = false;
  const waiting = call().finally(() => {
    done = true;
  });
  await sleep(150);
  assert.equal(done, false);
  const { value: requests } = await client.control('GET', '/requests');
  assert.deepEqual([requests[0].operation, requests[0].status], ['Countries', null]);
  assert.equal((await client.control('DELETE', `/faults/${id}`)).status, 200);
  assert.equal((await waiting).status, 200);
  assert.equal((await client.control('DELETE', `/faults/${id}`)).status, 404);
});

test('malformed answers are cut in the middle, pictures too', async () => {
  await fault({ kind: 'malformed' });
  const { status, text } = await call();
  assert.equal(status, 200);
  assert.throws(() => JSON.parse(text), SyntaxError);
  const picture = `https://cdn.loomstreet.example/pieces/sabine-bias-slip-dress/1.jpg?v=1&width=64`;
  const torn = (await client.request(picture)).bytes;
  await client.control('DELETE', '/faults');
  assert.ok((await client.request(picture)).bytes.subarray(0, torn.length).equals(torn));
  assert.equal((await call()).json().errors, undefined);
});

test('the log tells what was asked, without values that could be secrets', async () => {
  await client.request('https://shop.loomstreet.example/cart/c/hWNsecret?key=alsosecret');
  await client.request('https://www.loomstreet.example/search?q=private');
  const { value } = await client.control('GET', '/requests');
  assert.deepEqual(value.map(({ path, query }) => [path, query]), [['/cart/c/…', ['key']], ['/search', ['q']]]);
  assert.doesNotMatch(JSON.stringify([value, (await client.control('GET', '/unexpected')).value]), /secret|private/);
});

test('the proxy refuses every other host and port and says so', async () => {
  for (const [host, port] of [['images.example.net', 443], ['www.loomstreet.example', 80], ['loomstreet.example.evil.test', 443]]) {
    await assert.rejects(client.tunnel(host, port), { status: 502 });
  }
  const { value } = await client.control('GET', '/unexpected');
  assert.deepEqual(value.map(({ kind, host }) => [kind, host]), [
    ['host', 'images.example.net:443'], ['host', 'www.loomstreet.example:80'], ['host', 'loomstreet.example.evil.test:443'],
  ]);
});
