/** What a call speaks in both directions: 32-bit floating-point samples, little-endian, one channel. */
export const sampleRate = 24000;

const bytesEach = 4;
const reach = 12; // samples on either side that a resampled one is made of

export function samplesOf(bytes) {
  const samples = new Float32Array(Math.floor(bytes.length / bytesEach));
  for (let at = 0; at < samples.length; at += 1) samples[at] = bytes.readFloatLE(at * bytesEach);
  return samples;
}

export function bytesOf(samples) {
  const bytes = Buffer.alloc(samples.length * bytesEach);
  samples.forEach((sample, at) => bytes.writeFloatLE(sample, at * bytesEach));
  return bytes;
}

/** A "tts" event. */
export const speechEvent = (samples) => ({ type: 'tts', b64: bytesOf(samples).toString('base64') });

/** Root mean square. */
export function loudness(samples) {
  let sum = 0;
  for (const sample of samples) sum += sample * sample;
  return samples.length > 0 ? Math.sqrt(sum / samples.length) : 0;
}

/** A file that any player plays. */
export function waveOf(parts) {
  const count = parts.reduce((sum, { length }) => sum + length, 0);
  const wave = Buffer.alloc(44 + count * 2);
  wave.write('RIFF');
  wave.writeUInt32LE(wave.length - 8, 4);
  wave.write('WAVEfmt ', 8);
  wave.writeUInt32LE(16, 16);
  wave.writeUInt16LE(1, 20);
  wave.writeUInt16LE(1, 22);
  wave.writeUInt32LE(sampleRate, 24);
  wave.writeUInt32LE(sampleRate * 2, 28);
  wave.writeUInt16LE(2, 32);
  wave.writeUInt16LE(16, 34);
  wave.write('data', 36);
  wave.writeUInt32LE(count * 2, 40);
  let at = 44;
  for (const samples of parts) {
    for (const sample of samples) at = wave.writeInt16LE(Math.round(Math.max(-1, Math.min(1, sample || 0)) * 32767), at);
  }
  return wave;
}

/** {rate, samples} of 16-bit sound in one channel. A program that writes to a pipe does not know the length beforehand. */
export function readWave(wave) {
  const begin = wave.indexOf('data') + 8;
  if (wave.length < 44 || begin < 44) return null;
  const samples = new Float32Array((wave.length - begin) >> 1);
  for (let at = 0; at < samples.length; at += 1) samples[at] = wave.readInt16LE(begin + at * 2) / 32768;
  return { rate: wave.readUInt32LE(24), samples };
}

/** The same sound at the rate of calls: every sample a windowed sinc over its neighbours. Only for lower rates. */
export function resampled({ rate, samples }) {
  if (rate === sampleRate) return samples;
  const common = divisor(rate, sampleRate);
  const [up, down] = [sampleRate / common, rate / common];
  const kernels = Array.from({ length: up }, (_, phase) => kernel(phase / up));
  const converted = new Float32Array(Math.floor((samples.length * up) / down));
  for (let at = 0; at < converted.length; at += 1) {
    const middle = Math.floor((at * down) / up);
    const weights = kernels[(at * down) % up];
    let sum = 0;
    for (let tap = 0; tap < weights.length; tap += 1) sum += (samples[middle + tap - reach + 1] ?? 0) * weights[tap];
    converted[at] = sum;
  }
  return converted;
}

function kernel(fraction) {
  return Float32Array.from({ length: reach * 2 }, (_, tap) => {
    const distance = tap - reach + 1 - fraction;
    const sinc = distance === 0 ? 1 : Math.sin(Math.PI * distance) / (Math.PI * distance);
    return sinc * Math.cos((Math.PI * distance) / (2 * reach + 1)) ** 2;
  });
}

function divisor(one, other) {
  return other === 0 ? one : divisor(other, one % other);
}
