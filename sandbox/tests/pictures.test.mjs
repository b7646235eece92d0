import assert from 'node:assert/strict';
import { test } from 'node:test';

import sharp from 'sharp';

import { storeForTests } from './support/store.mjs';

const { client, catalog } = await storeForTests();
const sabine = catalog.piece('sabine-bias-slip-dress');
const url = (number, more = '') => `https://cdn.loomstreet.example/pieces/${sabine.handle}/${number}.jpg?v=1${more}`;

test('a picture has the width asked for and three to four, within bounds', async () => {
  for (const [more, width] of [['&width=96', 96], ['&width=301', 301], ['&width=1', 16], ['&width=junk', 1200], ['', 1200]]) {
    const { status, headers, bytes } = await client.request(url(1, more));
    assert.equal(status, 200);
    assert.equal(headers['content-type'], 'image/jpeg');
    const { width: actual, height, format } = await sharp(bytes).metadata();
    assert.deepEqual([actual, height, format], [width, Math.round((width * 4) / 3), 'jpeg'], more);
  }
});

test('who accepts WebP gets WebP, over HTTP/2 as well, and an unchanged picture is not sent again', async () => {
  const headers = { accept: 'image/webp,image/*' };
  const first = await client.request2(url(1, '&width=200'), { headers });
  assert.equal(first.headers['content-type'], 'image/webp');
  assert.equal((await sharp(first.bytes).metadata()).format, 'webp');
  assert.match(first.headers['cache-control'], /max-age=31536000/);
  const again = await client.request2(url(1, '&width=200'), { headers: { ...headers, 'if-none-match': first.headers.etag } });
  assert.deepEqual([again.status, again.bytes.length], [304, 0]);
  assert.notEqual((await client.request(url(1, '&width=200'))).headers.etag, first.headers.etag);
});

test('pictures that are lost, torn or never existed', async () => {
  const first = (handle) => `https://cdn.loomstreet.example/pieces/${handle}/1.jpg?v=1&width=64`;
  assert.equal((await client.request(first('knit-with-a-lost-picture'))).status, 404);
  const torn = await client.request(first('bag-with-a-torn-picture'));
  assert.deepEqual([torn.status, torn.headers['content-type']], [200, 'image/jpeg']);
  await assert.rejects(sharp(torn.bytes).metadata());
  const hebrew = catalog.pieces.find(({ handle }) => /[\u0590-\u05ff]/.test(handle));
  assert.equal((await client.request(hebrew.images[0].url)).status, 200);
  assert.equal((await client.request(url(99))).status, 404);
  assert.equal((await client.request('https://cdn.loomstreet.example/pieces/%E0%A4%A/1.jpg')).status, 400);
  assert.deepEqual((await client.control('GET', '/unexpected')).value, [], 'a lost picture is no surprise');
  assert.equal((await client.request('https://cdn.loomstreet.example/files/logo.png')).status, 404);
  assert.equal((await client.control('GET', '/unexpected')).value.length, 1);
});
