import assert from 'node:assert/strict';
import { beforeEach, test } from 'node:test';

import { Member } from './support/member.mjs';
import { storeForTests } from './support/store.mjs';

let time = Date.parse('2026-11-21T20:00:00Z');
const said = [];
const logged = [];
const { client, ready } = await storeForTests({ now: () => time, announce: (line) => said.push(line), log: (line) => logged.push(line) });
const member = new Member(client, ready);
const minute = 60 * 1000;
const email = 'mara.okafor@example.com';
const settings = async (wanted) => (await client.control('POST', '/auth', wanted)).status;

beforeEach(async () => {
  said.length = 0;
  await client.control('POST', '/reset');
});

const outcome = async (path, body) => {
  const { status, code } = await member.call(path, body);
  return code ?? status;
};

test('a code is said once, works once, for ten minutes, and survives four wrong tries', async () => {
  const code = await member.code(email);
  assert.deepEqual(said, [`code for ${email}: ${code}`]);
  const wrong = code === '000000' ? '000001' : '000000';
  for (let tries = 0; tries < 4; tries += 1) assert.equal(await outcome('/app-auth/login-code', { email, code: wrong }), 'CODE_INVALID');
  const { token, customer } = await member.call('/app-auth/login-code', { email: email.toUpperCase(), code });
  assert.match(token, /^[A-Za-z0-9_-]{43}$/);
  assert.deepEqual([customer.email, customer.name], [email, '']);
  assert.equal(await outcome('/app-auth/login-code', { email, code }), 'NO_SUCH_CODE', 'it was used');

  const tried = await member.code(email);
  for (let tries = 0; tries < 5; tries += 1) await outcome('/app-auth/login-code', { email, code: wrong });
  assert.equal(await outcome('/app-auth/login-code', { email, code: tried }), 'NO_SUCH_CODE', 'five tries are over');
  const late = await member.code(email);
  time += 10 * minute;
  assert.equal(await outcome('/app-auth/login-code', { email, code: late }), 'NO_SUCH_CODE', 'ten minutes are over');
});

test('a sixth request within a minute is one too many, for its own address only', async () => {
  for (let count = 0; count < 5; count += 1) assert.equal(await outcome('/app-auth/request-code', { email }), 200);
  assert.equal(await outcome('/app-auth/request-code', { email }), 'RATE_LIMITED');
  assert.equal(await outcome('/app-auth/request-code', { email: `x${email}` }), 200);
  time += minute;
  assert.equal(await outcome('/app-auth/request-code', { email }), 200);
});

test('addresses that are none are refused before anything is said', async () => {
  for (const wrong of ['', 'mara', 'mara@example', 'a@b@c.example', 'mara okafor@example.com', 'mara\u001b[2J@example.com', `${'m'.repeat(10000)}@example.com`, 7, null]) {
    assert.equal(await outcome('/app-auth/request-code', { email: wrong }), 'EMAIL_INVALID', String(wrong).slice(0, 40));
  }
  assert.deepEqual(said, []);
});

test('a password makes an account, is replaced with a code, and a refused one spends no code', async () => {
  const code = await member.code(email);
  assert.equal(await outcome('/app-auth/set-password', { email, code, password: '12345' }), 'BAD_INPUT');
  assert.equal(await outcome('/app-auth/set-password', { email, code, password: 'weaver', name: ' Mara Okafor ' }), 200);
  assert.equal((await member.signIn(email, 'weaver')).customer.name, 'Mara Okafor');
  assert.equal(await outcome('/app-auth/set-password', { email, code: await member.code(email), password: 'spinner', name: '' }), 200);
  assert.equal((await member.signIn(email, 'weaver')).code, 'UNAUTHORIZED');
  assert.equal((await member.signIn(email, 'spinner')).customer.name, 'Mara Okafor');
});

test('a session ends by time, by revocation, on demand and with its account', async () => {
  const session = async () => (await member.signIn()).token;
  const state = (appToken) => outcome('/profile', { appToken });
  const [old, revoked, kept, third] = [await session(), await session(), await session(), await session()];
  assert.equal(await state(kept), 200);
  assert.equal(await outcome('/shopify-checkout/revoke', { appToken: revoked }), 'OK');
  assert.deepEqual([await state(revoked), await state(old), await state(undefined)], ['REAUTH', 200, 'UNAUTHORIZED']);
  assert.equal(await outcome('/tracking', { appToken: revoked, number: 'LST10482' }), 'REAUTH', 'where guests are welcome too');
  assert.equal(await outcome('/app-auth/delete', { appToken: kept }), 200);
  assert.deepEqual([await state(kept), await state(third)], ['REAUTH', 'REAUTH']);
  await member.call('/app-auth/login-code', { email: 'ines.marinho@example.com', code: await member.code('ines.marinho@example.com') });
  const { value } = await client.control('GET', '/accounts');
  assert.equal(value.find((account) => account.email === 'ines.marinho@example.com').orders, 0, 'a new account has nothing of the old one');

  await client.control('POST', '/reset');
  const expired = await session();
  await settings({ expireTokens: true });
  assert.equal(await state(expired), 'REAUTH');
  const aged = await session();
  time += 61 * 24 * 60 * minute;
  assert.equal(await state(aged), 'REAUTH');
});

test('a provider’s page leads back with a code that only the right verifier opens, once and soon', async () => {
  const verifier = 'dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk';
  assert.equal(await member.provider('apple', { choice: null }), null, 'the page comes first');
  const exchange = (code, own = verifier) => member.call('/app-auth/oauth/exchange', { code, verifier: own });
  const callback = await member.provider('google', { verifier, state: 'abc' });
  assert.equal(callback.get('state'), 'abc');
  const { token, email: address, name } = await exchange(callback.get('code'));
  assert.deepEqual([address, name, await outcome('/profile', { appToken: token })], ['ines.marinho@example.com', 'Ines Marinho', 200]);
  assert.equal((await exchange(callback.get('code'))).code, 'CODE_INVALID', 'it was used');
  const caught = (await member.provider('google', { verifier })).get('code');
  assert.equal((await exchange(caught, 'w'.repeat(43))).code, 'CODE_INVALID', 'another’s verifier');
  assert.equal((await exchange(caught)).code, 'CODE_INVALID', 'which spent it');
  const late = (await member.provider('facebook', { verifier, choice: 'another' })).get('code');
  time += minute;
  assert.equal((await exchange(late)).code, 'CODE_INVALID', 'a minute is over');
});

test('a provider fails in every way an application has to tell apart', async () => {
  const answer = async (wanted, choice = 'ines') => {
    await client.control('DELETE', '/auth');
    assert.equal(await settings(wanted), 200);
    return (await member.provider('google', { state: 'abc', choice })) ?? 'page';
  };
  assert.equal(String(await answer({}, 'cancel')), 'error=cancelled&state=abc');
  assert.equal(String(await answer({ error: 'not_configured' })), 'error=not_configured&state=abc');
  assert.equal(await answer({}, null), 'page');
  assert.match(String(await answer({ page: false }, null)), /^code=[\w-]+&state=abc$/);
  assert.match((await answer({ state: 'wrong' })).get('state'), /^(?!abc$)[\w-]{24}$/);
  assert.equal((await answer({ state: 'missing' })).has('state'), false);
  assert.deepEqual((await answer({ state: 'repeated' })).getAll('state'), ['abc', 'abc']);
  assert.equal((await answer({ code: 'missing' })).has('code'), false);
  assert.equal((await member.call('/app-auth/oauth/exchange', { code: (await answer({ code: 'unknown' })).get('code'), verifier: 'v'.repeat(64) })).code, 'CODE_INVALID');
  assert.equal(await settings({ mood: 'bad' }), 400);
});

test('any call fails on demand, once or always, and a slow store is slow', async () => {
  await settings({ fail: { path: '/app-auth/login', status: 503, code: 'OUT', times: 1 } });
  assert.deepEqual([(await member.signIn()).status, (await member.signIn()).status], [503, 200]);
  await settings({ fail: { path: '/orders', status: 401, code: 'REAUTH' } });
  for (let count = 0; count < 3; count += 1) assert.equal(await outcome('/orders'), 'REAUTH');
  await settings({ delay: 40 });
  await settings({ delay: 30 });
  assert.deepEqual((await client.control('GET', '/faults')).value.map(({ kind }) => kind), ['status', 'status', 'delay']);
});

test('nothing secret comes into the log or the record of requests', async () => {
  logged.length = 0;
  const code = await member.code(email);
  const { token } = await member.call('/app-auth/set-password', { email, code, password: 'weaver-secret' });
  const callback = await member.provider('google', { state: 'secret-state' });
  await member.call('/profile', { appToken: token });
  const record = JSON.stringify((await client.control('GET', '/requests')).value) + logged.join('\n');
  assert.match(record, /login|profile/);
  for (const secret of [email, code, 'weaver-secret', token, callback.get('code'), 'secret-state']) assert.ok(!record.includes(secret), secret);
});
