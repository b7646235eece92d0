import { createHash, createPrivateKey, randomBytes, sign } from 'node:crypto';
import { readFileSync } from 'node:fs';

/** Ed25519 in PKCS #8, up to the 32 bytes that differ from key to key. */
const keyPrefix = Buffer.from('302e020100300506032b657004220420', 'hex');
const sandboxKey = new URL('../../data/release/loomstreet-sandbox.key', import.meta.url);

/** A secret key as minisign writes it without a password: what identifies it, and what it signs with. */
function readKey(file) {
  const bytes = Buffer.from(readFileSync(file, 'utf8').split('\n')[1], 'base64');
  return { id: bytes.subarray(54, 62), seed: bytes.subarray(62, 94) };
}

/**
 * A detached signature in minisign's form. `comment` is the trusted one; `said` what stands in its place in the end.
 * The old form signs the bytes themselves, the other one their BLAKE2b-512.
 */
function signatureOf(bytes, { id, seed }, { comment, said = comment, old = false }) {
  const key = createPrivateKey({ key: Buffer.concat([keyPrefix, seed]), format: 'der', type: 'pkcs8' });
  const own = sign(null, old ? bytes : createHash('blake2b512').update(bytes).digest(), key);
  const whole = sign(null, Buffer.concat([own, Buffer.from(comment)]), key);
  const first = Buffer.concat([Buffer.from(old ? 'Ed' : 'ED'), id, own]).toString('base64');
  return `untrusted comment: made by the sandbox store\n${first}\ntrusted comment: ${said}\n${whole.toString('base64')}\n`;
}

const makers = {
  own: (bytes, comment, key) => signatureOf(bytes, key, { comment }),
  missing: () => null,
  foreign: (bytes, comment) => signatureOf(bytes, { id: randomBytes(8), seed: randomBytes(32) }, { comment }),
  impostor: (bytes, comment, { id }) => signatureOf(bytes, { id, seed: randomBytes(32) }, { comment }),
  other: (bytes, comment, key) => signatureOf(Buffer.concat([bytes, Buffer.from('and more')]), key, { comment }),
  comment: (bytes, comment, key) => signatureOf(bytes, key, { comment, said: `${comment}0` }),
  old: (bytes, comment, key) => signatureOf(bytes, key, { comment, old: true }),
  garbage: () => 'untrusted comment: this\nis no signature\n',
  empty: () => '',
  huge: (bytes, comment, key) => signatureOf(bytes, key, { comment }) + 'x'.repeat(10 * 1024 * 1024),
};

export const signatureKinds = Object.keys(makers);

/** The signature of an image by the sandbox's key, or one that is wrong in the way its kind says; null for none. */
export function makeSignature(kind, bytes, comment) {
  return makers[kind](bytes, comment, readKey(sandboxKey));
}
