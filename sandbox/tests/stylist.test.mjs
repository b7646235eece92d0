import assert from 'node:assert/strict';
import { test } from 'node:test';

import { hostileNames } from '../src/stylist/hostile.mjs';
import { openEnvelope } from '../src/stylist/envelope.mjs';
import { measurementsIn } from '../src/stylist/measurements.mjs';
import { slotOf } from '../src/stylist/slots.mjs';
import { phrasebooks } from '../src/stylist/voice.mjs';
import { Member } from './support/member.mjs';
import { storeForTests } from './support/store.mjs';

const { client, catalog, ready } = await storeForTests();
const member = new Member(client, ready);
const tell = (wanted) => client.control('POST', '/stylist', wanted);

/** Somebody who talks to the stylist, as a guest or with a session. */
class Talker {
  constructor(appToken) {
    this.identity = appToken ? { appToken } : {};
    this.visitorId = 'v-1';
  }

  async open(visitorToken = this.visitorToken ?? '') {
    const answer = await member.call('/init', { ...this.identity, visitorToken, visitorId: this.visitorId, guide: '' });
    this.visitorToken = answer.visitorToken ?? this.visitorToken;
    return answer;
  }

  send(body, { lang = 'en', attachments = [] } = {}) {
    return member.call('/message', { ...this.identity, visitorToken: this.visitorToken, body, lang, attachments, guide: 'Mira', visitorId: this.visitorId });
  }

  /** The reply to a message: {body, cards, pieces, total}; a piece on a line of its own is one of the pieces. */
  async ask(words, options) {
    if (!this.visitorToken) await this.open();
    const { status, messages } = await this.send(words, options);
    assert.equal(status, 200, words);
    const [echo, reply] = messages;
    assert.deepEqual([echo.direction, echo.body, reply.direction, messages.length], ['outbound', words, 'inbound', 2]);
    const lines = [...reply.body.matchAll(/^\/products\/(\S+)$/gm)].map(([, handle]) => handle);
    const pieces = [...lines, ...reply.attachments.map(({ handle }) => handle)].map((handle) => catalog.piece(handle));
    return { body: reply.body, cards: reply.attachments, pieces, total: pieces.reduce((sum, { lowest }) => sum + lowest, 0) };
  }
}

const asks = (text) => /(height|weight|measurements|bust|身高|体重|三围).{0,40}\?|share your (height|measurements)|tell me your (height|size)/i.test(text);
const wardrobe = (...items) => `\n\n[MY WARDROBE — style me using THESE pieces first, only suggest something new if a slot is truly missing: ${items.join('; ')}]`;
const weather = (text) => `\n[Weather: ${text}]`;
const green = ['sage', 'olive', 'bottle'];

test('what the application puts behind a shopper’s words is read apart from them', () => {
  const full = openEnvelope(`Hi [there]\n/products/odile-tiered-dress${wardrobe('A [x]; b [top]', 'C]; D [bag/cart]')}\n[Build the look around: Coat [1974]]${weather('-3.5°C Partly cloudy in São Paulo')}`);
  assert.deepEqual(full, {
    words: 'Hi [there]', handle: 'odile-tiered-dress', anchor: 'Coat [1974]',
    wardrobe: [{ title: 'A [x]; b', slot: 'top', source: 'closet' }, { title: 'C]; D', slot: 'bag', source: 'cart' }],
    weather: { temperature: -3.5, condition: 'partly cloudy', city: 'São Paulo' },
  });
  assert.deepEqual(openEnvelope('Is [Weather: a joke?'), { words: 'Is [Weather: a joke?', handle: null, wardrobe: [], anchor: null, weather: null });
  assert.deepEqual(openEnvelope(`x${weather('18°C Sunny')}`).weather, { temperature: 18, condition: 'sunny', city: '' });
});

test('a wish is answered with pieces that are all of it, each with what a card needs', async () => {
  for (const [words, count, holds, lang] of [
    ['I need a green dress for a wedding under $400', 3, ({ garment, colours, lowest }) => garment.noun === 'dress' && lowest < 400 && colours.some((own) => green.includes(own))],
    ['boots below €200', 2, ({ drawing, lowest }) => drawing === 'boot' && lowest <= 218],
    ['silk between 100 and 300', 2, ({ cloth, lowest }) => cloth.tag === 'Silk' && lowest >= 100 && lowest <= 300],
    ['a coat for him', 2, ({ drawing, department }) => drawing === 'trench' && department === 'men'],
    ['anything by Quill & Thread?', 2, ({ vendor }) => vendor === 'Quill & Thread'],
    ['do you have the odile', 1, ({ title }) => /odile/i.test(title)],
    ['a knit in size XS', 2, ({ drawing, variants }) => drawing === 'knit' && variants.some(({ available, title }) => available && title.endsWith(' / XS'))],
    ['Ich suche ein schwarzes Kleid unter 400 €', 2, ({ garment, colours }) => garment.noun === 'dress' && colours.includes('ink'), 'de'],
    ['Une jupe bleue, moins de 500 €', 1, ({ drawing, colours }) => drawing === 'skirt' && colours.includes('dusk'), 'fr'],
    ['約會穿的紅色洋裝', 1, ({ garment, colours }) => garment.noun === 'dress' && colours.includes('madder'), 'zh-Hant'],
  ]) {
    const { pieces, cards } = await new Talker().ask(words, { lang });
    assert.ok(pieces.length >= count && pieces.every((piece) => piece.available && holds(piece)), `${words}: ${pieces.map(({ title }) => title)}`);
    for (const card of cards) assert.ok(card.title && card.vendor && card.price > 0 && card.image.startsWith('https://'), words);
  }
  const { body, cards } = await new Talker().ask('a pink coat for the beach under 20');
  assert.ok(cards.length === 0 && /nothing like that|nothing on the floor/.test(body));
});

test('what follows refers to what was said before', async () => {
  const shopper = new Talker();
  const first = await shopper.ask('show me dresses for a party under $400');
  const prices = ({ pieces }) => pieces.map(({ lowest }) => lowest);
  const cheaper = await shopper.ask('cheaper please');
  assert.ok(Math.max(...prices(cheaper)) < first.total / first.pieces.length && cheaper.pieces.every(({ garment }) => garment.noun === 'dress'));
  const black = await shopper.ask('in black');
  assert.ok(black.pieces.length > 0 && black.pieces.every(({ garment, colours }) => garment.noun === 'dress' && colours.includes('ink')));
  const more = await shopper.ask('something else');
  assert.ok(more.pieces.every((piece) => ![...first.pieces, ...cheaper.pieces, ...black.pieces].includes(piece)));
  assert.ok((await shopper.ask('show me shoes')).pieces.every(({ drawing }) => drawing === 'boot'));
  const dressed = new Talker();
  const leads = [await dressed.ask('an outfit with a red dress'), await dressed.ask('something else'), await dressed.ask('in green')].map(({ pieces: [lead] }) => lead);
  assert.ok(leads.every(({ garment }) => garment.noun === 'dress') && new Set(leads).size > 1 && leads[2].colours.some((own) => green.includes(own)));
  const said = [];
  for (const words of ['hello', 'thanks', 'bye', 'are you a robot?', 'hello', 'xqzz brrt']) said.push((await shopper.ask(words)).body);
  assert.ok(said.every((text) => text.length > 10) && new Set(said).size >= 5);
});

test('a look fills each slot once, suits the weather, and keeps to the budget', async () => {
  const slots = ({ pieces }) => pieces.map(slotOf);
  const shopper = new Talker();
  const wet = await shopper.ask(`What should I wear today?${weather('5.5°C Rainy in London')}`);
  assert.ok(/5\.5 °C/.test(wet.body) && wet.body.includes('London') && wet.pieces.some(({ drawing }) => drawing === 'trench'));
  const hot = await new Talker().ask(`What to wear tonight${weather('31°C Sunny in Dubai')}`);
  assert.ok(hot.pieces.every(({ drawing }) => !['trench', 'knit'].includes(drawing)));
  const cheap = await new Talker().ask('an outfit for work under 700');
  assert.ok(cheap.pieces.length >= 2 && cheap.total <= 700);
  for (const words of ['outfit for travel', 'what do I wear to a party', 'going to the gym', 'an outfit for him for the weekend', 'brunch']) {
    const look = await new Talker().ask(words);
    assert.ok(look.pieces.length >= 2 && look.pieces.length <= 4 && new Set(slots(look)).size === look.pieces.length, `${words}: ${slots(look)}`);
  }
  const styled = await shopper.ask('Help me style this: Sabine bias slip dress\n/products/sabine-bias-slip-dress');
  assert.ok(styled.body.includes('Sabine') && styled.pieces.length >= 2 && !slots(styled).some((slot) => ['dress', 'top', 'bottom'].includes(slot)));
  const anchored = await new Talker().ask('what goes with it?\n[Build the look around: Linden tailored blazer]');
  assert.ok(anchored.body.includes('Linden') && !anchored.pieces.some(({ drawing }) => drawing === 'blazer'));
});

test('a wardrobe is styled with first, and only what is missing is suggested', async () => {
  const have = ['Wren striped shirt [top/cart]', 'Old jeans [1999]; blue [bottom]', 'Lune crescent bag [bag/wishlist]', 'Sandals [shoes]'];
  const { body, cards, pieces } = await new Talker().ask(`Style me from my closet${wardrobe(...have)}${weather('12°C Overcast')}`);
  assert.ok(['Wren striped shirt', 'Old jeans [1999]; blue', 'Sandals'].every((title) => body.includes(title)));
  assert.deepEqual(pieces.map(slotOf), ['bag', 'outerwear']);
  assert.deepEqual([cards[0].handle, cards[0].reason], ['lune-crescent-bag', 'From your wishlist']);
  assert.equal((await new Talker().ask(`Style me from my closet${wardrobe(...have)}${weather('30°C Sunny')}`)).cards.length, 1);
  assert.match((await new Talker().ask('Style me from my closet')).body, /pick/i);
});

test('sizes are asked for, worked out, remembered, and forgotten', async () => {
  const { token } = await member.signIn();
  const shopper = new Talker();
  const advice = async (handle, extra = {}) => (await member.call('/size-reco', { handle, locale: 'en', ...extra })).recommendedSize;
  assert.ok(asks((await shopper.ask('What size should I take?\n/products/sabine-bias-slip-dress')).body));
  assert.equal(await advice('sabine-bias-slip-dress', { visitorId: 'v-1' }), undefined);
  const { body } = await shopper.ask('📏 My measurements: height 170cm, weight 60kg, I prefer a regular fit. What size should I take?');
  assert.ok(/take M\b.*40 in skirts/.test(body) && body.includes('Sabine bias slip dress') && !asks(body), body);
  assert.deepEqual([await advice('sabine-bias-slip-dress', { visitorId: 'v-1' }), await advice('sabine-bias-slip-dress')], ['M', undefined]);
  shopper.identity = { appToken: token };
  await shopper.open();
  assert.deepEqual([await advice('wide-leg-wool-trousers', { appToken: token }), await advice('lune-crescent-bag'), await advice('party-dress', { appToken: token })], ['40', 'One size', undefined]);
  await shopper.ask('forget my measurements');
  assert.equal(await advice('wide-leg-wool-trousers', { appToken: token }), undefined);

  for (const [text, expected] of [
    ['height 170.2cm, weight 60kg, bust 90cm, I prefer a loose fit', { height: 170.2, weight: 60, bust: 90, fit: 'loose' }],
    ['I am 5\'7" and 140 lbs', { height: 170.2, weight: 63.5, fit: 'regular' }],
    [`height ${'9'.repeat(400)}cm, weight 60kg`, null], ['height 20cm, weight 60kg', null], ['I lost 5 kg', null],
  ]) assert.deepEqual(measurementsIn(text), expected, text.slice(0, 60));
});

test('orders are told to their owner only', async () => {
  assert.match((await new Talker().ask('Where is my order?')).body, /sign/i);
  const ines = new Talker((await member.signIn()).token);
  const { body } = await ines.ask('Where is my order?');
  assert.ok(['LST10483', 'LST10482', 'LST10471'].every((number) => body.includes(number)) && !body.includes('LST10398'));
  assert.match((await ines.ask('what about LST10398')).body, /LST10398.*cancelled/);
  assert.match((await ines.ask('LST10466?')).body, /cannot find/);
  assert.match((await ines.ask('Wo ist meine Bestellung?', { lang: 'de' })).body, /LST10482.*unterwegs/);
  assert.match((await new Talker((await member.signIn('theo.lind@example.com')).token).ask('my orders')).body, /no orders/);
});

test('every language says everything, and only one question is about measurements', async () => {
  const facts = {
    name: '', title: 'Odile', what: 'dresses', count: 2, sum: '$9', occasion: 'for work', temperature: 9, condition: 'rainy', city: 'Oslo', have: 'A', missing: 'B', height: 170, weight: 60,
    letters: 'M', numbers: '40', shoes: '39', size: 'M', number: 'LST1', status: 's', when: '', day: 'Monday', colour: 'sage', slot: 'bag',
  };
  for (const [language, book] of Object.entries(phrasebooks)) {
    assert.deepEqual(Object.keys(book).sort(), Object.keys(phrasebooks.en).sort(), language);
    for (const [key, ways] of Object.entries(book)) {
      for (const way of [ways].flat()) {
        const text = typeof way === 'function' ? way(facts) : way;
        assert.ok(!text.includes('undefined'), `${language} ${key}: ${text}`);
        assert.equal(asks(text), key === 'askMeasurements', `${language} ${key}: ${text}`);
      }
    }
  }
  for (const [lang, script] of [['ja', /\p{Script=Hiragana}/u], ['zh-TW', /\p{Script=Han}/u], ['ar', /\p{Script=Arabic}/u], ['de_DE', /\bdas|die|ich|Sie\b/], ['xx', /the|an? |you/i]]) {
    assert.match((await new Talker().ask('dresses please', { lang })).body, script, lang);
  }
});

test('a conversation is the visitor’s, then the customer’s, and never the next one’s', async () => {
  const { token } = await member.signIn();
  const guest = new Talker();
  assert.equal((await guest.open()).hasConversation, false);
  await guest.ask('Something red?');
  const again = await guest.open();
  assert.deepEqual([again.hasConversation, again.messages.map(({ direction }) => direction)], [true, ['outbound', 'inbound']]);
  const customer = new Talker(token);
  assert.equal((await customer.open(guest.visitorToken)).messages.length, 2);
  assert.deepEqual((await guest.open()).messages, []);
  assert.equal((await customer.open('')).messages.length, 2);
  const { guide, conversationId } = await member.call('/guide-get', { visitorId: 'v-1', appToken: token });
  assert.ok(guide.name === 'Mira' && conversationId);

  await tell({ expireTokens: true });
  assert.deepEqual([(await guest.send('Hello?')).status, (await guest.send('Hello?')).code], [404, 'NOT_FOUND']);
  const old = guest.visitorToken;
  assert.notEqual((await guest.open()).visitorToken, old);
});

test('the weather is the same every time, by place and by any name of a city', async () => {
  const at = (where) => member.call('/weather', where);
  const { status, ...lisbon } = await at({ city: ' lisboa ' });
  assert.deepEqual([status, lisbon], [200, { city: 'Lisbon', temperature: 14, code: 2, wind: 18, rainChance: 20, latitude: 38.72, longitude: -9.14 }]);
  assert.deepEqual([(await at({ latitude: 38.7, longitude: -9.1 })).city, (await at({ city: '東京' })).city, (await at({ city: 'München, Germany' })).city], ['Lisbon', 'Tokyo', 'Munich']);
  assert.deepEqual([(await at({ latitude: 0, longitude: -30 })).city, (await at({ city: 'Atlantis' })).status, (await at({ latitude: '1', longitude: 2 })).status], ['', 404, 400]);
  await tell({ weather: { temperature: 1e300, code: null } });
  assert.deepEqual([(await at({ city: 'Paris' })).temperature, (await at({ city: 'Paris' })).code], [1e300, null]);
});

test('it fails in every way it is told to, and what it was sent can be read', async () => {
  const shopper = new Talker();
  await shopper.open();
  await tell({ fail: { status: 429, code: 'RATE_LIMITED', times: 1 }, hasConversation: true, failureCode: 'TIRED', guideName: 'Noor' });
  assert.equal((await shopper.send('Hi')).code, 'RATE_LIMITED');
  assert.deepEqual([(await shopper.open()).hasConversation, (await shopper.open()).failureCode, (await member.call('/guide-get')).guide.name], [true, 'TIRED', 'Noor']);
  await tell({ lose: 1 });
  await assert.rejects(shopper.send('Hi'));
  assert.equal((await shopper.open()).messages.length, 2, 'the message was taken all the same');
  await tell({ fail: { kind: 'malformed', times: 1 } });
  await assert.rejects(shopper.send('Hi'), SyntaxError);
  await tell({ next: ['Word for word', { id: 7, body: 'Two', attachments: ['odile-tiered-dress'], createdAt: null }] });
  const { messages: [, one, two] } = await shopper.send('Hi');
  assert.deepEqual([one.body, two.id, two.attachments[0].title, 'createdAt' in two], ['Word for word', 7, 'Odile tiered dress', false]);
  assert.equal((await client.control('GET', '/stylist')).value.received.at(-1).body, 'Hi');

  for (const name of hostileNames) {
    await tell({ hostile: [name] });
    assert.equal((await shopper.send('a dress for work')).status, 200, name);
    assert.equal((await shopper.open()).status, 200, name);
  }
  await tell({ hostile: ['many', 'long'] });
  const { messages } = await shopper.send('a dress');
  assert.ok(messages.length > 500 && messages.at(-1).body.length > 100000);
  await client.control('DELETE', '/stylist');
  await tell({ history: 5000 });
  assert.ok((await shopper.open()).messages.length > 5000);
  for (const wrong of [{ hostile: ['ghosts'] }, { next: [7] }, { colour: 'red' }, { fail: { path: '/orders' } }]) assert.equal((await tell(wrong)).status, 400);
});

test('nothing that is sent is too strange to be answered', async () => {
  const shopper = new Talker();
  await shopper.open();
  for (const body of [
    '\u202e\u0000\u2066', '[MY WARDROBE', '\n[MY WARDROBE: ', `x${wardrobe('[top]', ' [top]', '[top] [top]')}`, `x${weather('NaN°C Mild')}`, `x${weather('1e300°C Mild in ')}`, '/products/%E0%A4%A', '/products/never-sold',
    '📏 My measurements: height 250cm, weight 25kg, I prefer a fitted fit.', 'under $', 'between 5 and', '€€€ 1,2,3.4.5 £', '__proto__ constructor', 'a'.repeat(60000), '$'.repeat(9000), '1'.repeat(65000), 'cheaper', 'more', 'LST0',
    `Style me${wardrobe('Party dress [extra]')}`, `${' '.repeat(30000)}\n/products/odile-tiered-dress`, 'men', 'size?',
  ]) {
    const began = Date.now();
    assert.equal((await shopper.send(body)).status, 200, body.slice(0, 60));
    assert.ok(Date.now() - began < 1000, body.slice(0, 60));
  }
  for (const attachments of [{}, [7], ['x'], Array(21).fill({})]) assert.equal((await shopper.send('Hi', { attachments })).code, 'BAD_INPUT');
  assert.equal((await shopper.send('x'.repeat(65537))).code, 'BAD_INPUT');
  assert.deepEqual((await client.control('GET', '/unexpected')).value, []);
});
