import assert from 'node:assert/strict';
import { readdir } from 'node:fs/promises';
import { join } from 'node:path';
import { test } from 'node:test';

import sharp from 'sharp';

import { Studio } from '../src/pictures/studio.mjs';
import { storeForTests } from './support/store.mjs';

const { client, catalog, stateDir } = await storeForTests();
const sabine = catalog.piece('sabine-bias-slip-dress');
const url = (number, more = '') => `https://cdn.loomstreet.example/pieces/${sabine.handle}/${number}.jpg?v=1${more}`;
const folder = join(stateDir, 'pictures');

/** The colour at a place of a picture, both from 0 to 1, as three numbers. */
async function colourAt(bytes, across, down) {
  const { data, info } = await sharp(bytes).removeAlpha().raw().toBuffer({ resolveWithObject: true });
  const at = (Math.floor(down * info.height) * info.width + Math.floor(across * info.width)) * info.channels;
  return [...data.subarray(at, at + 3)];
}

const near = (one, other) => one.every((value, place) => Math.abs(value - other[place]) <= 6);

test('a picture has the width asked for and three to four, within bounds', async () => {
  for (const [more, width] of [['&width=96', 96], ['&width=301', 301], ['&width=1', 16], ['&width=junk', 1200], ['', 1200]]) {
    const { status, headers, bytes } = await client.request(url(1, more));
    assert.equal(status, 200);
    assert.equal(headers['content-type'], 'image/jpeg');
    const { width: actual, height, format } = await sharp(bytes).metadata();
    assert.deepEqual([actual, height, format], [width, Math.round((width * 4) / 3), 'jpeg'], more);
  }
});

test('the picture shows the garment in its colour on its ground, close up in the second one', async () => {
  const [whole, close] = [(await client.request(url(1, '&width=300'))).bytes, (await client.request(url(2, '&width=300'))).bytes];
  assert.ok(near(await colourAt(whole, 0.5, 0.55), [0x8f, 0xa4, 0x8b]), 'sage cloth');
  assert.ok(near(await colourAt(whole, 0.667, 0.75), [0x76, 0x8d, 0x74]), 'its shade side');
  assert.ok(near(await colourAt(whole, 0.03, 0.05), [0xdf, 0xe1, 0xd8]), 'mist ground');
  assert.ok(near(await colourAt(close, 0.5, 0.9), [0x8f, 0xa4, 0x8b]));
  assert.ok(!whole.equals(close));
  const ink = sabine.images.find(({ view }) => view.colour === 'ink');
  assert.ok(near(await colourAt((await client.request(url(ink.number, '&width=300'))).bytes, 0.5, 0.55), [0x34, 0x30, 0x2f]));
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

test('a second start finds the pictures of the first, and a damaged folder costs nothing but time', async () => {
  const { view } = sabine.images[0];
  await client.request(url(1, '&width=96'));
  const kept = await readdir(folder);
  assert.ok(kept.some((name) => name.endsWith('-96-jpeg.jpeg')));
  const warm = new Studio(folder);
  const started = performance.now();
  const [one, other] = await Promise.all([warm.picture(view, 96, 'jpeg'), warm.picture(view, 96, 'jpeg')]);
  assert.ok(performance.now() - started < 50);
  assert.equal(one, other, 'asked for twice at once, fetched once');
  const nowhere = new Studio(join(folder, kept[0]));
  assert.deepEqual((await nowhere.picture(view, 96, 'jpeg')).bytes, one.bytes);
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
