import assert from 'node:assert/strict';
import { test } from 'node:test';

import { designers } from '../src/catalog/designers.mjs';
import { storeForTests } from './support/store.mjs';

const { client, catalog } = await storeForTests();
const web = 'https://www.loomstreet.example';
const get = (path) => client.request(web + path);

const sectionPages = [
  '/', '/pages/brands-at-loomstreet', '/pages/starlook', '/pages/vessa', '/pages/mira', '/pages/wishlist', '/pages/tools', '/pages/closet',
  '/pages/following', '/pages/notifications', '/pages/help-center', '/pages/agreements', '/pages/about-us', '/account', '/account/orders',
  '/account/orders/LST10483', '/account/membership', '/account/returns', '/account/addresses', '/account/profile', '/account/coupons', '/account/alerts',
  '/account/tracking?number=LP1%3Cb%3E', '/account/returns/R1', '/account/reviews', '/pages/image-search', '/pages/rail-silk', '/cart', '/search?q=silk',
  '/search', '/collections', '/collections/dresses?sort=price-low&page=2', '/collections/autumn-preview', '/products/sabine-bias-slip-dress',
  '/collections/women/products/odile-tiered-dress', ...catalog.collectionByHandle.get('curiosities').pieces.map(({ handle }) => `/products/${encodeURIComponent(handle)}`),
];

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

test('what merchants wrote into titles and descriptions never becomes markup of a page', async () => {
  const title = (await get('/products/bold-markup-shirt')).text;
  assert.match(title, /&lt;b&gt;Bold&lt;\/b&gt; &amp; &lt;img/);
  assert.doesNotMatch(title, /<img src=x|<b>Bold/);
  const { text } = await get('/products/blazer-with-a-script-in-its-lining');
  assert.doesNotMatch(text, /<script|onclick|javascript:|<iframe/i);
});
