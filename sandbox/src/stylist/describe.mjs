const occasionPhrases = {
  work: 'for work', 'date night': 'for date night', party: 'for a party', wedding: 'for a wedding', vacation: 'for your holiday', beach: 'for the beach',
  travel: 'for travelling', everyday: 'for every day', weekend: 'for the weekend', school: 'for school', interview: 'for an interview', graduation: 'for a graduation',
  festival: 'for a festival', 'night out': 'for a night out', brunch: 'for brunch', 'gallery opening': 'for an evening of culture', 'formal events': 'for a formal evening',
  gym: 'for the way to the gym',
};

export const occasionPhrase = (occasion) => occasionPhrases[occasion] ?? '';

/** A wish in English: "green dresses for a wedding". The given-up facets are left out. */
export function describe({ facets }, lacking = []) {
  const said = (facet) => (lacking.includes(facet) ? [] : (facets.get(facet) ?? []).map(({ says }) => says));
  const colours = said('colour').map((says) => says.replace(/^in /, '')).join(' or ');
  const kinds = said('kind').join(' and ') || 'pieces';
  const rank = said('rank').includes('reduced') ? 'reduced' : '';
  return [rank, colours, said('cloth').join(' or '), kinds, ...said('vendor'), ...said('department'), ...said('occasion').map(occasionPhrase), said('season').map((says) => says.replace(/^in /, 'for '))[0]]
    .filter(Boolean).join(' ');
}
