import { boot, crescent, tophandle } from './leather.mjs';
import { skirt, trousers } from './bottoms.mjs';
import { slip, tiered, wrap } from './dresses.mjs';
import { blazer, trench } from './outerwear.mjs';
import { knit, shirt } from './tops.mjs';

/** Everything the store knows about a kind of garment, by the name of its drawing. */
export const garments = { slip, tiered, wrap, trench, blazer, knit, shirt, skirt, trousers, tophandle, crescent, boot };
