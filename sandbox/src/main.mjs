import { removeReadyFile, watchParent, writeReadyFile } from './lifecycle.mjs';
import { helpText, OptionError, readOptions } from './options.mjs';

const options = optionsOrExit();
if (options.help) process.stdout.write(helpText);
else await run(options);

async function run({ readyFile, parentPid, verbose, ...settings }) {
  const announce = (line) => process.stderr.write(`${line}\n`);
  const log = verbose ? announce : null;
  const { startStore } = await import('./store.mjs').catch(explainMissingModules);
  const store = await startStore({ ...settings, log, announce }).catch((error) => fail(error.message));

  let ending = false;
  const end = async () => {
    if (ending) return;
    ending = true;
    setTimeout(() => process.exit(0), 2000).unref();
    if (readyFile) await removeReadyFile(readyFile);
    await store.close();
    process.exit(0);
  };
  process.on('SIGTERM', end);
  process.on('SIGINT', end);
  if (parentPid) watchParent(parentPid, end);

  if (readyFile) await writeReadyFile(readyFile, store.ready).catch((error) => fail(error.message));
  process.stdout.write(`${JSON.stringify(store.ready)}\n`);
}

function optionsOrExit() {
  try {
    return readOptions(process.argv.slice(2));
  } catch (error) {
    if (!(error instanceof OptionError)) throw error;
    return fail(`${error.message}\nTry --help.`);
  }
}

function explainMissingModules(error) {
  if (error.code === 'ERR_MODULE_NOT_FOUND' && error.message.startsWith('Cannot find package')) {
    return fail('the modules of the sandbox store are not installed; run "npm ci" in its folder');
  }
  throw error;
}

function fail(message) {
  process.stderr.write(`loomstreet-sandbox: ${message}\n`);
  process.exit(1);
}
