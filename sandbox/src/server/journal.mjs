const kept = 2000;

/** What was asked of the store, newest last, without query values, tokens or bodies. */
export class Journal {
  #requests = [];
  #unexpected = [];
  #count = 0;

  constructor({ log = null } = {}) {
    this.log = log;
  }

  get requests() {
    return this.#requests;
  }

  /** Requests the store had no answer for: unknown hosts and paths, and documents the schema refuses. */
  get unexpected() {
    return this.#unexpected;
  }

  /** Records a request when it arrives; the status and the duration follow when its answer has gone out. */
  open(exchange) {
    const entry = {
      id: (this.#count += 1),
      time: new Date().toISOString(),
      method: exchange.method,
      host: exchange.host,
      path: hideTokens(exchange.path),
      query: [...new Set(exchange.query.keys())],
      operation: null,
      protocol: exchange.protocol,
      status: null,
      milliseconds: null,
    };
    const started = performance.now();
    append(this.#requests, entry);
    exchange.onClose(() => {
      entry.status = exchange.status;
      entry.milliseconds = Math.round((performance.now() - started) * 10) / 10;
      const { method, host, path, operation, status, milliseconds } = entry;
      this.log?.(`${method} ${host}${path}${operation ? ` ${operation}` : ''} ${status ?? 'dropped'} ${milliseconds} ms`);
    });
    return entry;
  }

  surprise(kind, details) {
    append(this.#unexpected, { time: new Date().toISOString(), kind, ...details });
    this.log?.(`unexpected ${kind}: ${JSON.stringify(details)}`);
  }

  unknownPath(exchange) {
    this.surprise('path', { method: exchange.method, host: exchange.host, path: hideTokens(exchange.path) });
  }

  clear() {
    this.#requests = [];
    this.#unexpected = [];
  }
}

function append(list, entry) {
  list.push(entry);
  if (list.length > kept) list.shift();
}

function hideTokens(path) {
  return path.replace(/^(\/cart\/c|\/checkouts\/[^/]+)\/[^/]+/, '$1/…');
}
