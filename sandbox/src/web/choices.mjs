/**
 * Pieces for editorial pages, picked by what they are rather than by name, so that every seed fills every page. The
 * same wish gives the same piece each time.
 */
export function choose(catalog, { drawing, colour = null, skip = 0, test = () => true }) {
  const regular = catalog.pieces.filter((piece) => !piece.curiosity && piece.available && piece.drawing === drawing && test(piece));
  const fitting = colour ? regular.filter((piece) => piece.colours[0] === colour) : regular;
  const list = fitting.length > 0 ? fitting : regular;
  return list[skip % list.length];
}

export function newest(catalog, count) {
  return catalog.collectionByHandle.get('new-in').pieces.slice(0, count);
}

export function bestsellers(catalog, count) {
  return catalog.pieces.filter(({ curiosity }) => !curiosity).sort((one, other) => other.popularity - one.popularity).slice(0, count);
}
