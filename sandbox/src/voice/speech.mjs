import { spawn } from 'node:child_process';

import { readWave, resampled } from './sound.mjs';
import { tones } from './tones.mjs';

const program = 'espeak-ng';
/** It spells Japanese out sign by sign, so that tones are kinder. */
const voices = { en: 'en-gb', de: 'de', fr: 'fr', ar: 'ar', 'zh-Hant': 'cmn' };
const variant = '+f3';
const wordsPerMinute = '170';
const longest = 2000; // characters of a sentence

/** Text into sound: by the synthesiser where it is installed, else as tones. */
export class Speech {
  #isInstalled = true;

  /** The samples of a sentence; kind is `auto` or `tones`. */
  async of(sentence, { language, kind, signal }) {
    const text = sentence.slice(0, longest);
    const canSpeak = kind !== 'tones' && this.#isInstalled && Object.hasOwn(voices, language);
    return (canSpeak ? await this.#synthesised(text, language, signal) : null) ?? tones(text);
  }

  /** The text goes in by the standard input, so that nothing in it can be an option. */
  #synthesised(text, language, signal) {
    return new Promise((resolve) => {
      const voice = voices[language] + variant;
      const child = spawn(program, ['-v', voice, '-s', wordsPerMinute, '-b', '1', '--stdin', '--stdout'], { stdio: ['pipe', 'pipe', 'ignore'], signal });
      const parts = [];
      child.stdout.on('data', (part) => parts.push(part));
      child.stdin.on('error', () => {}); // it ended before it had read everything
      child.on('error', (error) => {
        if (error.code === 'ENOENT') this.#isInstalled = false;
        resolve(null);
      });
      child.on('close', (code) => {
        const wave = code === 0 ? readWave(Buffer.concat(parts)) : null;
        resolve(wave && wave.samples.length > 0 ? resampled(wave) : null);
      });
      child.stdin.end(text);
    });
  }
}
