import { courtesy, guidance } from './answers/talk.mjs';
import { followUp } from './answers/followUps.mjs';
import { around, look } from './answers/looks.mjs';
import { orderNews } from './answers/orders.mjs';
import { named, pieces } from './answers/pieces.mjs';
import { sizing } from './answers/sizes.mjs';
import { fromWardrobe } from './answers/wardrobe.mjs';
import { sceneOf } from './scene.mjs';
import { Shelf } from './shelf.mjs';

const mostShown = 200;

/** The stylist: answers one message after the other by rules. The same conversation with the same seed goes the same way. */
export class Mira {
  #shelf;
  #seed;
  #orders;
  #index;
  #now;

  constructor({ catalog, orders, index, seed, now }) {
    this.#shelf = new Shelf({ catalog, seed });
    this.#seed = seed;
    this.#orders = orders;
    this.#index = index;
    this.#now = now;
  }

  /** {body, attachments} of her reply; the conversation remembers what was shown. */
  reply({ body, attachments, lang, account, conversation }) {
    const scene = sceneOf({ body, attachments, lang, account, conversation, shelf: this.#shelf, seed: this.#seed, now: this.#now() });
    const answer = sizing(scene) ?? orderNews(scene, this.#orders) ?? courtesy(scene) ?? followUp(scene) ?? fromWardrobe(scene) ?? this.#pieces(scene);
    conversation.turn += 1;
    conversation.memory = { ...remembered(conversation.memory, answer), currency: scene.voice.currency };
    return written(answer, scene);
  }

  card(handle) {
    const piece = this.#shelf.piece(handle);
    return piece && this.#shelf.card(piece);
  }

  #pieces(scene) {
    const { attached, wish } = scene;
    const otherKinds = (wish.facets.get('kind') ?? []).filter(({ holds }) => !attached || !holds(attached));
    const aboutPiece = otherKinds.length > 0 ? null : around(scene);
    return aboutPiece ?? pieces(scene) ?? look(scene) ?? around(scene) ?? named(scene, this.#index) ?? guidance(scene);
  }
}

function remembered(before, { memory = {} }) {
  const shown = new Set([...(before.shown ?? []), ...(memory.last ?? []).map(({ handle }) => handle)]);
  return { ...before, ...memory, shown: new Set([...shown].slice(-mostShown)) };
}

/** Now and then the first piece comes as a line of its own instead of a card. */
function written({ text, cards = [], tail = false, note = '', mayHaveLine = false }, { voice }) {
  const asLine = mayHaveLine && cards.length > 1 && voice.chance('line', 4);
  const body = [text, asLine ? `/products/${cards[0].handle}` : '', voice.sentences([note, tail ? voice.say('tail') : ''])].filter(Boolean).join('\n\n');
  return { body, attachments: asLine ? cards.slice(1) : cards };
}
