/** What a piece is good for and how it looks, by its drawing. Some words are ones that no application has a text for. */
const characters = {
  slip: { occasions: ['date night', 'party', 'wedding'], styles: ['elegant', 'romantic'] },
  tiered: { occasions: ['vacation', 'brunch', 'beach', 'wedding'], styles: ['boho', 'cottagecore'] },
  wrap: { occasions: ['wedding', 'gallery opening', 'date night'], styles: ['feminine', 'romantic'] },
  trench: { occasions: ['travel', 'everyday', 'work'], styles: ['classic', 'French'] },
  blazer: { occasions: ['work', 'interview', 'formal events'], styles: ['Minimalist', 'quiet luxury'] },
  knit: { occasions: ['weekend', 'everyday', 'school'], styles: ['preppy', 'coastal grandmother', 'dark academia'] },
  shirt: { occasions: ['work', 'weekend', 'travel'], styles: ['preppy', 'office'] },
  skirt: { occasions: ['brunch', 'school', 'party'], styles: ['balletcore', 'academia'] },
  trousers: { occasions: ['work', 'interview', 'travel'], styles: ['Minimalist', 'utility'] },
  tophandle: { occasions: ['everyday', 'work', 'graduation'], styles: ['old money', 'classic'] },
  crescent: { occasions: ['night out', 'party', 'wedding'], styles: ['Y2K', 'chic'] },
  boot: { occasions: ['weekend', 'festival', 'travel'], styles: ['edgy', 'grunge'] },
};

export const characterOf = ({ drawing }) => characters[drawing];

const outfits = {
  slip: ['blazer', 'boot', 'crescent', 'trench'],
  tiered: ['boot', 'crescent', 'knit', 'trench'],
  wrap: ['blazer', 'tophandle', 'boot', 'trench'],
  trench: ['trousers', 'knit', 'boot', 'tophandle'],
  blazer: ['trousers', 'shirt', 'tophandle', 'boot', 'skirt'],
  knit: ['trousers', 'skirt', 'boot', 'trench'],
  shirt: ['trousers', 'skirt', 'blazer', 'crescent'],
  skirt: ['knit', 'shirt', 'boot', 'crescent'],
  trousers: ['knit', 'shirt', 'blazer', 'boot'],
  tophandle: ['trench', 'blazer', 'wrap', 'boot'],
  crescent: ['slip', 'blazer', 'skirt', 'boot'],
  boot: ['trousers', 'knit', 'trench', 'slip'],
};

/** The kinds of garment that go with a piece. */
export const goesWith = ({ drawing }) => outfits[drawing];
