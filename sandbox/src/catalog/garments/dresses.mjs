const shared = {
  productType: 'Dresses',
  noun: 'dress',
  collections: ['dresses'],
  departments: ['women'],
  sizes: 'letters',
  table: 'dress',
};

export const slip = {
  ...shared,
  drawing: 'slip',
  evening: true,
  price: [168, 420],
  styles: [
    { name: 'bias slip dress', fabrics: ['silk', 'satin'] },
    { name: 'silk slip dress', fabrics: ['silk'] },
    { name: 'evening slip', fabrics: ['satin', 'silk'] },
    { name: 'cowl-neck dress', fabrics: ['satin', 'crepe'] },
    { name: 'midi slip dress', fabrics: ['crepe', 'silk'], length: 92 },
    { name: 'column slip dress', fabrics: ['crepe', 'satin'] },
  ],
  openings: [
    'A slip that knows when to stay close and when to let go.',
    'The dress you pack first and wear most.',
    'Cut on the bias in a single panel, so that nothing interrupts the line from strap to hem.',
    'Quiet from the front, and quieter still when you turn around.',
  ],
  cut: [
    'The neckline falls in a soft cowl and sits where you put it. Straps adjust at the back with covered sliders.',
    'Cut on the true bias with a French seam at each side. It skims the hip and widens towards a hem that moves.',
    'The straps are rolled by hand and narrow enough to disappear under a jacket.',
  ],
  styling: [
    'Wear it alone on warm evenings, or over a fine roll-neck with boots from October on.',
    'A blazer makes it ready for work; flat sandals make it ready for anything else.',
    'Leave the jewellery at home. The drape does the talking.',
  ],
  highlights: ['Cut on the bias', 'Adjustable straps', 'French seams', 'Falls below the knee', 'Fits in a shoe bag'],
  praise: ['Falls beautifully and does not cling', 'The colour is softer than I hoped', 'Hangs dry overnight without a crease'],
};

export const tiered = {
  ...shared,
  drawing: 'tiered',
  price: [148, 360],
  styles: [
    { name: 'tiered dress', fabrics: ['voile', 'linen'] },
    { name: 'puff-sleeve dress', fabrics: ['poplin', 'voile'] },
    { name: 'button-front sundress', fabrics: ['linen', 'poplin'], length: 92 },
    { name: 'tiered midi dress', fabrics: ['poplin', 'silk'] },
    { name: 'square-neck dress', fabrics: ['linen', 'voile'], length: 88 },
  ],
  openings: [
    'Three tiers, two sleeves and no reason to hurry.',
    'A summer dress with enough structure for a city and enough volume for a field.',
    'Everything you liked about the dress you wore at nine, redrawn for now.',
    'Gathered by hand at every tier, so the skirt swings rather than stands.',
  ],
  cut: [
    'A square neck, short puffed sleeves with a hidden elastic, and a waist seam that sits just above your own.',
    'The bodice is fitted and buttons to the waist. From there each tier takes half as much cloth again as the last.',
    'Side pockets, deep enough for a phone and a handful of cherries.',
  ],
  styling: [
    'Flat sandals and a basket by day, a crescent bag and earrings after six.',
    'Add a cable knit over the shoulders when the wind comes off the water.',
    'Good with bare legs, better with brown ones.',
  ],
  highlights: ['Hand-gathered tiers', 'Side pockets', 'Square neckline', 'Mother-of-pearl buttons', 'Fully lined skirt'],
  praise: ['Twirls like nothing else I own', 'The pockets are real pockets', 'Roomy at the waist, perfect for a long lunch'],
};

export const wrap = {
  ...shared,
  drawing: 'wrap',
  price: [178, 390],
  styles: [
    { name: 'wrap dress', fabrics: ['crepe', 'silk'] },
    { name: 'belted wrap dress', fabrics: ['crepe', 'linen'] },
    { name: 'wrap midi dress', fabrics: ['satin', 'crepe'] },
    { name: 'kimono-sleeve dress', fabrics: ['silk', 'satin'], length: 94 },
    { name: 'tie-waist dress', fabrics: ['linen', 'poplin'], length: 90 },
  ],
  openings: [
    'One tie, one minute, dressed.',
    'A wrap that stays wrapped: the inner tie does the work and the outer bow takes the credit.',
    'Made for days that start at a desk and end at a table by the window.',
    'The neckline is lower than it sounds and safer than it looks.',
  ],
  cut: [
    'A true wrap with an inner tie and a press-stud at the bust. Sleeves stop at the wrist bone.',
    'The skirt overlaps by a full panel, so stairs and wind are no concern.',
    'Shaped at the shoulder and eased over the hip, with a hem that dips slightly at the back.',
  ],
  styling: [
    'Ankle boots in the cold months, bare feet in the warm ones.',
    'A top-handle bag sharpens it; a trench coat belongs over it.',
    'Tie the belt at the side, not the front. It is a small thing and it matters.',
  ],
  highlights: ['True wrap', 'Inner tie and press-stud', 'Machine washable', 'Travels without creasing', 'Midi length'],
  praise: ['Stays closed on a bicycle', 'Flattering without trying', 'I bought a second one in another colour'],
};
