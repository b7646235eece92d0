import { execFile } from 'node:child_process';
import { X509Certificate, createPrivateKey } from 'node:crypto';
import { chmod, mkdir, mkdtemp, readFile, rename, rm, writeFile } from 'node:fs/promises';
import { join } from 'node:path';
import { promisify } from 'node:util';

const run = promisify(execFile);
const renewBefore = 7 * 24 * 3600 * 1000;

/**
 * The certificate the store shows and the authority behind it, made by the openssl command when the state folder has
 * none that still serves. The authority may sign for the store's own domain only, so trusting it risks nothing else.
 */
export async function loadCertificates(stateDir, { domain, hostNames, now = Date.now() }) {
  const folder = join(stateDir, 'tls');
  const kept = await read(folder);
  if (kept && stillServes(kept, hostNames, now)) return kept;

  await mkdir(stateDir, { recursive: true, mode: 0o700 });
  const draft = await mkdtemp(join(stateDir, 'tls-'));
  try {
    if (kept && authorityServes(kept, now)) {
      await writeFile(join(draft, 'ca.key'), kept.caKey, { mode: 0o600 });
      await writeFile(join(draft, 'ca.pem'), kept.ca);
    } else {
      await makeAuthority(draft, domain);
    }
    await makeLeaf(draft, hostNames);
    await Promise.all(['ca.key', 'server.key'].map((name) => chmod(join(draft, name), 0o600)));
    await replaceFolder(draft, folder, kept !== null);
  } finally {
    await rm(draft, { recursive: true, force: true });
  }
  const made = await read(folder);
  if (!made) throw new Error(`no usable certificates in ${folder}`);
  return made;
}

async function read(folder) {
  const file = (name) => readFile(join(folder, name), 'utf8');
  try {
    const [ca, caKey, cert, key] = await Promise.all(['ca.pem', 'ca.key', 'server.pem', 'server.key'].map(file));
    return { ca, caKey, cert, key, caFile: join(folder, 'ca.pem') };
  } catch (error) {
    if (error.code === 'ENOENT') return null;
    throw error;
  }
}

function stillServes(kept, hostNames, now) {
  try {
    const leaf = new X509Certificate(kept.cert);
    const names = (leaf.subjectAltName ?? '').split(/,\s*/).map((name) => name.replace(/^DNS:/, ''));
    return (
      authorityServes(kept, now) &&
      Date.parse(leaf.validTo) - now > renewBefore &&
      leaf.verify(new X509Certificate(kept.ca).publicKey) &&
      leaf.checkPrivateKey(createPrivateKey(kept.key)) &&
      hostNames.every((name) => names.includes(name))
    );
  } catch {
    return false;
  }
}

function authorityServes(kept, now) {
  try {
    const authority = new X509Certificate(kept.ca);
    return Date.parse(authority.validTo) - now > renewBefore && authority.checkPrivateKey(createPrivateKey(kept.caKey));
  } catch {
    return false;
  }
}

async function makeAuthority(folder, domain) {
  await openssl(folder, [
    ...selfSigned('ca.key', 'ca.pem', 3650, '/O=LOOMSTREET sandbox/CN=LOOMSTREET sandbox authority'),
    ...extensions([
      'basicConstraints=critical,CA:TRUE,pathlen:0',
      'keyUsage=critical,keyCertSign,cRLSign',
      'subjectKeyIdentifier=hash',
      `nameConstraints=critical,permitted;DNS:${domain}`,
    ]),
  ]);
}

async function makeLeaf(folder, hostNames) {
  await openssl(folder, [
    ...selfSigned('server.key', 'server.pem', 397, `/O=LOOMSTREET sandbox/CN=${hostNames[0]}`),
    ...['-CA', 'ca.pem', '-CAkey', 'ca.key'],
    ...extensions([
      'basicConstraints=critical,CA:FALSE',
      'keyUsage=critical,digitalSignature',
      'extendedKeyUsage=serverAuth',
      `subjectAltName=${hostNames.map((name) => `DNS:${name}`).join(',')}`,
    ]),
  ]);
}

function selfSigned(key, certificate, days, subject) {
  const curve = ['-newkey', 'ec', '-pkeyopt', 'ec_paramgen_curve:prime256v1', '-noenc', '-sha256'];
  return ['req', '-x509', ...curve, '-keyout', key, '-out', certificate, '-days', String(days), '-subj', subject];
}

function extensions(lines) {
  return lines.flatMap((line) => ['-addext', line]);
}

/** Runs without the machine's own configuration, whose default extensions would contradict the ones given here. */
async function openssl(folder, args) {
  await writeFile(join(folder, 'request.cnf'), '[req]\ndistinguished_name=name\n[name]\n');
  try {
    await run('openssl', [...args, '-config', 'request.cnf'], { cwd: folder });
  } catch (error) {
    if (error.code === 'ENOENT') throw new Error('the openssl command is needed to make certificates and was not found');
    throw new Error(`openssl could not make a certificate: ${(error.stderr || error.message).trim()}`);
  } finally {
    await rm(join(folder, 'request.cnf'), { force: true });
  }
}

/** Two stores may start at once on an empty folder: the first rename wins and the other takes what it finds. */
async function replaceFolder(draft, folder, hadOne) {
  if (hadOne) await rm(folder, { recursive: true, force: true });
  try {
    await rename(draft, folder);
  } catch (error) {
    if (error.code !== 'ENOTEMPTY' && error.code !== 'EEXIST') throw error;
  }
}
