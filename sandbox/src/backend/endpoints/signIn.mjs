import { BackendError } from '../errors.mjs';

const shortestPassword = 6;
const longestText = 1000;

/** Sends a code, to whoever asks: whether the address has an account is nobody's business. */
export const requestCode = {
  path: '/app-auth/request-code',
  methods: ['POST'],
  anonymous: true,
  handle({ input }, { codes, limits }) {
    const email = emailOf(input);
    refuseTooMany(limits, 'code', email);
    limits.count('code', email);
    codes.send(email);
    return {};
  },
};

/** A right code is as good as an account: without one, it makes one. */
export const signInWithCode = {
  path: '/app-auth/login-code',
  methods: ['POST'],
  anonymous: true,
  handle({ input }, { accounts, codes }) {
    const email = emailOf(input);
    useCode(codes, email, input.code);
    return sessionOf(accounts, accounts.findOrMake(email));
  },
};

export const signInWithPassword = {
  path: '/app-auth/login',
  methods: ['POST'],
  anonymous: true,
  handle({ input }, { accounts, limits }) {
    const email = emailOf(input);
    if (!isText(input.password) || input.password === '') throw new BackendError(400, 'BAD_INPUT', 'The password is missing');
    refuseTooMany(limits, 'password', email);
    const account = accounts.find(email);
    if (account && account.password === input.password) return sessionOf(accounts, account);
    limits.count('password', email);
    if (!account) throw new BackendError(404, 'NOT_FOUND', 'Nobody has an account with this address');
    throw new BackendError(401, 'UNAUTHORIZED', 'The password is not that of this account');
  },
};

/** Makes an account, or gives one a new password. */
export const setPassword = {
  path: '/app-auth/set-password',
  methods: ['POST'],
  anonymous: true,
  handle({ input }, { accounts, codes }) {
    const email = emailOf(input);
    const { password, name = '' } = input;
    if (!isText(password) || [...password].length < shortestPassword) {
      throw new BackendError(400, 'BAD_INPUT', `The password has at least ${shortestPassword} characters`);
    }
    if (!isText(name)) throw new BackendError(400, 'BAD_INPUT', 'The name is text');
    useCode(codes, email, input.code);
    const account = accounts.findOrMake(email);
    account.password = password;
    account.name = name.trim() || account.name;
    return sessionOf(accounts, account);
  },
};

/** Their orders stay with the store, without them. */
export const deleteAccount = {
  path: '/app-auth/delete',
  methods: ['POST'],
  customer: true,
  handle({ account }, { accounts, orders, alerts, conversations, notifications, stylist }) {
    orders.disown(account);
    alerts.forget(account);
    notifications.forget(account);
    conversations.forget(account);
    stylist.forget(account);
    accounts.remove(account);
    return {};
  },
};

function emailOf({ email }) {
  const address = isText(email) ? email.trim() : '';
  if (address.length > 254 || !/^[^@\s]+@[^@\s]+\.[^@\s]+$/.test(address) || /\p{Cc}/u.test(address)) {
    throw new BackendError(400, 'EMAIL_INVALID', 'This is not an email address');
  }
  return address;
}

function isText(value) {
  return typeof value === 'string' && value.length <= longestText;
}

function useCode(codes, email, code) {
  const outcome = codes.use(email, code);
  if (outcome === 'wrong') throw new BackendError(400, 'CODE_INVALID', 'This is not the code that was sent');
  if (outcome === 'none') throw new BackendError(404, 'NO_SUCH_CODE', 'No code is waiting for this address; ask for a new one');
}

function refuseTooMany(limits, kind, email) {
  if (!limits.allows(kind, email)) throw new BackendError(429, 'RATE_LIMITED', 'Too many attempts; wait a minute');
}

function sessionOf(accounts, account) {
  const { email, name, numericId } = account;
  return { token: accounts.startSession(account), customer: { email, name, numericId } };
}
