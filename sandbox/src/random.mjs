/** A small seeded generator: the same label gives the same numbers on every machine and in every version of Node. */
export class Random {
  #state;

  constructor(label) {
    this.label = String(label);
    this.#state = hash(this.label);
  }

  /** An independent generator for one part of the work, so that adding a draw here moves nothing elsewhere. */
  fork(label) {
    return new Random(`${this.label}/${label}`);
  }

  next() {
    this.#state = (this.#state + 0x6d2b79f5) | 0;
    let mixed = Math.imul(this.#state ^ (this.#state >>> 15), 1 | this.#state);
    mixed = (mixed + Math.imul(mixed ^ (mixed >>> 7), 61 | mixed)) ^ mixed;
    return ((mixed ^ (mixed >>> 14)) >>> 0) / 4294967296;
  }

  /** A whole number from low to high, both included. */
  int(low, high) {
    return low + Math.floor(this.next() * (high - low + 1));
  }

  chance(probability) {
    return this.next() < probability;
  }

  pick(list) {
    return list[Math.floor(this.next() * list.length)];
  }

  shuffle(list) {
    const copy = [...list];
    for (let last = copy.length - 1; last > 0; last -= 1) {
      const other = this.int(0, last);
      [copy[last], copy[other]] = [copy[other], copy[last]];
    }
    return copy;
  }

  sample(list, count) {
    return this.shuffle(list).slice(0, count);
  }
}

/** FNV-1a over UTF-16 units, finished so that labels which differ in one place start far apart. */
export function hash(text) {
  let value = 0x811c9dc5;
  for (let at = 0; at < text.length; at += 1) {
    value = Math.imul(value ^ text.charCodeAt(at), 0x01000193);
  }
  value = Math.imul(value ^ (value >>> 16), 0x85ebca6b);
  return (value ^ (value >>> 13)) >>> 0;
}
