import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { shop } from '../support/shop.js';
import { PHONE, cartOf, money, visit } from '../support/visitor.js';
import { SAYS } from '../support/words.js';

const LISTS = ['Couteaux et planches', 'Casseroles et cocottes', 'Ustensiles'];

describe('The cart', () => {
  test('holds twelve lines, tells of the thirteenth and still adds to those it has', async () => {
    await visit(await shop('FR'), { screen: PHONE }, async visitor => {
      const says = SAYS.FR;
      let lines = 0;
      let last = null;
      await visitor.open('index.htm');
      for (const list of LISTS) {
        await visitor.menu(says.products, 'Cuisine', list);
        for (let row = 0; row < await visitor.products().count(); row += 1) {
          last = visitor.products().nth(row);
          const heard = await visitor.add(last, '1');
          lines += 1;
          /* Beside the sentence comes the notice of what was added, which is empty here. */
          const { name } = await visitor.product(last);
          assert.deepEqual(heard, lines <= 12 ? [`1 ${name} ${says.added}`] : [says.full, '']);
        }
      }
      assert.ok(lines >= 13, 'the lists hold enough products');
      assert.equal(await visitor.cookie('NumberOrdered'), '12');
      assert.equal(await visitor.cookie('Order.13'), undefined);

      await visitor.menu(says.products, 'Cuisine', LISTS[0]);
      const first = await visitor.product(visitor.products().first());
      assert.deepEqual(await visitor.add(visitor.products().first(), '4'), [`4 ${first.name} ${says.added}`]);

      await visitor.menu(says.cart);
      const { lines: shown } = await visitor.cart();
      assert.equal(shown.length, 12);
      assert.deepEqual(shown[0].slice(0, 3), [first.id, first.name, '5']);

      await visitor.leaves(() => visitor.press(visitor.page.locator('.nopbutton').first()));
      assert.deepEqual((await visitor.cart()).lines, shown.slice(1));
      assert.equal(await visitor.cookie('NumberOrdered'), '11');
      assert.equal(await visitor.cookie('Order.12'), undefined);
    });
  });

  test('demands the minimum order of a total that counts tax and shipping', async () => {
    const taxed = await shop('EN', { OPTTAXE: '5.5', LBTAXE: 'VAT', MINCMD: '70' });
    await visit(taxed, { hand: 'keyboard' }, async visitor => {
      const { page } = visitor;
      const says = SAYS.EN;
      const totals = (subtotal, shipping) => ({
        [says.subtotal]: money(subtotal), [says.shipping]: money(shipping),
        'VAT(5.5 %)': money(Math.round((subtotal + shipping) * 55 / 1000)),
        [says.total]: money(Math.round((subtotal + shipping) * 1055 / 1000))
      });
      const order = () => visitor.press(page.getByRole('button', { name: says.order }));

      /* Without a line the bare rate stands for the tax. */
      await visitor.open('managecart.html');
      const nothing = await visitor.cart();
      assert.deepEqual(nothing.lines, [['Your cart is empty']]);
      assert.equal(nothing.totals['VAT(5.5 %)'], '€0.06');
      assert.deepEqual(await visitor.hears(order), [says.tooLittle]);

      await visitor.open('index.htm');
      await visitor.menu(says.products, 'Papeterie', 'Carnets et stylos');
      const { cents: price } = await visitor.product(visitor.products().first());
      const enough = Math.ceil((7000 / 1.055 - 2400) / price);
      assert.ok(enough > 1 && enough * price < 7000, 'shipping and tax make the difference');
      await visitor.add(visitor.products().first(), String(enough - 1));
      await visitor.menu(says.cart);
      assert.deepEqual((await visitor.cart()).totals, totals((enough - 1) * price, 2400));
      assert.deepEqual(await visitor.hears(order), [says.tooLittle]);
      assert.match(page.url(), /managecart\.html$/);

      await visitor.leaves(async () => {
        await visitor.write(page.locator('[name=Q]'), String(enough));
        await visitor.done();
      });
      assert.deepEqual((await visitor.cart()).totals, totals(enough * price, 2400));
      await visitor.leaves(order);
      assert.match(page.url(), /checkout\.htm/);
      assert.deepEqual((await visitor.cart()).totals, totals(enough * price, 2400));
      await visitor.leaves(() => page.locator('[name=Ship_cost]').selectOption({ index: 2 }));
      assert.deepEqual((await visitor.cart()).totals, totals(enough * price, 1250));
    });
  });

  test('of a shop with free shipping names no shipping and offers no choice', async () => {
    await visit(await shop('EN', { OPTTRANS: '1' }), {}, async visitor => {
      await visitor.keep(cartOf([['00001/202501', '2', '45.90', 'Knife', '0', '']]));
      for (const page of ['managecart.html', 'checkout.htm']) {
        await visitor.open(page);
        assert.deepEqual((await visitor.cart()).totals, { SUBTOTAL: '€91.80', TOTAL: '€91.80' });
      }
      assert.equal(await visitor.page.locator('[name=Ship_cost]').count(), 0);
      assert.equal(await visitor.page.locator('[name=shipping_1]').last().inputValue(), '0.00');

      /* The amount of the home page counts without a row of its own. */
      await visitor.open('index.htm');
      await visitor.open('managecart.html');
      assert.deepEqual((await visitor.cart()).totals, { SUBTOTAL: '€91.80', TOTAL: '€115.80' });
    });
  });

  test('counts a broken quantity as whole and keeps it as typed', async () => {
    await visit(await shop('EN'), {}, async visitor => {
      await visitor.keep(cartOf([['00001/202501', '1', '45.90', 'Knife', '0', 'red; large']]));
      await visitor.open('managecart.html');
      await visitor.leaves(async () => {
        await visitor.write(visitor.page.locator('[name=Q]'), '2.5');
        await visitor.done();
      });
      const { lines, totals } = await visitor.cart();
      assert.deepEqual(lines, [['00001/202501', 'Knife - red; large', '2.5', '€45.90/ea']]);
      assert.equal(totals.SUBTOTAL, '€91.80');
      assert.equal(await visitor.cookie('Order.1'), '00001/202501|2.5|45.90|Knife|0|red; large');
    });
  });
});
