import { imageUrl } from '../catalog/images.mjs';
import { dateText } from '../catalog/dates.mjs';

const day = 24 * 3600 * 1000;

const title = {
  en: 'The season’s first coats',
  ar: 'أولى معاطف الموسم',
  de: 'Die ersten Mäntel der Saison',
  es: 'Los primeros abrigos de la temporada',
  fr: 'Les premiers manteaux de la saison',
  ja: '今季最初のコート',
  'zh-Hans': '本季首批大衣',
  'zh-Hant': '本季首批大衣',
};

const subtitle = {
  en: 'Gabardine and wool, just in from Aldine Row and friends.',
  ar: 'غبردين وصوف، وصلا للتو.',
  de: 'Gabardine und Wolle, eben eingetroffen.',
  fr: 'Gabardine et laine, tout juste arrivées.',
  ja: 'ギャバジンとウールが入荷しました。',
  'zh-Hans': '华达呢与羊毛，新鲜到店。',
};

/** The promotion that runs when the store is started, and for a fortnight from then. */
export function promotionAt(startedAt) {
  return {
    id: 'first-coats',
    image: imageUrl('harrow-belted-trench-coat', 1),
    title, subtitle,
    link: '/collections/new-in',
    startsAt: dateText(startedAt - 3 * day),
    endsAt: dateText(startedAt + 14 * day),
  };
}
