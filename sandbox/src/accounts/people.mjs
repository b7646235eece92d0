import { dateText } from '../catalog/dates.mjs';

export const sampleEmail = 'ines.marinho@example.com';
export const otherEmail = 'theo.lind@example.com';

const day = 24 * 3600 * 1000;

/** Who has an account from the beginning. All of them sign in with the same password. */
export function peopleAt(startedAt) {
  const since = (days) => dateText(startedAt - days * day);
  const password = 'atelier24';
  return [
    {
      email: sampleEmail, name: 'Ines Marinho', password,
      phone: '+1 718 555 0142', birthday: '1991-04-30', country: 'US',
      newsletters: { email: true, sms: false }, memberSince: since(1046),
      address: { address: '218 Weaver Street, Apt 5', postcode: '11211', city: 'Brooklyn, NY', country: 'US' },
    },
    { email: otherEmail, name: 'Theo Lind', password, memberSince: since(12) },
    {
      email: 'long.lines@example.com', name: 'Anna-Sophia Wilhelmina Montgomery-Featherstonehaugh de la Vega', password, country: 'US',
      phone: '+44 20 7946 0958', newsletters: { email: true, sms: true }, memberSince: since(400),
      address: {
        address: 'c/o The Worshipful Company of Weavers, Dyers and Fullers, Third Courtyard, Staircase 14, Top Floor Left',
        postcode: 'LL61 5UJ', city: 'Llanfairpwllgwyngyllgogerychwyrndrobwllllantysiliogogogoch', country: 'GB',
      },
    },
  ];
}
