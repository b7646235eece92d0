import { createHash } from 'node:crypto';
import { mkdir, readdir, readFile, rename, rm, stat, writeFile } from 'node:fs/promises';
import { join } from 'node:path';

import { closeSize, draw } from './drawing.mjs';

const memoryLimit = 24 * 1024 * 1024;
const diskLimit = 256 * 1024 * 1024;
const version = 1;

/**
 * Renders pictures and remembers them, in memory and in a folder that outlives the process. Two renders run at a time;
 * the rendering library is loaded with the first one, so that a warm start never pays for it.
 */
export class Studio {
  #folder;
  #memory = new Map();
  #memorySize = 0;
  #pending = new Map();
  #queue = [];
  #running = 0;
  #written = 0;

  constructor(folder) {
    this.#folder = folder;
  }

  /** {bytes, etag, type} of a view at a width, as JPEG or WebP. */
  picture(view, width, format) {
    const key = keyOf(view, width, format);
    const known = this.#memory.get(key);
    if (known) {
      this.#memory.delete(key);
      this.#memory.set(key, known);
      return known;
    }
    if (!this.#pending.has(key)) {
      const work = this.#fetch(key, view, width, format).finally(() => this.#pending.delete(key));
      this.#pending.set(key, work);
    }
    return this.#pending.get(key);
  }

  async #fetch(key, view, width, format) {
    const file = join(this.#folder, `${key}.${format}`);
    let bytes = await readFile(file).catch(() => null);
    if (!bytes) {
      bytes = await this.#inTurn(() => render(view, width, format));
      await this.#save(file, bytes);
    }
    const digest = createHash('sha1').update(bytes).digest('hex').slice(0, 20);
    return this.#remember(key, { bytes, type: `image/${format}`, etag: `"${digest}"` });
  }

  #remember(key, picture) {
    this.#memory.set(key, picture);
    this.#memorySize += picture.bytes.length;
    for (const [oldest, { bytes }] of this.#memory) {
      if (this.#memorySize <= memoryLimit || oldest === key) break;
      this.#memory.delete(oldest);
      this.#memorySize -= bytes.length;
    }
    return picture;
  }

  async #inTurn(work) {
    if (this.#running >= 2) await new Promise((resolve) => this.#queue.push(resolve));
    this.#running += 1;
    try {
      return await work();
    } finally {
      this.#running -= 1;
      this.#queue.shift()?.();
    }
  }

  async #save(file, bytes) {
    const draft = `${file}.${process.pid}`;
    try {
      await mkdir(this.#folder, { recursive: true });
      await writeFile(draft, bytes);
      await rename(draft, file);
      this.#written += 1;
      if (this.#written % 500 === 0) await prune(this.#folder);
    } catch {
      // A folder that cannot be written to costs speed, nothing else.
      await rm(draft, { force: true }).catch(() => {});
    }
  }
}

function keyOf({ drawing, colour, ground, shape, crop, length = 100, plain }, width, format) {
  const cut = `${crop ? 'crop' : 'full'}${length}${plain ? 'plain' : ''}`;
  return `v${version}-${drawing}-${colour}-${ground}-${shape}-${cut}-${width}-${format}`;
}

let library = null;

async function render(view, width, format) {
  library ??= import('sharp').then(({ default: sharp }) => {
    sharp.cache(false);
    sharp.concurrency(1);
    return sharp;
  });
  const sharp = await library;
  const height = Math.round((width * 4) / 3);
  const [viewWidth, viewHeight] = view.crop ? closeSize : [600, 800];
  const density = Math.max(1, (72 * width) / viewWidth);
  const svg = draw(view).replace('<svg ', `<svg width="${viewWidth}" height="${viewHeight}" `);
  const image = sharp(Buffer.from(svg), { density }).resize(width, height, { fit: 'fill' });
  return format === 'webp'
    ? image.webp({ quality: 88, effort: 2 }).toBuffer()
    : image.flatten().jpeg({ quality: 88, chromaSubsampling: '4:4:4' }).toBuffer();
}

/** Drops the oldest pictures when the folder has grown too large. */
async function prune(folder) {
  const files = await Promise.all((await readdir(folder)).map(async (name) => {
    const { size, mtimeMs } = await stat(join(folder, name));
    return { name, size, mtimeMs };
  }));
  let size = files.reduce((sum, file) => sum + file.size, 0);
  for (const file of files.sort((one, other) => one.mtimeMs - other.mtimeMs)) {
    if (size <= diskLimit) return;
    await rm(join(folder, file.name), { force: true });
    size -= file.size;
  }
}
