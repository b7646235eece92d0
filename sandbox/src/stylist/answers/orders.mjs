const shown = 4;

/** Where orders are; only somebody who is signed in has any. */
export function orderNews({ intents, orderNumbers, text, account, voice }, orders) {
  if (!intents.orders && orderNumbers.length === 0) return null;
  if (!account) return { text: voice.say('signIn') };
  const { orders: all, refunds } = orders.of(account);
  if (/\brefund|\breturn/.test(text)) return { text: refundLines(refunds, voice) };
  if (orderNumbers.length > 0) return { text: orderNumbers.map((number) => named(number, all, voice)).join('\n') };
  if (all.length === 0) return { text: voice.say('noOrders') };
  const open = all.filter(({ status }) => !['delivered', 'cancelled'].includes(status));
  const told = (open.length > 0 ? open : all).slice(0, shown);
  return { text: [voice.say(open.length > 0 ? 'orders' : 'ordersDone'), ...told.map((order) => lineOf(order, voice))].join('\n') };
}

function named(number, all, voice) {
  const order = all.find(({ name }) => name === number);
  return order ? lineOf(order, voice) : voice.say('orderUnknown', { number });
}

function lineOf({ name, status, lines, packages }, voice) {
  const stuck = packages.some((parcel) => parcel.status === 'problem');
  const expected = packages.map(({ expectedAt }) => expectedAt).filter(Boolean).sort()[0];
  const more = lines.length > 1 ? ` +${lines.length - 1}` : '';
  return voice.say('orderLine', {
    number: name,
    what: `${lines[0]?.title.slice(0, 60) ?? '-'}${more}`,
    status: voice.say(`status.${stuck ? 'problem' : status}`),
    when: status === 'shipped' && expected && !stuck ? voice.say('expected', { day: voice.day(expected) }) : '',
  });
}

function refundLines(refunds, voice) {
  if (refunds.length === 0) return voice.say('noRefunds');
  return refunds.slice(0, shown).map(({ status, orderName: number, amount }) => voice.say(`refund.${status}`, { number, sum: voice.money(amount) })).join('\n');
}
