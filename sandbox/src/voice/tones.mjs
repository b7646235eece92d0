import { hash } from '../random.mjs';
import { sampleRate } from './sound.mjs';

const steps = [0, 2, 4, 7, 9]; // of the pentatonic scale, so that whatever follows whatever sounds well
const lowest = 330; // Hz
const note = 0.16; // seconds
const gap = 0.05;
const lettersEach = 3; // of a word, in one note

/** A sentence for those who have no synthesiser: a soft note for every syllable or so, as long as it takes to say it. */
export function tones(text) {
  const words = text.match(/[\p{L}\p{N}]+/gu) ?? [];
  const notes = words.flatMap((word) => [...Array.from({ length: Math.ceil(word.length / lettersEach) }, (_, at) => pitch(word, at)), 0]);
  const length = notes.reduce((sum, frequency) => sum + (frequency > 0 ? note : gap), 0);
  const samples = new Float32Array(Math.ceil(length * sampleRate));
  let begin = 0;
  for (const frequency of notes) {
    if (frequency > 0) ring(samples, begin, frequency);
    begin += Math.floor((frequency > 0 ? note : gap) * sampleRate);
  }
  return samples;
}

function pitch(word, at) {
  return lowest * 2 ** (steps[hash(`${word}/${at}`) % steps.length] / 12);
}

function ring(samples, begin, frequency) {
  const count = Math.floor(note * sampleRate);
  for (let at = 0; at < count; at += 1) {
    const envelope = Math.min(1, at / (0.015 * sampleRate)) * (1 - at / count);
    const turn = (2 * Math.PI * frequency * at) / sampleRate;
    samples[begin + at] = 0.3 * envelope * (Math.sin(turn) + 0.25 * Math.sin(2 * turn));
  }
}
