const bag = {
  productType: 'Bags',
  noun: 'bag',
  collections: ['bags', 'accessories'],
  departments: ['women'],
  sizes: 'bag',
  table: 'bag',
};

export const tophandle = {
  ...bag,
  drawing: 'tophandle',
  price: [240, 680],
  styles: [
    { name: 'top-handle bag', fabrics: ['smooth', 'pebbled'] },
    { name: 'day bag', fabrics: ['pebbled'] },
    { name: 'frame bag', fabrics: ['smooth'] },
    { name: 'satchel', fabrics: ['pebbled', 'smooth'] },
  ],
  openings: [
    'A bag that stands up for itself.',
    'Room for a book, a bottle and a change of mind.',
    'Built over a wooden form, which is why it will keep its shape longer than its owner.',
    'The handle is the first thing you notice and the last thing you put down.',
  ],
  cut: [
    'A curved flap closes over a turn-lock in solid brass. Inside, one zipped and two open pockets.',
    'The handle is cored with rope and stitched by hand, and sits in the crook of the arm.',
    'A detachable strap is tucked in the back pocket for days with both hands full.',
  ],
  styling: [
    'Carry it with a coat and nothing else will need attention.',
    'It holds a small laptop, though it would rather not.',
    'Contrast it with the shoes. Matching is for luggage.',
  ],
  highlights: ['Solid brass turn-lock', 'Detachable strap', 'Hand-stitched handle', 'Stands by itself', 'Repaired by the maker'],
  praise: ['Holds more than it seems to', 'The leather smells wonderful', 'Stands by itself on the café floor'],
};

export const crescent = {
  ...bag,
  drawing: 'crescent',
  evening: true,
  price: [180, 520],
  styles: [
    { name: 'crescent bag', fabrics: ['smooth', 'pebbled'] },
    { name: 'half-moon bag', fabrics: ['smooth', 'suede'] },
    { name: 'shoulder bag', fabrics: ['pebbled', 'suede'] },
    { name: 'evening crescent', fabrics: ['smooth'] },
  ],
  openings: [
    'A half moon with a handle.',
    'Small enough to forget, good enough not to.',
    'Cut from a single hide and folded once, like a letter.',
    'It hangs just under the arm, where a bag is least in the way.',
  ],
  cut: [
    'A zip runs along the curve and opens the bag flat. Brass rings carry a handle sized for the shoulder.',
    'The base is double so that it keeps its curve when you put it down, and when you fill it.',
    'Inside: one slip pocket, a key ring on a leather tail, and a lining you can wipe.',
  ],
  styling: [
    'Under the arm with a blazer, over the wrist with a dress.',
    'Take the light colours out at night; they read as jewellery.',
    'Leave the big bag at the desk.',
  ],
  highlights: ['Cut from a single hide', 'Solid brass rings', 'Zip along the curve', 'Key ring on a leather tail', 'Fits under the arm'],
  praise: ['Exactly the right size', 'The curve sits snugly under the arm', 'Everyone asks about it'],
};

export const boot = {
  drawing: 'boot',
  productType: 'Boots',
  noun: 'boots',
  collections: ['shoes', 'boots'],
  departments: ['women', 'men'],
  sizes: 'shoes',
  table: 'shoes',
  alpine: true,
  price: [210, 460],
  styles: [
    { name: 'block-heel ankle boots', fabrics: ['smooth', 'suede'] },
    { name: 'side-zip boots', fabrics: ['smooth'] },
    { name: 'stacked-heel boots', fabrics: ['smooth', 'pebbled'] },
    { name: 'suede ankle boots', fabrics: ['suede'] },
  ],
  openings: [
    'A heel you can run for the train in.',
    'Boots that sound right on stone.',
    'Lasted for two days, stitched for one, and walked in for years.',
    'The shaft is narrow and the toe is not: somebody here has feet.',
  ],
  cut: [
    'A stacked block heel of six centimetres, a round toe with room, and a pull loop that takes a finger.',
    'Welted by hand, so that any good cobbler can give them a second and a third sole.',
    'The zip is on the inside and runs to the sole. The leather is doubled at the ankle.',
  ],
  styling: [
    'Under wide trousers only the toe shows, which is plenty.',
    'With a slip dress and bare legs until the frost.',
    'Cream twice a season, and they will outlast the coat.',
  ],
  highlights: ['Hand-welted, can be resoled', 'Six-centimetre stacked heel', 'Inside zip to the sole', 'Leather lining', 'Round toe with room'],
  praise: ['Comfortable from the first hour', 'The heel is steady on cobbles', 'I wear them four days a week'],
};
