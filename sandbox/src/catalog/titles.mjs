/** Titles of collections in other languages. A title that is not listed stays as it is. */
const titles = {
  FR: {
    'new-in': 'Nouveautés', women: 'Femme', men: 'Homme', luxury: 'Luxe', bags: 'Sacs', accessories: 'Accessoires',
    'final-sale': 'Dernières pièces', dresses: 'Robes', tops: 'Hauts', knitwear: 'Maille', skirts: 'Jupes', trousers: 'Pantalons',
    coats: 'Manteaux', blazers: 'Blazers', shoes: 'Chaussures', boots: 'Bottines', evening: 'Soir', silk: 'Soie', presale: 'Prévente',
    'all-fashion-clothing-for-women': 'Toutes les pièces',
  },
  DE: {
    'new-in': 'Neu', women: 'Damen', men: 'Herren', luxury: 'Luxus', bags: 'Taschen', accessories: 'Accessoires',
    'final-sale': 'Letzte Stücke', dresses: 'Kleider', tops: 'Oberteile', knitwear: 'Strick', skirts: 'Röcke', trousers: 'Hosen',
    coats: 'Mäntel', blazers: 'Blazer', shoes: 'Schuhe', boots: 'Stiefeletten', evening: 'Abend', silk: 'Seide', presale: 'Vorverkauf',
    'all-fashion-clothing-for-women': 'Alle Stücke',
  },
  JA: {
    'new-in': '新着', women: 'ウィメンズ', men: 'メンズ', luxury: 'ラグジュアリー', bags: 'バッグ', accessories: 'アクセサリー',
    'final-sale': 'ファイナルセール', dresses: 'ドレス', tops: 'トップス', knitwear: 'ニット', skirts: 'スカート', trousers: 'パンツ',
    coats: 'コート', blazers: 'ブレザー', shoes: 'シューズ', boots: 'ブーツ', evening: 'イブニング', silk: 'シルク', presale: '予約販売',
    'all-fashion-clothing-for-women': 'すべてのアイテム',
  },
  AR: {
    'new-in': 'وصل حديثًا', women: 'نساء', men: 'رجال', luxury: 'فاخر', bags: 'حقائب', accessories: 'إكسسوارات',
    'final-sale': 'تخفيضات نهائية', dresses: 'فساتين', tops: 'قمصان', knitwear: 'تريكو', skirts: 'تنانير', trousers: 'بناطيل',
    coats: 'معاطف', blazers: 'سترات', shoes: 'أحذية', boots: 'جزمات', evening: 'سهرة', silk: 'حرير', presale: 'طلب مسبق',
    'all-fashion-clothing-for-women': 'كل القطع',
  },
};

const filterLabels = {
  EN: { availability: 'Availability', inStock: 'In stock', soldOut: 'Out of stock', price: 'Price', Size: 'Size', Colour: 'Colour', designer: 'Designer', madeToOrder: 'Made to order', yes: 'Yes' },
  FR: { availability: 'Disponibilité', inStock: 'En stock', soldOut: 'Épuisé', price: 'Prix', Size: 'Taille', Colour: 'Couleur', designer: 'Créateur', madeToOrder: 'Sur commande', yes: 'Oui' },
  DE: { availability: 'Verfügbarkeit', inStock: 'Auf Lager', soldOut: 'Ausverkauft', price: 'Preis', Size: 'Größe', Colour: 'Farbe', designer: 'Designer', madeToOrder: 'Auf Bestellung', yes: 'Ja' },
  JA: { availability: '在庫状況', inStock: '在庫あり', soldOut: '在庫なし', price: '価格', Size: 'サイズ', Colour: 'カラー', designer: 'デザイナー', madeToOrder: '受注生産', yes: 'はい' },
  AR: { availability: 'التوفر', inStock: 'متوفر', soldOut: 'نفد', price: 'السعر', Size: 'المقاس', Colour: 'اللون', designer: 'المصمم', madeToOrder: 'حسب الطلب', yes: 'نعم' },
};

export const translatedLanguages = Object.keys(filterLabels);

export function collectionTitle(collection, language) {
  return titles[language]?.[collection.handle] ?? collection.title;
}

export function labelsIn(language) {
  return filterLabels[language] ?? filterLabels.EN;
}
