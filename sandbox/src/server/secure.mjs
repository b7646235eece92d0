import { createSecureServer } from 'node:http2';

import { BadRequest, Exchange } from './exchange.mjs';
import { Upgrade } from './upgrade.mjs';

/**
 * The TLS server, HTTP/2 and HTTP/1.1. Each host name has one site: an object with handle(exchange) and, where the
 * request's body tells what is asked, identify(exchange), which runs before faults are looked up; takesCalls(exchange) says
 * whether a fault is to look like one of the Storefront API. upgrade(exchange), where a site has it, takes web sockets, which
 * come by HTTP/1.1 only.
 */
export function createSecureStore({ certificates, sites, journal, faults }) {
  const server = createSecureServer({
    key: certificates.key,
    cert: certificates.cert + certificates.ca,
    allowHTTP1: true,
    settings: { maxConcurrentStreams: 250, initialWindowSize: 1 << 20 },
  });
  const sessions = new Set();
  server.on('session', (session) => {
    sessions.add(session);
    session.on('close', () => sessions.delete(session));
    session.on('error', () => session.destroy());
  });
  server.on('request', (req, res) => {
    serve(new Exchange(req, res), { sites, journal, faults });
  });
  server.on('upgrade', (req, socket, head) => {
    serve(new Upgrade(req, socket, head), { sites, journal, faults });
  });
  server.on('tlsClientError', (error, socket) => {
    journal.log?.(`TLS handshake failed: ${error.message}`);
    socket.destroy();
  });
  server.endSessions = () => sessions.forEach((session) => session.destroy());
  return server;
}

async function serve(exchange, { sites, journal, faults }) {
  const entry = journal.open(exchange);
  try {
    const site = sites.get(exchange.host);
    if (!site) {
      journal.surprise('host', { host: exchange.host, path: exchange.path });
      exchange.sendJson(421, { code: 'MISDIRECTED', message: 'No such host here' });
      return;
    }
    await site.identify?.(exchange);
    entry.operation = exchange.operation;
    if (await faults.apply(exchange, { storefront: site.takesCalls?.(exchange) === true })) return;
    if (exchange instanceof Upgrade) await upgrade(exchange, site);
    else await site.handle(exchange);
  } catch (error) {
    if (exchange.finished) return;
    if (error instanceof BadRequest) {
      exchange.sendJson(error.status, { code: 'BAD_INPUT', message: error.message });
      return;
    }
    journal.surprise('failure', { path: exchange.path, operation: exchange.operation, message: error.message });
    journal.log?.(error.stack);
    exchange.sendJson(500, { code: 'INTERNAL', message: 'The store failed to answer' });
  }
}

function upgrade(exchange, site) {
  if (!site.upgrade) throw new BadRequest('this host has no web sockets', 404);
  return site.upgrade(exchange);
}
