import assert from 'node:assert/strict';
import { test } from 'node:test';

import { storeForTests } from './support/store.mjs';
import { Shopper } from './support/shopper.mjs';

const { client, catalog } = await storeForTests();
const shopper = new Shopper(client);
const sabine = catalog.piece('sabine-bias-slip-dress').variants.find(({ stock }) => stock > 1).id;
const orders = async () => (await client.control('GET', '/orders')).value.length;

/** The page that waits for the bank, and the address of the bank that it names. */
async function confirmPage(bank) {
  await shopper.settings({ bank });
  const { checkoutUrl } = await shopper.cart(sabine);
  const page = await shopper.pay((await shopper.open(checkoutUrl)).url);
  assert.match(new URL(page.url).pathname, /\/confirm$/);
  const address = /https:\/\/bank\.loomstreet\.example\/confirm\?session=\w+&(?:amp;)?in=\w+/.exec(page.text)[0].replace('&amp;', '&');
  return { ...page, address };
}

for (const bank of ['popup', 'frame']) {
  test(`the order waits for the bank to confirm (${bank})`, async () => {
    const { url, text, address } = await confirmPage(bank);
    assert.equal(/<iframe/.test(text), bank === 'frame');
    assert.equal(/id="confirm-bank"/.test(text), bank === 'popup');
    const early = await shopper.send(url, {});
    assert.match(early.text, /has not confirmed yet/);
    assert.equal(await orders(), 0);

    assert.match((await shopper.open(address)).text, /\$248\.00 from your card ending in 0008/);
    const answer = await shopper.send(address, { outcome: 'approved' });
    assert.match(answer.text, bank === 'frame' ? /shop = parent/ : /shop = opener[\s\S]*close\(\)/);
    assert.match(answer.text, /postMessage\(\{ session: "\w+" \}, "https:\/\/shop\.loomstreet\.example"\)/);
    const thanks = await shopper.send(url, {});
    assert.match(thanks.text, /Order #LST10484/);
    assert.equal(await orders(), 1);
    assert.equal((await shopper.open(address)).status, 404, 'a session ends with its payment');
  });
}

test('a payment the bank declines goes back to the form and may be tried again', async () => {
  const { url, address } = await confirmPage('popup');
  await shopper.send(address, { outcome: 'declined' });
  const form = await shopper.send(url, {});
  assert.equal(form.status, 422);
  assert.match(form.text, /Your bank did not confirm the payment\./);
  assert.equal(await orders(), 0);
  const again = await shopper.pay(url.replace('/confirm', ''));
  assert.match(new URL(again.url).pathname, /\/confirm$/);
  assert.notEqual(again.text.match(/session=(\w+)/)[1], address.match(/session=(\w+)/)[1]);
});
