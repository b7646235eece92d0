import { hosts } from '../hosts.mjs';
import { dateText } from '../catalog/dates.mjs';

/** How far a parcel can be, in order, and what its carrier then writes. */
const stages = [
  { name: 'label', status: 'label', text: 'The label is made' },
  { name: 'collected', status: 'transit', text: 'Handed to the carrier', place: 'Weavers’ Yard' },
  { name: 'sorted', status: 'transit', text: 'Left the sorting centre', place: 'Loom Junction' },
  { name: 'out', status: 'out', text: 'Out for delivery', place: null },
  { name: 'delivered', status: 'delivered', text: 'Delivered', place: null },
];
const minute = 60 * 1000;
const untilStage = { label: 0, collected: 3 * minute, sorted: 5 * minute, out: 8 * minute, delivered: 12 * minute };
const untilExpected = 2 * 24 * 60 * minute;

export const parcelStatuses = [...new Set(stages.map(({ status }) => status)), 'problem'];

/** A parcel that leaves now and takes minutes where a real one takes days. */
export function newParcel({ number, placedAt, city }) {
  const times = Object.fromEntries(stages.map(({ name }) => [name, placedAt + untilStage[name]]));
  return { number, carrier: 'Loom Post', city, times, problem: null, expectedAt: placedAt + untilExpected };
}

/** A parcel that got as far as its times say and stays there; problem is {at, text}. */
export function pastParcel({ number, carrier, city, times, problem = null, expectedAt }) {
  return { number, carrier, city, times, problem, expectedAt };
}

/** Brings a parcel to a status at once, and stops it there. */
export function bringTo(parcel, status, now) {
  const reached = status === 'problem' ? 'sorted' : stages.findLast((stage) => stage.status === status).name;
  const last = stages.findIndex(({ name }) => name === reached);
  parcel.times = Object.fromEntries(stages.slice(0, last + 1).map(({ name }) => [name, Math.min(parcel.times[name] ?? now, now)]));
  parcel.problem = status === 'problem' ? { at: now, text: 'The carrier could not find the address' } : null;
}

/** A parcel as the application reads it. */
export function parcelAt(parcel, now) {
  const { number, carrier, city, times, problem, expectedAt } = parcel;
  const events = stages
    .filter(({ name }) => times[name] <= now)
    .map(({ name, status, text, place }) => ({ at: times[name], status, text, place: place === null ? city : place }));
  if (problem) events.push({ at: problem.at, status: 'problem', text: problem.text });
  const { status } = events.at(-1) ?? { status: 'label' };
  return {
    number, carrier, status,
    ...(status === 'delivered' || status === 'problem' ? {} : { expectedAt: dateText(expectedAt) }),
    url: `https://${hosts.web}/account/tracking?number=${encodeURIComponent(number)}`,
    events: events.reverse().map(({ at, text, place }) => ({ at: dateText(at), text, ...(place ? { place } : {}) })),
  };
}

export function deliveredAt({ times }, now) {
  return times.delivered <= now ? times.delivered : null;
}
