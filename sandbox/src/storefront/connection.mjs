import { GraphQLError } from 'graphql';

const limit = 250;

/** One page of a list in the platform's shape. Cursors name an item, so that a list which changed does not skip any. */
export function connect(list, args, extra = {}) {
  const { first, last, after, before, reverse } = args;
  if ((first ?? null) === null && (last ?? null) === null) fail('you must provide one of first or last');
  checkSize('first', first);
  checkSize('last', last);

  const items = reverse ? [...list].reverse() : list;
  let start = after ? position(items, after) + 1 : 0;
  let end = before ? position(items, before) : items.length;
  if (typeof first === 'number') end = Math.min(end, start + first);
  else start = Math.max(start, end - last);

  const nodes = items.slice(start, end);
  const cursorAt = (index) => Buffer.from(`${index}:${identity(items[index])}`).toString('base64url');
  return {
    nodes,
    edges: () => nodes.map((node, place) => ({ node, cursor: cursorAt(start + place) })),
    pageInfo: () => ({
      hasNextPage: end < items.length,
      hasPreviousPage: start > 0,
      startCursor: nodes.length > 0 ? cursorAt(start) : null,
      endCursor: nodes.length > 0 ? cursorAt(start + nodes.length - 1) : null,
    }),
    ...extra,
  };
}

function checkSize(name, value) {
  if ((value ?? null) === null) return;
  if (value > limit) fail(`${name} cannot exceed ${limit}`);
  if (value < 0) fail(`${name} cannot be negative`);
}

function position(items, cursor) {
  const [, place, id] = /^(\d+):(.*)$/s.exec(Buffer.from(cursor, 'base64url').toString()) ?? [];
  if (place === undefined) fail('Invalid cursor for current pagination sort.');
  if (items[place] !== undefined && identity(items[place]) === id) return Number(place);
  const moved = items.findIndex((item) => identity(item) === id);
  return moved >= 0 ? moved : Number(place) - 1;
}

function identity(item) {
  return item.id ?? item.url ?? '';
}

function fail(message) {
  throw new GraphQLError(message, { extensions: { code: 'BAD_REQUEST' } });
}
