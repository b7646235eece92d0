import { BadRequest } from '../server/exchange.mjs';

const most = 100000;

/** What the control port can ask of customer service. */
export function supportControls({ conversations, supportSettings }) {
  /** Of one account, else the one that was begun last. */
  const conversationOf = (email) => {
    const found = conversations.all.findLast((conversation) => email === undefined || conversation.email === email);
    if (!found) throw new BadRequest('nobody has written to customer service yet', 404);
    return found;
  };
  return {
    'GET /support': () => ({
      ...supportSettings.values,
      conversations: conversations.all.map((conversation) => ({
        email: conversation.email, unreadCount: conversations.unreadOf(conversation), messages: conversations.since(conversation),
      })),
    }),
    'POST /support': async (exchange) => {
      supportSettings.change(await exchange.json());
      return supportSettings.values;
    },
    'DELETE /support': () => {
      supportSettings.clear();
      return supportSettings.values;
    },
    'POST /support/reply': async (exchange) => {
      const { email, count = 1, size = 0, ...changes } = await exchange.json();
      const conversation = conversationOf(email);
      if (!Number.isInteger(count) || count < 1 || count > most) throw new BadRequest(`count is from 1 to ${most}`);
      if (!Number.isInteger(size) || size < 0 || size > 2 ** 24) throw new BadRequest('size is from 0 to 16777216 characters');
      const long = size > 0 ? { body: 'long '.repeat(size / 5) } : {};
      const ids = Array.from({ length: count }, () => conversations.reply(conversation, { ...long, ...changes }).id ?? null);
      return { ids };
    },
    // As if customer service had thrown everything away.
    'POST /support/forget': () => conversations.clear(),
  };
}
