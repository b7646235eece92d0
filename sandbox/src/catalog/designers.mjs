/**
 * The houses the store carries. makes lists the drawings of a house; price scales what a garment usually costs; line is
 * the sentence the store writes about the house.
 */
const houses = [
  house('Tallis & Rook', 'women', 'slip wrap shirt skirt', 1.05, 'A two-woman studio above a former silk exchange, cutting on the bias since 2011.'),
  house('Isolde Marr', 'women', 'tiered slip wrap', 1.15, 'Dresses with a memory of summer, drawn by hand and sewn in small runs by the sea.'),
  house('Studio Halden', 'women men', 'blazer trousers wrap trench', 1.1, 'Tailoring with the stiffness taken out: soft canvas, clean shoulders, no padding.'),
  house('Corvin Atelier', 'women', 'tophandle crescent', 1.2, 'Bags built like furniture, by eleven craftsmen who sign the inside pocket.', 'luxury'),
  house('Fenmoor Mill', 'women men', 'knit', 0.95, 'A working mill on the moor that spins, dyes and knits under one roof.'),
  house('Marrow & Pine', 'women men', 'trousers shirt trench', 0.9, 'Plain clothes, well made, for people who would rather not think about it twice.'),
  house('Hollin Ferry', 'women', 'boot', 1, 'Boots lasted by hand in a riverside workshop and made to be resoled.'),
  house('Aldine Row', 'women men', 'trench blazer', 1.25, 'Outerwear from a street of old raincoat makers, cut for the weather as it is now.'),
  house('Quill & Thread', 'women men', 'shirt', 0.85, 'Shirts and nothing else: forty-one cloths, four collars, one obsession.'),
  house('Ludo Vesper', 'women', 'skirt tiered wrap', 0.85, 'Pleats, folds and movement, from a house that began by dressing dancers.'),
  house('Maison Orlenne', 'women', 'slip blazer wrap skirt', 2.1, 'Evening clothes of few words, finished by hand where no one will look.', 'luxury'),
  house('Petrine Vauk', 'women', 'tophandle crescent', 1.5, 'Sculptural bags by an architect who found buildings too slow.', 'luxury'),
  house('Osterly Wick', 'women men', 'knit trench', 1, 'Knitwear and coats for long walks and longer winters.'),
  house('Casmir Dell', 'men', 'blazer trousers trench shirt', 1.15, 'A young tailor with old patterns, which he lengthens, softens and lets breathe.'),
  house('Noor Bellamine', 'women', 'tiered wrap slip', 1.05, 'Generous dresses in natural cloth, dyed with roots, rinds and leaves.'),
  house('Sorrel House', 'women', 'shirt skirt trousers tiered', 0.7, 'An honest wardrobe at an honest price, renewed a little every week.'),
  house('Kestrel & Daughters', 'women', 'boot tophandle', 1.1, 'A family of saddlers, now in the third generation and the first without horses.'),
  house('Veyra Lund', 'women', 'slip trousers knit blazer', 1.7, 'Northern minimalism with warm hands: one line, one cloth, one colour.', 'luxury'),
  house('Thornby Works', 'men', 'boot trench knit', 0.95, 'Work clothes for people who work, which is why they look right everywhere.'),
  house('Halcyon Mews', 'women', 'skirt shirt slip', 0.95, 'Blouses and skirts with the ease of a long weekend.'),
  house('Emmeric Sault', 'women', 'crescent boot tophandle', 1.9, 'Leather of the first choice, cut by eye, stitched at nine to the inch.', 'luxury'),
  house('Little Wharf', 'women men', 'knit shirt tiered', 0.55, 'Cheerful basics from a harbour town, kept in stock until you need another.'),
  house('Anwen Tarr', 'women', 'wrap skirt knit', 0.9, 'Cloth with a story: woven by neighbours, cut by Anwen, worn for years.'),
  house('Brannoch', 'men', 'knit trench trousers', 1.2, 'Island wool and dry-waxed cotton, for men who own one good coat.'),
  house('Yewtree Lane', 'women', 'crescent boot', 0.6, 'Small leather goods and first good boots, priced for real life.'),
  house('Ione Castell', 'women', 'slip wrap tiered', 1.3, 'Colour first. Ione dyes before she draws, and the dress follows the shade.'),
];

export const designers = houses;

export const designerByName = new Map(houses.map((designer) => [designer.name, designer]));

function house(name, departments, makes, price, line, rank = null) {
  return {
    name,
    handle: name.toLowerCase().replace(/[^a-z]+/g, '-'),
    departments: departments.split(' '),
    makes: makes.split(' '),
    price,
    line,
    luxury: rank === 'luxury',
  };
}
