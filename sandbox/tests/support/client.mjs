import { readFileSync } from 'node:fs';
import http from 'node:http';
import http2 from 'node:http2';
import tls from 'node:tls';

/** Talks to the store as an application does: a CONNECT tunnel through the proxy, TLS against the store's authority. */
export class Client {
  #proxy;
  #ready;
  #ca;
  #agent = new http.Agent({ keepAlive: true });

  constructor(ready) {
    this.#ready = ready;
    this.#proxy = new URL(ready.proxy);
    this.#ca = readFileSync(ready.caFile);
    this.#agent.createConnection = ({ host }, done) => {
      this.secure(host).then((socket) => done(null, socket), done);
    };
  }

  /** The socket of a tunnel to host:443; fails with the proxy's status when it is refused. */
  tunnel(host, port = 443) {
    return new Promise((resolve, reject) => {
      const request = http.request({ host: this.#proxy.hostname, port: this.#proxy.port, method: 'CONNECT', path: `${host}:${port}` });
      request.on('connect', (response, socket) => {
        if (response.statusCode === 200) resolve(socket);
        else reject(Object.assign(new Error(`the proxy answered ${response.statusCode}`), { status: response.statusCode }));
      });
      request.on('error', reject);
      request.end();
    });
  }

  async secure(host, protocols = ['http/1.1']) {
    const socket = tls.connect({ socket: await this.tunnel(host), servername: host, ca: this.#ca, ALPNProtocols: protocols });
    await new Promise((resolve, reject) => {
      socket.once('secureConnect', resolve);
      socket.once('error', reject);
    });
    return socket;
  }

  /** One HTTP/1.1 request, on a connection that is kept for the next: {status, headers, bytes, text, json()}. */
  request(url, { method = 'GET', headers = {}, body } = {}) {
    const { hostname, pathname, search } = new URL(url);
    return new Promise((resolve, reject) => {
      const options = { method, host: hostname, path: pathname + search, headers: { host: hostname, ...headers }, agent: this.#agent };
      const request = http.request(options, (response) => {
        collect(response).then((bytes) => resolve(answer(response.statusCode, response.headers, bytes)), reject);
      });
      request.on('error', reject);
      request.end(body);
    });
  }

  /** The same over HTTP/2. */
  async request2(url, { method = 'GET', headers = {}, body } = {}) {
    const { hostname, origin, pathname, search } = new URL(url);
    const socket = await this.secure(hostname, ['h2']);
    const session = http2.connect(origin, { createConnection: () => socket });
    try {
      return await new Promise((resolve, reject) => {
        session.on('error', reject);
        const stream = session.request({ ':method': method, ':path': pathname + search, ...headers });
        let head = null;
        stream.on('response', (received) => {
          head = received;
        });
        stream.on('error', reject);
        collect(stream).then((bytes) => (head ? resolve(answer(head[':status'], head, bytes)) : reject(new Error('no answer'))), reject);
        stream.end(body);
      });
    } finally {
      session.destroy();
    }
  }

  post(url, value, headers = {}) {
    return this.request(url, { method: 'POST', headers: { 'content-type': 'application/json', ...headers }, body: JSON.stringify(value) });
  }

  /** The answer to a GraphQL call as it came, {data, errors}. */
  async query(text, variables = {}) {
    const response = await this.post(`https://${this.#ready.shopifyDomain}/api/2025-04/graphql.json`, { query: text, variables }, {
      'x-shopify-storefront-access-token': this.#ready.storefrontToken,
    });
    return response.json();
  }

  /** The data of a call that has to succeed. */
  async data(text, variables) {
    const { data, errors } = await this.query(text, variables);
    if (errors) throw new Error(errors.map(({ message }) => message).join('; '));
    return data;
  }

  backend(path, body) {
    return this.post(`${this.#ready.supportBase}${path}`, body);
  }

  async control(method, path, value) {
    const response = await fetch(this.#ready.control + path, { method, body: value === undefined ? undefined : JSON.stringify(value) });
    return { status: response.status, value: await response.json() };
  }
}

async function collect(stream) {
  const chunks = [];
  for await (const chunk of stream) chunks.push(chunk);
  return Buffer.concat(chunks);
}

function answer(status, headers, bytes) {
  return { status, headers, bytes, text: bytes.toString(), json: () => JSON.parse(bytes.toString()) };
}
