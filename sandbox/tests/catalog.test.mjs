import assert from 'node:assert/strict';
import { test } from 'node:test';

import { Catalog } from '../src/catalog/catalog.mjs';
import { descriptionHtml } from '../src/catalog/copy.mjs';
import { metafieldsOf } from '../src/catalog/metafields.mjs';

const startedAt = Date.UTC(2026, 4, 2, 9, 30);
const catalog = new Catalog({ seed: 'loomstreet', count: 420, startedAt });
const fieldsOf = (piece) => metafieldsOf(piece, catalog.calendar);

test('the same seed makes the same catalog, another seed another one', () => {
  const outline = ({ pieces }) => JSON.stringify(pieces.map(({ handle, variants, images, tags }) => [handle, tags, images.map(({ view }) => view), variants.map(({ id, price, stock }) => [id, price, stock])]));
  const again = new Catalog({ seed: 'loomstreet', count: 420, startedAt: startedAt + 86400000 });
  assert.equal(outline(again), outline(catalog));
  assert.deepEqual(again.pieces.map((piece) => JSON.stringify([...metafieldsOf(piece, catalog.calendar)])), catalog.pieces.map((piece) => JSON.stringify([...fieldsOf(piece)])));
  assert.notEqual(outline(new Catalog({ seed: 'other', count: 420, startedAt })), outline(catalog));
});

test('the curiosities hold what they promise', () => {
  const piece = (handle) => catalog.piece(handle);
  const members = catalog.collectionByHandle.get('curiosities').pieces;
  assert.ok(members.length >= 14 && members.every(({ collections }) => collections.length === 1));
  assert.match(piece('bold-markup-shirt').title, /<img src=x onerror/);
  assert.ok(members.some(({ handle }) => /^[\u0590-\u05ff-]+$/.test(handle)), 'a handle in Hebrew');
  assert.ok(piece('long-title-coat').title.length > 200);
  assert.equal(piece('skirt-without-a-maker').vendor, '');
  assert.deepEqual(piece('shirt-nobody-photographed').images, []);
  assert.equal(piece('boots-in-every-size').variants.length, 100);
  assert.deepEqual(piece('gift-wrapping').variants.map(({ title }) => title), ['Default Title']);
  assert.match(descriptionHtml(piece('blazer-with-a-script-in-its-lining')), /<script>.*javascript:/s);
  assert.equal(piece('dress-that-sold-out-overnight').available, false);
  assert.equal(piece('sample-that-costs-nothing').lowest, 0);
});
