import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after } from 'node:test';

import { startStore } from '../../src/store.mjs';
import { Client } from './client.mjs';

/** A store for one test file, with a state folder of its own; both are gone when the file's tests are over. */
export async function storeForTests(options = {}) {
  const stateDir = await mkdtemp(join(tmpdir(), 'loomstreet-sandbox-test-'));
  const store = await startStore({ stateDir, pieces: 160, ...options });
  after(async () => {
    await store.close();
    await rm(stateDir, { recursive: true, force: true });
  });
  return { ...store, stateDir, client: new Client(store.ready) };
}
