import { dateText } from './dates.mjs';
import { designerByName, designers } from './designers.mjs';
import { fabrics } from './fabrics.mjs';
import { garments } from './garments/index.mjs';
import { paletteNames, planImages } from './images.mjs';
import { names } from './names.mjs';
import { signaturePieces } from './signature.mjs';
import { sizesFor } from './sizes.mjs';
import { addVariants } from './variants.mjs';

const eveningColours = new Set(['ink', 'plum', 'bottle', 'madder', 'dusk']);
const presaleDates = ['12 December', '20 January', '3 February', '15 March'];

/** Makes the signature pieces and then as many others as are wanted, each from a generator of its own. */
export function makePieces({ random, calendar, count }) {
  const taken = new Set();
  const drafts = [
    ...signaturePieces.map((signature) => signatureDraft(signature)),
    ...Array.from({ length: Math.max(0, count - signaturePieces.length) }, (_, index) =>
      generatedDraft(index, random.fork(`piece ${index}`), taken)),
  ];
  return drafts.map((draft, index) => finish(draft, index, random.fork(`finish ${index}`), calendar, taken));
}

function signatureDraft(signature) {
  const style = { name: '', length: signature.length, plain: signature.plain };
  return { department: 'women', ...signature, style, signature: true };
}

function generatedDraft(index, random, taken) {
  const designer = designers[index % designers.length];
  const drawing = random.pick(designer.makes);
  const garment = garments[drawing];
  const department = random.pick(garment.departments.filter((name) => designer.departments.includes(name)));
  const style = random.pick(garment.styles);
  const title = freshTitle(style, random, taken);
  const usual = garment.price[0] + (garment.price[1] - garment.price[0]) * random.next() ** 1.5;
  const full = merchantPrice(usual * designer.price, random);
  const reduced = random.chance(0.24);
  const finalSale = reduced && random.chance(0.45);
  const price = reduced ? Math.round(full * (1 - random.pick(finalSale ? [0.4, 0.5, 0.6] : [0.2, 0.25, 0.3])) * 100) / 100 : full;
  return {
    title, drawing, department, style, price, finalSale,
    vendor: designer.name,
    fabric: random.pick(style.fabrics),
    compareAt: reduced ? full : null,
    colours: random.sample(paletteNames, random.pick([1, 2, 2, 3, 3, 3, 4, 5])),
    sizes: sizesFor(garment, department, random),
    madeToOrder: random.chance(0.03),
    presale: random.chance(0.03) ? `Ships from ${random.pick(presaleDates)}` : null,
    recent: random.chance(0.05),
    allSoldOut: random.chance(0.04),
  };
}

/** Most prices are even amounts; those of small things may end in half a dollar. */
function merchantPrice(amount, random) {
  if (amount < 100) return Math.round(amount) - (random.chance(0.5) ? 0.5 : 0);
  return amount < 500 ? Math.round(amount / 2) * 2 : Math.round(amount / 10) * 10;
}

function freshTitle(style, random, taken) {
  for (let attempt = 0; attempt < 12; attempt += 1) {
    const title = `${random.pick(names)} ${style.name}`;
    if (!taken.has(title)) {
      taken.add(title);
      return title;
    }
  }
  return `${random.pick(names)} & ${random.pick(names)} ${style.name}`;
}

function finish(draft, index, random, calendar, taken) {
  const garment = garments[draft.drawing];
  const designer = designerByName.get(draft.vendor);
  const createdAt = draft.recent ? calendar.recent(random) : calendar.past(random);
  const piece = {
    __typename: 'Product',
    ...draft,
    index,
    id: `gid://shopify/Product/${8100000000001 + index}`,
    handle: freshHandle(draft, taken),
    garment,
    designer,
    productType: garment.productType,
    cloth: fabrics[draft.fabric],
    createdAt: dateText(createdAt),
    updatedAt: dateText(createdAt + random.int(1, 40) * 3600 * 1000),
    popularity: draft.signature ? 2 - index / 100 : random.next(),
    curation: draft.signature ? index - 1000 : random.next(),
    luxury: designer.luxury,
    label: random.label,
    collections: [],
  };
  piece.evening = draft.evening ?? (garment.evening === true && piece.colours.some((colour) => eveningColours.has(colour)));
  piece.tags = tagsOf(piece);
  piece.images = planImages(piece, random);
  addVariants(piece, random);
  return piece;
}

export function tagsOf(piece) {
  const tags = [piece.productType, piece.cloth.tag, piece.department];
  if (piece.recent) tags.push('new');
  if (piece.finalSale) tags.push('Final Sale');
  if (piece.luxury) tags.push('Luxury');
  if (piece.presale) tags.push('Presale');
  if (piece.madeToOrder) tags.push('made to order');
  if (piece.evening) tags.push('evening');
  return tags.sort((one, other) => one.localeCompare(other));
}

/** A title that two houses use, as simple ones are, gets the house's name behind it. */
function freshHandle({ title, vendor }, taken) {
  const plain = slug(title);
  let handle = plain;
  if (taken.has(`/${handle}`)) handle = `${plain}-${slug(vendor)}`;
  for (let copy = 2; taken.has(`/${handle}`); copy += 1) handle = `${plain}-${slug(vendor)}-${copy}`;
  taken.add(`/${handle}`);
  return handle;
}

export function slug(text) {
  return text.normalize('NFD').replace(/\p{M}/gu, '').toLowerCase().replace(/[^\p{L}\p{N}]+/gu, '-').replace(/^-|-$/g, '');
}
