import { Buffer } from 'node:buffer';
import { pipeline } from 'node:stream/promises';

export class BadRequest extends Error {
  constructor(message, status = 400) {
    super(message);
    this.status = status;
  }
}

/**
 * One request and the answer to it, the same for HTTP/1.1 and HTTP/2. Sites only see this class; faults change here
 * how an answer goes out.
 */
export class Exchange {
  #req;
  #res;
  #body = null;
  #dropped = false;

  /** Set by a fault: the answer leaves with status 200 and only half of its bytes. */
  truncated = false;
  /** The name of the GraphQL operation or of the step of checkout, for the log and for faults. */
  operation = null;

  constructor(req, res) {
    this.#req = req;
    this.#res = res;
    this.method = req.method;
    this.headers = req.headers;
    this.protocol = req.httpVersionMajor >= 2 ? 'h2' : 'http/1.1';
    this.host = String(req.headers[':authority'] ?? req.headers.host ?? '').replace(/:443$/, '').toLowerCase();
    const url = new URL(`https://store.invalid${req.url.startsWith('/') ? '' : '/'}${req.url}`);
    this.path = url.pathname;
    this.query = url.searchParams;
  }

  get status() {
    return this.#res.headersSent ? this.#res.statusCode : null;
  }

  /** The decoded parts of the path. */
  get segments() {
    try {
      return this.path.split('/').slice(1).map(decodeURIComponent);
    } catch {
      throw new BadRequest('the path is not well encoded');
    }
  }

  get finished() {
    return this.#dropped || this.#res.writableEnded || this.#res.destroyed || this.#res.stream?.destroyed === true;
  }

  /** The whole body as bytes; a body above the limit is refused. */
  body(limit = 1 << 20) {
    this.#body ??= readAll(this.#req, limit);
    return this.#body;
  }

  async json() {
    const text = (await this.body()).toString('utf8');
    try {
      return JSON.parse(text);
    } catch {
      throw new BadRequest('the body is not JSON');
    }
  }

  /** The fields of a form that a page sent; of two with one name, the last. */
  async form() {
    return Object.fromEntries(new URLSearchParams((await this.body()).toString('utf8')));
  }

  reply(status, headers, body = '') {
    if (this.finished) return;
    const bytes = this.#begin(status, headers, Buffer.isBuffer(body) ? body : Buffer.from(body));
    this.#res.end(this.method === 'HEAD' ? undefined : bytes);
  }

  /** Sends the bytes of a file in the pieces that the function gives of them, as fast as the caller takes them. */
  async pour(status, headers, file, pieces) {
    if (this.finished) return;
    const bytes = this.#begin(status, headers, file);
    if (this.method === 'HEAD') this.#res.end();
    else await pipeline(pieces(bytes), this.#res).catch(() => {}); // somebody hung up
  }

  sendJson(status, value, headers = {}) {
    this.reply(status, { 'content-type': 'application/json; charset=utf-8', 'cache-control': 'no-store', ...headers },
      JSON.stringify(value));
  }

  sendHtml(status, markup, headers = {}) {
    this.reply(status, { 'content-type': 'text/html; charset=utf-8', 'cache-control': 'no-cache', ...headers }, markup);
  }

  /** Sends the beginning of an answer whose rest never comes; the function it returns cuts it off. */
  begin(status, headers, part) {
    this.#res.writeHead(status, headers);
    this.#res.write(part);
    return () => this.#res.end();
  }

  redirect(location, status = 302) {
    this.reply(status, { location, 'cache-control': 'no-store' });
  }

  /** Ends the whole connection, as a cable pulled out would. */
  drop() {
    const socket = this.#req.stream?.session ?? this.#req.socket;
    this.#dropped = true;
    socket.destroy();
  }

  onClose(listener) {
    this.#res.once('close', listener);
  }

  /** The head of an answer; gives the bytes that are to follow, which are fewer where a fault wants that. */
  #begin(status, headers, whole) {
    const bytes = this.truncated ? whole.subarray(0, whole.length >> 1) : whole;
    this.#res.writeHead(this.truncated ? 200 : status, { ...headers, 'content-length': bytes.length });
    return bytes;
  }
}

async function readAll(stream, limit) {
  const chunks = [];
  let size = 0;
  for await (const chunk of stream) {
    size += chunk.length;
    if (size > limit) throw new BadRequest(`the body is larger than ${limit} bytes`, 413);
    chunks.push(chunk);
  }
  return Buffer.concat(chunks);
}
