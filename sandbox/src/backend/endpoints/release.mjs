import { BackendError } from '../errors.mjs';

/** The newest release of the application. */
export const readRelease = {
  path: '/app-version',
  methods: ['GET'],
  anonymous: true,
  handle({ query }, { releases }) {
    const others = Object.keys(query).filter((name) => name !== 'publicKey');
    if (others.length > 0) throw new BackendError(400, 'BAD_INPUT', `this call knows no ${others.join(', ')}`);
    releases.asked += 1;
    return { macos: releases.record() };
  },
};
