import { hash } from '../random.mjs';

const day = 24 * 3600 * 1000;

/** The wire's form of a time: seconds, no fraction, Z. */
export function dateText(milliseconds) {
  return `${new Date(milliseconds).toISOString().slice(0, 19)}Z`;
}

/**
 * When pieces came in: over two years before a date of the seed, except the recent ones, which came in during the days
 * before the store was started.
 */
export class Calendar {
  constructor(seed, startedAt) {
    this.anchor = Date.UTC(2025, 0, 6) + (hash(seed) % 120) * day;
    this.startedAt = startedAt;
  }

  past(random) {
    return this.anchor - Math.floor(random.next() * 730 * day);
  }

  recent(random) {
    return this.startedAt - Math.floor((0.1 + random.next() * 6) * day);
  }

  /** A date within the last months, for reviews and notes. */
  daysAgo(days) {
    return dateText(this.startedAt - days * day);
  }
}
