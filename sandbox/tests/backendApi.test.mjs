import assert from 'node:assert/strict';
import { readdirSync, readFileSync } from 'node:fs';
import { test } from 'node:test';

import { widgetPrefix } from '../src/backend/site.mjs';
import { endpoints } from '../src/backend/endpoints/index.mjs';
import { Description, valuesOf } from './support/description.mjs';
import { Member } from './support/member.mjs';
import { multipart } from './support/multipart.mjs';
import { Shopper } from './support/shopper.mjs';
import { storeForTests } from './support/store.mjs';

const description = await Description.read();
const { client, catalog, ready } = await storeForTests();
const member = new Member(client, ready);
const shopper = new Shopper(client);
const { supportKey: publicKey } = ready;
const ines = 'ines.marinho@example.com';
const stranger = 'stranger@example.com';

test('the description is one, and its examples are what it says', () => {
  assert.deepEqual(description.errors ?? [], []);
  for (const { path, request, requests, responses } of description.operations) {
    for (const [name, value] of requests) assert.deepEqual(description.problems(request, value), [], `${path}, request "${name}"`);
    for (const [status, { content }] of Object.entries(responses)) {
      const { schema, examples } = content?.['application/json'] ?? {};
      for (const [name, value] of valuesOf(examples)) assert.deepEqual(description.problems(schema, value), [], `${path}, ${status} "${name}"`);
    }
  }
});

test('what is described is served, and what is served or called by the application is described', () => {
  const described = description.operations.map(({ path, method }) => `${method} ${path}`).sort();
  const served = endpoints.flatMap(({ path, methods }) => methods.map((method) => `${method} ${widgetPrefix}${path}`)).sort();
  assert.deepEqual(described, served);
  assert.ok(calledPaths().length > 5, 'calls are found');
  for (const [method, path] of calledPaths()) assert.ok(described.includes(`${method} ${widgetPrefix}${path}`), `${method} ${path}`);
});

test('every example is answered as described', async () => {
  for (const { path, method, type, requests, parameters, responses } of description.operations) {
    const tried = method === 'GET' ? [['query', Object.fromEntries(parameters.map(({ name, example }) => [name, example]))]] : requests;
    assert.ok(tried.length > 0, path);
    for (const [name, example] of tried) {
      await client.control('POST', '/reset');
      const input = await inserted(path, example);
      assertDescribed(await send(path, method, input, type), responses, `${path} "${name}"`, (status) => status < 400);
      assert.deepEqual((await client.control('GET', '/unexpected')).value, []);
    }
  }
});

/** For every code, how to come by it on a path; null stands for all paths that have no way of their own. */
const ways = {
  WIDGET_NOT_FOUND: { null: () => ({ publicKey: 'guess' }) },
  REAUTH: { null: () => ({ appToken: 'x'.repeat(43) }) },
  UNAUTHORIZED: {
    null: () => ({ appToken: undefined }),
    '/app-auth/login': () => ({ password: 'a wrong one' }),
  },
  EMAIL_INVALID: { null: () => ({ email: 'ines@@example.com' }) },
  CODE_INVALID: {
    null: ({ code }) => ({ code: code === '000000' ? '000001' : '000000' }),
    '/app-auth/oauth/exchange': () => ({ verifier: 'v'.repeat(64) }),
  },
  NO_SUCH_CODE: { null: () => ({ email: stranger }) },
  RATE_LIMITED: {
    '/app-auth/request-code': async () => {
      for (let count = 0; count < 5; count += 1) await member.call('/app-auth/request-code', { email: stranger });
      return { email: stranger };
    },
    '/app-auth/login': async () => {
      for (let count = 0; count < 5; count += 1) await member.call('/app-auth/login', { email: ines, password: 'wrong' });
      return {};
    },
    '/message': async () => {
      await client.control('POST', '/stylist', { fail: { path: '/message', status: 429, code: 'RATE_LIMITED' } });
      return {};
    },
  },
  BAD_INPUT: {
    '/app-auth/login': () => ({ password: '' }),
    '/app-auth/set-password': () => ({ password: '12345' }),
    '/app-auth/oauth/exchange': () => ({ verifier: 'short' }),
    '/profile-update': () => ({ birthday: '1991-02-30' }),
    '/tracking': () => ({ number: ' ' }),
    '/alerts-add': () => ({ kind: 'mood' }),
    '/reco': () => ({ limit: 61 }),
    '/pdp-reco': () => ({ handle: '' }),
    '/vessa/reco-rails': () => ({ gender: 'both' }),
    '/search-ai': () => ({ offset: -1 }),
    '/vessa/product-stats': () => ({ handles: 'one,'.repeat(251) }),
    '/brand-stats': () => ({ vendor: '' }),
    '/app-version': () => ({ platform: 'macos' }),
    '/app-version/config': () => ({ platform: 'toaster' }),
    '/app-version/crash-reports': () => ({ count: 0 }),
    '/shopify-checkout/prepare': () => ({ locale: 'english' }),
    '/shopify-checkout/revoke': () => ({ appToken: 7 }),
    '/wishlist-sync': () => ({ items: [{}] }),
    '/notifications': () => ({ cursor: 'none' }),
    '/notifications-read': () => ({ all: undefined, ids: [7] }),
    '/init': () => ({ visitorToken: 7 }),
    '/message': () => ({ body: ' ' }),
    '/size-reco': () => ({ handle: '' }),
    '/weather': () => ({ city: '', latitude: 91 }),
    '/support-message': () => ({ body: ' ' }),
    '/support-upload': () => ({ clientID: '' }),
    '/support-read': () => ({ upTo: 7 }),
    null: () => ({ cc: 'short' }),
  },
  NOT_FOUND: {
    '/app-auth/login': () => ({ email: stranger }),
    '/tracking': () => ({ number: 'LP0' }),
    '/alerts-add': () => ({ handle: 'no-such-piece' }),
    '/alerts-remove': () => ({ id: 'a0' }),
    '/reco': () => ({ kind: 'collection', handle: 'no-such-collection' }),
    '/pdp-reco': () => ({ handle: 'no-such-piece' }),
    '/message': () => ({ visitorToken: 'guess', appToken: undefined }),
    '/size-reco': () => ({ handle: 'no-such-piece' }),
    '/weather': () => ({ city: 'Atlantis' }),
    '/support-init': () => ({ visitorToken: 'guess' }),
    '/support-message': () => ({ visitorToken: 'guess' }),
    '/support-upload': () => ({ visitorToken: 'guess' }),
    '/support-replies': () => ({ visitorToken: 'guess' }),
    '/support-read': () => ({ visitorToken: 'guess' }),
    '/shopify-checkout/prepare': () => ({ cartId: 'gid://shopify/Cart/none?key=none' }),
  },
  TOO_LARGE: { null: () => ({ file: `%PDF${' '.repeat(10 * 1024 * 1024)}` }) },
  UNSUPPORTED_TYPE: { null: () => ({ file: 'Dear Sir or Madam' }) },
  CHECKOUT_AUTH_UNAVAILABLE: { '/shopify-checkout/prepare': () => ({ appToken: undefined }) },
};

test('every failure that is named for a call can be had from it, as described', async () => {
  for (const { path, method, type, requests, parameters, responses } of description.operations) {
    const example = requests.at(-1)?.[1] ?? Object.fromEntries(parameters.map((parameter) => [parameter.name, parameter.example]));
    for (const [status, code] of namedFailures(responses)) {
      await client.control('POST', '/reset');
      const way = ways[code][path.slice(widgetPrefix.length)] ?? ways[code].null;
      assert.ok(way, `a way to ${code} of ${path}`);
      const input = await inserted(path, example);
      const answer = await send(path, method, { ...input, ...(await way(input)) }, type);
      assert.deepEqual([answer.status, answer.json().code], [Number(status), code], path);
      assertDescribed(answer, responses, `${path} ${code}`, () => true);
    }
  }
});

function namedFailures(responses) {
  return Object.entries(responses).filter(([status]) => Number(status) >= 400)
    .flatMap(([status, { content }]) => Object.keys(content?.['application/json']?.examples ?? {}).map((code) => [status, code]));
}

function assertDescribed(answer, responses, context, expected) {
  const { status, headers } = answer;
  assert.ok(expected(status), `${context}: ${status} ${answer.text}`);
  assert.ok(responses[status], `${context}: ${status} is described`);
  const { content, headers: described = {} } = responses[status];
  for (const name of Object.keys(described)) assert.ok(headers[name.toLowerCase()], `${context}: ${name}`);
  if (!content) return;
  const [type] = headers['content-type'].split(';');
  assert.ok(content[type], `${context}: ${type} is described`);
  if (type === 'application/json') assert.deepEqual(description.problems(content[type].schema, answer.json()), [], context);
}

function send(path, method, input, type) {
  if (type === 'multipart/form-data') return sendForm(path, input);
  if (method === 'POST') return client.backend(path, input);
  return client.request(`${ready.supportBase}${path}?${new URLSearchParams(input)}`);
}

function sendForm(path, { file, ...fields }) {
  const { type, body } = multipart(fields, { file: { name: 'file', type: 'application/octet-stream', bytes: Buffer.from(file) } });
  return client.request(`${ready.supportBase}${path}`, { method: 'POST', headers: { 'content-type': type }, body });
}

/** The example with what only this store can know: its key, a session, a code that was sent, a cart. */
async function inserted(path, example) {
  const input = { ...example };
  const withCode = path.endsWith('/login-code') || path.endsWith('/set-password');
  if ('publicKey' in input) input.publicKey = publicKey;
  if ('appToken' in input) input.appToken = (await member.signIn()).token;
  if ('cartId' in input) input.cartId = (await shopper.cart(catalog.piece('odile-tiered-dress').variants[0].id)).id;
  if ('visitorToken' in input) input.visitorToken = (await member.call(path.includes('/support-') ? '/support-init' : '/init')).visitorToken;
  if (withCode) input.code = await member.code(input.email);
  else if (path.endsWith('/exchange')) input.code = (await member.provider('google', { verifier: input.verifier })).get('code');
  else if (path.endsWith('/start') && 'code' in input) input.code = (await member.handOver(await inserted(path, { cartId: '' }))).code;
  return input;
}

/** [method, path] of every call that the application's sources make. */
function calledPaths() {
  const sources = new URL('../../src/', import.meta.url);
  const files = readdirSync(sources, { recursive: true }).filter((name) => name.endsWith('.cpp'));
  const posts = /(?:\.post|\bsignedIn|\bpost|\.upload|\bask)\((?:m_widget,)?\s*QStringLiteral\("(\/[^"]+)"\)/g;
  const reads = /(?:\.|->)get\(\s*QStringLiteral\("(\/[^"]+)"\)/g;
  return files.flatMap((name) => {
    const text = readFileSync(new URL(name, sources), 'utf8');
    return [['POST', posts], ['GET', reads]].flatMap(([method, calls]) => [...text.matchAll(calls)].map(([, path]) => [method, path]));
  });
}
