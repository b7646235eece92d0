/** The words of the last page, which a shop shows in the shopper's language. */
const translations = {
  en: {
    title: 'Thank you', thanks: 'Thank you, {name}!', order: 'Order #{number}', orderNumber: 'Order number: {number}', confirmation: 'Confirmation #{number}',
    sent: 'A confirmation was sent to {email}.', summary: 'What you buy', subtotal: 'Subtotal', discount: 'Discount',
    shipping: 'Shipping', total: 'Total', duties: 'Import duties included.',
  },
  de: {
    title: 'Vielen Dank', thanks: 'Vielen Dank, {name}!', order: 'Bestellung Nr. {number}', orderNumber: 'Bestellnummer: {number}', confirmation: 'Bestätigung Nr. {number}',
    sent: 'Eine Bestätigung ging an {email}.', summary: 'Was Sie kaufen', subtotal: 'Zwischensumme', discount: 'Rabatt',
    shipping: 'Versand', total: 'Summe', duties: 'Einfuhrzoll inbegriffen.',
  },
  fr: {
    title: 'Merci', thanks: 'Merci, {name} !', order: 'Commande nº {number}', orderNumber: 'Numéro de commande : {number}', confirmation: 'Confirmation nº {number}',
    sent: 'Une confirmation a été envoyée à {email}.', summary: 'Vos achats', subtotal: 'Sous-total', discount: 'Remise',
    shipping: 'Livraison', total: 'Total', duties: 'Droits de douane compris.',
  },
  ja: {
    title: 'ご購入ありがとうございます', thanks: '{name} 様、ありがとうございます', order: '注文番号 {number}', orderNumber: '注文番号：{number}', confirmation: '確認番号 {number}',
    sent: '{email} に確認メールをお送りしました。', summary: 'ご購入内容', subtotal: '小計', discount: '割引',
    shipping: '配送', total: '合計', duties: '関税込み',
  },
  ar: {
    title: 'شكرًا لك', thanks: 'شكرًا لك، {name}!', order: 'الطلب رقم {number}', orderNumber: 'رقم الطلب: {number}', confirmation: 'رقم التأكيد {number}',
    sent: 'أُرسل التأكيد إلى {email}.', summary: 'مشترياتك', subtotal: 'المجموع الفرعي', discount: 'الخصم',
    shipping: 'الشحن', total: 'المجموع', duties: 'الرسوم الجمركية مشمولة.',
    rightToLeft: true,
  },
};

export const languages = Object.keys(translations);

export function wordsOf(language) {
  return translations[language];
}
