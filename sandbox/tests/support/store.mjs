import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, beforeEach } from 'node:test';

import { startStore } from '../../src/store.mjs';
import { Client } from './client.mjs';

let shared = null;

/**
 * The store that the test files of one process share, as if it had just been started for each test. A file that wants
 * other options gets a store of its own, and brings that back to its beginning by itself.
 */
export async function storeForTests(options) {
  if (options) return openStore(options);
  shared ??= openStore({}).then((store) => {
    beforeEach(() => store.client.control('POST', '/reset'));
    return store;
  });
  return shared;
}

/** A store with a state folder; both are gone when all tests of the process are over. */
async function openStore(options) {
  const stateDir = await mkdtemp(join(tmpdir(), 'loomstreet-sandbox-test-'));
  const store = await startStore({ stateDir, pieces: 160, ...options });
  after(async () => {
    await store.close();
    await rm(stateDir, { recursive: true, force: true });
  });
  return { ...store, stateDir, client: new Client(store.ready) };
}
