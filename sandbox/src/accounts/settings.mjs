import { oneOf, Settings } from '../settings.mjs';

const defaults = { page: true, error: null, state: 'same', code: 'good' };

const checks = {
  page: [(value) => typeof value === 'boolean', 'true or false'],
  error: [(value) => value === null || (typeof value === 'string' && value.length <= 65536), 'null or a text of at most 65536 characters'],
  state: oneOf('same', 'wrong', 'missing', 'repeated'),
  code: oneOf('good', 'unknown', 'missing', 'repeated'),
};

/** How signing in with a provider is to end. */
export class AuthSettings extends Settings {
  constructor() {
    super('signing in', defaults, checks);
  }
}
