import assert from 'node:assert/strict';
import { X509Certificate } from 'node:crypto';
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { access, chmod, mkdtemp, readdir, readFile, rm, stat, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, test } from 'node:test';
import { fileURLToPath } from 'node:url';

import { domain, hostNames } from '../src/hosts.mjs';
import { loadCertificates } from '../src/server/certificates.mjs';
import { Client } from './support/client.mjs';

const command = fileURLToPath(new URL('../loomstreet-sandbox', import.meta.url));
const folder = await mkdtemp(join(tmpdir(), 'loomstreet-sandbox-test-'));
const running = new Set();
after(async () => {
  running.forEach((child) => child.kill('SIGKILL'));
  await rm(folder, { recursive: true, force: true });
});

function start(...args) {
  const child = spawn(command, ['--state-dir', join(folder, 'state'), '--pieces', '60', ...args], { stdio: ['ignore', 'pipe', 'pipe'] });
  running.add(child);
  child.once('exit', () => running.delete(child));
  return child;
}

async function firstLine(child) {
  let text = '';
  for await (const chunk of child.stdout) {
    text += chunk;
    if (text.includes('\n')) return text.trim();
  }
  throw new Error('it ended without a word');
}

const gone = (file) => access(file).then(() => false, () => true);

test('the command says when it is ready, serves, and ends cleanly when told to', async () => {
  const file = join(folder, 'ready.json');
  const child = start('--ready-file', file, '--verbose');
  const ready = JSON.parse(await firstLine(child));
  assert.deepEqual(JSON.parse(await readFile(file, 'utf8')), ready);
  assert.deepEqual(Object.keys(ready), ['pid', 'proxy', 'control', 'caFile', 'shopifyDomain', 'storefrontToken', 'supportBase', 'supportKey', 'storeWebURL']);
  assert.equal(ready.pid, child.pid);
  const { shop } = await new Client(ready).data('{ shop { name } }');
  assert.equal(shop.name, 'LOOMSTREET');
  child.kill('SIGTERM');
  assert.deepEqual(await once(child, 'exit'), [0, null]);
  assert.ok(await gone(file));
});

test('it ends with the process that it was started for', async () => {
  const parent = spawn('sleep', ['30']);
  const child = start('--parent-pid', String(parent.pid));
  await firstLine(child);
  parent.kill('SIGKILL');
  assert.deepEqual(await once(child, 'exit'), [0, null]);
});

test('a wrong option or a taken port is one clear line and a failure', async () => {
  const child = start();
  const { control } = JSON.parse(await firstLine(child));
  for (const [args, message] of [
    [['--pieces', 'many'], /--pieces takes a whole number/], [['--colour', 'red'], /--colour/], [['--port', new URL(control).port], /EADDRINUSE/],
  ]) {
    const failing = start(...args);
    const [exit, error] = await Promise.all([once(failing, 'exit'), failing.stderr.toArray()]);
    assert.equal(exit[0], 1);
    assert.match(Buffer.concat(error).toString(), message);
  }
  child.kill('SIGINT');
  assert.deepEqual(await once(child, 'exit'), [0, null]);
});

test('certificates are made once, kept private, and made again only when they no longer serve', async () => {
  const state = join(folder, 'certificates');
  const load = (options) => loadCertificates(state, { domain, hostNames, ...options });
  const [first, second] = await Promise.all([load(), load()]);
  assert.deepEqual(second, first, 'two starts at once agree');
  assert.deepEqual(await load(), first);
  assert.deepEqual(await readdir(state), ['tls'], 'nothing is left lying about');
  for (const key of ['ca.key', 'server.key']) assert.equal((await stat(join(state, 'tls', key))).mode & 0o777, 0o600);
  const leaf = new X509Certificate(first.cert);
  hostNames.forEach((name) => assert.equal(leaf.checkHost(name), name));
  assert.deepEqual(leaf.keyUsage, ['1.3.6.1.5.5.7.3.1'], 'for servers');

  await writeFile(join(state, 'tls', 'server.pem'), 'not a certificate');
  await chmod(join(state, 'tls', 'server.pem'), 0o644);
  assert.ok(new X509Certificate((await load()).cert).checkHost(hostNames[0]));
});
