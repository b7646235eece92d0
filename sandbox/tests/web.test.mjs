import assert from 'node:assert/strict';
import { beforeEach, test } from 'node:test';

import { designers } from '../src/catalog/designers.mjs';
import { storeForTests } from './support/store.mjs';

const { client, catalog } = await storeForTests();
const web = 'https://www.loomstreet.example';
const get = (path) => client.request(web + path);

const sectionPages = [
  '/', '/pages/brands-at-loomstreet', '/pages/starlook', '/pages/vessa', '/pages/mira', '/pages/wishlist', '/pages/tools', '/pages/closet',
  '/pages/following', '/pages/notifications', '/pages/help-center', '/pages/agreements', '/pages/about-us', '/account', '/account/orders',
  '/account/orders/LST10483', '/account/membership', '/account/returns', '/account/addresses', '/account/profile', '/cart', '/search?q=silk',
  '/search', '/collections', '/collections/dresses?sort=price-low&page=2', '/collections/autumn-preview', '/products/sabine-bias-slip-dress',
  '/collections/women/products/odile-tiered-dress', ...catalog.collectionByHandle.get('curiosities').pieces.map(({ handle }) => `/products/${encodeURIComponent(handle)}`),
];

beforeEach(() => client.control('POST', '/reset'));

test('every page answers and every link and picture on it leads somewhere', async () => {
  const targets = new Set();
  for (const path of sectionPages) {
    const { status, text, headers } = await get(path);
    assert.equal(status, 200, path);
    assert.match(headers['content-type'], /^text\/html/);
    assert.match(text, /<h1>/, path);
    assert.doesNotMatch(text, /undefined|\[object|NaN/, path);
    for (const [, target] of text.matchAll(/(?:href|src)="([^"]+)"/g)) targets.add(target.replaceAll('&amp;', '&'));
  }
  const offSite = [...targets].filter((target) => /^https?:/.test(target));
  assert.deepEqual(offSite.sort(), ['https://images.example.net/seal.png', 'https://press.example.org/loomstreet']);
  const own = [...targets].filter((target) => target.startsWith('/') && !target.startsWith('/pictures/'));
  for (const target of own) assert.ok([200, 302].includes((await get(target)).status), target);
  const pictures = [...targets].filter((target) => target.startsWith('/pictures/'));
  for (const target of pictures.slice(0, 6)) assert.equal((await get(target.replace(/width=\d+/, 'width=32'))).status, 200, target);
  assert.deepEqual((await client.control('GET', '/unexpected')).value, []);
});

test('designers stand from A to Z with a link to each of their collections', async () => {
  const { text } = await get('/pages/brands-at-loomstreet');
  const order = [...text.split('Met lately')[0].matchAll(/href="\/collections\/([^"]+)"/g)].map(([, handle]) => handle);
  assert.deepEqual(order, [...designers].sort((one, other) => one.name.localeCompare(other.name)).map(({ handle }) => handle));
});

test('search shows what the store finds, and what was typed as text only', async () => {
  assert.match((await get('/search?q=marlow+wrap')).text, /Marlow wrap dress/);
  const hostile = (await get('/search?q=%3Cscript%3Ealert(1)%3C%2Fscript%3E')).text;
  assert.doesNotMatch(hostile, /<script/);
  assert.match(hostile, /No results for “&lt;script&gt;/);
});

test('what merchants wrote into titles and descriptions never becomes markup of a page', async () => {
  const title = (await get('/products/bold-markup-shirt')).text;
  assert.match(title, /&lt;b&gt;Bold&lt;\/b&gt; &amp; &lt;img/);
  assert.doesNotMatch(title, /<img src=x|<b>Bold/);
  const { text } = await get('/products/blazer-with-a-script-in-its-lining');
  assert.doesNotMatch(text, /<script|onclick|javascript:|<iframe/i);
});

test('addresses without a page get the styled 404, and only unknown kinds of address are a surprise', async () => {
  for (const [path, surprise] of [
    ['/products/never-made', false], ['/collections/never-made', false], ['/pages/agreements/never-made', false], ['/account/orders/LST1', false],
    ['/pages/never-made', true], ['/wp-login.php', true], ['/pages/__proto__', true], ['/account/toString', true],
  ]) {
    await client.control('POST', '/reset');
    const { status, text } = await get(path);
    assert.equal(status, 404, path);
    assert.match(text, /out of fashion/);
    assert.equal((await client.control('GET', '/unexpected')).value.length === 1, surprise, path);
  }
});

test('the bare host points to www, and the handle "all" to all clothing', async () => {
  const { status, headers } = await client.request('https://loomstreet.example/search?q=a%26b');
  assert.deepEqual([status, headers.location], [301, `${web}/search?q=a%26b`]);
  assert.equal((await get('/collections/all')).headers.location, '/collections/all-fashion-clothing-for-women');
  assert.equal((await client.request(`${web}/cart`, { method: 'POST' })).status, 405);
});
