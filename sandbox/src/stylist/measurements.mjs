import { scaleOf } from '../catalog/sizes.mjs';

const inch = 2.54;
const pound = 0.45359237;
const number = '(\\d{1,3}(?:[.,]\\d)?)';
const limits = { height: [90, 250], weight: [25, 300], bust: [40, 200], waist: [40, 200], hip: [40, 200] };

const readings = {
  height: [
    [new RegExp(`height:?\\s*(?:is\\s*)?${number}\\s*cm`, 'i'), (cm) => cm],
    [/(\d)\s*(?:'|ft|feet|foot)\s*(\d{1,2})?/i, (feet, inches = 0) => (feet * 12 + inches) * inch],
    [/\b(1|2)[.,](\d\d)\s*m\b/i, (metres, rest) => metres * 100 + rest],
    [new RegExp(`\\b${number}\\s*cm\\b(?!\\s*(?:bust|waist|hip))`, 'i'), (cm) => cm],
    [/身高\s*(\d{3})/, (cm) => cm],
  ],
  weight: [
    [new RegExp(`${number}\\s*(?:kg|kilos?)\\b`, 'i'), (kg) => kg],
    [new RegExp(`${number}\\s*(?:lbs?|pounds)\\b`, 'i'), (pounds) => pounds * pound],
    [/体重\s*(\d{2,3})|體重\s*(\d{2,3})/, (one, other) => one || other],
  ],
  ...Object.fromEntries(['bust', 'waist', 'hip'].map((name) => [name, [[new RegExp(`${name}s?:?\\s*${number}\\s*cm`, 'i'), (cm) => cm]]])),
};

/** The measurements that a message tells, in centimetres and kilograms; null without a believable height and weight. */
export function measurementsIn(text) {
  const found = { fit: /prefer a (loose|fitted|regular) fit/i.exec(text)?.[1].toLowerCase() ?? 'regular' };
  for (const [name, ways] of Object.entries(readings)) {
    const value = ways.map(([pattern, read]) => [pattern.exec(text), read]).find(([match]) => match);
    if (!value) continue;
    const [match, read] = value;
    const amount = read(...match.slice(1).map((digits) => (digits === undefined ? undefined : Number(digits.replace(',', '.')))));
    const [low, high] = limits[name];
    if (amount >= low && amount <= high) found[name] = Math.round(amount * 10) / 10;
  }
  return found.height && found.weight ? found : null;
}

/** The body of the smallest size, and what every size adds to it. */
const bodies = {
  women: { bust: [78, 4], waist: [60, 4], hip: [86, 4], height: [156, 4], weight: [44, 6] },
  men: { bust: [86, 4], waist: [70, 4], hip: [88, 4], height: [168, 4], weight: [58, 6] },
};
const fits = { regular: 0, loose: 0.6, fitted: -0.4 };

/** The size of a garment that somebody takes, as the store names it; null when none of the scale fits. */
export function sizeFor(garment, department, measurements) {
  const scale = scaleOf(garment, department);
  if (garment.sizes === 'shoes') return scale.includes(shoeSize(department, measurements)) ? shoeSize(department, measurements) : null;
  if (scale.length === 1) return scale[0];
  const step = Math.round(stepOf(garment, department, measurements) + fits[measurements.fit]);
  if (step < -1 || step > scale.length) return null;
  return scale[Math.min(Math.max(step, 0), scale.length - 1)];
}

/** The size of one piece; null when it is not made in it. */
export function sizeOfPiece({ garment, department, sizes, curiosity }, measurements) {
  if (sizes.length === 1 && sizes[0] === 'One size') return 'One size';
  if (curiosity || !measurements || garment.sizes === 'bag') return null;
  const size = sizeFor(garment, department, measurements);
  return sizes.includes(size) ? size : null;
}

/** Height and weight say it all unless the tape was used: then the measures that the garment goes by do. */
function stepOf({ sizes }, department, measurements) {
  const body = bodies[department];
  const at = (name) => (measurements[name] - body[name][0]) / body[name][1];
  const taped = (sizes === 'continental' ? ['waist', 'hip'] : ['bust', 'waist', 'hip']).filter((name) => measurements[name]);
  if (taped.length > 0) return taped.reduce((sum, name) => sum + at(name), 0) / taped.length;
  return at('weight') * 0.7 + at('height') * 0.3;
}

function shoeSize(department, { height }) {
  return String(Math.round(department === 'men' ? height * 0.24 : height * 0.228));
}
