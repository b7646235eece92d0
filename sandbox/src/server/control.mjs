import { createServer } from 'node:http';

import { BadRequest, Exchange } from './exchange.mjs';
import { FaultError } from './faults.mjs';

/** The plain HTTP server through which tests and developers steer the store. See README.md for examples. */
export function createControl({ journal, faults, tracker, wishlists, more = {}, reset }) {
  const routes = {
    'GET /requests': () => journal.requests,
    'GET /unexpected': () => journal.unexpected,
    'GET /events': () => tracker.events,
    'GET /wishlist': () => wishlists.syncs,
    'GET /faults': () => faults.list(),
    'POST /faults': async (exchange) => ({ id: faults.add(await exchange.json()) }),
    'DELETE /faults': () => faults.clear(),
    'POST /reset': () => reset(),
    ...more,
  };

  return createServer(async (req, res) => {
    const exchange = new Exchange(req, res);
    try {
      // A page in a browser could otherwise reach this port under a name of its own.
      if (!/^(127\.0\.0\.1|localhost|\[::1\])(:\d+)?$/.test(exchange.host)) throw new BadRequest('unknown host', 403);
      const [, faultId] = /^\/faults\/([^/]+)$/.exec(exchange.path) ?? [];
      if (faultId && exchange.method === 'DELETE') {
        exchange.sendJson(faults.remove(faultId) ? 200 : 404, {});
        return;
      }
      const route = routes[`${exchange.method} ${exchange.path}`];
      if (!route) throw new BadRequest('no such control; see the README', 404);
      exchange.sendJson(200, (await route(exchange)) ?? {});
    } catch (error) {
      const status = error instanceof BadRequest ? error.status : error instanceof FaultError ? 400 : 500;
      exchange.sendJson(status, { message: error.message });
    }
  });
}
