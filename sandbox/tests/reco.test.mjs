import assert from 'node:assert/strict';
import { test } from 'node:test';

import { storeForTests } from './support/store.mjs';

const { client, catalog, ready } = await storeForTests();
const piece = (handle) => catalog.piece(handle);

async function read(path, query = {}) {
  const items = new URLSearchParams({ publicKey: ready.supportKey, ...query });
  const { status, text } = await client.request(`${ready.supportBase}/api/support/widget${path}?${items}`);
  return { status, text, ...(text.startsWith('{') ? JSON.parse(text) : {}) };
}

const feed = async (query) => Object.values(await read('/reco', { kind: 'for-you', ...query })).find(Array.isArray);
const modes = async (wanted) => (await client.control('POST', '/reco', wanted)).status;

test('feeds follow what was viewed and the floor, page after page, with nothing twice', async () => {
  const viewed = 'brae-cable-rollneck,tern-cable-pullover';
  const whole = await feed({ limit: 60, sessionViewed: viewed });
  const pages = [...await feed({ limit: 25, sessionViewed: viewed }), ...await feed({ limit: 35, offset: 25, sessionViewed: viewed })];
  assert.deepEqual(pages, whole);
  assert.equal(new Set(whole.map(({ handle }) => handle)).size, whole.length);
  assert.ok(whole.every(({ handle }) => !viewed.includes(handle) && piece(handle).department === 'women'));
  assert.ok(whole.slice(0, 6).every(({ handle, vendor }) => piece(handle).productType === 'Knitwear' || vendor === 'Fenmoor Mill'));
  assert.notDeepEqual(await feed({ limit: 60 }), whole);
  assert.ok((await feed({ gender: 'men', limit: 60 })).every(({ handle }) => piece(handle).department === 'men'));
  const arrivals = (await feed({ kind: 'new-arrivals' })).map(({ handle }) => piece(handle).createdAt);
  assert.deepEqual(arrivals, [...arrivals].sort().reverse());
  const silk = await feed({ kind: 'collection', handle: 'silk', excludeHandle: 'ferry-silk-shirt', limit: 60 });
  assert.ok(silk.length > 3 && silk.every(({ handle }) => piece(handle).cloth.tag === 'Silk' && handle !== 'ferry-silk-shirt'));
});

test('reasons come in every template and wording, with labels in the language asked for where there are some', async () => {
  const all = async (locale) => {
    const viewed = { sessionViewed: 'sabine-bias-slip-dress', limit: 60, locale };
    return [...await feed(viewed), ...await feed({ ...viewed, offset: 60 }), ...await feed({ ...viewed, kind: 'new-arrivals' })];
  };
  const cards = await all('zh-CN');
  const templates = new Set(cards.flatMap(({ reasonMeta }) => reasonMeta?.template ?? []));
  assert.deepEqual([...templates].sort(), [
    'because_like', 'browsing', 'for_occasion', 'handpicked', 'matches_search', 'new_in', 'similar_shoppers', 'style_pick', 'trending',
  ]);
  assert.ok(cards.some(({ reason, reasonMeta }) => reason && !reasonMeta) && cards.some(({ reason, reasonMeta }) => !reason && !reasonMeta));
  const labels = cards.flatMap(({ reasonMeta }) => reasonMeta?.paramLabel ?? []);
  assert.ok(labels.some(({ value, locale }) => locale === 'zh-CN' && /\p{Script=Han}/u.test(value)) && labels.some(({ locale }) => locale === 'en'));
  for (const { handle, isNew, reasonMeta } of cards) {
    assert.equal(isNew, Date.parse(piece(handle).createdAt) > catalog.calendar.startedAt - 30 * 24 * 3600 * 1000);
    if (reasonMeta) assert.equal(reasonMeta.newIn, isNew);
  }
  assert.ok((await all('en')).every(({ reasonMeta }) => reasonMeta?.template === 'because_like' || !reasonMeta?.paramLabel));
});

test('a piece is shown with pieces like it and with an outfit, and rails and counters say what the catalog has', async () => {
  const { alsoViewed, outfit } = await read('/pdp-reco', { handle: 'linden-tailored-blazer', limit: 6 });
  assert.ok(alsoViewed.length > 0 && alsoViewed.every(({ handle, price }) => piece(handle).drawing === 'blazer' && price >= 210 && price <= 840));
  assert.deepEqual(outfit.slice(0, 4).map(({ handle }) => piece(handle).drawing), ['trousers', 'shirt', 'tophandle', 'boot']);
  for (const gender of ['women', 'men']) {
    const { rails } = await read('/vessa/reco-rails', { gender });
    for (const { handle, count } of rails) assert.equal((await feed({ kind: 'collection', handle, gender, limit: 60 })).length, Math.min(60, count), handle);
  }
  const { stats } = await read('/vessa/product-stats', { handles: 'sabine-bias-slip-dress,party-dress,nobody-knows-this' });
  assert.deepEqual([Object.keys(stats), stats['sabine-bias-slip-dress'].sold > 100, stats['party-dress'].sold], [['sabine-bias-slip-dress', 'party-dress'], true, 0]);
  const { items, new30d } = await read('/brand-stats', { vendor: 'Corvin Atelier' });
  assert.ok(items === catalog.collectionByHandle.get('corvin-atelier').pieces.length && new30d >= 1 && new30d < items);
});

test('a sentence is searched for by what it means', async () => {
  for (const [q, holds, summary] of [
    ['green dress for a wedding under $400', ({ garment, colours, lowest }) => garment.noun === 'dress' && lowest <= 400 && colours.some((own) => ['sage', 'olive', 'bottle'].includes(own)), /pieces: dresses in green for wedding under \$400$/],
    ['Silk skirts or shirts, between 100 and 300 dollars', ({ cloth, drawing, lowest }) => cloth.tag === 'Silk' && ['skirt', 'shirt'].includes(drawing) && lowest >= 100 && lowest <= 300, /silk skirts or tops/],
    ['warm knit for dinner', ({ drawing }) => drawing === 'knit', /: knitwear$/],
    ['something by tallis & rook', ({ vendor }) => vendor === 'Tallis & Rook', /by Tallis & Rook/],
    ['odile', ({ title }) => /odile/i.test(title), /for “odile”/],
  ]) {
    const { products, total, summary: said } = await read('/search-ai', { q, limit: 60 });
    assert.ok(products.length > 0 && products.length === Math.min(60, total) && products.every(({ handle }) => holds(piece(handle))), q);
    assert.match(said, summary);
  }
  assert.deepEqual((await read('/search-ai', { q: 'robe dress', locale: 'fr', limit: 1 })).collections, [{ handle: 'dresses', title: 'Robes' }]);
  assert.deepEqual([(await read('/search-ai', { q: 'odil' })).total, (await read('/search-ai', { q: 'odil', instant: 'true' })).total > 0], [0, true]);
  for (const q of ['', 'xqzz brrt', 'for the', '$']) {
    const { status, text, ...answer } = await read('/search-ai', { q });
    assert.deepEqual(answer, { products: [], collections: [], summary: '', total: 0 }, q);
  }
});

test('each feed fails as it is told to, and the others do not', async () => {
  assert.equal(await modes({ '/reco?kind=new-arrivals': { status: 503 }, '/pdp-reco': { empty: true }, '/search-ai': { hostile: ['markup', 'unknown'] } }), 200);
  assert.deepEqual([(await read('/reco', { kind: 'new-arrivals' })).status, (await read('/reco', { kind: 'for-you' })).status], [503, 200]);
  assert.deepEqual((await read('/pdp-reco', { handle: 'odile-tiered-dress' })).outfit, []);
  const [{ title, handle }] = (await read('/search-ai', { q: 'dress' })).products;
  assert.match(title, /^<b>/);
  assert.equal(piece(handle), null);
  await modes({ '*': { hostile: ['many'] } });
  assert.equal(new Set((await feed()).map((card) => card.handle)).size, 1000);
  await modes({ '*': { hostile: ['templates', 'duplicates', 'long'] }, '/pdp-reco': null });
  const [first, second] = await feed();
  assert.deepEqual(second, first);
  assert.ok(first.reasonMeta.params.value.length > 10000);
  await modes({ '*': { hostile: ['types'] } });
  assert.ok((await feed()).includes(null));
  for (const wrong of [{ '/nothing': {} }, { '/reco': { hostile: ['ghosts'] } }, []]) assert.equal(await modes(wrong), 400);
});

test('the configuration is merged, rises with every change, and fails as it is told to', async () => {
  const config = () => read('/app-version/config', { platform: 'macos' });
  const change = async (wanted) => (await client.control('POST', '/config', wanted)).value;
  const initial = await config();
  const { promo, dashboard } = initial.home;
  assert.deepEqual([initial.features, [...dashboard].sort()], [{}, ['closet', 'following', 'member', 'orders', 'vessa', 'wishlist']]);
  assert.ok(Date.parse(promo.startsAt) < Date.now() && Date.parse(promo.endsAt) > Date.now());
  assert.equal((await client.request(`${promo.image}&width=64`)).status, 200);

  await change({ features: { imageSearch: false }, home: { promo: { subtitle: null, title: { it: 'Cappotti' } } } });
  const changed = await config();
  assert.equal(changed.revision, initial.revision + 1);
  assert.deepEqual([changed.features, changed.home.promo.title.it, changed.home.promo.title.en, changed.home.promo.subtitle], [{ imageSearch: false }, 'Cappotti', promo.title.en, undefined]);
  await change({ revision: 7, features: 'all' });
  assert.deepEqual([(await config()).revision, (await config()).features], [7, 'all']);

  await change({ size: 100000 });
  assert.ok((await config()).text.length >= 100000);
  await change({ raw: '"revision":', size: 0 });
  assert.equal((await config()).text, '"revision":');
  await change({ raw: null, status: 500 });
  assert.equal((await config()).status, 500);
  await change({ status: null, redirect: 'endless' });
  const { status, headers } = await client.request(`${ready.supportBase}/api/support/widget/app-version/config?platform=macos&publicKey=${ready.supportKey}`);
  assert.equal(status, 302);
  const further = await client.request(new URL(headers.location, ready.supportBase).href);
  assert.ok(further.status === 302 && further.headers.location !== headers.location);
  assert.equal((await change({ revision: initial.revision + 10 })).document.revision, initial.revision + 10);
  await change({ revision: 3 });
  const { document, redirect } = (await client.control('DELETE', '/config')).value;
  assert.deepEqual([document.revision, document.features, redirect], [initial.revision + 11, {}, null]);
  assert.equal((await client.control('POST', '/config', { colour: 'red' })).status, 400);
});
