export const faultKinds = ['status', 'throttled', 'drop', 'stall', 'malformed', 'delay'];

export class FaultError extends Error {}

/** Failures asked for through the control port, applied to requests before a site sees them. */
export class Faults {
  #active = new Map();
  #count = 0;

  add(wanted) {
    const fault = checked(wanted);
    fault.id = `f${(this.#count += 1)}`;
    this.#active.set(fault.id, fault);
    return fault.id;
  }

  list() {
    return [...this.#active.values()].map(({ id, match, kind, left, hits }) => (
      { id, match, kind, left: Number.isFinite(left) ? left : null, hits }
    ));
  }

  remove(id) {
    const fault = this.#active.get(id);
    if (!fault) return false;
    this.#active.delete(id);
    for (const release of fault.held) release();
    return true;
  }

  clear() {
    for (const id of [...this.#active.keys()]) this.remove(id);
  }

  /** Applies what matches the exchange, oldest first. Resolves to true when a fault has answered it. */
  async apply(exchange, { storefront }) {
    for (const fault of [...this.#active.values()]) {
      if (fault.left <= 0 || !matches(fault.match, exchange)) continue;
      fault.left -= 1;
      fault.hits += 1;
      if (await this.#strike(fault, exchange, storefront)) return true;
    }
    return false;
  }

  async #strike(fault, exchange, storefront) {
    switch (fault.kind) {
      case 'delay':
        await wait(fault.delayMs, exchange);
        return exchange.finished;
      case 'stall':
        await hold(fault, exchange);
        return exchange.finished;
      case 'drop':
        exchange.drop();
        return true;
      case 'malformed':
        exchange.truncated = true;
        return false;
      case 'throttled':
        if (storefront) {
          exchange.sendJson(200, { errors: [{ message: 'Throttled', extensions: { code: 'THROTTLED' } }] });
        } else {
          exchange.sendJson(429, { code: 'RATE_LIMITED', message: 'Too many requests' });
        }
        return true;
      default:
        answerStatus(fault, exchange);
        return true;
    }
  }
}

function checked(wanted) {
  if (wanted === null || typeof wanted !== 'object') throw new FaultError('a fault is a JSON object');
  const { match = {}, kind, status = 500, body, delayMs = 1000, times } = wanted;
  if (!faultKinds.includes(kind)) throw new FaultError(`kind is one of ${faultKinds.join(', ')}`);
  for (const [key, value] of Object.entries(match)) {
    if (!['host', 'path', 'operation'].includes(key)) throw new FaultError(`match knows no "${key}"`);
    if (typeof value !== 'string') throw new FaultError(`match.${key} is text`);
  }
  if (!Number.isInteger(status) || status < 200 || status > 599) throw new FaultError('status is from 200 to 599');
  if (!(delayMs >= 0 && delayMs <= 600000)) throw new FaultError('delayMs is from 0 to 600000');
  if (times !== undefined && !(Number.isInteger(times) && times > 0)) throw new FaultError('times is above 0');
  return { match, kind, status, body, delayMs, left: times ?? Infinity, hits: 0, held: new Set() };
}

/** A path ending in "*" stands for everything that starts with the rest. */
function matches({ host, path, operation }, exchange) {
  if (host !== undefined && host.toLowerCase() !== exchange.host) return false;
  if (operation !== undefined && operation !== exchange.operation) return false;
  if (path === undefined) return true;
  return path.endsWith('*') ? exchange.path.startsWith(path.slice(0, -1)) : exchange.path === path;
}

function answerStatus({ status, body }, exchange) {
  if (typeof body === 'string') exchange.reply(status, { 'content-type': 'text/plain; charset=utf-8' }, body);
  else exchange.sendJson(status, body ?? {});
}

/** Waits, but not for a caller who is gone. */
export function wait(milliseconds, exchange) {
  return new Promise((resolve) => {
    const timer = setTimeout(resolve, milliseconds);
    exchange.onClose(() => {
      clearTimeout(timer);
      resolve();
    });
  });
}

function hold(fault, exchange) {
  return new Promise((resolve) => {
    const release = () => {
      fault.held.delete(release);
      resolve();
    };
    fault.held.add(release);
    exchange.onClose(release);
  });
}
