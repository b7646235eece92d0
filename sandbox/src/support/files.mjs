import { randomBytes } from 'node:crypto';

import sharp from 'sharp';

import { hosts } from '../hosts.mjs';

export const fileLimit = 10 * 1024 * 1024;
const prefix = '/support-files/';
const mostKept = 200;

/** What a file begins with decides what it is, whatever it is called. */
const kinds = [
  ['image/jpeg', (bytes) => bytes.subarray(0, 3).equals(Buffer.from([0xff, 0xd8, 0xff]))],
  ['image/png', (bytes) => bytes.subarray(0, 8).equals(Buffer.from('\x89PNG\r\n\x1a\n', 'latin1'))],
  ['image/gif', (bytes) => /^GIF8[79]a$/.test(bytes.toString('latin1', 0, 6))],
  ['image/webp', (bytes) => bytes.toString('latin1', 0, 4) === 'RIFF' && bytes.toString('latin1', 8, 12) === 'WEBP'],
  ['application/pdf', (bytes) => bytes.toString('latin1', 0, 5) === '%PDF-'],
];

/** The files that shoppers attach, served again below addresses that nobody can guess. */
export class SupportFiles {
  #files = new Map();

  /** An attachment as messages carry it; null for a file that is neither a picture nor a PDF. */
  async keep({ fileName, bytes }) {
    const [mimeType] = kinds.find(([, holds]) => holds(bytes)) ?? [];
    if (!mimeType) return null;
    const path = `${prefix}${randomBytes(18).toString('base64url')}`;
    this.#files.set(path, { mimeType, bytes: Buffer.from(bytes) });
    if (this.#files.size > mostKept) this.#files.delete(this.#files.keys().next().value);
    const { width, height } = mimeType.startsWith('image/') ? await sharp(bytes).metadata().catch(() => ({})) : {};
    const name = fileName.trim() || 'file';
    return { url: `https://${hosts.service}${path}`, name, mimeType, ...(width && height ? { width, height } : {}) };
  }

  takes(exchange) {
    return exchange.path.startsWith(prefix);
  }

  send(exchange) {
    const file = this.#files.get(exchange.path);
    const headers = { 'x-content-type-options': 'nosniff', 'cache-control': 'private, no-store' };
    if (file && ['GET', 'HEAD'].includes(exchange.method)) exchange.reply(200, { 'content-type': file.mimeType, ...headers }, file.bytes);
    else exchange.reply(404, { 'content-type': 'text/plain', 'cache-control': 'no-store' }, 'No such file\n');
  }

  clear() {
    this.#files.clear();
  }
}
