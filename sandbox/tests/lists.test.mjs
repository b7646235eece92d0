import assert from 'node:assert/strict';
import { test } from 'node:test';

import { connect } from '../src/storefront/connection.mjs';

const letters = [...'abcdef'].map((id) => ({ id }));
const read = (connection) => [connection.nodes.map(({ id }) => id).join(''), connection.pageInfo().hasPreviousPage, connection.pageInfo().hasNextPage];
const cursorOf = (id) => connect(letters, { first: 6 }).edges().find(({ node }) => node.id === id).cursor;

test('a page is cut where it is asked for', () => {
  for (const [args, expected] of [
    [{ first: 2 }, ['ab', false, true]],
    [{ first: 6 }, ['abcdef', false, false]],
    [{ first: 0 }, ['', false, true]],
    [{ first: 2, after: cursorOf('b') }, ['cd', true, true]],
    [{ first: 9, after: cursorOf('e') }, ['f', true, false]],
    [{ first: 2, after: cursorOf('f') }, ['', true, false]],
    [{ last: 2 }, ['ef', true, false]],
    [{ last: 2, before: cursorOf('c') }, ['ab', false, true]],
    [{ first: 2, reverse: true }, ['fe', false, true]],
    [{ first: 9, after: cursorOf('b'), before: cursorOf('e') }, ['cd', true, true]],
  ]) {
    assert.deepEqual(read(connect(letters, args)), expected, JSON.stringify(args));
  }
  assert.equal(connect([], { first: 3 }).pageInfo().endCursor, null);
});

test('a cursor finds its place again after the list has changed', () => {
  const after = cursorOf('c');
  assert.equal(read(connect(letters.slice(1), { first: 2, after }))[0], 'de', 'one before it went');
  assert.equal(read(connect([{ id: 'z' }, ...letters], { first: 2, after }))[0], 'de', 'one before it came');
  assert.equal(read(connect(letters.filter(({ id }) => id !== 'c'), { first: 2, after }))[0], 'de', 'it went itself');
});
