import { readFileSync } from 'node:fs';

import { grounds, palettes } from '../catalog/images.mjs';

const hanger =
  '<g fill="none" stroke="#8A7658" stroke-linecap="round"><path d="M300 112V92c0-10 14-12 14-26 0-10-7-17-15-17s-15 6-15 14" ' +
  'stroke-width="5"/><path d="M300 112 214 158M300 112l86 46" stroke-width="7"/></g>';

const shapes = {
  arch: (colour) => `<path d="M96 800V340C96 220 184 132 300 132S504 220 504 340V800Z" fill="${colour}"/>`,
  circle: (colour) => `<circle cx="300" cy="370" r="268" fill="${colour}"/>`,
  floor: (colour, from) => `<rect y="${from}" width="600" height="${800 - from}" fill="${colour}"/>`,
  band: (colour) => `<rect width="196" height="800" fill="${colour}"/>`,
};

/**
 * How each garment is staged: on a hanger or with a shadow, where its floor begins, the height it hangs from when it is
 * made shorter, and where a close view of it begins.
 */
const settings = {
  slip: { hangs: true, top: 112 },
  tiered: { hangs: true, top: 150 },
  wrap: { hangs: true, top: 136 },
  trench: { hangs: true, top: 126 },
  blazer: { hangs: true },
  knit: {},
  shirt: { hangs: true },
  skirt: { top: 152, close: [140, 130] },
  trousers: { top: 112, close: [140, 90] },
  tophandle: { shadow: 666, floor: 600, close: [150, 222] },
  crescent: { shadow: 656, floor: 600, close: [70, 250] },
  boot: { shadow: 696, floor: 630, close: [170, 140] },
};

/** A close view is this much of the picture, from its upper middle. */
export const closeSize = [320, 427];
const usualClose = [140, 110];

const templates = new Map();

/** The drawing a view describes, as SVG: ground, shape, hanger or shadow, garment. */
export function draw({ drawing, colour, ground, shape, crop = false, length = 100, plain = false }) {
  const setting = settings[drawing];
  const [paper, shade] = grounds[ground];
  const backdrop = `<rect width="600" height="800" fill="${paper}"/>${shapes[shape](shade, setting.floor ?? 600)}`;
  const contact = setting.shadow
    ? `<ellipse cx="300" cy="${setting.shadow}" rx="236" ry="17" fill="#3A2C18" opacity=".16"/>`
    : setting.hangs ? hanger : '';
  const garment = lengthened(recoloured(drawing, colour, plain), setting.top, length);
  const viewBox = crop ? [...(setting.close ?? usualClose), ...closeSize].join(' ') : '0 0 600 800';
  return `<svg xmlns="http://www.w3.org/2000/svg" viewBox="${viewBox}">${backdrop}${contact}${garment}</svg>`;
}

/** Exchanges the four roles of a template: cloth, shade, light, trim. A plain cloth has no stripes. */
function recoloured(drawing, colour, plain) {
  if (!templates.has(drawing)) {
    templates.set(drawing, readFileSync(new URL(`../../data/garments/${drawing}.svg`, import.meta.url), 'utf8'));
  }
  const [cloth, shade, light, trim] = palettes[colour];
  const roles = { c: cloth, d: shade, l: light, t: trim };
  const template = plain ? templates.get(drawing).replaceAll('url(#stripe)', '{c}') : templates.get(drawing);
  return template.replace(/\{([cdlt])\}/g, (_, role) => roles[role]);
}

/** A shorter garment is the same one pushed up towards the shoulder, which keeps every line of it. */
function lengthened(markup, top, length) {
  if (length === 100 || top === undefined) return markup;
  const scale = length / 100;
  return `<g transform="translate(0 ${Math.round(top * (1 - scale))}) scale(1 ${scale})">${markup}</g>`;
}
