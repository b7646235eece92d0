import { hosts } from '../hosts.mjs';
import { BadRequest } from '../server/exchange.mjs';
import { widgetPrefix } from '../backend/site.mjs';

const signInPaths = `${widgetPrefix}/app-auth/*`;

/** What the control port can ask of accounts, of signing in, and of parcels on their way. */
export function accountControls({ accounts, auth, codes, orders, faults }) {
  let delay = null;

  const setDelay = (delayMs) => {
    if (delay) faults.remove(delay);
    delay = delayMs > 0 ? faults.add({ match: { host: hosts.service, path: signInPaths }, kind: 'delay', delayMs }) : null;
  };
  const fail = ({ path, status = 400, code, message = 'As it was asked for', times }) => {
    if (typeof path !== 'string') throw new BadRequest('fail names a path such as /app-auth/login');
    faults.add({ match: { host: hosts.service, path: widgetPrefix + path }, kind: 'status', status, body: { code, message }, times });
  };

  return {
    'GET /codes': () => codes.latest,
    'GET /accounts': () => accounts.all.map((account) => ({
      email: account.email,
      name: account.name,
      numericId: account.numericId,
      hasPassword: account.password !== null,
      sessions: accounts.sessionsOf(account),
      orders: orders.of(account).orders.length,
    })),
    'GET /auth': () => auth.values,
    'POST /auth': async (exchange) => {
      const { expireTokens, fail: failure, delay: delayMs, ...wanted } = await exchange.json();
      auth.change(wanted);
      if (delayMs !== undefined) setDelay(delayMs);
      if (failure !== undefined) fail(failure);
      if (expireTokens) accounts.endAllSessions();
      return auth.values;
    },
    'DELETE /auth': () => {
      auth.clear();
      setDelay(0);
      return auth.values;
    },
    'POST /ship': async (exchange) => orders.ship(await exchange.json()),
  };
}
