/** Pieces that every catalog carries, whatever its seed: examples, documents and screenshots can rely on them. */
export const signaturePieces = [
  {
    title: 'Sabine bias slip dress', vendor: 'Tallis & Rook', drawing: 'slip', fabric: 'silk', price: 248,
    colours: ['sage', 'ink', 'rose', 'madder', 'butter'], sizes: ['XXS', 'XS', 'S', 'M', 'L', 'XL'], ground: 'mist', shape: 'arch',
    soldOut: ['Sage / L', 'Ink / XXS'], reviews: 212, rating: 4.7, cartSize: 'M', tableHabit: 'bare',
  },
  {
    title: 'Odile tiered dress', vendor: 'Isolde Marr', drawing: 'tiered', fabric: 'voile', price: 312,
    colours: ['rose', 'ecru', 'dusk'], sizes: ['XS', 'S', 'M', 'L'], ground: 'blush', shape: 'circle', reviews: 64, rating: 4.6,
  },
  {
    title: 'Marlow wrap dress', vendor: 'Studio Halden', drawing: 'wrap', fabric: 'crepe', price: 193.2, compareAt: 276,
    colours: ['madder', 'olive', 'ink'], sizes: ['XS', 'S', 'M', 'L', 'XL'], ground: 'clay', shape: 'floor', finalSale: true,
  },
  {
    title: 'Linden tailored blazer', vendor: 'Studio Halden', drawing: 'blazer', fabric: 'hopsack', price: 420,
    colours: ['ecru', 'dusk', 'ink'], sizes: ['XXS', 'XS', 'S', 'M', 'L', 'XL'], ground: 'clay', shape: 'arch', reviews: 88, rating: 4.8,
  },
  {
    title: 'Lune crescent bag', vendor: 'Corvin Atelier', drawing: 'crescent', fabric: 'smooth', price: 385, recent: true,
    colours: ['butter', 'plum', 'camel', 'ink'], sizes: ['One size'], ground: 'stone', shape: 'circle', reviews: 41, rating: 4.9,
  },
  {
    title: 'Brae cable rollneck', vendor: 'Fenmoor Mill', drawing: 'knit', fabric: 'lambswool', price: 198,
    colours: ['madder', 'dusk', 'ecru'], sizes: ['XS', 'S', 'M', 'L', 'XL'], ground: 'fog', shape: 'circle', reviews: 130, rating: 4.8,
  },
  {
    title: 'Wide-leg wool trousers', vendor: 'Marrow & Pine', drawing: 'trousers', fabric: 'twill', price: 226,
    colours: ['ink', 'olive', 'dusk'], sizes: ['34', '36', '38', '40', '42', '44'], ground: 'stone', shape: 'band', reviews: 57, rating: 4.4,
  },
  {
    title: 'Block-heel ankle boots', vendor: 'Hollin Ferry', drawing: 'boot', fabric: 'smooth', price: 272, compareAt: 340,
    colours: ['camel', 'ink'], sizes: ['36', '37', '38', '39', '40', '41'], ground: 'mist', shape: 'floor', reviews: 176, rating: 4.5,
  },
  {
    title: 'Harrow belted trench coat', vendor: 'Aldine Row', drawing: 'trench', fabric: 'gabardine', price: 595, recent: true,
    colours: ['camel', 'ink'], sizes: ['XS', 'S', 'M', 'L', 'XL'], ground: 'stone', shape: 'arch', reviews: 33, rating: 4.7,
  },
  {
    title: 'Ferry striped poplin shirt', vendor: 'Quill & Thread', drawing: 'shirt', fabric: 'poplin', price: 138,
    colours: ['chalk', 'dusk'], sizes: ['XS', 'S', 'M', 'L', 'XL'], ground: 'lilac', shape: 'arch', reviews: 92, rating: 4.6,
  },
  {
    title: 'Ferry silk shirt', vendor: 'Quill & Thread', drawing: 'shirt', fabric: 'silk', price: 224, plain: true,
    colours: ['butter', 'chalk'], sizes: ['XS', 'S', 'M', 'L'], ground: 'straw', shape: 'arch',
  },
  {
    title: 'Pleated midi skirt', vendor: 'Ludo Vesper', drawing: 'skirt', fabric: 'crepe', price: 184,
    colours: ['bottle', 'ink', 'plum'], sizes: ['34', '36', '38', '40', '42'], ground: 'straw', shape: 'circle', reviews: 48, rating: 4.6,
  },
  {
    title: 'Pleated mini skirt', vendor: 'Ludo Vesper', drawing: 'skirt', fabric: 'twill', price: 22, compareAt: 44, length: 70,
    colours: ['bottle', 'dusk'], sizes: ['34', '36', '38', '40'], ground: 'straw', shape: 'circle', finalSale: true,
  },
  {
    title: 'Wren striped shirt', vendor: 'Marrow & Pine', drawing: 'shirt', fabric: 'oxford', price: 41, compareAt: 58,
    colours: ['chalk', 'sage'], sizes: ['XS', 'S', 'M', 'L', 'XL'], ground: 'lilac', shape: 'arch',
  },
  {
    title: 'Tern cable pullover', vendor: 'Fenmoor Mill', drawing: 'knit', fabric: 'lambswool', price: 34,
    colours: ['ecru', 'rose'], sizes: ['XS', 'S', 'M', 'L'], ground: 'sand', shape: 'circle',
  },
  {
    title: 'Vesna slip dress', vendor: 'Isolde Marr', drawing: 'slip', fabric: 'satin', price: 264,
    colours: ['ink', 'bottle'], sizes: ['XS', 'S', 'M', 'L'], ground: 'stone', shape: 'circle', reviews: 29, rating: 4.3,
  },
  {
    title: 'Thea evening slip', vendor: 'Tallis & Rook', drawing: 'slip', fabric: 'satin', price: 286, evening: true,
    colours: ['plum', 'ink', 'bottle'], sizes: ['XS', 'S', 'M', 'L', 'XL'], ground: 'blush', shape: 'floor',
    presale: 'Ships from 12 December',
  },
];
