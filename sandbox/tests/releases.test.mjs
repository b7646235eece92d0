import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { randomBytes } from 'node:crypto';
import { mkdtemp, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, test } from 'node:test';

import { hostileNames } from '../src/releases/hostile.mjs';
import { storeForTests } from './support/store.mjs';

const { client, ready } = await storeForTests();
const key = new URL('../data/release/loomstreet-sandbox.pub', import.meta.url).pathname;
const folder = await mkdtemp(join(tmpdir(), 'loomstreet-releases-'));
after(() => rm(folder, { recursive: true, force: true }));
const [first, second] = [randomBytes(300_000), randomBytes(300_000)];
const image = join(folder, 'loomstreet 2.squashfs');
const replacement = join(folder, 'another.squashfs');
await Promise.all([writeFile(image, first), writeFile(replacement, second)]);

const announce = async (wanted) => (await client.control('POST', '/release', wanted)).value;
const read = async () => (await client.request(`${ready.supportBase}/api/support/widget/app-version?publicKey=${ready.supportKey}`)).json().macos;
const get = async (headers = {}, ending = '') => client.request((await read()).url + ending, { headers });

test('nothing is newer than what runs until somebody announces it', async () => {
  assert.deepEqual(await read(), { latest: '0.1.0', url: 'https://service.loomstreet.example/releases/loomstreet.squashfs' });
  await announce({ image, version: '0.2.0', build: 7, min: '0.1', notes: { en: 'Faster.' }, rollout: 30 });
  const { url, sha256, ...release } = await read();
  assert.deepEqual(release, { latest: '0.2.0', build: 7, min: '0.1', notes: { en: 'Faster.' }, rollout: 30, size: first.length });
  assert.deepEqual((await client.request(url)).bytes, first);
  assert.equal(sha256, execFileSync('sha256sum', { input: first }).toString().slice(0, 64));
  const { value } = await client.control('GET', '/release');
  assert.deepEqual([value.asked, value.downloads.map(({ kind, status, bytes }) => [kind, status, bytes])], [2, [['image', 200, first.length]]]);
  assert.deepEqual((await client.control('GET', '/unexpected')).value, []);
  await client.control('DELETE', '/release');
  assert.equal((await client.request(url)).status, 404);
});

test('a signature is the file beside the image, else the sandbox signs, well or in a way that is wrong', async () => {
  const verify = async (text) => {
    await writeFile(`${replacement}.check`, text);
    return execFileSync('minisign', ['-V', '-H', '-Q', '-p', key, '-m', image, '-x', `${replacement}.check`], { stdio: 'pipe' }).toString().trim();
  };
  await announce({ image, version: '0.2.0', build: 7 });
  assert.equal(await verify((await get({}, '.minisig')).text), 'loomstreet 0.2.0 build 7');
  for (const signature of ['foreign', 'impostor', 'other', 'comment', 'old', 'garbage', 'empty']) {
    await announce({ signature });
    const { status, text } = await get({}, '.minisig');
    assert.equal(status, 200);
    await assert.rejects(verify(text), signature);
  }
  await announce({ signature: 'missing' });
  assert.equal((await get({}, '.minisig')).status, 404);
  await writeFile(`${image}.minisig`, 'as it was left there');
  assert.equal((await announce({ signature: 'own' })).signature, 'own');
  assert.equal((await get({}, '.minisig')).text, 'as it was left there');
  await rm(`${image}.minisig`);
  assert.deepEqual((await client.control('GET', '/unexpected')).value, []);
});

test('a download goes on where it ended, as long as the file is the same', async () => {
  await announce({ image });
  const { etag } = (await get()).headers;
  const ranges = [
    ['bytes=299990-', etag, 206, 'bytes 299990-299999/300000', first.subarray(299990)],
    ['bytes=10-19', undefined, 206, 'bytes 10-19/300000', first.subarray(10, 20)],
    ['bytes=-5', etag, 206, 'bytes 299995-299999/300000', first.subarray(-5)],
    ['bytes=10-19', '"another"', 200, undefined, first],
    ['bytes=1-2,4-5', etag, 200, undefined, first],
    ['bytes=300000-', etag, 416, 'bytes */300000', Buffer.alloc(0)],
  ];
  for (const [range, ifRange, status, contentRange, bytes] of ranges) {
    const answer = await get({ range, ...(ifRange ? { 'if-range': ifRange } : {}) });
    assert.deepEqual([answer.status, answer.headers['content-range'], Number(answer.headers['content-length'])], [status, contentRange, bytes.length], range);
    assert.ok(answer.bytes.equals(bytes), range);
  }
  const whole = async () => (await get({ range: 'bytes=10-', 'if-range': etag })).status;
  for (const setting of [{ ranges: false }, { ranges: true, tag: 'weak' }, { tag: 'none' }]) {
    await announce(setting);
    assert.equal(await whole(), 200, JSON.stringify(setting));
  }
  await announce({ tag: 'strong', replacement });
  assert.equal(await whole(), 206);
  const answer = await get({ range: 'bytes=10-', 'if-range': etag });
  assert.deepEqual([answer.status, answer.bytes.equals(second)], [200, true]);
  await announce({ tag: 'same', image, replacement });
  const { headers } = await get();
  assert.ok((await get({ range: 'bytes=10-', 'if-range': headers.etag })).bytes.equals(second.subarray(10)));
});

test('a download is lost, slow or silent when it is told to be, on both protocols', async () => {
  await announce({ image, cut: 100_000, cuts: 2 });
  await assert.rejects(get());
  assert.ok((await client.request2((await read()).url)).bytes.length <= 100_000);
  assert.equal((await client.request2((await read()).url)).bytes.length, 300_000);
  const { downloads } = await announce({ cut: null, speed: 1_000_000, stall: 200_000 });
  assert.deepEqual(downloads.map(({ bytes }) => bytes), [100_000, 100_000, 300_000]);
  const started = performance.now();
  const slow = get();
  let sent = 0;
  while (sent < 200_000) sent = (await client.control('GET', '/release')).value.downloads[3]?.bytes ?? 0;
  await announce({ stall: null });
  assert.ok((await slow).bytes.equals(first));
  assert.ok(performance.now() - started > 200);
});

test('every member can be wrong in every way, and a record can be anything', async () => {
  await announce({ image, version: '0.2.0', build: 8, notes: { en: 'New.' } });
  const good = await read();
  assert.ok(hostileNames.length > 90);
  for (const name of hostileNames.filter((one) => !/^(min|rollout)\.missing$/.test(one))) {
    await announce({ hostile: [name] });
    assert.notDeepEqual(await read(), good, name);
  }
  for (const record of [null, [], 'text', { latest: 2 }]) assert.deepEqual((await announce({ record })).announced, record);
  for (const wrong of [{ image: 'relative' }, { image: folder }, { hostile: ['latest.purple'] }, { cut: -1 }, { signature: 'none' }, { unknown: 1 }]) {
    assert.equal((await client.control('POST', '/release', wrong)).status, 400, JSON.stringify(wrong));
  }
});

test('faults find images and signatures by their operations', async () => {
  await announce({ image });
  await client.control('POST', '/faults', { match: { operation: 'ReleaseSignature' }, kind: 'status', status: 503 });
  assert.deepEqual([(await get()).status, (await get({}, '.minisig')).status], [200, 503]);
  await client.control('POST', '/faults', { match: { operation: 'ReleaseImage' }, kind: 'malformed' });
  assert.ok((await get()).bytes.equals(first.subarray(0, 150_000)));
});
