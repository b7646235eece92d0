import assert from 'node:assert/strict';
import { test } from 'node:test';

import { Catalog } from '../src/catalog/catalog.mjs';
import { compareSizes } from '../src/catalog/sizes.mjs';
import { primaryMarket } from '../src/markets/markets.mjs';
import { connect } from '../src/storefront/connection.mjs';
import { parseProductQuery } from '../src/storefront/productQuery.mjs';
import { SearchIndex } from '../src/storefront/searchIndex.mjs';

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

const piece = {
  title: 'Sabine bias slip dress', vendor: 'Tallis & Rook', productType: 'Dresses', tags: ['Silk', 'Final Sale'], available: true,
  createdAt: '2024-05-06T07:08:09Z', updatedAt: '2024-06-06T07:08:09Z', variants: [{ price: 248 }, { price: 300 }],
};

test('the search syntax of product lists', () => {
  for (const [query, holds] of [
    ['sabine', true], ['SABINE dress', true], ['sab', false], ['sab*', true], ['bias coat', false], ['bias OR coat', true],
    ['coat OR bias slip', true], ['coat OR bias trousers', false], ['(coat OR bias) slip', true], ['-coat', true], ['-bias', false],
    ['NOT tag:silk', false], ['NOT (tag:wool OR tag:linen)', true], ['tag:"final sale"', true], ["tag:'final sale'", true], ['tag:final', false],
    ['tag_not:wool', true], ['vendor:"tallis & rook" AND product_type:dresses', true], ['title:slip', true], ['title:tallis', false],
    ['available_for_sale:true', true], ['available_for_sale:false', false], ['variants.price:>=300', true], ['variants.price:<248', false],
    ["created_at:>'2024-05-06T00:00:00Z'", true], ['created_at:<2024-05-06', false], ['updated_at:<now', true], ['colour:red', true],
    ['', true], ['   ', true], ['(', true], [')', true], ['()', true], ['"unclosed', false], ['vendor:', false],
  ]) {
    assert.equal(parseProductQuery(query, primaryMarket)(piece), holds, query);
  }
});

test('words are found without case, accent and plural, in front of weaker matches', () => {
  const index = new SearchIndex(new Catalog({ seed: 'words', count: 120, startedAt: 0 }));
  const top = (query, prefix = false) => index.find(query, { prefix })[0]?.handle;
  assert.equal(top('BRAE Rollnecks'), 'brae-cable-rollneck');
  assert.equal(top('crêpe marlow'), 'marlow-wrap-dress');
  assert.equal(top('sabine sli'), undefined);
  assert.equal(top('sabine sli', true), 'sabine-bias-slip-dress');
  assert.equal(top('מעיל'), 'מעיל-גשם-עם-חגורה');
  assert.ok(index.find('dress', {}).every(({ garment, title }) => garment.noun === 'dress' || /dress/i.test(title)));
  assert.deepEqual(index.phrases('silk dr', 9).slice(0, 1), ['silk dress']);
  assert.deepEqual(index.phrases('', 9), []);
});

test('sizes stand in the order of bodies, not of the alphabet', () => {
  assert.deepEqual(['XL', '44', 'S', 'One size', 'XXS', '36', 'M', 'Bespoke'].sort(compareSizes), ['One size', 'XXS', 'S', 'M', 'XL', '36', '44', 'Bespoke']);
});
