import { oneOf, Settings } from '../settings.mjs';

const defaults = { answers: true, delay: 1500, agent: 'Noor' };

const checks = {
  answers: oneOf(true, false),
  delay: [(value) => Number.isInteger(value) && value >= 0 && value <= 600000, 'from 0 to 600000 milliseconds'],
  agent: [(value) => value === null || (typeof value === 'string' && value.length <= 65536), 'null or a name'],
};

/** How customer service behaves: whether it answers, after how long, and under which name. */
export class SupportSettings extends Settings {
  constructor() {
    super('customer service', defaults, checks);
  }
}
