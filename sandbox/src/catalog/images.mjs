import { readFileSync } from 'node:fs';

import { hosts } from '../hosts.mjs';

const { palettes, grounds } = JSON.parse(readFileSync(new URL('../../data/palettes.json', import.meta.url), 'utf8'));

export const paletteNames = Object.keys(palettes);
export const groundNames = Object.keys(grounds);
export const shapeNames = ['arch', 'circle', 'floor', 'band'];
export { grounds, palettes };

export function colourName(palette) {
  return palette[0].toUpperCase() + palette.slice(1);
}

/**
 * What the pictures of a piece show: 4 to 8 of them. The first colour comes whole, cropped, and on other grounds and
 * shapes; every further colour comes whole, and cropped while there is room.
 */
export function planImages(piece, random) {
  const ground = piece.ground ?? random.pick(groundNames);
  const shape = piece.shape ?? random.pick(shapeNames);
  const setting = { drawing: piece.drawing, ground, shape, length: piece.style.length ?? 100, plain: piece.style.plain === true };
  const [first, ...others] = piece.colours;
  const elsewhere = random.sample(groundNames.filter((name) => name !== ground), 3);
  const otherShapes = random.shuffle(shapeNames.filter((name) => name !== shape));

  const views = [{ ...setting, colour: first }, { ...setting, colour: first, crop: true }];
  const extraViews = Math.max(1, 3 - others.length);
  for (let view = 0; view < extraViews; view += 1) {
    views.push({ ...setting, colour: first, ground: elsewhere[view], shape: otherShapes[view] });
  }
  let room = 8 - views.length - others.length;
  for (const colour of others) {
    views.push({ ...setting, colour });
    if (room > 0) {
      views.push({ ...setting, colour, crop: true });
      room -= 1;
    }
  }
  while (views.length < 4) views.push({ ...setting, colour: first, ground: elsewhere[2], shape: otherShapes[2] });
  return views.map((view, index) => image(piece.handle, index + 1, view));
}

export function image(handle, number, view, flaw = null) {
  return { url: imageUrl(handle, number), number, view, flaw };
}

export function imageUrl(handle, number) {
  return `https://${hosts.cdn}/pieces/${encodeURIComponent(handle)}/${number}.jpg?v=1`;
}

/** The picture a colour is known by: its first whole view. */
export function imageOfColour(piece, colour) {
  return piece.images.find(({ view }) => view?.colour === colour && !view.crop) ?? null;
}
