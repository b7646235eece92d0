import { escapeHtml } from '../markup.mjs';

/** Markup that needs no escaping any more. */
export class Markup {
  #text;

  constructor(text) {
    this.#text = text;
  }

  toString() {
    return this.#text;
  }
}

/** A template tag that escapes every value, except markup made by this tag; lists are joined, false and null vanish. */
export function html(strings, ...values) {
  return new Markup(strings.reduce((text, string, place) => text + render(values[place - 1]) + string));
}

export function raw(text) {
  return new Markup(text);
}

function render(value) {
  if (value === null || value === undefined || value === false) return '';
  if (Array.isArray(value)) return value.map(render).join('');
  return value instanceof Markup ? String(value) : escapeHtml(value);
}
