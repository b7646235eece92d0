import assert from 'node:assert/strict';
import { test } from 'node:test';

import { storeForTests } from './support/store.mjs';

const { client, ready } = await storeForTests();
const { supportKey: publicKey, supportBase } = ready;

test('a widget path needs the key, however the call is made', async () => {
  for (const body of [{}, { publicKey: 'guess' }]) {
    const { status, ...response } = await client.backend('/api/support/widget/track', body);
    assert.deepEqual([status, response.json().code], [404, 'WIDGET_NOT_FOUND']);
  }
  const read = await client.request(`${supportBase}/api/support/widget/nothing?publicKey=guess`);
  assert.equal(read.json().code, 'WIDGET_NOT_FOUND');
});

test('unknown paths, wrong methods and broken bodies are told apart', async () => {
  const unknown = await client.request(`${supportBase}/api/support/widget/nothing?publicKey=${publicKey}`);
  assert.deepEqual([unknown.status, unknown.json().code], [404, 'NOT_FOUND']);
  assert.equal((await client.backend('/api/pub/nothing', {})).json().code, 'NOT_FOUND', 'a public path wants no key');
  assert.equal((await client.request(`${supportBase}/api/support/widget/track?publicKey=${publicKey}`)).status, 405);
  for (const body of ['{"publicKey":', '[]', 'null']) {
    const broken = await client.request(`${supportBase}/api/support/widget/track`, { method: 'POST', body });
    assert.deepEqual([broken.status, broken.json().code], [400, 'BAD_INPUT'], body);
  }
  const { value } = await client.control('GET', '/unexpected');
  assert.deepEqual(value.map(({ kind, path }) => [kind, path]), [['path', '/api/support/widget/nothing'], ['path', '/api/pub/nothing']]);
});

test('a summary of a wishlist is taken whole or not at all', async () => {
  const item = { handle: 'party-dress', title: 'Party dress', price: 248, currency: 'USD' };
  const sync = (body) => client.backend('/api/support/widget/wishlist-sync', { publicKey, ...body });
  assert.equal((await sync({ items: [item], email: 'jane@mail.example', platform: 'macos' })).status, 200);
  for (const broken of [{}, { items: [{ ...item, price: '248' }] }, { items: [item], email: 'jane@mail.example' }]) {
    assert.equal((await sync(broken)).status, 400, JSON.stringify(broken));
  }
  const { value } = await client.control('GET', '/wishlist');
  assert.deepEqual(value.map(({ time, ...kept }) => kept), [{ items: [item], email: 'jane@mail.example', platform: 'macos' }]);
});

test('a crash report is taken once, whole, and in its form alone', async () => {
  const report = {
    platform: 'macos', appVersion: '1.4.2', build: 312, os: 'Debian', kind: 'abnormal_exit', summary: 'App did not quit normally', count: 1,
    visitorId: 'visitor-1', device: { architecture: 'arm64' }, payload: { startedAt: '2026-11-21T20:21:35.120Z' },
  };
  const send = (change) => client.backend('/api/support/widget/app-version/crash-reports', { publicKey, ...report, ...change });
  const another = { ...report, payload: { startedAt: '2026-11-21T21:00:00.000Z' } };
  for (const good of [{}, {}, another]) assert.equal((await send(good)).status, 200);
  const large = (size) => ({ payload: { exception: 'x'.repeat(size - '{"exception":""}'.length) } });
  for (const wrong of [{ platform: undefined }, { count: '1' }, { payload: [] }, { email: 'jane@mail.example' }, large(92161)]) {
    assert.equal((await send(wrong)).status, 400, JSON.stringify(wrong).slice(0, 80));
  }
  const { value } = await client.control('GET', '/crash-reports');
  assert.deepEqual(value.map(({ report: kept }) => kept), [report, another]);
  assert.equal((await send(large(92160))).status, 200);
  await client.control('DELETE', '/crash-reports');
  assert.deepEqual((await client.control('GET', '/crash-reports')).value, []);
});
