import { hash } from '../random.mjs';
import { climateOf } from '../stylist/climate.mjs';
import { openEnvelope } from '../stylist/envelope.mjs';
import { englished } from '../stylist/lexicon.mjs';
import { Shelf } from '../stylist/shelf.mjs';
import { slotOf } from '../stylist/slots.mjs';
import { Voice } from '../stylist/voice.mjs';
import { commandIn } from './commands.mjs';

const mostTold = 4;
const productLine = /^\s*\/products\/(\S+)\s*$/;
const asksForOwn = /\bcloset\b|\bwardrobe\b|\bmy (?:own )?(?:clothes|pieces|things)\b|\bwhat i (?:own|have)\b/;
const asksForWeather = /\b(?:weather|temperature)\b|\bis it (?:cold|warm|hot|raining)\b/;

/** What the stylist answers on the phone: what she would write, as somebody says it, and what she does meanwhile. */
export class Talk {
  #opening;
  #catalog;
  #stylist;
  #shelf;
  #shown = [];
  #seed;
  #now;
  #turn = 0;

  constructor({ opening, catalog, stylist, seed, now }) {
    this.#opening = opening;
    this.#catalog = catalog;
    this.#stylist = stylist;
    this.#shelf = new Shelf({ catalog, seed });
    this.#seed = seed;
    this.#now = now;
  }

  get language() {
    return new Voice(this.#opening.lang).language;
  }

  greeting({ name = '' }) {
    return this.#answer(this.#voice('').say('call.hello', { title: this.#stylist.settings.values.guideName, name: name && `, ${name.split(' ')[0]}` }));
  }

  /** {text, cards, events, ends} for words of the shopper's. */
  answer(words, { account, conversation }) {
    this.#turn += 1;
    const voice = this.#voice(words);
    const text = englished(words, voice.language).replace(/[^\p{L}\p{N}'$€£¥\s.,?!-]/gu, ' ').trim();
    const command = commandIn(text, { shown: this.#shown, named: this.#shelf.pieceNamedIn(words), collections: this.#catalog.collections });
    if (command) return this.#obey(command, voice);
    const climate = climateOf(openEnvelope(this.#weatherBlock()).weather, {}, this.#now());
    if (asksForWeather.test(text) && climate.known) return this.#answer(voice.say('weather', climate));
    const body = words + (asksForOwn.test(text) ? this.#wardrobeBlock() : '') + this.#weatherBlock();
    return this.#spoken(this.#stylist.reply({ body, lang: this.#opening.lang, account, conversation }), voice);
  }

  /** A line that somebody else wrote for her. */
  scripted({ says, shows = [], events = [], ends = false }) {
    return { ...this.#answer(says, this.#cards(shows)), events, ends };
  }

  #obey({ does, piece, variant, size, event, name, list }, voice) {
    if (does === 'leave') return { ...this.#answer(voice.say('goodbye')), ends: true };
    if (does === 'tell') return this.#answer(this.#told(list, voice));
    if (does === 'open') {
      if (piece) this.#shown = [piece];
      return { ...this.#answer(voice.say(`call.open.${event.kind}`, { title: name })), events: [{ type: 'nav', ...event }] };
    }
    if (does === 'unclear') return this.#answer(voice.say('call.which'));
    if (!variant) return this.#answer(voice.say(size ? 'call.noSize' : 'call.soldOut', { title: piece.title, size }));
    const added = { type: 'cart', variantId: variant.id, title: piece.title };
    return { ...this.#answer(voice.say('call.added', { title: piece.title, what: variant.title.replace(' / ', ', ') })), events: [added] };
  }

  #told(list, voice) {
    const titles = this.#opening[list].map(({ title }) => title).filter(Boolean);
    const more = titles.length > mostTold ? ` (+${titles.length - mostTold})` : '';
    return titles.length > 0 ? voice.say(`call.has.${list}`, { have: voice.list(titles.slice(0, mostTold)) + more }) : voice.say('call.hasNothing');
  }

  /** What she wrote, to be listened to: pieces by their names, and nothing that only eyes can follow. */
  #spoken({ body, attachments }, voice) {
    const lines = body.split('\n').filter((line) => line.trim() !== '');
    const alone = lines.map((line) => productLine.exec(line)?.[1]).filter(Boolean);
    const cards = [...this.#cards(alone), ...attachments];
    const titles = cards.slice(0, mostTold).map(({ title }) => title);
    const said = lines.filter((line) => !productLine.test(line)).map((line) => line.replace(/[“”"]/g, ''));
    const naming = titles.length > 0 ? said.findLastIndex((line) => /[:：]$/.test(line)) : -1;
    if (naming >= 0) said[naming] = `${said[naming]} ${voice.list(titles)}${['ja', 'zh-Hant'].includes(voice.language) ? '。' : '.'}`;
    return this.#answer(voice.sentences(said), cards);
  }

  #answer(text, cards = []) {
    if (cards.length > 0) this.#shown = cards.map(({ handle }) => this.#catalog.piece(handle)).filter(Boolean);
    return { text, cards, events: [], ends: false };
  }

  #cards(handles) {
    return handles.map((handle) => this.#catalog.piece(handle)).filter(Boolean).map((piece) => this.#shelf.card(piece));
  }

  #voice(words) {
    return new Voice(this.#opening.lang, `${this.#seed}/call/${this.#turn}/${hash(words)}`);
  }

  #wardrobeBlock() {
    const items = ['closet', 'wishlist', 'cart'].flatMap((list) => this.#opening[list].map(({ title, handle }) => {
      const piece = this.#catalog.piece(handle);
      return `${title} [${(piece && slotOf(piece)) ?? 'extra'}${list === 'closet' ? '' : `/${list}`}]`;
    }));
    return items.length > 0 ? `\n\n[MY WARDROBE: ${items.join('; ')}]` : '';
  }

  #weatherBlock() {
    const { weather } = this.#opening;
    if (typeof weather?.temperature !== 'number') return '';
    const city = typeof weather.city === 'string' && weather.city !== '' ? weather.city : this.#opening.city;
    return `\n[Weather: ${weather.temperature}°C ${conditionOf(weather.code)}${city ? ` in ${city}` : ''}]`;
  }
}

/** A word for a code of the weather service. */
function conditionOf(code) {
  const ranges = [[0, 0, 'Sunny'], [1, 2, 'Partly cloudy'], [3, 3, 'Overcast'], [45, 48, 'Foggy'], [51, 57, 'Drizzly'], [61, 67, 'Rainy'], [71, 77, 'Snowy'], [80, 82, 'Showery'], [95, 99, 'Stormy']];
  return ranges.find(([low, high]) => code >= low && code <= high)?.[2] ?? 'Mild';
}
