import { wait } from '../../server/faults.mjs';
import { BackendError } from '../errors.mjs';

/** The document that switches features, texts, the home page and tools of the application. */
export const readConfig = {
  path: '/app-version/config',
  methods: ['GET'],
  anonymous: true,
  async handle({ input: { platform, hop = '0' }, exchange }, { remoteConfig }) {
    if (platform !== 'macos') throw new BackendError(400, 'BAD_INPUT', 'platform is macos');
    const { raw, status, delay, redirect } = remoteConfig.values;
    if (delay > 0) await wait(delay, exchange);
    if (redirect) {
      const query = new URLSearchParams({ ...Object.fromEntries(exchange.query), hop: Number.parseInt(hop, 10) + 1 });
      exchange.redirect(`${exchange.path}?${query}`);
    } else {
      const body = raw ?? (status === null || status < 300 ? remoteConfig.text() : '{}');
      exchange.reply(status ?? 200, { 'content-type': 'application/json; charset=utf-8', 'cache-control': 'no-store' }, body);
    }
  },
};
