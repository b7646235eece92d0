import { Random } from '../random.mjs';

const reviewers = [
  ['Ines M.', 'Portugal', 'PT'], ['Hana K.', 'Japan', 'JP'], ['Maud L.', 'France', 'FR'], ['Signe R.', 'Denmark', 'DK'],
  ['Orla B.', 'Ireland', 'IE'], ['Giulia T.', 'Italy', 'IT'], ['Marta W.', 'Poland', 'PL'], ['Ji-won S.', 'South Korea', 'KR'],
  ['Renata C.', 'Brazil', 'BR'], ['Tess V.', 'Netherlands', 'NL'], ['Leila A.', 'United Arab Emirates', 'AE'],
  ['Freya H.', 'United Kingdom', 'GB'], ['Camille D.', 'Canada', 'CA'], ['Jonas E.', 'Germany', 'DE'], ['Noa P.', 'Israel', 'IL'],
  ['Priya N.', 'India', 'IN'], ['Elin S.', 'Sweden', 'SE'], ['Matteo F.', 'Switzerland', 'CH'],
];

const endings = [
  'I took my usual size.', 'Worth every penny.', 'Arrived in three days, wrapped in paper and not in plastic.',
  'I have worn it twice a week since.', 'Exactly as pictured.', 'A small thing to be so happy about.',
  'My sister has already tried to borrow it.', 'It feels more expensive than it was.', 'Bought for a wedding, worn every day.',
];

const complaints = [
  'Beautiful, though darker than on my screen.', 'Took two weeks to reach me.', 'Runs small. Order up.',
  'A seam came loose after a week. The repair was free, and quick.',
];

const laterNotes = [
  'Three months on and it still looks new.', 'Washed it five times by now: no change at all.',
  'Second winter. I would buy it again tomorrow.',
];

const houseReplies = ['Thank you. It makes our day to hear this.', 'We have told the workshop. They are blushing.'];

const clothLabels = ['True to size', 'Lovely drape', 'Great colour', 'Soft cloth', 'Well made', 'Runs long'];
const leatherLabels = ['Great colour', 'Soft leather', 'Well made', 'Ages well', 'Comfortable', 'Holds its shape'];

/** How a piece is rated, or null for one nobody has reviewed. */
export function ratingOf(piece) {
  if (piece.ownHtml !== undefined) return null;
  const random = new Random(piece.label).fork('rating');
  if (piece.signature && !piece.reviews) return null;
  if (!piece.signature && random.chance(0.25)) return null;
  return {
    total: piece.reviews ?? random.int(1, 4) ** random.int(1, 4),
    value: piece.rating ?? Math.round((3.7 + random.next() * 1.3) * 10) / 10,
  };
}

/** The summary of reviews a piece carries, with its most recent ones in full. */
export function reviewSummary(piece, calendar) {
  const rating = ratingOf(piece);
  if (!rating) return null;
  const random = new Random(piece.label).fork('reviews');
  const labels = labelsFor(piece);
  const reviews = Array.from({ length: Math.min(rating.total, 8) }, (_, index) => review(piece, index, random, calendar));
  return {
    total: rating.total,
    totalLabel: rating.total === 1 ? '1 review' : `${rating.total} reviews`,
    goodRateLabel: `${Math.round(80 + rating.value * 4)}% would buy it again`,
    badge: rating.value >= 4.7 ? 'Loved by shoppers' : '',
    footer: 'Reviews come from people who bought the piece here.',
    mediaCount: reviews.reduce((sum, { images }) => sum + images.length, 0),
    appendCount: reviews.filter(({ appendReview }) => appendReview !== '').length,
    tagSummary: random.sample(labels, 3).map((tag, place) => ({ tag, count: Math.max(1, Math.round(rating.total * (0.4 - place * 0.1))) })),
    reviews,
  };
}

function review(piece, index, random, calendar) {
  const [user, country, iso2] = random.pick(reviewers);
  const variant = random.pick(piece.variants);
  const pleased = random.chance(0.85);
  const added = pleased && random.chance(0.25);
  const days = 4 + index * 11 + random.int(0, 9);
  return {
    id: `rv-${piece.index + 1}-${index + 1}`,
    user,
    date: calendar.daysAgo(days).slice(0, 10),
    sku: variant.title,
    content: pleased ? `${random.pick(piece.garment.praise)}. ${random.pick(endings)}` : random.pick(complaints),
    isDefaultGood: pleased && random.chance(0.1),
    images: random.chance(0.25) ? [random.pick(piece.images).url] : [],
    rating: pleased ? random.pick([5, 5, 5, 4]) : random.pick([3, 3, 2]),
    tags: random.sample(labelsFor(piece), random.int(0, 2)),
    likeCount: random.int(0, 24),
    replyCount: pleased ? 0 : 1,
    appendReview: added ? random.pick(laterNotes) : '',
    appendImages: added && random.chance(0.4) ? [piece.images[0].url] : [],
    appendDays: added ? random.int(20, 120) : 0,
    country,
    iso2,
    replies: pleased ? [] : [random.pick(houseReplies)],
  };
}

function labelsFor({ garment }) {
  return garment.table === 'bag' || garment.table === 'shoes' ? leatherLabels : clothLabels;
}
