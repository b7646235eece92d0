/** What somebody wants of Mira, besides pieces. The texts are English in small letters. */
const patterns = {
  greeting: /^\W*(?:hello|hi|hey|good (?:morning|afternoon|evening)|hiya)\b/,
  thanks: /\b(?:thanks|thank you|thx|cheers|lovely|perfect|great)\b/,
  goodbye: /\b(?:bye|goodbye|see you|good night)\b/,
  who: /\b(?:who are you|what are you|are you (?:a )?(?:human|real|robot|bot)|what can you do|your name)\b/,
  orders: /\b(?:(?:my|the|an?) (?:orders?|parcel|package|delivery)|orders? status|track(?:ing)?|refund|where(?:'s| is) my)\b|\blst\s?\d{4,}/,
  sizes: /\bsiz(?:e|es|ing)\b|\bwill (?:it|this|that) fit\b/,
  cheaper: /\b(?:cheaper|less expensive|too expensive|too dear|more affordable|lower price|on a budget)\b/,
  other: /\b(?:something else|something different|another|other ones?|others|not (?:that|those|these)|different ones?|swap)\b/,
  more: /^\W*(?:more|show (?:me )?more|any more|more please|more of (?:these|those|that))\b|\bmore (?:options|ideas|like)\b/,
  closet: /\b(?:my (?:own )?(?:closet|wardrobe|clothes|pieces|things)|closet|what i (?:own|have))\b/,
  tonight: /\btonight\b|\bthis evening\b/,
  today: /\btoday\b|\bright now\b|\bthis morning\b|\bwhat (?:should|can|do|to) (?:i )?wear\b/,
  look: /\b(?:outfits?|looks?|ensemble|head to toe|style (?:me|this|it)|dress me|put together|goes? with|wear with|match(?:es|ing)?|pair (?:it|this)|build)\b/,
  help: /\bhelp me\b|\bi need help\b|\bcan you help\b|\b(?:recommend|suggest)\b/,
  gym: /\b(?:gym|workout|yoga|pilates|running|jogging|training)\b/,
  rain: /\b(?:rain\w*|wet|drizzl\w*|storm\w*|umbrella)\b/,
  forget: /\bforget my (?:measurements|size|height)\b/,
};

export function intentsOf(text) {
  return Object.fromEntries(Object.entries(patterns).map(([name, pattern]) => [name, pattern.test(text)]));
}

/** The size that somebody says they wear; null when they name none. */
export function sizeIn(words) {
  const [, named] = /\b(?:size|in an?|wear an?|i'?m an?)\s+(xxs|xs|s|m|l|xl|xxl|small|medium|large|3[4-9]|4\d|5[0-4])\b/i.exec(words) ?? [];
  const short = { SMALL: 'S', MEDIUM: 'M', LARGE: 'L' };
  return named ? (short[named.toUpperCase()] ?? named.toUpperCase()) : null;
}

/** Numbers of orders such as LST10482, as the store writes them. */
export function orderNumbersIn(text) {
  return [...text.matchAll(/\blst\s?(\d{4,9})\b/gi)].map(([, digits]) => `LST${digits}`);
}
