import assert from 'node:assert/strict';
import { beforeEach, test } from 'node:test';

import { hostileNames } from '../src/voice/hostile.mjs';
import { Mouth } from '../src/voice/mouth.mjs';
import { readWave, resampled, sampleRate, waveOf } from '../src/voice/sound.mjs';
import { Speech } from '../src/voice/speech.mjs';
import { tones } from '../src/voice/tones.mjs';
import { VoiceSettings } from '../src/voice/settings.mjs';
import { Caller, sentence } from './support/caller.mjs';
import { Member } from './support/member.mjs';
import { storeForTests } from './support/store.mjs';

const { client, catalog, ready } = await storeForTests();
const member = new Member(client, ready);
const address = '/api/support/widget/voice/rt';
const post = (path, wanted) => client.control('POST', path, wanted);
const call = async (opening) => (await Caller.call(client, ready, opening)).opened;
const facts = async () => (await client.control('GET', '/voice')).value.calls.at(-1);
const thread = async (visitorToken, more = {}) => (await member.call('/init', { visitorToken, visitorId: 'v-1', guide: '', ...more })).messages;
const lisbon = { city: 'Lisbon', temperature: 14, code: 2, wind: 18, rainChance: 20 };

/** At once, so that a conversation of minutes takes none. */
const quick = { ring: 0, think: 0, ahead: 600000, speed: 10000, speech: 'tones', pause: 200, greets: false };
beforeEach(() => post('/voice', quick));

/** Facts of a call once the store has noticed its end. */
async function factsAfter(caller) {
  const code = await caller.closed;
  for (;;) {
    const known = await facts();
    if (known.state === 'over') return { ...known, seen: code };
  }
}

test('a call goes from the greeting to the goodbye, and what was said can be read afterwards', async () => {
  const { visitorToken } = await member.call('/init', { visitorToken: '', visitorId: 'v-1', guide: '' });
  await post('/voice', { greets: true });
  const caller = await call({ visitorToken, lang: 'en', weather: lisbon, cart: [], closet: [], wishlist: [] });
  const hello = await caller.next('chat');
  assert.deepEqual(caller.events.slice(0, 3).map(({ type }) => type), ['ready', 'session', 'chat_partial']);
  assert.match(hello.text, /Mira/);
  const replies = [];
  for (let turn = 0; turn < 6; turn += 1) {
    caller.speak();
    replies.push((await caller.next('chat')).text);
  }
  await caller.next('ended');
  const known = await factsAfter(caller);
  assert.deepEqual([known.seen, known.closed.by, known.audio.framesBeforeReady], [1000, 'service', 0]);
  assert.match(replies[1], /14 °C.*Lisbon/);

  const { events } = caller;
  const of = (type) => events.filter((event) => event.type === type);
  const heard = of('asr').filter(({ final }) => final).map(({ text }) => text);
  const [beforeLast, last] = of('asr').slice(-2);
  assert.ok(!beforeLast.final && last.final && last.text.startsWith(beforeLast.text) && heard.length === 6);
  const shown = of('products').at(-1).products;
  assert.ok(shown.every(({ handle, title, image, price }) => catalog.piece(handle).title === title && image && price > 0));
  const variant = catalog.byId.get(of('cart')[0].variantId);
  assert.ok(variant.available && variant.product.handle === shown[0].handle);
  assert.equal(of('nav')[0].kind, 'wishlist');
  const lines = of('chat_partial').map(({ text }) => text);
  assert.ok(lines.every((text, at) => at === 0 || text.startsWith(lines[at - 1]) || lines[at - 1].length > text.length), 'a line grows');
  assert.ok(of('tts').every(({ samples }) => samples <= 2400) && of('tts').length > 50);
  const written = await thread(visitorToken);
  assert.deepEqual(written.filter(({ direction }) => direction === 'outbound').map(({ body }) => body), heard);
  assert.deepEqual(written.filter(({ direction }) => direction === 'inbound').map(({ body }) => body), [hello.text, ...replies]);
  assert.deepEqual(written.flatMap(({ attachments }) => attachments.map(({ handle }) => handle)).slice(-shown.length), shown.map(({ handle }) => handle));
  const { value: requests } = await client.control('GET', '/requests');
  assert.equal(requests.find(({ path }) => path === address).status, 101);
});

test('what is not a call is refused as any other request', async () => {
  for (const opening of ['hello', '[]', 'null']) assert.equal(await (await call(opening)).closed, 1008, opening);
  assert.equal((await client.request(ready.supportBase + address)).status, 426);
  const refused = async (path = address) => {
    const socket = await client.secure(new URL(ready.supportBase).hostname);
    socket.write(`GET ${path} HTTP/1.1\r\nHost: service.loomstreet.example\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\nSec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n`);
    return Number((await socket.toArray()).join('').split(' ')[1]);
  };
  assert.equal(await refused('/elsewhere'), 404);
  await post('/voice', { answer: 'refuse', refuseStatus: 429, times: 1 });
  assert.equal(await refused(), 429);
  await post('/faults', { match: { path: address }, kind: 'status', status: 500, times: 1 });
  assert.equal(await refused(), 500);
  assert.ok((await call()).events.length >= 0, 'and then one goes through');
});

test('a call fails in every way it is told to', async () => {
  const seen = async (caller) => {
    const { seen: code } = await factsAfter(caller);
    return [caller.events.filter(({ type }) => ['ready', 'error', 'ended'].includes(type)).map(({ type, code: own }) => own ?? type), code];
  };
  for (const [wanted, ...expected] of [
    [{ answer: 'busy' }, ['busy'], 1000], [{ answer: 'error', errorCode: 'TIRED' }, ['TIRED'], 1000], [{ answer: 'ended' }, ['ended'], 1000],
    [{ answer: 'drop' }, [], 1006], [{ answer: 'mid-frame' }, [], 1006], [{ answer: 'close', closeCode: 4001 }, [], 4001],
  ]) {
    await post('/voice', { ...wanted, times: 1 });
    const caller = await call();
    assert.deepEqual(await seen(caller), expected, JSON.stringify(wanted));
  }
  for (const [wanted, ...expected] of [
    [{ how: 'ended-twice' }, ['ready', 'ended', 'ended'], 1000], [{ how: 'normal' }, ['ready'], 1000], [{ how: 'close', code: 1013 }, ['ready'], 1013], [{ how: 'drop' }, ['ready'], 1006], [{ how: 'mid-frame' }, ['ready'], 1006],
  ]) {
    const caller = await call();
    await caller.next('session');
    await post('/voice/end', wanted);
    assert.deepEqual(await seen(caller), expected, JSON.stringify(wanted));
  }
  assert.equal((await post('/voice/end', { how: 'drop' })).status, 404);
  for (const wrong of [{ answer: 'maybe' }, { closeCode: 1006 }, { script: [7] }, { delays: 'long' }, { colour: 'red' }]) assert.equal((await post('/voice', wrong)).status, 400);
  for (const [path, wrong] of [['/voice/end', { how: 'softly' }], ['/voice/send', { hostile: ['ghosts'] }], ['/voice/hear', {}], ['/voice/speak', []]]) assert.equal((await post(path, wrong)).status, 400);
});

test('an utterance is what is loud for a while, and ends with a pause or with the last frame', async () => {
  await post('/voice', { script: ['One of these', null, { heard: 'Three', says: 'Look.', shows: ['odile-tiered-dress'], events: [{ type: 'nav', kind: 'brands' }] }], pause: 600 });
  const caller = await call();
  await caller.next('ready');
  caller.beQuiet(2);
  caller.speak(sentence.subarray(0, 1920)); // a knock on the table
  caller.beQuiet(0.7);
  caller.speak();
  caller.beQuiet(0.7);
  assert.deepEqual(await caller.next('asr'), { type: 'asr', text: 'One', final: false }, 'which a knock is too short for');
  await caller.next('chat');
  caller.speak(); // nobody understands this one
  caller.beQuiet(0.7);
  caller.speak();
  assert.equal((await caller.next('asr')).text, 'Three');
  assert.equal((await caller.next('nav')).kind, 'brands');
  assert.equal((await caller.next('products')).products[0].title, 'Odile tiered dress');
  assert.equal((await caller.next('chat')).text, 'Look.');
});

test('whoever speaks while she does interrupts her', async () => {
  const says = 'This is a long line that takes her quite a while to say, longer than anybody listens to.';
  await post('/voice', { script: [{ heard: 'One', says }, { heard: 'Two', says: 'Sorry.' }], speed: 1, ahead: 300 });
  const caller = await call();
  await caller.next('ready');
  caller.speak();
  await caller.next('chat_partial');
  await caller.next('tts');
  caller.speak();
  const cut = await caller.next('chat');
  const before = caller.events.filter(({ type }) => type === 'tts').length;
  assert.ok(cut.text.length < says.length && says.startsWith(cut.text));
  assert.equal((await caller.next('asr')).text, 'Two');
  assert.equal(caller.events.filter(({ type }) => type === 'tts').length, before, 'nothing more of it comes');
  assert.equal((await caller.next('chat')).text, 'Sorry.');
  assert.equal((await facts()).interruptions, 1);
});

test('what she is asked to do she does', async () => {
  const caller = await call({ lang: 'en', cart: [{ title: 'Wren striped shirt', handle: 'wren-striped-shirt' }], wishlist: 'none', closet: [null, { title: 7 }], weather: 'wet' });
  await caller.next('ready');
  const odile = catalog.piece('odile-tiered-dress');
  const told = async (words) => {
    const from = caller.events.length;
    await post('/voice/hear', { text: words });
    const { text } = await caller.next('chat');
    const [event] = caller.events.slice(from).filter(({ type }) => ['nav', 'cart'].includes(type));
    return { text, event, shown: caller.events.slice(from).find(({ type }) => type === 'products')?.products ?? [] };
  };
  assert.match((await told('Add it to my bag')).text, /which piece/i);
  const { shown } = await told('show me dresses for a party under $400');
  for (const [words, event] of [
    ['Open the second one.', { type: 'nav', kind: 'product', handle: shown[1].handle }], ['open it please', { type: 'nav', kind: 'product', handle: shown[1].handle }],
    ['Show me the Odile tiered dress!', { type: 'nav', kind: 'product', handle: odile.handle }],
    ['take me to the knitwear collection', { type: 'nav', kind: 'collection', handle: 'knitwear' }], ['Search for silk & satin.', { type: 'nav', kind: 'search', path: '/search?q=silk%20%20%20satin' }],
    ['show me my wish list', { type: 'nav', kind: 'wishlist' }], ['go to the designers', { type: 'nav', kind: 'brands' }], ['Open my orders', { type: 'nav', kind: 'orders' }],
    ['show me my returns', { type: 'nav', kind: 'returns' }], ['show my coupons', { type: 'nav', kind: 'coupons' }], ['open my membership', { type: 'nav', kind: 'membership' }],
  ]) assert.deepEqual((await told(words)).event, event, words);
  const { event: { variantId } } = await told('put the Odile tiered dress in my cart in size M');
  const { available, product, title } = catalog.byId.get(variantId);
  assert.ok(available && product === odile && title.endsWith(' / M'));
  assert.match((await told('put dress that sold out overnight in the bag')).text, /sold out just now/);
  assert.match((await told('what is in my bag?')).text, /Wren striped shirt/);
  assert.match((await told('what do I have on my wishlist?')).text, /nothing/);
  assert.deepEqual([(await told('show me a coat')).event, (await told('what should I wear today?')).event], [undefined, undefined]);
});

test('what was sent can be asserted, and heard', async () => {
  await post('/voice', { ring: 200 });
  const { token } = await member.signIn();
  const caller = await call({ appToken: token, visitorId: 'v-7', more: [1] });
  caller.speak(sentence.subarray(0, 960));
  await caller.next('ready');
  for (const frame of [{ type: 'audio', b64: 'AAAA' }, { type: 'audio', b64: '***' }, 'no JSON', Buffer.from([1]), { type: 'audio', b64: Buffer.from(Float32Array.of(NaN).buffer).toString('base64') }]) caller.send(frame);
  caller.speak(sentence.subarray(0, 9600));
  await caller.hangUp();
  const { opening, customer, audio, hangup, problems, closed } = await factsAfter(caller);
  assert.deepEqual([opening.appToken, opening.visitorId, opening.more, customer], ['…', 'v-7', [1], 'ines.marinho@example.com']);
  assert.ok(audio.framesBeforeReady === 1 && audio.samplesPerFrame[960] === 11 && audio.peak > 0.2);
  assert.deepEqual([hangup, closed, problems.length], [true, { code: 1000, by: 'application' }, 5]);
  const wave = Buffer.from(await (await fetch(`${ready.control}/voice/audio`)).arrayBuffer());
  assert.ok(readWave(wave).rate === sampleRate && readWave(wave).samples.length >= 11 * 960);
});

test('a customer’s call is written for the customer, unless they are gone by its end', async () => {
  for (const [isGone, count] of [[false, 2], [true, 0]]) {
    await post('/reset');
    await post('/voice', quick);
    const { token: appToken } = await member.signIn();
    const caller = await call({ appToken });
    await caller.next('ready');
    await post('/voice/hear', { text: 'Where is my order?' });
    assert.match((await caller.next('chat')).text, /LST10483/);
    if (isGone) await post('/auth', { expireTokens: true });
    await caller.hangUp();
    await factsAfter(caller);
    assert.equal((await thread('', { appToken: (await member.signIn()).token })).length, count);
  }
});

test('everything hostile can be sent, and the call goes on', async () => {
  const caller = await call();
  await caller.next('session');
  for (const name of hostileNames) {
    const from = caller.events.length;
    assert.equal((await post('/voice/send', { hostile: [name], event: { type: 'mark' } })).status, 200);
    await caller.next('mark');
    assert.ok(caller.events.length > from, name);
  }
  await post('/voice/send', { events: [{ type: 'one' }], text: '{not', binary: 'AAA=' });
  assert.deepEqual((await caller.next('binary')).bytes, Buffer.from([0, 0]));
  await post('/voice/speak', { says: 'Still here.' });
  while ((await caller.next('chat')).text !== 'Still here.');
});

test('speech is sent ahead of time, but not too far, with the delays of a bad network', async () => {
  const spoken = async (wanted) => {
    const settings = new VoiceSettings();
    settings.change({ ...quick, ...wanted });
    const times = [];
    const mouth = new Mouth({ settings, speech: new Speech(), seed: 'x', send: ({ type }) => type === 'tts' && times.push(performance.now()) });
    const began = performance.now();
    assert.equal(await mouth.say('One two three. Four five six.', { language: 'en', signal: new AbortController().signal }), 'One two three. Four five six.');
    return { times: times.map((time) => time - began), playedAt: mouth.playedAt - began };
  };
  const length = ((tones('One two three.').length + tones('Four five six.').length) / sampleRate) * 1000;
  const { times, playedAt } = await spoken({ ahead: 1500 });
  assert.ok(times[0] < 200 && times.at(-1) >= length - 1700 && Math.abs(playedAt - length) < 200, `${times.at(-1)} of ${length}`);
  const late = await spoken({ latency: 120, jitter: 50, delays: [0, 0, 200], burst: 2 });
  assert.ok(late.times[0] >= 119 && late.times.at(-1) >= 300);
  assert.ok(late.times[1] - late.times[0] < 20, 'bursts come together');
});

test('sound keeps its pitch and its level when its rate changes', () => {
  const wave = (rate) => Float32Array.from({ length: rate }, (_, at) => 0.5 * Math.sin((2 * Math.PI * 3000 * at) / rate));
  const converted = resampled({ rate: 22050, samples: wave(22050) });
  const worst = wave(sampleRate).subarray(100, 23000).reduce((most, sample, at) => Math.max(most, Math.abs(sample - converted[at + 100])), 0);
  assert.ok(converted.length === sampleRate && worst < 0.001, String(worst));
  const { rate, samples } = readWave(waveOf([converted, Float32Array.of(2, NaN, -2)]));
  assert.ok(rate === sampleRate && samples.length === sampleRate + 3 && Math.abs(samples[50] - converted[50]) < 0.001);
});
