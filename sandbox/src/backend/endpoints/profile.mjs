import { BackendError } from '../errors.mjs';

export const readProfile = {
  path: '/profile',
  methods: ['POST'],
  customer: true,
  handle({ account }) {
    return { profile: profileOf(account) };
  },
};

/** What is left out stays as it is; an empty text, or null, takes a fact away. */
export const updateProfile = {
  path: '/profile-update',
  methods: ['POST'],
  customer: true,
  handle({ input, account }) {
    const sent = Object.entries(readers).filter(([name]) => input[name] !== undefined);
    const change = Object.fromEntries(sent.map(([name, read]) => [name, read(input[name])]));
    Object.assign(account, change);
    return { profile: profileOf(account) };
  },
};

/** What a customer may change, and what becomes of it; each throws a sentence that can be shown. */
const readers = {
  name(value) {
    return checked(typeof value === 'string' && value.length <= 200, value, 'The name is at most 200 characters long').trim();
  },
  phone(value) {
    return optional(value, (text) => /^\+?[\d ()./-]{5,30}$/.test(text), 'Write the phone number with digits, spaces and a plus sign');
  },
  birthday(value) {
    return optional(value, isPastDay, 'The birthday is a day in the past, such as 1991-04-30');
  },
  newsletters(value) {
    const { email, sms } = value ?? {};
    const chosen = [email, sms].every((choice) => typeof choice === 'boolean');
    return checked(chosen, { email, sms }, 'newsletters says email and sms, true or false');
  },
};

function profileOf({ email, name, phone, birthday, country, newsletters, memberSince }) {
  return { email, name, ...(phone ? { phone } : {}), ...(birthday ? { birthday } : {}), ...(country ? { country } : {}), newsletters, memberSince };
}

function checked(holds, value, message) {
  if (!holds) throw new BackendError(400, 'BAD_INPUT', message);
  return value;
}

function optional(value, test, message) {
  if (value === null || value === '') return null;
  return checked(typeof value === 'string' && test(value.trim()), value, message).trim();
}

function isPastDay(text) {
  const day = /^\d{4}-\d\d-\d\d$/.test(text) ? new Date(`${text}T00:00:00Z`) : null;
  return day !== null && !Number.isNaN(day.getTime()) && day.toISOString().startsWith(text) && day.getUTCFullYear() >= 1900 && day < new Date();
}
