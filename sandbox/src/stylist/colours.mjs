/** Colours that ask for each other. The quiet ones go with everything and are not listed. */
const pairs = {
  sage: 'butter plum rose',
  olive: 'madder butter rose',
  bottle: 'rose butter madder',
  madder: 'dusk olive bottle',
  dusk: 'butter madder rose',
  rose: 'bottle dusk plum sage olive',
  plum: 'sage rose butter',
  butter: 'dusk sage bottle plum olive',
};
const quiet = new Set(['ink', 'chalk', 'ecru', 'camel']);

/** How well two colours go together, from 0 to 1. */
export function harmony(one, other) {
  if (quiet.has(one) !== quiet.has(other)) return 0.85;
  if (one === other) return 0.6;
  if (quiet.has(one)) return 0.8;
  return pairs[one].split(' ').includes(other) ? 1 : 0.1;
}
