/** The language of a locale, by the code the application has for it: "zh-TW" and "zh_HK" are "zh-Hant", "pt-BR" is "pt". */
export function languageOf(locale = 'en') {
  const [language, ...rest] = String(locale).replaceAll('_', '-').toLowerCase().split('-');
  if (language === 'zh') return rest.some((part) => ['hant', 'hk', 'mo', 'tw'].includes(part)) && !rest.includes('hans') ? 'zh-Hant' : 'zh-Hans';
  return { no: 'nb', tl: 'fil' }[language] ?? language;
}

/** How a reason's parameter reads in other languages, under the code that this backend has for the language. */
const labels = {
  fr: { code: 'fr', dresses: 'les robes', bags: 'les sacs', boots: 'les bottines', knitwear: 'la maille', coats: 'les manteaux', wedding: 'un mariage', work: 'le bureau', 'date night': 'un dîner à deux', weekend: 'le week-end', romantic: 'romantique', Minimalist: 'minimaliste', classic: 'classique' },
  de: { code: 'de-DE', dresses: 'Kleider', bags: 'Taschen', boots: 'Stiefeletten', knitwear: 'Strick', coats: 'Mäntel', wedding: 'Hochzeiten', work: 'die Arbeit', 'date night': 'den Abend zu zweit', weekend: 'das Wochenende', romantic: 'romantisch', Minimalist: 'minimalistisch', classic: 'klassisch' },
  ja: { code: 'ja', dresses: 'ドレス', bags: 'バッグ', boots: 'ブーツ', knitwear: 'ニット', coats: 'コート', wedding: '結婚式', work: '仕事', 'date night': 'デート', weekend: '週末', romantic: 'ロマンティック', Minimalist: 'ミニマル', classic: 'クラシック' },
  pt: { code: 'pt-BR', dresses: 'vestidos', bags: 'bolsas', boots: 'botas', knitwear: 'tricô', wedding: 'casamentos', work: 'o trabalho', romantic: 'romântico', classic: 'clássico' },
  'zh-Hans': { code: 'zh-CN', dresses: '连衣裙', bags: '包袋', boots: '靴子', knitwear: '针织衫', coats: '大衣', wedding: '婚礼', work: '上班', 'date night': '约会', weekend: '周末', romantic: '浪漫', Minimalist: '极简', classic: '经典' },
  'zh-Hant': { code: 'zh-TW', dresses: '洋裝', bags: '包款', boots: '靴子', knitwear: '針織衫', coats: '大衣', wedding: '婚禮', work: '上班', 'date night': '約會', weekend: '週末', romantic: '浪漫', Minimalist: '極簡', classic: '經典' },
};

/** {value, locale} of a parameter in a language; English, which helps nobody else, where there is no translation. */
export function labelOf(value, language) {
  const known = labels[language];
  return known && Object.hasOwn(known, value) ? { value: known[value], locale: known.code } : { value, locale: 'en' };
}

/** A name is the same in every language. */
export function nameLabel(name, language) {
  return { value: name, locale: labels[language]?.code ?? language };
}
