import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { catchingOrders } from '../support/servers.js';
import { shop } from '../support/shop.js';
import { PHONE, WIDE, money, visit } from '../support/visitor.js';
import { SAYS } from '../support/words.js';

const RESET = 2400; /* what the home page sets as shipping until a method is chosen */
const METHODS = [['Point de retrait', 350], ['Livraison à domicile', 690], ['Livraison express', 1250]];

/** From the home page to a cart of two products, to the checkout, a shipping method, and the order sent. */
async function buy(visitor, says, catcher) {
  const { page } = visitor;
  const totals = (subtotal, shipping) => ({
    [says.subtotal]: money(subtotal), [says.shipping]: money(shipping), [says.total]: money(subtotal + shipping)
  });

  await visitor.open('index.htm');
  await visitor.menu(says.products, 'Cuisine', 'Ustensiles');
  const spoon = await visitor.product(visitor.products().nth(1));
  assert.deepEqual(await visitor.add(visitor.products().nth(1), '2'), [`2 ${spoon.name} ${says.added}`]);
  assert.deepEqual(await visitor.add(visitor.products().nth(1), '1'), [`1 ${spoon.name} ${says.added}`]);

  await visitor.menu(says.products, 'Thé et café', 'Théières');
  const teapot = await visitor.product(visitor.products().first());
  assert.deepEqual(await visitor.add(visitor.products().first(), 'x1'), [`1 ${teapot.name} ${says.added}`]);
  const passing = await visitor.product(visitor.products().last());
  await visitor.add(visitor.products().last(), '1');

  await visitor.menu(says.cart);
  const line = (product, quantity) => [product.id, product.name, quantity, `${money(product.cents)}/ea`];
  assert.deepEqual(await visitor.cart(), {
    lines: [line(spoon, '3'), line(teapot, '1'), line(passing, '1')],
    totals: totals(3 * spoon.cents + teapot.cents + passing.cents, RESET)
  });

  const quantity = row => page.locator('[name=Q]').nth(row);
  await visitor.leaves(async () => {
    await visitor.write(quantity(0), '4');
    await visitor.done();
  });
  const wrong = await visitor.hears(async () => {
    await visitor.write(quantity(1), 'two');
    await visitor.done();
  });
  assert.deepEqual(wrong, [says.wrongQuantity]);

  const remove = page.locator('.nopbutton').nth(2);
  visitor.accepts = false;
  assert.deepEqual(await visitor.hears(() => visitor.press(remove)), [says.remove]);
  assert.equal((await visitor.cart()).lines.length, 3, 'refused, the line stays');
  visitor.accepts = true;
  await visitor.leaves(() => visitor.press(remove));
  const subtotal = 4 * spoon.cents + teapot.cents;
  const bought = [line(spoon, '4'), line(teapot, '1')];
  assert.deepEqual(await visitor.cart(), { lines: bought, totals: totals(subtotal, RESET) });

  await visitor.leaves(() => visitor.press(page.getByRole('button', { name: says.order })));
  assert.deepEqual(await visitor.cart(), { lines: bought, totals: totals(subtotal, RESET) });
  const choice = page.locator('[name=Ship_cost]');
  assert.equal(await choice.inputValue(), '', 'no method has the amount of the home page');

  for (const [name, amount] of METHODS.slice(0, 2)) {
    await visitor.leaves(async () => {
      if (visitor.hand === 'keyboard') {
        await visitor.reach(choice);
        await page.keyboard.press('ArrowDown');
      } else {
        await choice.selectOption(name);
      }
    });
    assert.equal(await choice.inputValue(), name);
    assert.deepEqual((await visitor.cart()).totals, totals(subtotal, amount));
  }
  const [method, shipping] = METHODS[1];

  const form = page.locator('form[name=mycart]');
  assert.deepEqual(await form.evaluate(one => [one.action, one.method, one.target]),
    ['https://www.paypal.com/dgi-bin/webscr', 'post', 'paypal']);
  await form.evaluate((one, address) => { one.action = `${address}payment`; }, catcher.address);
  const [window] = await Promise.all([
    page.context().waitForEvent('page'),
    visitor.press(page.locator('input[type=image][src$="pp.gif"]'))
  ]);
  await window.waitForURL(`${catcher.address}payment`);

  const order = catcher.orders.pop();
  assert.equal(order.method, 'POST');
  const decimal = amount => money(amount).slice(1);
  const item = (i, product, count) => [[`item_number_${i}`, product.id], [`quantity_${i}`, count],
    [`amount_${i}`, decimal(product.cents)], [`item_name_${i}`, product.name], [`shipping_${i}`, '0'], [`on0_${i}`, '']];
  assert.deepEqual(order.fields.filter(([name]) => !['cn', 'x', 'y'].includes(name)), [
    ['cmd', '_cart'], ['upload', '1'], ['business', 'paiement@remise-tilleuls.example'], ['currency_code', 'EUR'],
    ['return', 'http://www.remise-tilleuls.example/'], ['Ship_cost', method],
    ...item(1, spoon, '4'), ...item(2, teapot, '1'), ['shipping_2', decimal(shipping)]
  ]);

  await visitor.open('index.htm');
  await visitor.menu(says.cart);
  assert.deepEqual((await visitor.cart()).totals, totals(subtotal, RESET), 'the home page forgets the method');
}

describe('A visitor buys and hands the order to the payment page', () => {
  for (const language of ['FR', 'EN']) {
    for (const screen of [WIDE, PHONE]) {
      for (const hand of ['pointer', 'keyboard']) {
        test(`${language}, ${screen.name}, ${hand}`, () => catchingOrders(async catcher =>
          visit(await shop(language), { screen, hand, hosts: [catcher.address] },
            visitor => buy(visitor, SAYS[language], catcher))));
      }
    }
  }

  test('from the folder opened as a file', () => catchingOrders(async catcher => {
    const { folder } = await shop('FR');
    await visit({ address: `${pathToFileURL(folder)}/` }, { hosts: [catcher.address] },
      visitor => buy(visitor, SAYS.FR, catcher));
  }));
});
