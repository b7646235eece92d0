import { Accounts } from './accounts.mjs';
import { Codes } from './codes.mjs';
import { Limits } from './limits.mjs';
import { peopleAt } from './people.mjs';
import { ProviderSignIns } from './providers.mjs';
import { AuthSettings } from './settings.mjs';

/** Everything that signing in needs, by the names that the endpoints know it by. */
export function openSignIns({ now, announce, startedAt }) {
  return {
    accounts: new Accounts({ now, people: () => peopleAt(startedAt) }),
    auth: new AuthSettings(),
    codes: new Codes({ now, announce }),
    limits: new Limits({ now }),
    providerSignIns: new ProviderSignIns({ now }),
  };
}
