import { loadShare } from './share.mjs';

await loadShare(0);
