import { createHash } from 'node:crypto';
import { existsSync, readFileSync, statSync } from 'node:fs';
import { basename, isAbsolute } from 'node:path';

import { hosts } from '../hosts.mjs';
import { oneOf, Settings } from '../settings.mjs';
import { hostileNames, hostileRecord } from './hostile.mjs';
import { makeSignature, signatureKinds } from './signatures.mjs';

const prefix = '/releases/';
const largest = 2 ** 30;
const keptDownloads = 50;

const defaults = {
  image: null, replacement: null, signature: 'own',
  version: '0.1.0', build: null, min: null, notes: null, rollout: null, url: 'own', sha256: 'own', size: 'own', record: 'own', hostile: [],
  cut: null, cuts: null, stall: null, speed: null, ranges: true, tag: 'strong',
};

const anything = [() => true, 'any value'];
const fileOrNull = [(value) => value === null || isImage(value), 'null or the whole path of a file of at most 1 GiB'];
const numberFrom = (least) => [(value) => value === null || (Number.isInteger(value) && value >= least), `null or a number from ${least}`];
const checks = {
  ...Object.fromEntries(['version', 'build', 'min', 'notes', 'rollout', 'url', 'sha256', 'size', 'record'].map((name) => [name, anything])),
  image: fileOrNull,
  replacement: fileOrNull,
  signature: [(value) => signatureKinds.includes(value) || isImage(value), `one of ${signatureKinds.join(', ')}, or the whole path of a file`],
  hostile: [(value) => Array.isArray(value) && value.every((name) => hostileNames.includes(name)), `a list of ${hostileNames.join(', ')}`],
  cut: numberFrom(0),
  cuts: numberFrom(1),
  stall: numberFrom(0),
  speed: numberFrom(1),
  ranges: oneOf(true, false),
  tag: oneOf('strong', 'weak', 'none', 'same'),
};

/** The release that the store announces, what it is made of, and how getting it is to fail. */
export class Releases {
  #settings = new Settings('a release', defaults, checks);
  #image = null;
  #replacement = null;
  #signature = null;
  #cutsLeft = Infinity;
  #requests = 0;
  #held = new Set();

  /** The last times that an image or a signature was asked for. */
  downloads = [];
  /** How often somebody wanted to know what the newest release is. */
  asked = 0;

  get values() {
    return this.#settings.values;
  }

  /** What is left out stays as it is. Files are read now and never again. */
  change(wanted) {
    this.#settings.change(wanted);
    const { image, replacement, signature, cuts } = this.values;
    if ('image' in wanted) this.#image = readImage(image);
    if ('replacement' in wanted) this.#replacement = readImage(replacement);
    if ('image' in wanted || 'replacement' in wanted) this.#requests = 0;
    if ('cut' in wanted || 'cuts' in wanted) this.#cutsLeft = cuts ?? Infinity;
    this.#signature = this.#image ? this.#signatureAs(signature) : null;
    this.#goOn();
  }

  clear() {
    this.#settings.clear();
    Object.assign(this, { downloads: [], asked: 0 });
    this.#image = null;
    this.#replacement = null;
    this.#signature = null;
    this.#cutsLeft = Infinity;
    this.#requests = 0;
    this.#goOn();
  }

  /** The newest release as applications are told of it; any value where a test wants that. */
  record() {
    const { version, build, min, notes, rollout, url, sha256, size, record, hostile } = this.values;
    if (record !== 'own') return record;
    const own = {
      latest: version, build, min, notes, rollout,
      url: url === 'own' ? `https://${hosts.service}${this.path ?? `${prefix}loomstreet.squashfs`}` : url,
      sha256: sha256 === 'own' ? this.#image?.sha256 : sha256,
      size: size === 'own' ? this.#image?.bytes.length : size,
    };
    return hostileRecord(Object.fromEntries(Object.entries(own).filter(([, value]) => (value ?? null) !== null)), hostile);
  }

  /** Where the image lies; its signature has ".minisig" after that. Null while there is none. */
  get path() {
    return this.#image ? prefix + encodeURIComponent(basename(this.values.image)) : null;
  }

  takes(exchange) {
    return exchange.path.startsWith(prefix);
  }

  /** What lies at a path: {kind, bytes, tag}, or null for nothing. */
  at(path) {
    if (path === this.path) {
      this.#requests += 1;
      const { bytes, tag } = (this.#requests > 1 && this.#replacement) || this.#image;
      return { kind: 'image', bytes, tag: this.#tagOf(tag) };
    }
    const hasSignature = this.path !== null && path === `${this.path}.minisig` && this.#signature !== null;
    return hasSignature ? { kind: 'signature', bytes: this.#signature, tag: null } : null;
  }

  /** After how many bytes the connection is to be lost; null for not at all. Counts. */
  takeCut(length) {
    const { cut } = this.values;
    if (cut === null || cut >= length || this.#cutsLeft <= 0) return null;
    this.#cutsLeft -= 1;
    return cut;
  }

  /** Resolves once somebody changes something, or the caller hangs up. */
  hold(exchange) {
    return new Promise((resolve) => {
      this.#held.add(resolve);
      exchange.onClose(() => {
        this.#held.delete(resolve);
        resolve();
      });
    });
  }

  noteDownload(download) {
    this.downloads.push(download);
    if (this.downloads.length > keptDownloads) this.downloads.shift();
  }

  #goOn() {
    this.#held.forEach((resolve) => resolve());
    this.#held.clear();
  }

  /** The file beside the image as minisign left it there; where there is none, the sandbox signs. */
  #signatureAs(kind) {
    const { image, version, build } = this.values;
    if (isAbsolute(kind)) return readFileSync(kind);
    if (kind === 'own' && existsSync(`${image}.minisig`)) return readFileSync(`${image}.minisig`);
    const made = makeSignature(kind, this.#image.bytes, `loomstreet ${version} build ${build ?? 0}`);
    return made === null ? null : Buffer.from(made);
  }

  #tagOf(tag) {
    switch (this.values.tag) {
      case 'strong': return tag;
      case 'weak': return `W/${tag}`;
      case 'same': return '"the-same-for-every-file"';
      default: return null;
    }
  }
}

function isImage(path) {
  if (typeof path !== 'string' || !isAbsolute(path)) return false;
  const found = statSync(path, { throwIfNoEntry: false });
  return found !== undefined && found.isFile() && found.size <= largest;
}

function readImage(path) {
  if (path === null) return null;
  const bytes = readFileSync(path);
  const sha256 = createHash('sha256').update(bytes).digest('hex');
  return { bytes, sha256, tag: `"${sha256.slice(0, 32)}"` };
}
