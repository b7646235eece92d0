import assert from 'node:assert/strict';
import { beforeEach, test } from 'node:test';

import sharp from 'sharp';

import { multipart } from './support/multipart.mjs';
import { Member } from './support/member.mjs';
import { storeForTests } from './support/store.mjs';

let time = Date.parse('2026-11-21T20:00:00Z');
const { client, ready } = await storeForTests({ now: () => time, startedAt: time });
const member = new Member(client, ready);

beforeEach(() => client.control('POST', '/reset'));

const upload = async (fields, file) => {
  const { type, body } = multipart(fields, { file });
  const answer = await client.request(`${ready.supportBase}/api/support/widget/support-upload`, { method: 'POST', headers: { 'content-type': type }, body });
  return { status: answer.status, ...answer.json() };
};

/** Writes as somebody, waits and returns what customer service says. */
async function answerTo(body, { visitorToken, appToken, clientID = body }) {
  await member.call('/support-message', { visitorToken, appToken, body, clientID, lang: 'en' });
  time += 2000;
  return (await member.call('/support-replies', { visitorToken, appToken })).messages.at(-1).body;
}

test('a guest is answered after a while, once for each message, and what was read is not unread', async () => {
  const { visitorToken, messages, unreadCount } = await member.call('/support-init', { visitorId: 'v1' });
  assert.deepEqual([messages, unreadCount], [[], 0]);
  const send = () => member.call('/support-message', { visitorToken, body: 'Where is LST10482?', clientID: 'c1', lang: 'en' });
  const { messages: [echo, ...rest] } = await send();
  assert.deepEqual([echo.direction, echo.body, rest], ['outbound', 'Where is LST10482?', []]);
  time += 2000;
  const { messages: again } = await send();
  assert.deepEqual(again.map(({ id, direction }) => `${direction} ${id === echo.id}`), ['outbound true', 'inbound false'], 'a retry writes nothing twice');
  assert.match(again[1].body, /once you are signed in/, 'a guest learns nothing of an order');
  time += 60000;
  const replies = await member.call('/support-replies', { visitorToken, after: echo.id });
  assert.deepEqual([replies.messages.map(({ id }) => id), replies.unreadCount], [[again[1].id], 1]);
  await member.call('/support-read', { visitorToken, upTo: again[1].id });
  await member.call('/support-read', { visitorToken, upTo: echo.id });
  assert.equal((await member.call('/support-init', { visitorToken })).unreadCount, 0, 'reading goes forward only');
  assert.equal((await member.call('/support-init', { visitorToken: 'guess' })).code, 'NOT_FOUND');
});

test('a customer comes back to the same conversation, which is nobody else’s, and is told of their orders', async () => {
  const { token: appToken } = await member.signIn();
  const { visitorToken, messages } = await member.call('/support-init', { appToken });
  assert.equal(messages.length, 6);
  assert.equal((await member.call('/support-init', { appToken })).visitorToken, visitorToken);
  const { token: theo } = await member.signIn('theo.lind@example.com');
  assert.equal((await member.call('/support-init', { visitorToken, appToken: theo })).code, 'NOT_FOUND');
  const answers = {
    'Hello!': /^Hello Ines/, 'Where is LST10455?': /LST10455 is on its way.*1Z4470129902 and Loom Post LP4399314/, 'Can I return LST10440?': /LST10440 can be returned/,
    'Is the blazer too small?': /Between two sizes/, 'LST99999 is late': /do not find LST99999/, 'Thank you!': /very welcome/, Mmmh: /looking into it/,
  };
  for (const [body, expected] of Object.entries(answers)) assert.match(await answerTo(body, { visitorToken, appToken }), expected, body);
});

test('a file is kept for what it is, and served to whoever has its address', async () => {
  const { visitorToken } = await member.call('/support-init', {});
  const png = await sharp({ create: { width: 30, height: 20, channels: 3, background: '#a33' } }).png().toBuffer();
  const { messages: [{ attachments: [picture], body }] } = await upload({ visitorToken, clientID: 'c1', body: 'Here' }, { name: 'ünïcode "x".jpg', type: 'image/jpeg', bytes: png });
  assert.deepEqual([picture.mimeType, picture.width, picture.height, body], ['image/png', 30, 20, 'Here']);
  const served = await client.request(picture.url);
  assert.deepEqual([served.status, served.headers['content-type'], served.bytes.equals(png)], [200, 'image/png', true]);
  assert.equal((await client.request(`${picture.url}x`)).status, 404);
  const { messages: [{ attachments: [{ mimeType }] }] } = await upload({ visitorToken, clientID: 'c2' }, { name: 'bill.pdf', type: 'application/pdf', bytes: Buffer.from('%PDF-1.7 and so on') });
  assert.equal(mimeType, 'application/pdf');
  assert.equal((await upload({ visitorToken, clientID: 'c3' }, { name: 'a.png', type: 'image/png', bytes: Buffer.from('MZ no picture') })).code, 'UNSUPPORTED_TYPE');
  assert.equal((await upload({ visitorToken, clientID: 'c4' }, { name: 'a.png', type: 'image/png', bytes: Buffer.concat([png, Buffer.alloc(10 * 1024 * 1024)]) })).code, 'TOO_LARGE');
});

test('the control port answers in an agent’s name, with anything, and can fall silent', async () => {
  assert.equal((await client.control('POST', '/support/reply', {})).status, 404, 'there is nobody to answer');
  const { visitorToken } = await member.call('/support-init', {});
  await client.control('POST', '/support', { answers: false, agent: 'Bo' });
  await client.control('POST', '/support/reply', { body: 'Hello from us' });
  await client.control('POST', '/support/reply', { body: null, id: null, attachments: 'none', createdAt: 'soon' });
  const { messages } = await member.call('/support-replies', { visitorToken });
  assert.deepEqual([messages[0].body, messages[0].agent, 'id' in messages[1]], ['Hello from us', 'Bo', false]);
  await answerTo('Anybody?', { visitorToken });
  assert.equal((await member.call('/support-replies', { visitorToken })).messages.length, 3);
});
