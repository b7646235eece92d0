import { randomBytes } from 'node:crypto';

import { otherEmail, sampleEmail } from '../../accounts/people.mjs';
import { providerPage } from '../../accounts/providerPage.mjs';
import { providers } from '../../accounts/providers.mjs';
import { BackendError } from '../errors.mjs';

const callback = 'wrenfieldstore://auth';
const names = { [sampleEmail]: 'Ines Marinho', [otherEmail]: 'Theo Lind' };
const emails = { ines: sampleEmail, another: otherEmail };
const people = [
  { choice: 'ines', label: 'Continue as Ines Marinho', detail: sampleEmail },
  { choice: 'another', label: 'Continue as another account', detail: otherEmail },
];

/** Where the shopper's browser goes: the provider's page, and from there back to the application. */
export const startProviders = Object.entries(providers).map(([provider, name]) => ({
  path: `/app-auth/oauth/${provider}/start`,
  methods: ['GET'],
  anonymous: true,
  handle({ exchange, query }, store) {
    const { publicKey, cc, as } = query;
    if (!/^[A-Za-z0-9_-]{43}$/.test(cc ?? '') || !/^[A-Za-z0-9_-]{1,256}$/.test(as ?? '')) {
      throw new BackendError(400, 'BAD_INPUT', 'cc is a challenge of 43 characters and as is the state');
    }
    const choice = store.auth.values.page ? query.choice : 'ines';
    if (choice === 'cancel' || Object.hasOwn(emails, choice ?? '')) {
      exchange.redirect(`${callback}?${answerOf(choice, query, store)}`);
    } else {
      const page = providerPage({ provider, name, people, query: { publicKey, cc, as } });
      exchange.sendHtml(200, page, { 'cache-control': 'no-store', 'referrer-policy': 'no-referrer' });
    }
  },
}));

/** Swaps the code of a callback for a session. Whoever saw only the callback lacks the verifier. */
export const exchangeProvider = {
  path: '/app-auth/oauth/exchange',
  methods: ['POST'],
  anonymous: true,
  handle({ input: { code, verifier } }, { accounts, providerSignIns }) {
    if (typeof code !== 'string' || typeof verifier !== 'string' || !/^[A-Za-z0-9._~-]{43,128}$/.test(verifier)) {
      throw new BackendError(400, 'BAD_INPUT', 'code and a verifier of 43 to 128 characters are wanted');
    }
    const account = providerSignIns.finish(code, verifier);
    if (!account) throw new BackendError(400, 'CODE_INVALID', 'This code is spent, too old, or somebody else’s');
    const { email, name, numericId } = account;
    return { token: accounts.startSession(account), name, email, numericId };
  },
};

/** What the callback says, as well or as badly as the settings want it. */
function answerOf(choice, { cc, as }, { auth, accounts, providerSignIns }) {
  const settings = auth.values;
  const answer = new URLSearchParams();
  const error = settings.error ?? (choice === 'cancel' ? 'cancelled' : null);
  if (error !== null) {
    answer.append('error', error);
  } else if (settings.code !== 'missing') {
    const email = emails[choice];
    const account = accounts.findOrMake(email, { name: names[email] });
    const code = settings.code === 'unknown' ? randomBytes(24).toString('base64url') : providerSignIns.begin(account, cc);
    for (let count = settings.code === 'repeated' ? 2 : 1; count > 0; count -= 1) answer.append('code', code);
  }
  if (settings.state !== 'missing') answer.append('state', settings.state === 'wrong' ? randomBytes(18).toString('base64url') : as);
  if (settings.state === 'repeated') answer.append('state', as);
  return answer;
}
