import { heading } from '../components.mjs';
import { html } from '../html.mjs';

const agreements = {
  'terms-of-service': ['Terms of Service', 'What you and we can expect of each other.', [
    ['The store', 'LOOMSTREET sells pieces made by independent houses. We are your partner in the purchase; the house stands behind what it made.'],
    ['Orders', 'An order is an offer to buy. It becomes a contract when we confirm that the piece has left. Until then either of us can step back.'],
    ['Prices', 'Prices are shown in your currency and include import duties. A price that is plainly wrong binds neither of us.'],
    ['Accounts', 'An account is for one person. Keep your codes to yourself; we never ask for them.'],
  ]],
  privacy: ['Privacy Notice', 'What we know about you, why, and for how long.', [
    ['What we keep', 'What you bought, where it went, and how we reached you about it. Ten years, because the law says so.'],
    ['What stays with you', 'Your wishlist, what you looked at and your sizes stay on your machine unless you sign in.'],
    ['Mira', 'What you tell Mira is used to answer you. You can delete a conversation, and then it is gone.'],
    ['Your rights', 'You can see, correct, take along and delete what we have. Write to Customer Service; a person answers.'],
  ]],
  returns: ['Returns and Refunds', 'Thirty days, at our cost, with a few exceptions.', [
    ['Time', 'You have 30 days from the day the parcel reached you.'],
    ['Condition', 'Unworn, with its tags, as you would want to receive it.'],
    ['Exceptions', 'Final sale pieces and pieces made for you cannot come back, unless something is wrong with them.'],
    ['Refunds', 'Three working days after we have looked at the piece, by the way you paid.'],
  ]],
  shipping: ['Shipping', 'Where we send, how long it takes, what it costs.', [
    ['Time', 'Three to six working days to most countries. Presale pieces leave on the day named beside them.'],
    ['Cost', 'Free on carts of $99.00 or more, or its worth in your currency. Below that, the price is shown at checkout.'],
    ['Duties', 'Included. If a carrier asks you for money, do not pay; write to us.'],
  ]],
  membership: ['Membership Terms', 'It is free, and it stays free.', [
    ['What you get', 'Early access to new pieces, coupons now and then, and repairs at cost.'],
    ['Ending it', 'Any time, in your account. Coupons you have not used end with it.'],
  ]],
  'community-rules': ['Community Rules', 'How we treat each other on Vessa.', [
    ['Kindness', 'Bodies are not up for discussion. Clothes are.'],
    ['Honesty', 'Say when you were given a piece. Show what you wear, not what you were sent.'],
    ['Removal', 'We remove what breaks these rules and say why. You can ask for a second pair of eyes.'],
  ]],
};

export function agreementsPage() {
  return {
    title: 'Agreements',
    body: html`${heading('Agreements', { lead: 'Everything we have agreed with each other, in sentences one can read.' })}
      <div class="columns section">${Object.entries(agreements).map(([slug, [title, line]]) => html`<div class="tile"><h3><a href="/pages/agreements/${slug}">${title}</a></h3><p class="muted">${line}</p></div>`)}</div>`,
  };
}

export function agreementPage(slug) {
  if (!Object.hasOwn(agreements, slug)) return null;
  const [title, line, parts] = agreements[slug];
  return {
    title,
    body: html`<div class="reading">${heading(title, { overline: 'Agreements', lead: line })}
      ${parts.map(([name, text], place) => html`<h2>${place + 1}. ${name}</h2><p>${text}</p>`)}
      <p class="muted small" style="margin-top:40px">In force since 1 March. <a href="/pages/agreements">All agreements</a></p></div>`,
  };
}
