import { sampleEmail } from '../accounts/people.mjs';
import { dateText } from '../catalog/dates.mjs';
import { pastNotifications } from './types.mjs';

const hour = 3600 * 1000;

/**
 * What customers are told, newest first, in lists of their own. A notification is {id, type, title, body, link, image,
 * date, sourceUnread}; the control port may make any of them missing or nonsense, so nothing here relies on them.
 */
export class Notifications {
  #now;
  #startedAt;
  #lists = new Map();
  #count = 0;

  constructor({ now, startedAt }) {
    this.#now = now;
    this.#startedAt = startedAt;
    this.clear();
  }

  /** A page of them: {notifications, nextCursor, unreadCount}; null for a cursor that is none. */
  page({ email }, { limit, cursor }) {
    const list = this.#of(email);
    const from = cursor === undefined ? 0 : list.findIndex(({ place }) => String(place) === cursor) + 1;
    if (cursor !== undefined && from === 0) return null;
    const part = list.slice(from, from + limit);
    return {
      notifications: part.map(({ record }) => record),
      ...(from + limit < list.length ? { nextCursor: String(part.at(-1).place) } : {}),
      unreadCount: this.unreadOf({ email }),
    };
  }

  unreadOf({ email }) {
    return this.#of(email).filter(({ record }) => record.sourceUnread !== false).length;
  }

  all({ email }) {
    return this.#of(email).map(({ record }) => record);
  }

  /** Tells somebody something; what is given may be anything, null leaves a member out. */
  push({ email }, wanted) {
    this.#count += 1;
    const given = { id: `n${this.#count}`, date: dateText(this.#now()), sourceUnread: true, ...wanted };
    const record = Object.fromEntries(Object.entries(given).filter(([, value]) => value !== null && value !== undefined));
    if (!this.#lists.has(email)) this.#lists.set(email, []);
    this.#lists.get(email).push({ place: this.#count, record });
    return record;
  }

  /** ids null stands for all of them. */
  markRead({ email }, ids) {
    for (const { record } of this.#of(email)) if (ids === null || ids.has(record.id)) record.sourceUnread = false;
  }

  forget({ email }) {
    this.#lists.delete(email);
  }

  clear() {
    this.#lists.clear();
    this.#count = 0;
    for (const { age, sourceUnread, ...facts } of pastNotifications()) {
      this.push({ email: sampleEmail }, { ...facts, date: age === null ? null : dateText(this.#startedAt - age * hour), sourceUnread: sourceUnread ?? null });
    }
  }

  #of(email) {
    return [...(this.#lists.get(email) ?? [])].reverse();
  }
}
