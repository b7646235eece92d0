import { hash } from '../random.mjs';
import { characterOf } from '../reco/character.mjs';
import { suits } from './climate.mjs';
import { harmony } from './colours.mjs';
import { occasionPhrase } from './describe.mjs';
import { colourOf } from './shelf.mjs';

/** Cards of pieces, each with a reason of its own where there is one; beside is what they are worn with. */
export function cardsOf(pieces, { shelf, voice, wish, climate, label }, { beside = [], isLook = false, occasion = wish.facets.get('occasion')?.[0].says } = {}) {
  return pieces.map((piece, place) => {
    const colour = colourOf(piece, wish.facets);
    const partner = beside[0] ?? (isLook && place > 0 ? pieces[0] : null);
    const holding = (candidates) => Object.entries(candidates).filter(([, holds]) => holds({ piece, colour, partner, occasion, climate, wish })).map(([name]) => name);
    const particular = holding(particularReasons);
    const reasons = particular.length > 0 ? particular : holding(generalReasons);
    const chosen = reasons[(place + hash(`${label}/reason`)) % Math.max(1, reasons.length)];
    const facts = { colour, title: partner?.title, occasion: occasionPhrase(occasion), temperature: climate.temperature };
    return shelf.card(piece, { colour: wish.facets.has('colour') ? colour : null, reason: chosen && voice.say(`reason.${chosen}`, facts, piece.handle) });
  });
}

const particularReasons = {
  colour: ({ colour, partner }) => partner !== null && harmony(colour, partner.colours[0]) >= 0.8,
  occasion: ({ piece, occasion }) => occasion !== undefined && occasionPhrase(occasion) !== '' && characterOf(piece).occasions.includes(occasion),
  rain: ({ piece, climate }) => climate.wet && piece.drawing === 'trench',
  weather: ({ piece, climate }) => climate.known && !climate.wet && suits(piece, climate) >= 0.4,
  wanted: ({ wish, partner }) => partner === null && wish.facets.has('colour'),
};

const generalReasons = {
  reduced: ({ piece }) => piece.earlier !== null,
  loved: ({ piece }) => piece.popularity > 0.75,
};
