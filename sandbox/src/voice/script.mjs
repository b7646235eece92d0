/**
 * What shoppers say whose words nobody wrote down, in the language they are answered in. In languages other than English a
 * line says in English what is meant.
 */
const meanings = ['Hello!', 'What should I wear today?', 'Show me a coat.', 'Put the first one in my bag.', 'Open my wishlist.', 'Thank you, goodbye!'];

const conversations = {
  en: ['Hello Mira!', ...meanings.slice(1)],
  de: ['Hallo Mira!', 'Was soll ich heute anziehen?', 'Zeig mir einen Mantel.', 'Leg den ersten in meine Tasche.', 'Öffne meine Wunschliste.', 'Danke, auf Wiederhören!'],
  fr: ['Bonjour Mira !', 'Que porter aujourd’hui ?', 'Montre-moi un manteau.', 'Mets le premier dans mon panier.', 'Ouvre mes favoris.', 'Merci, au revoir !'],
  ja: ['こんにちは、ミラさん。', '今日は何を着ればいいですか。', 'コートを見せてください。', '最初のものをバッグに入れてください。', 'お気に入りを開いてください。', 'ありがとう、さようなら。'],
  ar: ['مرحبا ميرا!', 'ماذا ألبس اليوم؟', 'أريني معطفا.', 'ضعي الأول في حقيبتي.', 'افتحي قائمة أمنياتي.', 'شكرا، مع السلامة!'],
  'zh-Hant': ['你好，Mira！', '今天該穿什麼？', '給我看一件大衣。', '把第一件放進購物袋。', '打開我的願望清單。', '謝謝，再見！'],
};

const afterwards = { heard: 'Something else, please.', means: 'something else' };

/** The lines of a call, one for each time the shopper speaks: {heard, means, says, shows, events, ends}. */
export class Script {
  #lines;
  #at = 0;

  constructor(lines, language) {
    this.#lines = lines ?? (conversations[language] ?? conversations.en).map((heard, at) => ({ heard, means: meanings[at] }));
  }

  /** The line of an utterance that begins; null where nobody understands it. */
  next() {
    const line = this.#at < this.#lines.length ? this.#lines[this.#at] : afterwards;
    this.#at += 1;
    return typeof line === 'string' ? { heard: line } : line;
  }
}
