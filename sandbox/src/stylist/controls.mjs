import { widgetPrefix } from '../backend/site.mjs';
import { hosts } from '../hosts.mjs';
import { BadRequest } from '../server/exchange.mjs';

/** The calls that are the stylist's. */
export const stylistPaths = ['/init', '/message', '/guide-get', '/size-reco', '/weather'];

/** What the control port can ask of the stylist. */
export function stylistControls({ stylist, faults }) {
  const state = () => ({
    ...stylist.settings.values,
    received: stylist.received,
    conversations: stylist.conversations.all.map(({ id, messages, measurements }) => ({ id, messages: messages.length, measurements })),
  });
  const fail = ({ path = '/message', kind = 'status', status = 400, code, message = 'As it was asked for', ...rest }) => {
    if (!stylistPaths.includes(path)) throw new BadRequest(`path is one of ${stylistPaths.join(', ')}`);
    faults.add({ match: { host: hosts.service, path: widgetPrefix + path }, kind, status, body: { code, message }, ...rest });
  };

  return {
    'GET /stylist': state,
    'POST /stylist': async (exchange) => {
      const { expireTokens, fail: failure, ...wanted } = (await exchange.json()) ?? {};
      stylist.settings.change(wanted);
      if (failure !== undefined) fail(failure);
      if (expireTokens) stylist.conversations.expireTokens();
      return state();
    },
    'DELETE /stylist': () => {
      stylist.settings.clear();
      return state();
    },
  };
}
