const anyMember = {
  missing: () => undefined,
  null: () => null,
  text: () => 'ten',
  empty: () => '',
  number: () => 7,
  fraction: () => 1.5,
  negative: () => -1,
  huge: () => 1e300,
  true: () => true,
  list: () => [],
  object: () => ({}),
};

const ownWays = {
  latest: { words: () => '2.0-beta', long: () => '9'.repeat(1000), deep: () => Array(10000).fill('1').join('.'), signs: () => '-1.+2. 3', dots: () => '..' },
  min: { highest: () => '999999.0', long: () => '9'.repeat(1000) },
  build: { largest: () => 2 ** 53 },
  url: {
    plain: (url) => String(url).replace('https:', 'http:'),
    file: () => 'file:///etc/passwd',
    script: () => 'javascript:alert(1)',
    data: () => 'data:application/octet-stream;base64,AAAA',
    user: (url) => String(url).replace('https://', 'https://user:word@'),
    relative: () => '/releases/image',
  },
  sha256: { capitals: (sum) => String(sum).toUpperCase(), short: () => 'abcdef', wrong: () => '0'.repeat(64) },
  size: { zero: () => 0, largest: () => 2 ** 53, small: (size) => size - 1, great: (size) => size + 1 },
  notes: {
    markup: () => ({ en: '<b>Bold</b> <img src="https://images.example.net/x.png"> <a href="file:///etc">here</a>' }),
    long: () => ({ en: 'A very long story. '.repeat(60000) }),
    many: () => Object.fromEntries(Array.from({ length: 10000 }, (_, at) => [`x-${at}`, `Notes ${at}`])),
    control: () => ({ en: 'One\u0000two\u0007\u001b[31m\u202ereversed\u202c\u2028three\r\n\r\nfour' }),
    types: () => ({ en: 7, de: null, fr: ['Neu'], ja: { text: 'x' } }),
  },
  rollout: { none: () => 0, beyond: () => 1000 },
};

/** What can be wrong with each member of a release, as "member.way". */
export const hostileNames = Object.entries(ownWays)
  .flatMap(([member, own]) => [...Object.keys(anyMember), ...Object.keys(own)].map((way) => `${member}.${way}`));

/** The record with one thing after the other made wrong. */
export function hostileRecord(record, names) {
  return names.reduce((changed, name) => {
    const [member, way] = name.split('.');
    return { ...changed, [member]: (ownWays[member][way] ?? anyMember[way])(changed[member]) };
  }, record);
}
