import assert from 'node:assert/strict';
import { beforeEach, test } from 'node:test';

import { Member } from './support/member.mjs';
import { Shopper } from './support/shopper.mjs';
import { storeForTests } from './support/store.mjs';

let time = Date.parse('2026-11-21T20:00:00Z');
const { client, catalog, ready } = await storeForTests({ now: () => time, startedAt: time });
const member = new Member(client, ready);
const shopper = new Shopper(client);
const minute = 60 * 1000;
let token = null;

beforeEach(async () => {
  await client.control('POST', '/reset');
  token = (await member.signIn()).token;
});

const read = (input = {}, appToken = token) => member.call('/notifications', { appToken, limit: 100, ...input });
const push = (wanted) => client.control('POST', '/notifications', wanted);
const newest = async (count, appToken = token) => (await read({ limit: count }, appToken)).notifications.map(({ type }) => type);

test('a list is newest first, comes in pages, and every type is in it', async () => {
  const whole = await read();
  const dates = whole.notifications.flatMap(({ date }) => date ?? []);
  assert.deepEqual(dates, [...dates].sort().reverse());
  assert.ok(dates.length < whole.notifications.length, 'some have no date');
  assert.equal(new Set(whole.notifications.map(({ type }) => type)).size, 24);
  assert.equal(whole.unreadCount, whole.notifications.filter(({ sourceUnread }) => sourceUnread !== false).length);

  const pages = [];
  for (let cursor; pages.length === 0 || cursor; ) {
    const page = await read({ limit: 10, cursor });
    pages.push(...page.notifications);
    cursor = page.nextCursor;
  }
  assert.deepEqual(pages, whole.notifications);
  assert.equal((await read({ cursor: 'none' })).code, 'BAD_INPUT');
  assert.deepEqual((await read({}, (await member.signIn('theo.lind@example.com')).token)).notifications, []);
});

test('what was read stays read, by identifier or all of it, and only its own account’s', async () => {
  const { notifications, unreadCount } = await read();
  const { id } = notifications.find(({ sourceUnread }) => sourceUnread === true);
  const mark = (input, appToken = token) => member.call('/notifications-read', { appToken, ...input });
  assert.equal((await mark({ ids: [id] }, (await member.signIn('theo.lind@example.com')).token)).unreadCount, 0);
  assert.equal((await mark({ ids: [id, 'unknown'] })).unreadCount, unreadCount - 1);
  assert.equal((await mark({ all: true })).unreadCount, 0);
  assert.equal((await mark({})).code, 'BAD_INPUT');
});

test('the control port pushes one, many and every broken one', async () => {
  const { value } = await push({ type: 'price_drop', title: 'Half the price', date: null, sourceUnread: false, id: 'mine' });
  assert.deepEqual(value.ids, ['mine']);
  const [first] = (await read({ limit: 1 })).notifications;
  assert.deepEqual([first.id, first.type, first.title, 'date' in first, first.sourceUnread], ['mine', 'price_drop', 'Half the price', false, false]);
  await push({ count: 10000, type: 'order_shipped' });
  await push({ type: 'system', size: 102400 });
  const { notifications, unreadCount } = await read({ limit: 1000 });
  assert.equal(notifications[0].body.length, 102400);
  assert.ok(unreadCount > 10000);
  assert.equal(new Set(notifications.map(({ id }) => id)).size, 1000);
  const { value: hostile } = await push({ hostile: true });
  assert.ok(hostile.ids.length > 15 && hostile.ids.includes(null));
  assert.equal((await push({ email: 'nobody@example.com' })).status, 404);
});

test('an order is told of when it is placed and at each step of its parcel, once', async () => {
  const { token: theo } = await member.signIn('theo.lind@example.com');
  const { checkoutUrl } = await shopper.cart(catalog.piece('odile-tiered-dress').variants[0].id);
  await shopper.pay((await shopper.open(checkoutUrl)).url, { email: 'theo.lind@example.com' });
  assert.deepEqual(await newest(9, theo), ['order_confirmed']);
  for (const later of [4, 5, 4]) {
    time += later * minute;
    await newest(9, theo);
  }
  const { notifications } = await read({}, theo);
  assert.deepEqual(notifications.map(({ type }) => type), ['order_delivered', 'order_out', 'order_shipped', 'order_confirmed']);
  assert.deepEqual([notifications[3].link, notifications[3].sourceUnread], ['/account/orders/LST10484', true]);

  await client.control('POST', '/ship', { order: 'LST10482', status: 'out' });
  assert.deepEqual((await newest(2)).slice(0, 1), ['order_out']);
});

test('a met alert and a cheaper wish are told of, once for each time', async () => {
  const { value: { notifications: before } } = await client.control('GET', '/notifications');
  const { alerts } = await member.call('/alerts', { appToken: token });
  const variant = alerts.find(({ handle }) => handle.startsWith('sabine')).variantId;
  for (const stock of [3, 0, 2]) await client.control('POST', '/stock', { variant, stock });
  await member.call('/wishlist-sync', {
    items: [{ handle: 'odile-tiered-dress', title: 'Odile', price: 312, currency: 'USD' }], email: 'Ines.Marinho@example.com', platform: 'macos',
  });
  await client.control('POST', '/price', { piece: 'harrow-belted-trench-coat', price: 400 });
  for (const price of [300, 310, 299]) await client.control('POST', '/price', { piece: 'odile-tiered-dress', price });
  const told = (await read()).notifications.slice(0, -before.length);
  assert.deepEqual(told.map(({ type, link }) => `${type} ${link}`), [
    'price_drop /products/odile-tiered-dress', 'price_drop /products/odile-tiered-dress', 'price_drop /products/harrow-belted-trench-coat',
    'restock /products/sabine-bias-slip-dress', 'restock /products/sabine-bias-slip-dress',
  ]);
  assert.equal(told[0].body, 'Odile tiered dress is now $299.00, down from $310.00.');
});
