import { choose } from '../choices.mjs';
import { card, heading, section } from '../components.mjs';
import { html } from '../html.mjs';

const prompts = ['What should I wear today?', 'Help me find something for a wedding in May', 'Does this run small?', 'Build a look around my trench coat', 'Where is my order?', 'What goes with olive?'];

const skills = [
  ['Looks', 'Three pieces around one, from what the store has and what your closet holds, within the budget you name.'],
  ['Size', 'Your measurements against the table of the piece, and against what people of your size kept.'],
  ['Weather', 'Fourteen degrees and rain is an outfit. She checks before she suggests sandals.'],
  ['Orders', 'Where a parcel is, how to send one back, what a duty is and why you did not pay it.'],
];

export function miraPage({ catalog }) {
  const answer = [{ drawing: 'trench', colour: 'camel' }, { drawing: 'crescent', colour: 'ink' }, { drawing: 'boot', colour: 'camel' }].map((wish) => choose(catalog, wish));
  return {
    title: 'Mira',
    body: html`${heading('Mira', { lead: 'A stylist who has seen every piece in the store, remembers what you kept and never says that everything looks great.' })}
      <div class="two even section"><div><h2>A conversation</h2><div class="talk" style="margin-top:20px">
        <p class="me">Help me style this: Sabine bias slip dress</p>
        <p>It is 14 °C and partly cloudy, so keep the silk and add one warm layer. Camel carries the sage well. These three finish it:</p>
        <div class="trio">${answer.map((piece) => card(piece))}</div>
        <p class="me">The boots, in 38. Will they rub?</p>
        <p>Less than most: the lining is leather and the ankle is doubled. Two people in three who usually take a 38 kept the 38. Wear them around the house for an evening first.</p></div></div>
      <div><h2>What she is good at</h2>${skills.map(([title, line]) => html`<div class="tile" style="margin-top:16px"><h3>${title}</h3><p class="muted">${line}</p></div>`)}</div></div>
      ${section('Ask her', html`<ul class="chips">${prompts.map((prompt) => html`<li><span class="chip">${prompt}</span></li>`)}</ul>
        <p class="muted small" style="margin-top:16px">Mira lives in the application, beside the page you are on. What you tell her stays between the two of you; the <a href="/pages/agreements/privacy">privacy notice</a> says how.</p>`)}`,
  };
}
