import { readFileSync } from 'node:fs';
import { rename, rm, writeFile } from 'node:fs/promises';

/** Written beside and renamed, so that a reader sees all of it or nothing. */
export async function writeReadyFile(file, ready) {
  const draft = `${file}.${process.pid}`;
  await writeFile(draft, `${JSON.stringify(ready, null, 2)}\n`, { mode: 0o600 });
  await rename(draft, file);
}

export async function removeReadyFile(file) {
  await rm(file, { force: true });
}

/** Calls back once the process is gone. The number may be given to another process, whose start time then differs. */
export function watchParent(pid, onGone, interval = 1000) {
  const born = startTime(pid);
  const timer = setInterval(() => {
    if (isAlive(pid) && startTime(pid) === born) return;
    clearInterval(timer);
    onGone();
  }, interval);
  timer.unref();
  return timer;
}

function isAlive(pid) {
  try {
    process.kill(pid, 0);
    return true;
  } catch (error) {
    return error.code === 'EPERM';
  }
}

/** A zombie counts as gone: nobody is left in it to shop. */
function startTime(pid) {
  try {
    const fields = readFileSync(`/proc/${pid}/stat`, 'utf8').replace(/^.*\)/s, '').trim().split(' ');
    return fields[0] === 'Z' ? 'gone' : fields[19];
  } catch {
    return null;
  }
}
