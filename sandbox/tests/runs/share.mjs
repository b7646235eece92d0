import { readdirSync } from 'node:fs';

const folder = new URL('../', import.meta.url);
/** It starts processes of its own and comes by itself. */
const alone = 'command.test.mjs';

/** Loads every second test file into this process, where they share one store: starting one for each took longest. */
export async function loadShare(first) {
  const files = readdirSync(folder).filter((name) => name.endsWith('.test.mjs') && name !== alone).sort();
  for (const name of files.filter((_, place) => place % 2 === first)) await import(new URL(name, folder));
}
