import assert from 'node:assert/strict';
import { test } from 'node:test';

import { parseMultipart } from '../src/backend/multipart.mjs';
import { storeForTests } from './support/store.mjs';

const { client, ready } = await storeForTests();
const { supportKey: publicKey, supportBase } = ready;

test('events are kept, the last two hundred, without key and token', async () => {
  for (let number = 0; number < 203; number += 1) {
    const { status } = await client.backend('/api/support/widget/track', { publicKey, appToken: 'secret', event: 'view', number });
    assert.equal(status, 200);
  }
  const { value } = await client.control('GET', '/events');
  assert.equal(value.length, 200);
  assert.deepEqual([value[0].event, value[199].event], [{ event: 'view', number: 3 }, { event: 'view', number: 202 }]);
});

test('a widget path needs the key, however the call is made', async () => {
  for (const body of [{}, { publicKey: 'guess' }]) {
    const { status, ...response } = await client.backend('/api/support/widget/track', body);
    assert.deepEqual([status, response.json().code], [404, 'WIDGET_NOT_FOUND']);
  }
  const read = await client.request(`${supportBase}/api/support/widget/nothing?publicKey=guess`);
  assert.equal(read.json().code, 'WIDGET_NOT_FOUND');
});

test('unknown paths, wrong methods and broken bodies are told apart', async () => {
  await client.control('POST', '/reset');
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

test('a form brings its fields and files, with a quoted boundary too', async () => {
  const bytes = Buffer.from([0, 13, 10, 45, 45, 255]);
  const body = Buffer.concat([
    Buffer.from(`--lst-1\r\nContent-Disposition: form-data; name="publicKey"\r\n\r\n${publicKey}\r\n`),
    Buffer.from('--lst-1\r\nContent-Disposition: form-data; name="image"; filename="me.png"\r\nContent-Type: image/png\r\n\r\n'),
    bytes, Buffer.from('\r\n--lst-1--\r\n'),
  ]);
  const { fields, files } = parseMultipart(body, 'multipart/form-data; boundary="lst-1"');
  assert.deepEqual(fields, { publicKey });
  assert.deepEqual(files.image, { fileName: 'me.png', type: 'image/png', bytes });
  const headers = { 'content-type': 'multipart/form-data; boundary=lst-1' };
  assert.equal((await client.request(`${supportBase}/api/support/widget/track`, { method: 'POST', headers, body })).status, 200);
  for (const cut of [body.subarray(0, 60), body.subarray(0, body.length - 14), Buffer.alloc(0)]) {
    assert.throws(() => parseMultipart(cut, headers['content-type']), /cut off/);
  }
});
