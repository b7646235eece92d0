const manyMessages = 500;
const markup = '<b onclick="alert(1)">Bold</b> & <img src=x onerror=alert(2)> [link](javascript:alert(3)) %1 {0}';
const control = '\u0000\u0007\u001b[31m\u202egnp.sserd\u202c \u2066left\u2069 \u200f\u200b\ufeff\r\n\u2028next\u0085';
const long = 'A long story about a dress. '.repeat(3700); // 100 kB
const inbound = (message) => message?.direction === 'inbound' && Array.isArray(message.attachments) && typeof message.id === 'string';
const replies = (change) => (messages) => messages.map((message, at) => (inbound(message) ? change(message, at) : message));
const cards = (change) => replies((message) => ({ ...message, attachments: message.attachments.map(change) }));

/** What a list of messages goes wrong with. Only the stylist's own are spoilt, and only on their way out. */
const ways = {
  many: (messages) => [...messages, ...Array.from({ length: manyMessages }, (_, at) => numbered(messages, at))],
  untitled: cards((card, at) => (at % 2 === 0 ? { ...card, title: undefined } : card)),
  long: replies((message) => ({ ...message, body: long })),
  markup: replies((message) => ({ ...message, body: markup, attachments: message.attachments.map((card) => ({ ...card, title: markup, vendor: markup, reason: markup })) })),
  control: replies((message) => ({ ...message, body: control + message.body, attachments: message.attachments.map((card) => ({ ...card, title: control + card.title, reason: control })) })),
  repeated: (messages) => messages.flatMap((message) => (inbound(message) ? [message, message] : [message])),
  sameId: replies((message) => ({ ...message, id: 'm1' })),
  noId: replies((message) => ({ ...message, id: undefined })),
  numberId: replies((message, at) => ({ ...message, id: Number.parseInt(message.id.slice(1, 9), 16) + at })),
  future: replies((message) => ({ ...message, createdAt: '2999-12-31T23:59:59Z' })),
  badTime: replies((message, at) => ({ ...message, createdAt: ['yesterday', '', null, 0, '2026-02-30T00:00:00Z'][at % 5] })),
  blank: replies((message) => ({ ...message, body: `\n\n\n\n${message.body}\n\n\n\n\n\nAnd more.\n\n\n` })),
  paths: replies((message) => ({ ...message, body: `${message.body}\n/products/odile-tiered-dress \n/products/../etc/passwd\n/products/never-sold\n/products/%F0%9F%91%97?x=1` })),
  prices: cards((card, at) => ({ ...card, price: ['1,299.00', 'Price on request', null, -1, '', 1e300, { amount: 1 }][at % 7] })),
  unknown: cards((card) => ({ ...card, handle: `never-sold-${card.handle}` })),
  types: (messages) => messages.flatMap((message, at) => [message, [null, 'message', 7, { id: {}, body: 12 }, { id: 'x', direction: 'sideways', body: null, attachments: 'none' }][at % 5]]),
  empty: () => [],
};

export const hostileNames = Object.keys(ways);

export function spoil(messages, names) {
  return names.reduce((spoilt, name) => ways[name](spoilt), messages);
}

/** Older messages that nobody wrote, from both sides in turns, for threads as long as they get. */
export function oldThread(count, before) {
  return Array.from({ length: count }, (_, at) => ({
    id: `h${at}`,
    direction: at % 2 === 0 ? 'outbound' : 'inbound',
    body: at % 2 === 0 ? `What about number ${at / 2 + 1}?` : `Number ${(at + 1) / 2} is a good choice. It goes with most of what we spoke about.`,
    attachments: [],
    createdAt: new Date(before - (count - at) * 60000).toISOString(),
  }));
}

function numbered(messages, at) {
  const last = messages.findLast(inbound);
  const createdAt = last?.createdAt ?? '2026-01-01T00:00:00Z';
  return { id: `many${at}`, direction: 'inbound', body: `Reply number ${at + 1} of ${manyMessages}.`, attachments: last?.attachments ?? [], createdAt };
}
