/** Every size a garment is made in, smallest first. A piece carries a run of them. */
const scales = {
  letters: { women: ['XXS', 'XS', 'S', 'M', 'L', 'XL'], men: ['XS', 'S', 'M', 'L', 'XL', 'XXL'] },
  continental: { women: ['34', '36', '38', '40', '42', '44'], men: ['44', '46', '48', '50', '52', '54'] },
  shoes: { women: ['35', '36', '37', '38', '39', '40', '41', '42'], men: ['40', '41', '42', '43', '44', '45', '46'] },
};

const sizeOrder = [
  ...['One size', 'Small', 'Large', 'XXS', 'XS', 'S', 'M', 'L', 'XL', 'XXL'],
  ...Array.from({ length: 40 }, (_, index) => String(30 + index)),
];

export function compareSizes(one, other) {
  return rank(one) - rank(other) || one.localeCompare(other);
}

function rank(size) {
  const at = sizeOrder.indexOf(size);
  return at < 0 ? sizeOrder.length : at;
}

export function scaleOf(garment, department) {
  return scales[garment.sizes]?.[department] ?? ['One size'];
}

/** The sizes of one piece: the full scale, or a run without an end or two of it. */
export function sizesFor(garment, department, random) {
  if (garment.sizes === 'bag') return random.chance(0.12) ? ['Small', 'Large'] : ['One size'];
  const scale = scaleOf(garment, department);
  const start = random.chance(0.35) ? 1 : 0;
  const end = random.chance(0.2) ? scale.length - 1 : scale.length;
  return scale.slice(start, end);
}
