import assert from 'node:assert/strict';
import { test } from 'node:test';

import { Catalog } from '../src/catalog/catalog.mjs';
import { description, descriptionHtml } from '../src/catalog/copy.mjs';
import { designers } from '../src/catalog/designers.mjs';
import { metafieldsOf } from '../src/catalog/metafields.mjs';

const startedAt = Date.UTC(2026, 4, 2, 9, 30);
const catalog = new Catalog({ seed: 'loomstreet', count: 420, startedAt });
const regular = catalog.pieces.filter(({ curiosity }) => !curiosity);
const fieldsOf = (piece) => metafieldsOf(piece, catalog.calendar);

test('the same seed makes the same catalog, another seed another one', () => {
  const outline = ({ pieces }) => JSON.stringify(pieces.map(({ handle, variants, images, tags }) => [handle, tags, images.map(({ view }) => view), variants.map(({ id, price, stock }) => [id, price, stock])]));
  const again = new Catalog({ seed: 'loomstreet', count: 420, startedAt: startedAt + 86400000 });
  assert.equal(outline(again), outline(catalog));
  assert.deepEqual(again.pieces.map((piece) => JSON.stringify([...metafieldsOf(piece, catalog.calendar)])), catalog.pieces.map((piece) => JSON.stringify([...fieldsOf(piece)])));
  assert.notEqual(outline(new Catalog({ seed: 'other', count: 420, startedAt })), outline(catalog));
});

test('whatever the seed and the size, the store is complete', () => {
  for (const [seed, count] of [['loomstreet', 420], ['a', 150], ['b', 2000]]) {
    const { pieces, collections } = new Catalog({ seed, count, startedAt });
    assert.equal(pieces.length, count);
    assert.equal(new Set(pieces.map(({ handle }) => handle)).size, count);
    assert.equal(new Set(pieces.flatMap(({ variants }) => variants.map(({ id }) => id))).size, pieces.reduce((sum, { variants }) => sum + variants.length, 0));
    assert.ok(new Set(pieces.map(({ drawing }) => drawing)).size === 12);
    const empty = collections.filter((collection) => collection.pieces.length === 0).map(({ handle }) => handle);
    assert.deepEqual(empty, ['autumn-preview'], seed);
    assert.ok(designers.length >= 20 && designers.every(({ handle }) => collections.some((collection) => collection.handle === handle)));
  }
});

test('every piece can be shown and bought', () => {
  for (const piece of regular) {
    assert.ok(piece.images.length >= 4 && piece.images.length <= 8, piece.handle);
    assert.ok(piece.variants.length >= 1 && piece.variants.length <= 100);
    assert.ok(piece.colours.length >= 1 && piece.colours.length <= 5);
    assert.equal(piece.images[1].view.crop, true);
    for (const { price, compareAt, image, selectedOptions, title } of piece.variants) {
      assert.ok(price > 0 && (compareAt === null || compareAt > price), `${piece.handle}: ${price} of ${compareAt}`);
      assert.ok(image && !image.view.crop);
      assert.equal(image.view.colour, selectedOptions[0].value.toLowerCase());
      assert.equal(title, selectedOptions.map(({ value }) => value).join(' / '));
    }
    if (piece.finalSale) assert.ok(piece.earlier && piece.tags.includes('Final Sale'));
    assert.match(descriptionHtml(piece), /<h3>.*<details><summary>/s);
    assert.doesNotMatch(description(piece), /[<>]|undefined|null/);
  }
});

test('the store has some of everything a shopper can meet', () => {
  const share = (test) => regular.filter(test).length / regular.length;
  assert.ok(share(({ available }) => !available) > 0.01 && share(({ available }) => !available) < 0.1);
  assert.ok(share(({ variants }) => variants.some(({ available }) => !available)) > 0.5);
  assert.ok(share(({ earlier }) => earlier) > 0.15);
  for (const tag of ['Final Sale', 'Luxury', 'Presale', 'made to order', 'new', 'evening']) assert.ok(share(({ tags }) => tags.includes(tag)) > 0.005, tag);
  const recent = regular.filter(({ createdAt }) => startedAt - Date.parse(createdAt) < 7 * 86400000);
  assert.ok(recent.length >= 5 && recent.every(({ createdAt, recent: isRecent }) => isRecent && Date.parse(createdAt) < startedAt));
  const older = regular.filter((piece) => !piece.recent).map(({ createdAt }) => Date.parse(createdAt));
  assert.ok(Math.max(...older) - Math.min(...older) > 600 * 86400000);
  assert.deepEqual(catalog.collectionByHandle.get('new-in').pieces.slice(0, recent.length).map(({ handle }) => handle).sort(), recent.map(({ handle }) => handle).sort());
});

test('metafields parse as their type says, save for the few that merchants spoiled', () => {
  let spoiled = 0;
  const cells = new Set();
  const missing = new Map();
  for (const piece of regular) {
    const fields = fieldsOf(piece);
    for (const name of ['custom.specs', 'custom.highlights', 'custom.composition', 'custom.aeo_details', 'custom.reviews', 'reviews.rating', 'pdp.topcartsize']) {
      if (!fields.has(name)) missing.set(name, (missing.get(name) ?? 0) + 1);
    }
    try {
      const specs = JSON.parse(fields.get('custom.specs')?.value ?? '[]');
      const reviews = JSON.parse(fields.get('custom.reviews')?.value ?? 'null');
      const rating = JSON.parse(fields.get('reviews.rating')?.value ?? 'null');
      assert.ok(Array.isArray(JSON.parse(fields.get('custom.highlights')?.value ?? '[]')));
      assert.ok(Array.isArray(specs) || Array.isArray(specs.rows));
      if (reviews) assert.equal(String(reviews.total), fields.get('reviews.rating_count').value);
      if (rating) assert.ok(rating.value >= 1 && rating.value <= 5);
      for (const { rows } of specs.sizeTables ?? []) {
        assert.deepEqual(rows.slice(1).map(([size]) => size), piece.sizes);
        rows.slice(1).flatMap((row) => row.slice(1)).forEach((cell) => cells.add(cell.replace(/\d+(\.\d+)?/g, '0')));
      }
    } catch {
      spoiled += 1;
    }
  }
  assert.ok(spoiled >= 1 && spoiled <= 20, String(spoiled));
  assert.equal(missing.size, 7, 'each of them is missing somewhere');
  for (const form of ['0 - 0 cm / 0 - 0 in', '0 - 0 cm', '0-0cm', '0cm / 0in', '0-0', '0\'0"', '0 kg / 0 lbs', '0 cm']) {
    assert.ok(cells.has(form), `no cell is written ${form}; there are ${[...cells].join(', ')}`);
  }
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
