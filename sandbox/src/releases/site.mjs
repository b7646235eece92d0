import { setTimeout as sleep } from 'node:timers/promises';

const usualPiece = 1 << 16;
/** What was sent before a connection is lost arrives, as long as it is given a moment. */
const parting = 50;

/** Images of releases and their signatures, with single ranges as RFC 9110 has them. */
export class ReleaseSite {
  #releases;
  #journal;

  constructor({ releases, journal }) {
    this.#releases = releases;
    this.#journal = journal;
  }

  takes(exchange) {
    return this.#releases.takes(exchange);
  }

  identify(exchange) {
    if (this.takes(exchange)) exchange.operation = exchange.path.endsWith('.minisig') ? 'ReleaseSignature' : 'ReleaseImage';
  }

  async handle(exchange) {
    if (exchange.method !== 'GET' && exchange.method !== 'HEAD') {
      exchange.reply(405, { allow: 'GET, HEAD' });
      return;
    }
    const found = this.#releases.at(exchange.path);
    if (found) {
      await this.#send(exchange, found);
    } else {
      if (!exchange.path.startsWith(`${this.#releases.path}.`)) this.#journal.unknownPath(exchange);
      exchange.reply(404, { 'content-type': 'text/plain', 'cache-control': 'no-store' }, 'No such file\n');
    }
  }

  async #send(exchange, { kind, bytes, tag }) {
    const { range, 'if-range': ifRange } = exchange.headers;
    const isImage = kind === 'image';
    const { ranges } = this.#releases.values;
    const headers = {
      'content-type': isImage ? 'application/octet-stream' : 'text/plain; charset=utf-8',
      ...(ranges ? { 'accept-ranges': 'bytes' } : {}), ...(tag ? { etag: tag } : {}),
    };
    // A weak tag promises nothing of the bytes.
    const stillMeant = ifRange === undefined || (ifRange === tag && !tag.startsWith('W/'));
    const wanted = ranges && stillMeant ? rangeIn(range, bytes.length) : null;
    const note = { time: new Date().toISOString(), kind, range: range ?? null, ifRange: ifRange ?? null, status: 200, bytes: 0 };
    this.#releases.noteDownload(note);
    if (wanted === 'outside') {
      note.status = 416;
      exchange.reply(416, { ...headers, 'content-range': `bytes */${bytes.length}` });
      return;
    }
    const part = wanted ? bytes.subarray(wanted.first, wanted.last + 1) : bytes;
    if (wanted) {
      note.status = 206;
      headers['content-range'] = `bytes ${wanted.first}-${wanted.last}/${bytes.length}`;
    }
    await exchange.pour(note.status, headers, part, (whole) => this.#pieces(exchange, whole, isImage, note));
  }

  async* #pieces(exchange, bytes, isImage, note) {
    const { speed, stall } = isImage ? this.#releases.values : {};
    const cut = isImage ? this.#releases.takeCut(bytes.length) : null;
    const piece = speed ? Math.ceil(speed / 20) : usualPiece;
    const stops = [cut, stall].filter((stop) => (stop ?? null) !== null);
    for (let at = 0; at < bytes.length;) {
      if (at === cut) {
        await sleep(parting);
        exchange.drop();
        return;
      }
      if (at === stall && this.#releases.values.stall === stall) await this.#releases.hold(exchange);
      else if (speed && at > 0) await sleep((1000 * piece) / speed);
      const end = Math.min(at + piece, bytes.length, ...stops.filter((stop) => stop > at));
      note.bytes += end - at;
      yield bytes.subarray(at, end);
      at = end;
    }
  }
}

/** {first, last} of one range of bytes; null where the whole file is the answer, "outside" where nothing is. */
function rangeIn(text, size) {
  const [, from, to] = /^bytes=(\d*)-(\d*)$/.exec(text ?? '') ?? [];
  if (from === undefined || (from === '' && to === '')) return null;
  if (from === '') return Number(to) === 0 ? 'outside' : { first: Math.max(0, size - Number(to)), last: size - 1 };
  if (to !== '' && Number(to) < Number(from)) return null;
  if (Number(from) >= size) return 'outside';
  return { first: Number(from), last: to === '' ? size - 1 : Math.min(Number(to), size - 1) };
}
