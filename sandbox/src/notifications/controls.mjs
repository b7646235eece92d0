import { sampleEmail } from '../accounts/people.mjs';
import { BadRequest } from '../server/exchange.mjs';
import { hostileNotifications } from './hostile.mjs';
import { examples, notificationTypes } from './types.mjs';

const most = 100000;

/** What the control port can ask of notifications. */
export function notificationControls({ accounts, notifications }) {
  const accountOf = (email = sampleEmail) => {
    const account = typeof email === 'string' ? accounts.find(email) : null;
    if (!account) throw new BadRequest('email is the address of an account', 404);
    return account;
  };
  return {
    'GET /notifications': (exchange) => {
      const account = accountOf(exchange.query.get('email') ?? undefined);
      return { notifications: notifications.all(account), unreadCount: notifications.unreadOf(account) };
    },
    'POST /notifications': async (exchange) => {
      const { email, count = 1, size = 0, hostile = false, ...wanted } = await exchange.json();
      const account = accountOf(email);
      if (!Number.isInteger(count) || count < 1 || count > most) throw new BadRequest(`count is from 1 to ${most}`);
      if (!Number.isInteger(size) || size < 0 || size > 2 ** 24) throw new BadRequest('size is from 0 to 16777216 characters');
      if (hostile) return { ids: hostileNotifications().map((item) => notifications.push(account, item).id ?? null) };
      const pushed = Array.from({ length: count }, (_, place) => notifications.push(account, {
        ...itemOf(wanted, size),
        // Of many no two are alike, unless one identifier was asked for.
        ...(count > 1 && wanted.title === undefined ? { title: `Notification ${place + 1} of ${count}` } : {}),
      }));
      return { ids: pushed.map(({ id }) => id ?? null) };
    },
  };
}

/** A type that is none of ours is as good as any: the application has to cope with it. */
function itemOf({ type = notificationTypes[0], ...changes }, size) {
  const item = { type, ...(examples[type] ?? { title: 'Something happened', body: 'Nobody knows what this is yet.' }), ...changes };
  return size > String(item.body ?? '').length ? { ...item, body: `${item.body ?? ''} ${'long '.repeat(size / 5)}`.slice(0, size) } : item;
}
