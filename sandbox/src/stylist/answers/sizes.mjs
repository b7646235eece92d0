import { garments } from '../../catalog/garments/index.mjs';
import { sizeFor, sizeOfPiece } from '../measurements.mjs';

/** Takes the shopper's measure, asks for it, and says what follows from it. */
export function sizing(scene) {
  const { intents, measurements, conversation, voice } = scene;
  if (intents.forget) {
    conversation.measurements = null;
    return { text: voice.say('forgotten') };
  }
  if (measurements) return taken(scene);
  if (!intents.sizes) return null;
  const piece = inQuestion(scene);
  const memory = piece ? { focus: piece.handle } : {};
  if (piece && sizeOfPiece(piece, null)) return { text: voice.say('oneSize', { title: piece.title }), memory };
  if (!conversation.measurements) return { text: voice.say('askMeasurements'), memory };
  return { text: piece ? ofPiece(piece, scene) : voice.say('sizesKnown', factsOf(scene)), memory };
}

function taken(scene) {
  const { conversation, measurements, voice } = scene;
  conversation.measurements = measurements;
  const facts = factsOf(scene);
  if (!facts.letters || !facts.numbers) return { text: voice.say('sizesNone') };
  const piece = inQuestion(scene);
  const own = piece && piece.garment.sizes !== 'bag' ? `\n${ofPiece(piece, scene)}` : '';
  return { text: voice.say('sizes', facts) + own };
}

function inQuestion({ attached, mentioned, memory, shelf }) {
  return attached ?? mentioned ?? (memory.focus ? shelf.piece(memory.focus) : null);
}

function ofPiece(piece, { conversation, voice }) {
  const size = sizeOfPiece(piece, conversation.measurements);
  return size ? voice.say('sizeOf', { title: piece.title, size }) : voice.say('sizeOfNone', { title: piece.title });
}

function factsOf({ conversation: { measurements }, wish: { department } }) {
  const [letters, numbers, shoes] = [garments.knit, garments.trousers, garments.boot].map((garment) => sizeFor(garment, department, measurements));
  return { ...measurements, letters, numbers, shoes };
}
