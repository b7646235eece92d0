const wet = /rain|drizzl|shower|storm|snow/;

/**
 * What the weather asks of clothes: {cold, cool, warm, wet, known, temperature, condition, city}. Without weather the season does;
 * only a number that can be a temperature on earth counts.
 */
export function climateOf(weather, { rain, season }, now) {
  const temperature = weather && Math.abs(weather.temperature) < 60 ? weather.temperature : null;
  const known = temperature !== null;
  const felt = season ? { winter: 2, autumn: 12, spring: 15, summer: 27 }[season] : (temperature ?? usual(now));
  return {
    known, temperature, condition: weather?.condition ?? '', city: weather?.city ?? '',
    cold: felt <= 8, cool: felt > 8 && felt <= 17, warm: felt >= 24, wet: rain || (known && wet.test(weather.condition)),
  };
}

/** What a month is like where most of the store's customers live. */
function usual(now) {
  return [3, 4, 9, 13, 18, 23, 26, 26, 21, 15, 9, 5][new Date(now).getUTCMonth()];
}

/** How well a piece suits it, from -1 to 1. */
export function suits({ drawing, cloth }, climate) {
  const warming = ['Wool', 'Cashmere'].includes(cloth.tag) || ['trench', 'boot'].includes(drawing);
  const airy = ['linen', 'cotton voile'].includes(cloth.name) || cloth.tag === 'Silk' || cloth.name === 'poplin';
  if (climate.wet && (drawing === 'trench' || cloth.name === 'suede')) return drawing === 'trench' ? 1 : -1;
  if (climate.cold) return warming ? 1 : airy ? -0.6 : 0;
  if (climate.cool) return warming ? 0.4 : 0;
  if (climate.warm) return airy ? 1 : warming ? -1 : 0;
  return 0;
}
