import { oneOf, Settings } from '../settings.mjs';
import { hostileNames } from './hostile.mjs';

const defaults = {
  delay: 0, hasConversation: null, failureCode: null, guideName: 'Mira', hostile: [], history: 0, lose: 0, next: null, weather: null, recommendedSize: null,
};

const isText = (value) => typeof value === 'string';
const isObject = (value) => value !== null && typeof value === 'object' && !Array.isArray(value);
const whole = (low, high, unit = '') => [(value) => Number.isInteger(value) && value >= low && value <= high, `from ${low} to ${high}${unit}`];

const checks = {
  delay: whole(0, 600000, ' milliseconds'),
  hasConversation: oneOf(null, true, false),
  failureCode: [(value) => value === null || isText(value), 'null or a text'],
  guideName: [isText, 'a text'],
  hostile: [(value) => Array.isArray(value) && value.every((name) => hostileNames.includes(name)), `a list of ${hostileNames.join(', ')}`],
  history: whole(0, 20000),
  lose: whole(0, 1000),
  next: [(value) => value === null || (Array.isArray(value) && value.every((entry) => isText(entry) || isObject(entry))), 'null or a list of texts and messages'],
  weather: [(value) => value === null || isObject(value), 'null or an object'],
  recommendedSize: [(value) => value === null || isText(value), 'null or a text'],
};

/** How the stylist is to behave. */
export class StylistSettings extends Settings {
  constructor() {
    super('the stylist', defaults, checks);
  }
}
