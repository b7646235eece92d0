import { Random } from '../random.mjs';
import { escapeHtml, textOfHtml } from '../markup.mjs';

const modelHeights = { women: [176, 'S'], men: [187, 'M'] };

/** The product page's text as HTML, written the way merchants paste it: headings, paragraphs, lists and foldable parts. */
export function descriptionHtml(piece) {
  if (piece.ownHtml !== undefined) return piece.ownHtml;
  const random = new Random(piece.label).fork('copy');
  const { garment, cloth, designer } = piece;
  const [first, second] = random.sample(garment.openings, 2);
  return [
    piece.finalSale ? '<p>Final sale: this piece cannot be returned or exchanged.</p>' : '',
    `<p>${text(first)} ${text(random.chance(0.6) ? second : designer.line)}</p>`,
    `<h3>The cut</h3><p>${text(random.pick(garment.cut))}</p>`,
    `<h3>${garment.table === 'bag' || garment.table === 'shoes' ? 'Leather' : 'Cloth'}</h3><p>${text(cloth.line)}</p><ul>${items(cloth.composition)}</ul>`,
    `<h3>How we wear it</h3><p>${text(random.pick(garment.styling))}</p>`,
    `<details><summary>Size and fit</summary><p>${text(fit(piece))}</p></details>`,
    `<details><summary>Care</summary><ul>${items(cloth.care)}</ul></details>`,
    `<details><summary>Delivery and returns</summary><p>${text(delivery(piece))}</p></details>`,
  ].join('');
}

export function description(piece) {
  return textOfHtml(descriptionHtml(piece));
}

function fit({ garment, department, sizes }) {
  if (garment.sizes === 'bag') return 'The strap drops 52 cm. It holds a phone, a wallet, keys and a paperback.';
  if (garment.sizes === 'shoes') return 'True to size. Between two sizes, take the larger and add a sole.';
  const [height, size] = modelHeights[department];
  const worn = sizes.includes(size) ? size : sizes[Math.floor(sizes.length / 2)];
  return `True to size. The person in our fitting room is ${height} cm tall and wears ${worn}.`;
}

function delivery({ finalSale, madeToOrder, presale }) {
  if (finalSale) return 'Delivered within 3 to 6 working days, duties included. Final sale pieces cannot come back.';
  if (madeToOrder) return 'Cut when you order and finished in about five weeks. Pieces made for you cannot come back.';
  if (presale) return `${presale}. We charge you when you order and tell you the day it leaves.`;
  return 'Delivered within 3 to 6 working days, duties included. Return it unworn within 30 days, at our cost.';
}

function items(lines) {
  return lines.map((line) => `<li>${text(line)}</li>`).join('');
}

const text = escapeHtml;
