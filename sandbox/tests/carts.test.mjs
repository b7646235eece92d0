import assert from 'node:assert/strict';
import { test } from 'node:test';

import { operations } from './support/operations.mjs';
import { storeForTests } from './support/store.mjs';

const { client, catalog } = await storeForTests();
const variantOf = (handle, title) => catalog.piece(handle).variants.find((variant) => variant.title === title);
const sabine = variantOf('sabine-bias-slip-dress', 'Sage / M').id;
const brae = catalog.piece('brae-cable-rollneck').variants.find(({ stock }) => stock > 3).id;
const attribution = [{ key: 'source', value: 'app' }, { key: 'platform', value: 'macos' }];

async function run(operation, variables) {
  const [payload] = Object.values(await client.data(operations[operation], variables));
  return payload;
}

async function newCart(lines, country = 'US') {
  const { cart, userErrors } = await run('CartCreate', { input: { attributes: attribution, buyerIdentity: { countryCode: country }, lines } });
  assert.deepEqual(userErrors, []);
  return cart;
}

test('a cart is made, filled, changed, emptied and read back', async () => {
  const created = await newCart([{ merchandiseId: sabine, quantity: 1 }]);
  assert.match(created.id, /^gid:\/\/shopify\/Cart\/\w+\?key=\w+$/);
  assert.match(created.checkoutUrl, /^https:\/\/shop\.loomstreet\.example\/cart\/c\/\w+\?key=\w+$/);
  assert.deepEqual(created.attributes, attribution);

  const { cart: added } = await run('CartLinesAdd', { cartId: created.id, lines: [{ merchandiseId: sabine, quantity: 1 }, { merchandiseId: brae, quantity: 1 }] });
  assert.deepEqual(added.lines.nodes.map(({ quantity }) => quantity), [2, 1], 'the same choice joins its line');
  assert.equal(added.totalQuantity, 3);
  assert.equal(added.cost.subtotalAmount.amount, '694.0');
  assert.equal(added.lines.nodes[0].merchandise.product.handle, 'sabine-bias-slip-dress');

  const [first, second] = added.lines.nodes;
  const { cart: changed } = await run('CartLinesUpdate', { cartId: created.id, lines: [{ id: first.id, quantity: 3 }] });
  assert.equal(changed.lines.nodes[0].cost.totalAmount.amount, '744.0');
  const { cart: zeroed } = await run('CartLinesUpdate', { cartId: created.id, lines: [{ id: first.id, quantity: 0 }] });
  assert.deepEqual(zeroed.lines.nodes.map(({ id }) => id), [second.id]);
  const { cart: emptied } = await run('CartLinesRemove', { cartId: created.id, lineIds: [second.id] });
  assert.deepEqual([emptied.lines.nodes, emptied.cost.totalAmount.amount], [[], '0.0']);
  assert.deepEqual(await run('GetCart', { cartId: created.id }), emptied);
});

test('a cart is found by its whole identifier only', async () => {
  const { id } = await newCart();
  assert.equal(await run('GetCart', { cartId: id.replace(/\?key=.*/, '') }), null);
  assert.equal(await run('GetCart', { cartId: `${id}0` }), null);
  const { cart, userErrors } = await run('CartLinesAdd', { cartId: `${id}0`, lines: [{ merchandiseId: sabine, quantity: 1 }] });
  assert.deepEqual([cart, userErrors[0].message], [null, 'The specified cart does not exist.']);
});

test('a mistake in one line leaves the whole cart as it was', async () => {
  const { id, lines } = await newCart([{ merchandiseId: sabine, quantity: 1 }]);
  const [line] = lines.nodes;
  for (const [operation, variables, message] of [
    ['CartLinesAdd', { lines: [{ merchandiseId: brae, quantity: 1 }, { merchandiseId: 'gid://shopify/ProductVariant/1', quantity: 1 }] }, /does not exist/],
    ['CartLinesAdd', { lines: [{ merchandiseId: sabine, quantity: -1 }] }, /greater than/],
    ['CartLinesUpdate', { lines: [{ id: line.id, quantity: 4 }, { id: 'gid://shopify/CartLine/1', quantity: 1 }] }, /does not exist/],
    ['CartLinesRemove', { lineIds: [line.id, 'gid://shopify/CartLine/1'] }, /does not exist/],
  ]) {
    const { cart, userErrors } = await run(operation, { cartId: id, ...variables });
    assert.equal(cart, null, operation);
    assert.match(userErrors[0].message, message);
  }
  const after = await run('GetCart', { cartId: id });
  assert.deepEqual(after.lines.nodes.map(({ id: own, quantity }) => [own, quantity]), [[line.id, 1]]);
});

test('too little stock is a warning: a large quantity is clamped, a sold-out piece stays at nothing', async () => {
  const soldOut = variantOf('dress-that-sold-out-overnight', 'Sage / M').id;
  const few = variantOf('party-dress', 'Sage / M').id;
  const text = operations.CartLinesAdd.replace('userErrors { message }', 'userErrors { message } warnings { code target message }');
  const { id } = await newCart();
  const { cartLinesAdd } = await client.data(text, { cartId: id, lines: [{ merchandiseId: few, quantity: 99 }, { merchandiseId: soldOut, quantity: 1 }] });
  const lines = cartLinesAdd.cart.lines.nodes;
  assert.deepEqual(lines.map(({ quantity }) => quantity), [5, 0]);
  assert.deepEqual(cartLinesAdd.warnings.map(({ code, target }) => [code, target]), [
    ['MERCHANDISE_NOT_ENOUGH_STOCK', lines[0].id], ['MERCHANDISE_OUT_OF_STOCK', lines[1].id],
  ]);
  assert.deepEqual(cartLinesAdd.userErrors, []);
});

test('what sells out while it lies in a cart is found out by the next change, and a reset restocks it', async () => {
  const { id, lines } = await newCart([{ merchandiseId: sabine, quantity: 3 }]);
  const [line] = lines.nodes;
  assert.equal((await client.control('POST', '/stock', { variant: sabine, stock: 0 })).status, 200);
  const read = (await run('GetCart', { cartId: id })).lines.nodes[0];
  assert.deepEqual([read.quantity, read.merchandise.availableForSale], [3, false]);
  const { cart, userErrors } = await run('CartLinesUpdate', { cartId: id, lines: [{ id: line.id, quantity: 4 }] });
  assert.deepEqual([cart.lines.nodes[0].id, cart.lines.nodes[0].quantity, cart.totalQuantity, userErrors], [line.id, 0, 0, []]);
  for (const wanted of [{ variant: sabine, stock: -1 }, { variant: sabine }, { variant: 'x', stock: 1 }]) {
    assert.ok((await client.control('POST', '/stock', wanted)).status >= 400);
  }
  await client.control('POST', '/reset');
  assert.equal((await newCart([{ merchandiseId: sabine, quantity: 1 }])).totalQuantity, 1);
});

test('a piece that costs less from now on costs less everywhere and in every market, until a reset', async () => {
  const handle = 'sabine-bias-slip-dress';
  const costs = async () => {
    const { product } = await client.data(operations.Product, { handle, country: 'JP', language: 'EN' });
    return [product.priceRange.minVariantPrice.amount, (await newCart([{ merchandiseId: sabine, quantity: 1 }])).cost.totalAmount.amount];
  };
  assert.deepEqual(await costs(), ['37100.0', '248.0']);
  assert.equal((await client.control('POST', '/price', { piece: handle, price: 199 })).status, 200);
  assert.deepEqual(await costs(), ['29800.0', '199.0']);
  for (const wanted of [{ piece: handle, price: -1 }, { piece: handle }, { piece: 'x', price: 1 }]) {
    assert.ok((await client.control('POST', '/price', wanted)).status >= 400);
  }
  await client.control('POST', '/reset');
  assert.deepEqual(await costs(), ['37100.0', '248.0']);
});

test('discount codes apply when they may, and say so when they may not', async () => {
  const { id } = await newCart([{ merchandiseId: sabine, quantity: 1 }]);
  const apply = async (...codes) => (await run('ApplyDiscount', { cartId: id, codes })).cart;
  const outcome = ({ discountCodes, cost }) => [discountCodes, cost.subtotalAmount.amount, cost.totalAmount.amount];

  assert.deepEqual(outcome(await apply('welcome10')), [[{ code: 'WELCOME10', applicable: true }], '248.0', '223.2']);
  assert.deepEqual(outcome(await apply('STREET25')), [[{ code: 'STREET25', applicable: true }], '248.0', '223.0']);
  assert.deepEqual(outcome(await apply('Spring20')), [[{ code: 'SPRING20', applicable: false }], '248.0', '248.0']);
  assert.deepEqual(outcome(await apply('what?')), [[{ code: 'what?', applicable: false }], '248.0', '248.0']);
  assert.equal((await apply('ATELIER15')).discountCodes[0].applicable, false, 'it wants 300 dollars');
  assert.equal((await apply('KNIT20')).discountCodes[0].applicable, false, 'there is no knit yet');
  await run('CartLinesAdd', { cartId: id, lines: [{ merchandiseId: brae, quantity: 1 }] });
  assert.deepEqual(outcome(await apply('KNIT20')), [[{ code: 'KNIT20', applicable: true }], '406.4', '406.4']);
  assert.equal((await apply('ATELIER15')).cost.totalAmount.amount, '379.1');
  assert.deepEqual((await apply('WELCOME10', 'STREET25')).discountCodes.map(({ applicable }) => applicable), [true, false], 'codes do not combine');
  assert.deepEqual(outcome(await apply()), [[], '446.0', '446.0']);
});

test('a cart moves to another market with its buyer', async () => {
  const { id } = await newCart([{ merchandiseId: sabine, quantity: 2 }]);
  const { cart } = await run('CartBuyerIdentity', { cartId: id, buyerIdentity: { countryCode: 'JP' }, country: 'JP' });
  assert.deepEqual(cart.cost.totalAmount, { amount: '74200.0', currencyCode: 'JPY' });
  assert.deepEqual(cart.lines.nodes[0].merchandise.price, { amount: '37100.0', currencyCode: 'JPY' });
  const { cart: discounted } = await run('ApplyDiscount', { cartId: id, codes: ['WELCOME10'], country: 'JP' });
  assert.equal(discounted.cost.totalAmount.amount, '66780.0', 'no decimals in yen');
  const { cart: renamed } = await run('CartAppAttribution', { cartId: id, attributes: [{ key: 'Source', value: 'app' }] });
  assert.deepEqual(renamed.attributes, [{ key: 'Source', value: 'app' }]);
  assert.deepEqual((await client.control('GET', '/unexpected')).value, []);
});

test('an identifier that is none fails the whole call, an unknown one is absent', async () => {
  const known = (await newCart()).id;
  assert.equal(await run('GetCart', { cartId: 'gid://shopify/Cart/unknown?key=x' }), null);
  for (const [operation, variables] of [
    ['GetCart', { cartId: 'unknown' }], ['CartLinesAdd', { cartId: '', lines: [] }],
    ['CartLinesAdd', { cartId: known, lines: [{ merchandiseId: '46100000000001', quantity: 1 }] }],
  ]) {
    const { errors } = await client.query(operations[operation], variables);
    assert.match(errors[0].message, /^Invalid global id/);
  }
});
