import { hash } from '../random.mjs';
import { cities } from './cities.mjs';

const earthRadius = 6371;
const vicinity = 60; // kilometres
const codes = [0, 1, 2, 3, 45, 51, 61, 71, 80, 95];

const cityByName = new Map(cities.flatMap(({ names, weather }) => names.map((name) => [plain(name), weather])));

/** The weather of a city by any of its names, with or without a country behind a comma; null for one that is not listed. */
export function weatherOfCity(name) {
  return cityByName.get(plain(name)) ?? cityByName.get(plain(name.split(',')[0])) ?? null;
}

/** The weather of a place: that of the nearest city, else one that is made up and has no city. */
export function weatherAt(latitude, longitude) {
  const [nearest] = cities
    .map(({ weather }) => ({ weather, distance: distanceOf(weather, { latitude, longitude }) }))
    .sort((one, other) => one.distance - other.distance);
  if (nearest.distance <= vicinity) return { ...nearest.weather, latitude, longitude };
  const draw = hash(`${Math.round(latitude)}/${Math.round(longitude)}/weather`);
  const temperature = Math.round((28 - Math.abs(latitude) * 0.6 + (draw % 60) / 10 - 3) * 2) / 2;
  return { city: '', temperature, code: codes[draw % codes.length], wind: draw % 40, rainChance: (draw >>> 8) % 101, latitude, longitude };
}

function distanceOf(one, other) {
  const radians = (degrees) => degrees * Math.PI / 180;
  const [high, low] = [radians(one.latitude), radians(other.latitude)];
  const across = Math.sin((high - low) / 2) ** 2 + Math.cos(high) * Math.cos(low) * Math.sin(radians(one.longitude - other.longitude) / 2) ** 2;
  return 2 * earthRadius * Math.asin(Math.sqrt(across));
}

function plain(name) {
  return name.normalize('NFKD').replace(/\p{M}/gu, '').trim().toLowerCase();
}
