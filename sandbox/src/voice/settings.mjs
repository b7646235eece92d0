import { oneOf, Settings } from '../settings.mjs';

/** How a call can be answered. */
export const answers = ['ready', 'silent', 'busy', 'error', 'ended', 'drop', 'close', 'mid-frame', 'refuse'];

const defaults = {
  answer: 'ready', times: null, ring: 600, refuseStatus: 503, errorCode: 'VOICE_UNAVAILABLE', closeCode: 1011,
  greets: true, script: null, think: 350, speech: 'auto', threshold: 0.004, pause: 700,
  speed: 8, ahead: 2000, latency: 0, jitter: 0, delays: [], burst: 1,
};

const isText = (value) => typeof value === 'string';
const isLine = (value) => value === null || isText(value) || (typeof value === 'object' && isText(value.heard));
const within = (low, high, unit = '') => [(value) => typeof value === 'number' && value >= low && value <= high, `from ${low} to ${high}${unit}`];
const whole = (low, high, unit = '') => [(value) => Number.isInteger(value) && value >= low && value <= high, `from ${low} to ${high}${unit}`];
const milliseconds = whole(0, 600000, ' milliseconds');

const checks = {
  answer: oneOf(...answers),
  times: [(value) => value === null || (Number.isInteger(value) && value > 0), 'null or above 0'],
  ring: milliseconds,
  refuseStatus: whole(400, 599),
  errorCode: [(value) => value === null || isText(value), 'null or a text'],
  closeCode: [(value) => Number.isInteger(value) && ((value >= 1000 && value <= 1014 && ![1004, 1005, 1006].includes(value)) || (value >= 3000 && value <= 4999)), 'a code that can be sent, such as 1011 or 4000'],
  greets: oneOf(true, false),
  script: [(value) => value === null || (Array.isArray(value) && value.every(isLine)), 'null or a list of texts, nulls and {heard, means, says, shows, events, ends}'],
  think: milliseconds,
  speech: oneOf('auto', 'tones'),
  threshold: within(0, 1),
  pause: whole(50, 10000, ' milliseconds'),
  speed: within(0.1, 10000, ' times real time'),
  ahead: milliseconds,
  latency: milliseconds,
  jitter: milliseconds,
  delays: [(value) => Array.isArray(value) && value.length <= 1000 && value.every((delay) => milliseconds[0](delay)), 'a list of milliseconds'],
  burst: whole(1, 1000),
};

/** How calls behave. */
export class VoiceSettings extends Settings {
  /** script is what is said in calls that were given no other. */
  constructor({ script = null } = {}) {
    super('the voice line', { ...defaults, script }, checks);
  }

  /** How the next call is answered. */
  takeAnswer() {
    const { answer, times } = this.values;
    if (times !== null) this.change(times > 1 ? { times: times - 1 } : { times: null, answer: defaults.answer });
    return answer;
  }
}
