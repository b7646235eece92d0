/** What pieces are called. A name and a style together make a title, as in "Sabine bias slip dress". */
export const names = (
  'Sabine Odile Marlow Linden Lune Brae Harrow Ferry Wren Tern Vesna Thea Anselm Bettany Calla Corin Dalia Edda ' +
  'Elowen Fenna Greer Hester Ilse Imre Juno Lark Leda Lotte Maren Merle Nell Neve Orla Osric Paloma Perrin Rhea Romy ' +
  'Rowan Rue Saskia Selma Sorrel Tamsin Tilda Una Verity Willa Yara Zora Alder Briar Cove Dune Esker Fallow Glen Heath ' +
  'Isle Keld Loch Mere Ness Orchard Pell Quay Rill Shore Thorn Vale Weir Yarrow'
).split(' ');
