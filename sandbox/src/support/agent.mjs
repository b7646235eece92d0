const orderNumber = /\bLST\d{5}\b/i;

const statusWords = {
  confirmed: 'is confirmed and will be packed soon',
  packed: 'is packed and waits for the carrier',
  shipped: 'is on its way',
  delivered: 'was delivered',
  cancelled: 'was cancelled',
};

/** What customer service knows to say, the first that fits: [what was written, what to answer]. */
const answers = [
  [/\b(return|send (it|them) back|exchange|refund|rma)\b/i, aboutReturns],
  [/\b(order|parcel|package|tracking|shipped|deliver\w*|where is)\b|\bLST\d{5}\b/i, aboutOrders],
  [/\b(size|sizes|fit|fits|fitting|measure\w*|too (big|small|large|tight))\b/i, () => (
    'Our size tables are on every piece’s page, below "Size guide". Between two sizes we would take the larger one for tailoring and the smaller one for knits. Which piece is it about?'
  )],
  [/\b(shipping|postage|how long|customs|duties)\b/i, () => (
    'Shipping is free from $99, below that it is $12. Orders before noon leave our house on the same day and take two to four working days.'
  )],
  [/\b(pay|payment|card|charged|invoice|discount|coupon|code)\b/i, () => (
    'Payments go through our checkout and are charged when the order is placed. One discount code counts per order. If something looks wrong, send us a picture of it and we will check.'
  )],
  [/\b(restock|sold out|back in stock|available)\b/i, () => (
    'Choose the size on the piece’s page and press "Tell me when it is back". We write to you the moment it is.'
  )],
  [/\b(human|person|agent|somebody|call me|phone)\b/i, () => 'You are already talking to one of us. We answer from eight in the morning until ten in the evening.'],
  [/\b(thanks|thank you|perfect|great|bye|goodbye)\b/i, () => 'You are very welcome. Have a lovely day!'],
  [/^\W*(hi|hello|hey|good (morning|afternoon|evening))\b/i, ({ name }) => (
    `Hello${name ? ` ${name}` : ''}, good to hear from you. How can we help: an order, a return, or finding your size?`
  )],
];

/** How an agent answers a message, from what is known of who wrote it. */
export function answerTo(text, { turn, account, orders, hasAttachment }) {
  const name = account?.name.split(' ')[0] ?? '';
  const [, answer] = answers.find(([written]) => written.test(text)) ?? [];
  if (answer) return answer({ text, name, orders });
  if (hasAttachment) return 'Thank you, we have it. A colleague looks at it right now and comes back to you here.';
  return turn <= 1
    ? `Thank you for writing${name ? `, ${name}` : ''}. Could you tell us a little more? If it is about an order, its number helps; it begins with LST.`
    : 'Thank you, that helps. We are looking into it and write to you here as soon as we know more.';
}

function aboutOrders({ text, orders }) {
  const number = orderNumber.exec(text)?.[0].toUpperCase();
  if (!orders) return number ? `For your safety we can say more about ${number} once you are signed in. You find it under Orders then, too.` : 'Which order is it about? Its number begins with LST and is in the mail that confirmed it.';
  const order = number ? orders.orders.find(({ name }) => name === number) : orders.orders[0];
  if (!order) return number ? `We do not find ${number} among your orders. Could you check the number once more?` : 'We do not see an order of yours yet. Was it placed with another email address?';
  const parcels = order.packages.filter(({ status }) => status !== 'delivered').map(({ carrier, number: own }) => `${carrier} ${own}`);
  const which = number ? 'Order' : 'Your latest order';
  return `${which} ${order.name} ${statusWords[order.status]}.${parcels.length > 0 ? ` You can follow ${parcels.join(' and ')} under Orders.` : ''}`;
}

function aboutReturns({ text, orders }) {
  const number = orderNumber.exec(text)?.[0].toUpperCase();
  const order = orders?.orders.find(({ name, canReturn }) => (number ? name === number : canReturn));
  if (order) {
    return order.canReturn
      ? `Of course. Order ${order.name} can be returned within 30 days of its delivery: open it under Orders and choose "Start a return". The label is free, and the refund takes about five days once it is here.`
      : `Order ${order.name} cannot be returned any more, or not yet. If a piece is faulty, please send us a picture of it.`;
  }
  return 'Pieces can be returned within 30 days of their delivery, except final sale. Open the order under Orders and choose "Start a return"; the label is free.';
}
