import { loudness, sampleRate, samplesOf, waveOf } from './sound.mjs';

const mostKept = 120 * sampleRate;
const mostProblems = 50;

/** What came from the application during a call. */
export class Received {
  #parts = [];
  #kept = 0;
  #squares = 0;
  #samples = 0;
  #sizes = new Map();

  opening = null;
  frames = 0;
  framesBeforeReady = 0;
  framesAfterHangup = 0;
  peak = 0;
  hangup = false;
  problems = [];

  get facts() {
    const { opening, frames, framesBeforeReady, framesAfterHangup, peak, hangup, problems } = this;
    const level = this.#samples > 0 ? Math.sqrt(this.#squares / this.#samples) : 0;
    const audio = { frames, framesBeforeReady, framesAfterHangup, seconds: this.#samples / sampleRate, loudness: level, peak, samplesPerFrame: Object.fromEntries(this.#sizes) };
    return { opening, audio, hangup, problems };
  }

  /** The sound, as a file; of long calls the first two minutes. */
  get wave() {
    return waveOf(this.#parts);
  }

  /** {samples, hangup} of a frame; what is wrong with it is kept. */
  frame(text, state) {
    const event = parsed(text);
    if (event?.type === 'hangup') {
      this.hangup = true;
      return { hangup: true };
    }
    if (event?.type !== 'audio' || typeof event.b64 !== 'string') {
      this.problem(`a frame that is neither audio nor a hang-up: ${text.slice(0, 80)}`);
      return {};
    }
    const bytes = Buffer.from(event.b64, 'base64');
    if (bytes.length % 4 !== 0 || bytes.length === 0 || bytes.toString('base64') !== event.b64) this.problem(`sound of ${bytes.length} bytes, or not well encoded`);
    const raw = samplesOf(bytes);
    const samples = raw.map((sample) => (Number.isFinite(sample) ? sample : 0));
    if (!raw.every(Number.isFinite)) this.problem('samples that are no numbers');
    this.#count(samples, state);
    return { samples };
  }

  problem(text) {
    if (this.problems.length < mostProblems) this.problems.push(text);
  }

  #count(samples, state) {
    this.frames += 1;
    if (state === 'ringing') this.framesBeforeReady += 1;
    if (this.hangup) this.framesAfterHangup += 1;
    this.#sizes.set(samples.length, (this.#sizes.get(samples.length) ?? 0) + 1);
    this.#samples += samples.length;
    this.#squares += loudness(samples) ** 2 * samples.length;
    for (const sample of samples) this.peak = Math.max(this.peak, Math.abs(sample));
    if (this.#kept >= mostKept) return;
    this.#kept += samples.length;
    this.#parts.push(samples);
  }
}

function parsed(text) {
  try {
    return JSON.parse(text);
  } catch {
    return null;
  }
}
