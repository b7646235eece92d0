import { heading } from '../components.mjs';
import { html } from '../html.mjs';

const topics = [
  ['Orders', [
    ['Where is my order?', 'Every order has a page under Orders with its stations. The carrier’s number appears there as soon as the parcel is handed over, usually on the next working day.'],
    ['Can I change or cancel it?', 'Until it is packed, yes: open the order and choose “Cancel”. After that, wait for the parcel and send it back.'],
    ['I placed an order and see nothing.', 'New orders show after a few minutes. If the confirmation has not reached you within an hour, write to us with the address you used.'],
  ]],
  ['Delivery', [
    ['What does delivery cost?', 'Nothing on carts of $99.00 or more, anywhere we sell. Below that, the price is worked out at checkout.'],
    ['Do I pay duties?', 'No. Import duties are part of the price you see, in your own currency.'],
    ['What does presale mean?', 'You order now and we send the piece on the day named beside it. We charge you when you order.'],
  ]],
  ['Returns', [
    ['How long do I have?', '30 days from the day the parcel reached you. Pieces come back unworn, with their tags, and at our cost.'],
    ['What cannot come back?', 'Final sale pieces, and pieces that were made for you.'],
    ['When do I get my money?', 'Three working days after we have looked at the piece, by the way you paid.'],
  ]],
  ['Sizes', [
    ['How do I find my size?', 'Open the size table on the piece and compare it with something that fits you. Mira does the arithmetic if you ask her.'],
    ['Centimetres or inches?', 'Both. The switch above the table remembers what you chose.'],
  ]],
  ['Account', [
    ['Do I need one?', 'Not to buy. You need one to see orders on another machine, to follow designers and to write on Vessa.'],
    ['How do I delete it?', 'In the settings of the application, under Account. What the law makes us keep is named before you confirm.'],
  ]],
];

export function helpPage() {
  return {
    title: 'Help Center',
    body: html`${heading('Help Center', { lead: 'Short answers to what people ask. A person answers everything else, in the support chat, every day from 8 to 22.' })}
      <ul class="chips">${topics.map(([title]) => html`<li><a class="chip" href="#${title.toLowerCase()}">${title}</a></li>`)}</ul>
      <div class="two section"><div>${topics.map(([title, questions]) => html`<section id="${title.toLowerCase()}" style="margin-bottom:40px"><h2>${title}</h2>
        ${questions.map(([question, answer], place) => html`<details ${place === 0 && 'open'}><summary>${question}</summary><p>${answer}</p></details>`)}</section>`)}</div>
      <aside><div class="tile"><h3>Write to us</h3><p>Customer Service is a panel in the application. Most questions have an answer within ten minutes.</p></div>
        <div class="tile" style="margin-top:24px"><h3>Read more</h3><ul><li><a href="/pages/agreements/returns">Returns and refunds</a></li><li><a href="/pages/agreements/shipping">Shipping</a></li><li><a href="/pages/tools">Size and care tools</a></li></ul></div></aside></div>`,
  };
}
