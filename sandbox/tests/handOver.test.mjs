import assert from 'node:assert/strict';
import { test } from 'node:test';

import { Member } from './support/member.mjs';
import { Shopper } from './support/shopper.mjs';
import { storeForTests } from './support/store.mjs';

const { client, catalog, ready } = await storeForTests();
const shopper = new Shopper(client);
const member = new Member(client, ready);
const sabine = catalog.piece('sabine-bias-slip-dress').variants.find(({ stock }) => stock > 1).id;
const widget = '/api/support/widget/shopify-checkout';
const start = `${ready.supportBase}${widget}/start`;

async function prepare(changes = {}) {
  const { id } = await shopper.cart(sabine);
  const response = await client.backend(`${widget}/prepare`, { publicKey: ready.supportKey, cartId: id, locale: 'EN', platform: 'macos', ...changes });
  return { cartId: id, status: response.status, value: response.json() };
}

test('guests are told that there is no hand-over for them', async () => {
  for (const locale of ['EN', 'FIL', 'ZH_TW', 'PT_BR']) {
    const { status, value } = await prepare({ locale });
    assert.deepEqual([status, value.code, typeof value.message], [409, 'CHECKOUT_AUTH_UNAVAILABLE', 'string'], locale);
  }
  for (const changes of [{ locale: 'en' }, { locale: undefined }, { platform: 'linux' }, { cartId: 7 }]) {
    const { status, value } = await prepare(changes);
    assert.deepEqual([status, value.code], [400, 'BAD_INPUT'], JSON.stringify(changes));
  }
});

test('a code leads into the checkout of its cart, once, as somebody known there', async () => {
  await shopper.settings({ handOver: 'ready' });
  const { status, value } = await prepare();
  assert.equal(status, 200);
  assert.match(value.code, /^[A-Za-z0-9_-]{43}$/);
  const page = await shopper.open(`${start}?code=${value.code}`);
  assert.match(new URL(page.url).pathname, /^\/checkouts\/cn\/\w+$/);
  assert.match(page.text, /Signed in as ines@example\.com/);
  assert.equal((await client.request(`${start}?code=${value.code}`)).status, 410);
  assert.deepEqual((await client.control('GET', '/unexpected')).value, []);
});

test('a code that was revoked, has company or outlived its cart leads nowhere', async () => {
  await shopper.settings({ handOver: 'ready' });
  const [token, other] = [(await member.signIn()).token, (await member.signIn()).token];
  const { value: revoked } = await prepare({ appToken: token });
  const { value: kept } = await prepare({ appToken: other });
  const { status, ...response } = await client.backend(`${widget}/revoke`, { publicKey: ready.supportKey, appToken: token });
  assert.deepEqual([status, response.json()], [200, { code: 'OK' }]);
  assert.equal((await client.request(`${start}?code=${revoked.code}`)).status, 410);
  for (const query of ['', '?code=', `?code=${kept.code}&code=x`]) assert.equal((await client.request(start + query)).status, 410, query);
  assert.equal((await client.request(`${start}?code=${kept.code}`)).status, 302);
  const { cartId, value: late } = await prepare();
  await client.control('POST', '/carts/expire', { id: cartId });
  assert.equal((await client.request(`${start}?code=${late.code}`)).status, 410);
  assert.equal((await prepare({ cartId })).status, 404);
});

test('hand-overs fail in every way an application has to tell apart', async () => {
  const { token: appToken } = await member.signIn();
  for (const [handOver, status, code] of [['unavailable', 409, 'CHECKOUT_AUTH_UNAVAILABLE'], ['missing', 404, undefined], ['widget-not-found', 403, 'WIDGET_NOT_FOUND']]) {
    await shopper.settings({ handOver });
    const answer = await prepare({ appToken });
    assert.deepEqual([answer.status, answer.value.code], [status, code]);
  }
  for (const [handOver, pattern] of [['short-code', /^a{31}$/], ['plus-code', /^a+\+a+$/], ['long-code', /^a{257}$/], ['empty-code', /^$/], ['number-code', /^4316$/], ['no-code', /^undefined$/]]) {
    await shopper.settings({ handOver });
    const { status, value } = await prepare();
    assert.deepEqual([status, value.mode], [200, 'app']);
    assert.match(String(value.code), pattern);
  }
});
