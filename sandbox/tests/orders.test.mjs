import assert from 'node:assert/strict';
import { beforeEach, test } from 'node:test';

import { Member } from './support/member.mjs';
import { Shopper } from './support/shopper.mjs';
import { storeForTests } from './support/store.mjs';

let time = Date.parse('2026-11-21T20:00:00Z');
const { client, catalog, ready } = await storeForTests({ now: () => time, startedAt: time });
const member = new Member(client, ready);
const shopper = new Shopper(client);
const sabine = catalog.piece('sabine-bias-slip-dress').variants.find(({ title }) => title === 'Sage / M').id;
const minute = 60 * 1000;

beforeEach(() => client.control('POST', '/reset'));

async function ordersOf(token) {
  return (await member.call('/orders', { appToken: token })).orders;
}

test('every status of an order, a parcel and a refund is there, newest first, and sums are right', async () => {
  const { token } = await member.signIn();
  const { orders, refunds } = await member.call('/orders', { appToken: token });
  assert.deepEqual(orders.map(({ placedAt }) => placedAt), orders.map(({ placedAt }) => placedAt).sort().reverse());
  assert.deepEqual(new Set(orders.map(({ status }) => status)), new Set(['confirmed', 'packed', 'shipped', 'delivered', 'cancelled']));
  assert.deepEqual(new Set(orders.flatMap(({ packages }) => packages.map(({ status }) => status))), new Set(['label', 'transit', 'out', 'delivered', 'problem']));
  assert.deepEqual(new Set(refunds.map(({ status }) => status)), new Set(['requested', 'approved', 'refunded', 'refused']));
  for (const { name, lines, subtotal, shipping, discount, tax, total } of orders) {
    const [full, ship, off, more, all] = [subtotal, shipping, discount, tax, total].map((money) => Number(money?.amount ?? 0));
    assert.equal(lines.reduce((sum, { quantity, price }) => sum + quantity * price.amount, 0).toFixed(2), full.toFixed(2), name);
    assert.equal((full + ship + more - off).toFixed(2), all.toFixed(2), name);
  }
  assert.deepEqual(orders.filter(({ canReturn }) => canReturn).map(({ name }) => name), ['LST10440'], 'delivered, and not long ago');
});

test('an order of checkout is its customer’s by hand-over or by address, and its parcel moves', async () => {
  const { token } = await member.signIn('theo.lind@example.com');
  assert.deepEqual(await ordersOf(token), []);
  const place = async (changes) => {
    const { checkoutUrl } = await shopper.cart(sabine, { quantity: 2 });
    await shopper.pay((await shopper.open(checkoutUrl)).url, changes);
  };
  await place({ email: 'Theo.Lind@example.com' });
  await place({ email: 'nobody@example.com' });
  const [order, ...others] = await ordersOf(token);
  assert.equal(others.length, 0);
  assert.deepEqual([order.name, order.status, order.total.amount, order.lines[0].quantity], ['LST10484', 'confirmed', '496.00', 2]);
  assert.deepEqual(order.packages.map(({ status }) => status), ['label']);

  const [{ number }] = order.packages;
  const seen = [];
  for (const later of [1, 2, 5, 4]) {
    time += later * minute;
    const { packages: [parcel], ...rest } = await member.call('/tracking', { number });
    assert.equal(rest.orderName, undefined, 'a guest is not told whose it is');
    seen.push(`${(await ordersOf(token))[0].status} ${parcel.status}`);
  }
  assert.deepEqual(seen, ['packed label', 'shipped transit', 'shipped out', 'delivered delivered']);
  assert.equal((await member.call('/tracking', { number: '#lst10484', appToken: token })).orderName, 'LST10484');
  await client.control('POST', '/ship', { order: 'LST10484', status: 'problem' });
  assert.equal((await ordersOf(token))[0].packages[0].events[0].text, 'The carrier could not find the address');
});

test('a customer who is handed over is known at checkout, until they sign out', async () => {
  const { token } = await member.signIn();
  const cart = await shopper.cart(sabine);
  const { mode, code } = await member.handOver({ cartId: cart.id, appToken: token });
  assert.equal(mode, 'customer');
  const form = await shopper.open(`${ready.supportBase}/api/support/widget/shopify-checkout/start?code=${code}`);
  for (const known of ['Signed in as Ines Marinho (ines.marinho@example.com)', 'value="ines.marinho@example.com"', 'value="218 Weaver Street, Apt 5"', 'value="11211"']) {
    assert.ok(form.text.includes(known), known);
  }
  await shopper.pay(form.url, { email: 'gift@example.com' });
  assert.equal((await ordersOf(token))[0].name, 'LST10484', 'it is hers, whatever address was typed');

  const other = await shopper.cart(sabine);
  const { url } = await shopper.open(`${ready.supportBase}/api/support/widget/shopify-checkout/start?code=${(await member.handOver({ cartId: other.id, appToken: token })).code}`);
  await member.call('/shopify-checkout/revoke', { appToken: token });
  assert.doesNotMatch((await shopper.open(url)).text, /Signed in|ines\.marinho/);
  await shopper.pay(url);
  assert.equal((await ordersOf((await member.signIn()).token))[0].name, 'LST10484', 'a guest’s order is nobody’s');
});

test('alerts are met by stock and price, are kept once, and belong to one account', async () => {
  const { token } = await member.signIn();
  const alertsOf = async (appToken) => (await member.call('/alerts', { appToken })).alerts;
  const met = async () => Object.fromEntries((await alertsOf(token)).map(({ handle, isMet }) => [handle, isMet]));
  const before = await met();
  assert.deepEqual([before['sabine-bias-slip-dress'], before['harrow-belted-trench-coat'], before['marlow-wrap-dress']], [false, false, true]);
  await client.control('POST', '/stock', { variant: (await alertsOf(token)).find(({ handle }) => handle.startsWith('sabine')).variantId, stock: 3 });
  await client.control('POST', '/price', { piece: 'harrow-belted-trench-coat', price: 400 });
  const after = await met();
  assert.deepEqual([after['sabine-bias-slip-dress'], after['harrow-belted-trench-coat']], [true, true]);

  const { token: other } = await member.signIn('theo.lind@example.com');
  const add = () => member.call('/alerts-add', { appToken: other, kind: 'price', handle: 'odile-tiered-dress' });
  const [{ alert: first }, { alert: second }] = [await add(), await add()];
  assert.deepEqual(second, first);
  assert.equal((await member.call('/alerts-remove', { appToken: token, id: first.id })).code, 'NOT_FOUND', 'it is another’s');
  assert.equal((await member.call('/alerts-remove', { appToken: other, id: first.id })).status, 200);
  assert.deepEqual(await alertsOf(other), []);
});

test('a profile changes as a whole or not at all', async () => {
  const { token } = await member.signIn();
  const update = (changes) => member.call('/profile-update', { appToken: token, ...changes });
  for (const wrong of [{ birthday: '2999-01-01' }, { birthday: '30.4.1991' }, { phone: 'call me' }, { name: 'x'.repeat(300) }, { newsletters: { email: 'yes' } }]) {
    assert.equal((await update({ name: 'Somebody else', ...wrong })).code, 'BAD_INPUT', JSON.stringify(wrong).slice(0, 40));
  }
  const { profile } = await update({ phone: '', birthday: '1990-01-31', newsletters: { email: false, sms: true } });
  assert.deepEqual([profile.name, profile.phone, profile.birthday, profile.newsletters], ['Ines Marinho', undefined, '1990-01-31', { email: false, sms: true }]);
  assert.deepEqual((await member.call('/profile', { appToken: token })).profile, profile);
});
