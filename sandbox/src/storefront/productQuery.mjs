import { words } from './searchIndex.mjs';

const token = /\s*(?:(\()|(\))|(-?)(?:([\w.]+):(>=|<=|>|<)?)?(?:"([^"]*)"|'([^']*)'|([^\s()]+)))/y;

/**
 * The platform's search syntax, as far as a product list takes it: words, field:value with comparisons, quoted values,
 * AND, OR, NOT, a leading minus and brackets. Gives a test for one piece.
 */
export function parseProductQuery(text, market) {
  const tokens = tokenize(text);
  let at = 0;
  const peek = () => tokens[at];
  const isWord = (word) => peek()?.bare === word;

  const either = () => {
    let test = all();
    while (isWord('OR')) {
      at += 1;
      const [left, right] = [test, all()];
      test = (piece) => left(piece) || right(piece);
    }
    return test;
  };
  const all = () => {
    let test = one();
    while (peek() && !peek().close && !isWord('OR')) {
      if (isWord('AND')) at += 1;
      const [left, right] = [test, one()];
      test = (piece) => left(piece) && right(piece);
    }
    return test;
  };
  const one = () => {
    const next = peek();
    if (!next) return () => true;
    at += 1;
    if (next.bare === 'NOT') {
      const test = one();
      return (piece) => !test(piece);
    }
    if (next.open) {
      const test = either();
      if (peek()?.close) at += 1;
      return test;
    }
    const test = termTest(next, market);
    return next.negative ? (piece) => !test(piece) : test;
  };
  return tokens.length === 0 ? () => true : either();
}

function tokenize(text) {
  const tokens = [];
  token.lastIndex = 0;
  for (let match = token.exec(text); match; match = token.exec(text)) {
    const [, open, close, minus, field, comparison, doubled, single, bare] = match;
    const value = doubled ?? single ?? bare;
    tokens.push({ open, close, negative: minus === '-', field, comparison, value, bare: field === undefined ? bare : undefined });
    if (token.lastIndex >= text.length) break;
  }
  return tokens;
}

function termTest({ field, comparison, value = '' }, market) {
  const same = (text) => text.toLowerCase() === value.toLowerCase();
  switch (field) {
    case undefined:
      return (piece) => matchesWords(`${piece.title} ${piece.vendor} ${piece.productType} ${piece.tags.join(' ')}`, value);
    case 'title':
      return (piece) => matchesWords(piece.title, value);
    case 'vendor':
      return (piece) => same(piece.vendor);
    case 'product_type':
      return (piece) => same(piece.productType);
    case 'tag':
      return (piece) => piece.tags.some(same);
    case 'tag_not':
      return (piece) => !piece.tags.some(same);
    case 'available_for_sale':
      return (piece) => String(piece.available) === value;
    case 'created_at':
      return (piece) => compare(Date.parse(piece.createdAt), comparison, dateOf(value));
    case 'updated_at':
      return (piece) => compare(Date.parse(piece.updatedAt), comparison, dateOf(value));
    case 'variants.price':
      return (piece) => piece.variants.some(({ price }) => compare(market.price(price), comparison, Number(value)));
    default:
      return () => true;
  }
}

/** An asterisk at the end stands for the rest of a word. */
function matchesWords(text, value) {
  const known = words(text);
  const open = value.endsWith('*');
  return words(value).every((word, place, wanted) =>
    known.some((other) => other === word || (open && place === wanted.length - 1 && other.startsWith(word))),
  );
}

function dateOf(value) {
  return value === 'now' ? Date.now() : Date.parse(value);
}

function compare(actual, comparison, wanted) {
  if (comparison === '>') return actual > wanted;
  if (comparison === '>=') return actual >= wanted;
  if (comparison === '<') return actual < wanted;
  if (comparison === '<=') return actual <= wanted;
  return actual === wanted;
}
