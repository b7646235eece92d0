import { BackendError } from '../errors.mjs';

const mostAtOnce = 1000;
const usual = 50;

/** What the customer was told, newest first. */
export const listNotifications = {
  path: '/notifications',
  methods: ['POST'],
  customer: true,
  handle({ input: { limit = usual, cursor }, account }, { happenings, notifications }) {
    if (!Number.isInteger(limit) || limit < 1 || limit > mostAtOnce) refuse(`limit is from 1 to ${mostAtOnce}`);
    happenings.look(account);
    return notifications.page(account, { limit, cursor }) ?? refuse('cursor is one that a page came with');
  },
};

export const readNotifications = {
  path: '/notifications-read',
  methods: ['POST'],
  customer: true,
  handle({ input: { ids, all }, account }, { notifications }) {
    if (all !== true && !(Array.isArray(ids) && ids.every((id) => typeof id === 'string'))) refuse('ids is a list of them, or all is true');
    notifications.markRead(account, all === true ? null : new Set(ids));
    return { unreadCount: notifications.unreadOf(account) };
  },
};

function refuse(message) {
  throw new BackendError(400, 'BAD_INPUT', message);
}
