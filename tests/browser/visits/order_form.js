import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { catchingOrders } from '../support/servers.js';
import { shop } from '../support/shop.js';
import { PHONE, WIDE, cartOf, visit } from '../support/visitor.js';

const SORRY = "I'm sorry, but you must provide the following field(s) before continuing:\n";
const LINE = ['00001/202501', '2', '45.90', 'Couteau de chef', '0', ''];
const BUYER = {
  b_first: 'Zoé', b_last: 'Besson', b_addr: '3, rue de l\'Échelle', b_city: 'Annecy', b_prov: 'Haute-Savoie',
  b_zip: '74000', b_phone: '04 65 71 20 50', b_email: 'zoe@besson.example'
};
const LABELS = {
  b_first: 'Prénom', b_last: 'Nom', b_addr: 'Adresse', b_city: 'Ville', b_prov: 'Région / Province',
  b_zip: 'Code postal', b_phone: 'Téléphone', b_email: 'E-mail', PAYMENT_TYPE: 'Mode de paiement'
};
const missing = names => SORRY + names.map(name => `- ${LABELS[name]}`).join('\n');

describe('The order form of a French shop', () => {
  for (const [screen, hand, way] of [[WIDE, 'pointer', 'carte'], [PHONE, 'keyboard', 'e-mail ou fax']]) {
    test(`names what is missing, then sends the whole order: ${screen.name}, ${hand}`, () => catchingOrders(async catcher => {
      const french = await shop('FR', { LFORM: `${catcher.address}order` });
      await visit(french, { screen, hand, hosts: [catcher.address] }, async visitor => {
        const { page } = visitor;
        const field = name => page.locator(`form[name=checkout] [name=${name}]`);
        const send = () => visitor.press(page.getByRole('button', { name: 'Envoyer par e-mail' }));

        await visitor.keep({ ...cartOf([LINE]), cdship: '6.90' });
        await visitor.open('checkout.htm');
        await visitor.leaves(() => visitor.press(page.getByRole('link', { name: `Commander par ${way}` })));

        assert.deepEqual(await visitor.hears(send), [missing(Object.keys(LABELS))]);
        for (const name of ['b_first', 'b_zip', 'b_email']) { await visitor.write(field(name), BUYER[name]); }
        const rest = Object.keys(LABELS).filter(name => !['b_first', 'b_zip', 'b_email'].includes(name));
        assert.deepEqual(await visitor.hears(send), [missing(rest)]);
        assert.ok(await field('b_last').evaluate(one => one === document.activeElement), 'the first missing one is next');

        for (const name of rest.slice(0, -1)) { await visitor.write(field(name), BUYER[name]); }
        await field('PAYMENT_TYPE').selectOption({ label: 'Chèque' });
        await visitor.write(field('s_city'), 'Rumilly');
        await visitor.write(field('comment'), 'Sonner à "Besson"');
        assert.equal(catcher.orders.length, 0, 'nothing left before the form was complete');
        await visitor.leaves(send);

        const [order] = catcher.orders;
        assert.equal(order.path, '/order');
        const fields = Object.fromEntries(order.fields);
        assert.equal(order.fields.length, Object.keys(fields).length + 1, 'only the shipping of the line comes twice');
        const { ORDER_DATE: date, ...told } = fields;
        assert.match(date, /^\d\d\/\d\d\/\d{4} \d\d:\d\d:\d\d$/);
        const empty = Object.fromEntries(['b_addr2', 'b_fax', 's_first', 's_last', 's_addr', 's_addr2', 's_prov',
          's_zip', 's_phone', 's_fax', 's_email', 'sp ', 'on0_1'].map(name => [name, '']));
        assert.deepEqual(told, {
          ...empty, ...BUYER, s_city: 'Rumilly', comment: 'Sonner à "Besson"', PAYMENT_TYPE: 'Unit Cheque',
          '[RECEPIENT]': 'recipient', 'boutique@remise-tilleuls.example': 'email', Shipping_address: 'Shipping address',
          TOTAL_ITEMS_ORDERED: '1', item_number_1: LINE[0], quantity_1: '2', amount_1: '45.90',
          item_name_1: LINE[3], shipping_1: '6.90'
        });

        await visitor.open('checkout_cc.htm');
        assert.equal(await field('b_addr').inputValue(), BUYER.b_addr, 'the next order finds the address again');
        const clear = page.getByRole('button', { name: 'Effacer' });
        visitor.accepts = false;
        await visitor.hears(() => visitor.press(clear));
        assert.equal(await field('b_city').inputValue(), 'Annecy');
        visitor.accepts = true;
        await visitor.hears(() => visitor.press(clear));
        assert.deepEqual([await field('b_city').inputValue(), await field('b_last').inputValue()], ['', 'Last']);
      });
    }));
  }

  test('without a form handler goes to the mail address of the merchant', async () => {
    await visit(await shop('FR'), {}, async visitor => {
      await visitor.open('checkout_mf.htm');
      assert.equal(await visitor.page.locator('form[name=mycart]').getAttribute('action'),
        'mailto:bonjour@remise-tilleuls.example?subject=Order');
    });
  });
});

test('Any other shop has the payment page in place of the order form', async () => {
  await visit(await shop('EN'), {}, async visitor => {
    await visitor.keep(cartOf([LINE]));
    for (const name of ['checkout_cc.htm', 'checkout_mf.htm']) {
      await visitor.open(name);
      assert.match(await visitor.page.locator('form[name=mycart]').getAttribute('action'), /\/dgi-bin\/webscr$/);
      assert.equal((await visitor.cart()).totals.SUBTOTAL, '€91.80');
    }
  });
});
