const longCache = 'public, max-age=31536000, immutable';
const widths = { least: 16, most: 2400, usual: 1200 };

/**
 * The picture host: /pieces/<handle>/<n>.jpg, as wide as &width asks, as WebP for those who accept it. The web pages
 * serve the same pictures below /pictures/ of their own host.
 */
export class PictureSite {
  #catalog;
  #studio;
  #journal;

  constructor({ catalog, studio, journal }) {
    this.#catalog = catalog;
    this.#studio = studio;
    this.#journal = journal;
  }

  /** Pictures are asked for at one width or another, which is worth knowing of a request. */
  identify(exchange) {
    exchange.operation = `Picture ${Number.parseInt(exchange.query.get('width'), 10) || 'of any width'}`;
  }

  async handle(exchange) {
    const [root, handle, file, ...rest] = exchange.segments;
    const number = /^(\d+)\.jpg$/.exec(file ?? '')?.[1];
    if ((root !== 'pieces' && root !== 'pictures') || !number || rest.length > 0) {
      this.#journal.unknownPath(exchange);
      exchange.reply(404, { 'content-type': 'text/plain' }, 'Not found\n');
      return;
    }
    if (exchange.method !== 'GET' && exchange.method !== 'HEAD') {
      exchange.reply(405, { allow: 'GET, HEAD' });
      return;
    }
    const image = this.#catalog.piece(handle)?.images.find((candidate) => candidate.number === Number(number));
    if (!image || image.flaw === 'missing') {
      exchange.reply(404, { 'content-type': 'text/plain', 'cache-control': 'no-store' }, 'No such picture\n');
    } else if (image.flaw === 'broken') {
      exchange.reply(200, { 'content-type': 'image/jpeg', 'cache-control': longCache }, brokenBytes);
    } else {
      await this.#send(exchange, image.view);
    }
  }

  async #send(exchange, view) {
    const format = /\bimage\/webp\b/.test(exchange.headers.accept ?? '') ? 'webp' : 'jpeg';
    const { bytes, etag, type } = await this.#studio.picture(view, widthOf(exchange.query.get('width')), format);
    const headers = { 'cache-control': longCache, etag, vary: 'Accept' };
    if (exchange.headers['if-none-match'] === etag) exchange.reply(304, headers);
    else exchange.reply(200, { 'content-type': type, ...headers }, bytes);
  }
}

/** Starts as a JPEG does and goes on as nothing does. */
const brokenBytes = Buffer.concat([Buffer.from([0xff, 0xd8, 0xff, 0xe0, 0x00, 0x10]), Buffer.from('JFIF and then the line went dead')]);

function widthOf(text) {
  const width = Number.parseInt(text ?? '', 10);
  return Number.isNaN(width) ? widths.usual : Math.min(widths.most, Math.max(widths.least, width));
}
