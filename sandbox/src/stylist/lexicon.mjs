/** What shoppers write in other languages, in the words the store understands: English = beginnings of words. */
const entries = {
  de: {
    dress: 'kleid, abendkleid, sommerkleid', skirt: 'rock, röck', trousers: 'hose', coat: 'mantel, mäntel, trenchcoat', blazer: 'jacke, sakko',
    knit: 'pulli, strick', top: 'oberteil, hemd, bluse', bag: 'tasche, handtasche', boot: 'stiefel, schuh', green: 'grün', red: 'rot', black: 'schwarz',
    white: 'weiß, weiss', blue: 'blau', pink: 'rosa', yellow: 'gelb', brown: 'braun', purple: 'lila, violett', wedding: 'hochzeit', work: 'arbeit, büro',
    party: 'feier, fest', 'date night': 'verabredung, rendezvous', travel: 'reise', vacation: 'urlaub', beach: 'strand', weekend: 'wochenende',
    gym: 'fitnessstudio, sport', today: 'heute', tonight: 'heute abend', cheaper: 'günstiger, billiger', 'something else': 'etwas anderes, was anderes',
    more: 'mehr', hello: 'hallo, guten tag, guten morgen, guten abend', thanks: 'danke, vielen dank', 'my order': 'bestellung, paket, lieferung',
    size: 'größe, grösse', under: 'unter, bis zu, höchstens', between: 'zwischen', and: 'und', closet: 'kleiderschrank', outfit: 'look',
    'help me find': 'hilf mir', rain: 'regen', winter: 'kalt', summer: 'sommer', men: 'herren, männer', 'wear': 'anziehen, tragen',
  },
  fr: {
    dress: 'robe', skirt: 'jupe', trousers: 'pantalon', coat: 'manteau, trench', blazer: 'veste', knit: 'pull, maille', top: 'haut, chemis', bag: 'sac',
    boot: 'bott, chaussure', green: 'vert', red: 'rouge', black: 'noir', white: 'blanc', blue: 'bleu', pink: 'rose', yellow: 'jaune', brown: 'marron, brun',
    purple: 'violet', wedding: 'mariage', work: 'travail, bureau', party: 'fête, soirée', 'date night': 'rendez-vous, dîner', travel: 'voyage',
    vacation: 'vacances', beach: 'plage', weekend: 'week-end', gym: 'salle de sport, sport', today: "aujourd'hui, aujourd’hui", tonight: 'ce soir',
    cheaper: 'moins cher', 'something else': 'autre chose', more: 'encore, davantage', hello: 'bonjour, bonsoir, salut', thanks: 'merci',
    'my order': 'commande, colis, livraison', size: 'taille', under: 'moins de, sous, maximum', between: 'entre', and: 'et ', closet: 'dressing, garde-robe',
    outfit: 'tenue, look', 'help me find': 'aidez-moi, aide-moi', rain: 'pluie', winter: 'hiver, froid', summer: 'été', men: 'homme', wear: 'porter',
  },
  'zh-Hant': {
    dress: '洋裝, 連衣裙, 连衣裙, 裙裝', skirt: '半身裙, 裙子', trousers: '褲, 裤', coat: '大衣, 外套, 風衣, 风衣', blazer: '西裝, 西装', knit: '針織, 针织, 毛衣',
    top: '上衣, 襯衫, 衬衫', bag: '包包, 手袋, 包款', boot: '靴, 鞋', green: '綠, 绿', red: '紅, 红', black: '黑', white: '白', blue: '藍, 蓝', pink: '粉',
    yellow: '黃, 黄', brown: '棕, 咖啡色', purple: '紫', wedding: '婚禮, 婚礼', work: '上班, 工作, 辦公', party: '派對, 派对, 聚會', 'date night': '約會, 约会',
    travel: '旅行, 旅遊', vacation: '度假', beach: '海邊, 海滩, 沙灘', weekend: '週末, 周末', gym: '健身', today: '今天', tonight: '今晚', cheaper: '便宜',
    'something else': '其他, 別的, 别的', more: '更多', hello: '你好, 您好, 哈囉', thanks: '謝謝, 谢谢, 感謝', 'my order': '訂單, 订单, 包裹', size: '尺寸, 尺碼, 尺码',
    under: '低於, 不超過', closet: '衣櫃, 衣橱', outfit: '穿搭, 搭配, 造型', 'help me find': '幫我找, 帮我找', rain: '下雨, 雨天', winter: '冬, 冷', summer: '夏, 熱',
    men: '男', wear: '穿什麼, 穿什么',
  },
  ja: {
    dress: 'ドレス, ワンピース', skirt: 'スカート', trousers: 'パンツ, ズボン', coat: 'コート', blazer: 'ジャケット, ブレザー', knit: 'ニット, セーター',
    top: 'トップス, シャツ, ブラウス', bag: 'バッグ, かばん', boot: 'ブーツ, 靴', green: '緑, グリーン', red: '赤, レッド', black: '黒, ブラック', white: '白, ホワイト',
    blue: '青, ブルー', pink: 'ピンク', yellow: '黄, イエロー', brown: '茶, ブラウン', purple: '紫, パープル', wedding: '結婚式', work: '仕事, オフィス',
    party: 'パーティー, パーティ', 'date night': 'デート', travel: '旅行', vacation: '休暇, バカンス', beach: 'ビーチ, 海', weekend: '週末', gym: 'ジム',
    today: '今日', tonight: '今夜, 今晩', cheaper: 'もっと安, 安い', 'something else': '他の, ほかの, 別の', more: 'もっと', hello: 'こんにちは, こんばんは, おはよう',
    thanks: 'ありがとう', 'my order': '注文, 荷物', size: 'サイズ', closet: 'クローゼット', outfit: 'コーデ, ルック', 'help me find': '探して', rain: '雨',
    winter: '冬, 寒', summer: '夏, 暑', men: 'メンズ, 男性', wear: '着る, 何を着',
  },
  ar: {
    dress: 'فستان, فساتين', skirt: 'تنورة, تنانير', trousers: 'بنطال, بنطلون, بناطيل', coat: 'معطف, معاطف', blazer: 'سترة, جاكيت', knit: 'كنزة, تريكو',
    top: 'قميص, بلوزة', bag: 'حقيبة, حقائب, شنطة', boot: 'حذاء, أحذية, جزمة', green: 'أخضر, خضراء', red: 'أحمر, حمراء', black: 'أسود, سوداء', white: 'أبيض, بيضاء',
    blue: 'أزرق, زرقاء', pink: 'وردي', yellow: 'أصفر, صفراء', brown: 'بني', purple: 'بنفسجي', wedding: 'زفاف, عرس', work: 'العمل, للعمل, مكتب', party: 'حفلة',
    'date night': 'موعد', travel: 'سفر', vacation: 'إجازة, عطلة', beach: 'شاطئ, بحر', gym: 'نادي رياضي, رياضة', today: 'اليوم', tonight: 'الليلة, هذا المساء',
    cheaper: 'أرخص', 'something else': 'شيء آخر, غيره', more: 'المزيد', hello: 'مرحبا, السلام عليكم, أهلا', thanks: 'شكرا', 'my order': 'طلبي, طلبيتي, شحنة',
    size: 'مقاس, قياس', under: 'أقل من, تحت', closet: 'خزانتي, خزانة', outfit: 'إطلالة, طقم', 'help me find': 'ساعدني, ساعديني', rain: 'مطر', winter: 'شتاء, بارد',
    summer: 'صيف, حار', men: 'رجال', wear: 'ألبس, أرتدي',
  },
};
entries['zh-Hans'] = entries['zh-Hant'];

/** Scripts tell these languages apart; the others are only read as what the shopper has set. */
const scripts = [['ja', /[\p{Script=Hiragana}\p{Script=Katakana}]/u], ['zh-Hant', /\p{Script=Han}/u], ['ar', /\p{Script=Arabic}/u]];
const spaced = new Set(['de', 'fr']);
const readers = Object.fromEntries(Object.entries(entries).map(([language, terms]) => [language, readerOf(terms, spaced.has(language))]));

/** A shopper's words in small letters without accents, and in English as far as the store knows the language. */
export function englished(text, language) {
  const plain = plainOf(text);
  const [written] = scripts.find(([, script]) => script.test(text)) ?? [language];
  return readers[written]?.(plain) ?? plain;
}

function readerOf(terms, byWord) {
  const english = new Map(Object.entries(terms).flatMap(([meaning, list]) => list.split(',').map((term) => [plainOf(term.trimStart()), meaning])));
  const longestFirst = [...english.keys()].sort((one, other) => other.length - one.length).join('|');
  const pattern = byWord ? new RegExp(`(?<!\\p{L})(${longestFirst})\\p{L}*`, 'gu') : new RegExp(`(${longestFirst})`, 'gu');
  return (plain) => plain.replace(pattern, (_, term) => ` ${english.get(term)} `);
}

function plainOf(text) {
  return text.normalize('NFKD').replace(/\p{M}/gu, '').toLowerCase().replaceAll('’', "'");
}
