import { designers } from '../../catalog/designers.mjs';
import { heading } from '../components.mjs';
import { html } from '../html.mjs';

export function brandsPage({ catalog }) {
  const byLetter = new Map();
  for (const designer of [...designers].sort((one, other) => one.name.localeCompare(other.name))) {
    const letter = designer.name[0].toUpperCase();
    byLetter.set(letter, [...(byLetter.get(letter) ?? []), designer]);
  }
  const count = ({ handle }) => catalog.collectionByHandle.get(handle).pieces.length;
  return {
    title: 'Designers',
    body: html`${heading('Designers', { count: `${designers.length} houses`, lead: 'Small studios, old mills and a few grand names. We visit every one of them before the first piece comes in.' })}
      <ul class="chips" aria-label="Letters">${[...byLetter.keys()].map((letter) => html`<li><a class="chip" href="#${letter}">${letter}</a></li>`)}</ul>
      <div class="letters section">${[...byLetter].map(([letter, houses]) => html`<section id="${letter}"><h2>${letter}</h2>
        <ul>${houses.map((house) => html`<li><a href="/collections/${house.handle}"><span>${house.name}</span><span class="muted">${count(house)}</span></a></li>`)}</ul></section>`)}</div>
      <section class="section"><header><h2>Met lately</h2></header><div class="columns">${designers.slice(0, 6).map((house) => html`
        <div class="tile"><h3><a href="/collections/${house.handle}">${house.name}</a></h3><p class="muted">${house.line}</p></div>`)}</div></section>`,
  };
}
