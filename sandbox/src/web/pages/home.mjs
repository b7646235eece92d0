import { designers } from '../../catalog/designers.mjs';
import { bestsellers, choose, newest } from '../choices.mjs';
import { grid, picture, pieceLink, section } from '../components.mjs';
import { html } from '../html.mjs';

const edit = [
  { drawing: 'slip', colour: 'bottle' }, { drawing: 'trench', colour: 'camel' },
  { drawing: 'tophandle', colour: 'madder' }, { drawing: 'skirt', colour: 'plum' },
];

const floors = [
  ['dresses', 'Dresses', 'Bias, tiered and wrapped'], ['coats', 'Coats', 'Weather, dressed for'],
  ['knitwear', 'Knitwear', 'Cables, collars and cashmere'], ['bags', 'Bags', 'To outlive the season'],
  ['boots', 'Boots', 'Made to be resoled'], ['men', 'Men', 'One good coat, and what goes under it'],
];

export function homePage({ catalog }) {
  const pieces = edit.map((wish) => choose(catalog, wish));
  return {
    title: 'Home',
    body: html`
      <section class="hero">
        <div class="words"><p class="overline">New in</p><h1>The quiet afternoon edit</h1>
          <p class="muted">Bias-cut silk, soft tailoring, bags for years.</p>
          <p class="actions"><a class="button" href="/collections/new-in">Explore the edit</a><a href="/pages/brands-at-loomstreet">Designers</a></p></div>
        <div class="strip">${pieces.map((piece) => html`<a href="${pieceLink(piece)}">${picture(piece, { width: 480, eager: true })}</a>`)}</div>
      </section>
      ${section('New In', grid(newest(catalog, 12), { short: true }), { more: '/collections/new-in' })}
      ${section('Floors', html`<div class="columns">${floors.map(([handle, title, line]) => html`<div class="tile"><h3><a href="/collections/${handle}">${title}</a></h3><p class="muted">${line}</p></div>`)}</div>`)}
      ${section('Loved by shoppers', grid(bestsellers(catalog, 12), { short: true }))}
      ${section('Designers', html`<ul class="chips">${designers.map(({ name, handle }) => html`<li><a class="chip" href="/collections/${handle}">${name}</a></li>`)}</ul>`, { more: '/pages/brands-at-loomstreet' })}`,
  };
}
