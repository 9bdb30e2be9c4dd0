import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { shop } from '../support/shop.js';
import { cartOf, visit } from '../support/visitor.js';

const HOSTILE = [
  '<img src=x onerror=window.ran=1>',
  '"><script>window.ran=1</script>',
  '\' onfocus=window.ran=1 autofocus x=\'',
  '</title></option></textarea><svg onload=window.ran=1>',
  '&lt;img src=x onerror=window.ran=1&gt;',
  'javascript:window.ran=1',
  '\\x3cscript\\x3ewindow.ran=1//'
];

/** Nothing of what the visitor brought along has run or become a piece of the page. */
async function unharmed(visitor) {
  assert.deepEqual(await visitor.page.evaluate(() => ({
    ran: window.ran,
    pieces: document.querySelectorAll('[src=x], svg, [autofocus], [onerror], [onload], a[href*="window.ran"]:not([href^="searchfunc"])').length
  })), { ran: undefined, pieces: 0 }, visitor.page.url());
  assert.deepEqual(visitor.heard, []);
}

describe('Text that a visitor brings along is only text', () => {
  test('in the words of a search', async () => {
    await visit(await shop('EN'), {}, async visitor => {
      for (const words of HOSTILE) {
        await visitor.open('contact.htm');
        await visitor.page.locator('[name=sw]').fill(words);
        await visitor.leaves(() => visitor.page.keyboard.press('Enter'));
        await unharmed(visitor);
        assert.equal(await visitor.page.locator('h1 b').textContent(), words);
      }
    });
  });

  test('in every part of the address of a search', async () => {
    await visit(await shop('EN'), {}, async visitor => {
      for (const address of [
        ...HOSTILE.flatMap(text => ['ss', 'sm', 'sin', 'page'].map(name => `sw=remise&${name}=${encodeURIComponent(text)}`)),
        ...HOSTILE.map(text => `sw=remise&page=1${encodeURIComponent(text)}#${text}`),
        ...['%', '%E0%A4%A', '(', '[a', 'a|', '\\', '$&', 'b', '39', 'amp'].map(text => `sw=${text}`),
        'sw=remise&page=99999999', 'sw=remise&page=-1', 'sw=remise&sw=%3Csvg%20onload=window.ran=1%3E', 'sw=constructor'
      ]) {
        await visitor.open(`searchfunc.html?${address}`);
        await unharmed(visitor);
        assert.match(await visitor.page.locator('h1').textContent(), /^(\d+ - \d+ of \d+|No) results (found )?for ./, address);
      }
    });
  });

  for (const language of ['FR', 'EN']) {
    test(`in the cookies of a cart, ${language}`, async () => {
      const asked = await shop(language, { OPTTAXE: '20' });
      await visit(asked, {}, async visitor => {
        const lines = HOSTILE.flatMap(text => [[text, text, text, text, text, text], ['00001/202501', '2', '45.90', text, '0', text]]);
        await visitor.keep({ ...cartOf(lines.slice(0, 12)), cdship: HOSTILE[1], checkout: `b_city=${encodeURIComponent(HOSTILE[1])}` });
        for (const page of ['managecart.html', 'checkout.htm', 'checkout_cc.htm', 'g2_s11.htm', 'index.htm']) {
          await visitor.open(page);
          await unharmed(visitor);
        }
        await visitor.open('managecart.html');
        const { lines: shown } = await visitor.cart();
        for (const [at, line] of shown.entries()) {
          const [id, quantity, price, name, , info] = lines[at];
          assert.deepEqual(line, [id, `${name} - ${info}`, quantity, `€${price}/ea`]);
        }
        await visitor.open('checkout.htm');
        for (const field of ['item_number_1', 'item_name_1', 'amount_1', 'on0_1']) {
          assert.equal(await visitor.page.locator(`[name=${field}]`).inputValue(), HOSTILE[0]);
        }
      });
    });
  }

  test('in a count of lines that no cart wrote', async () => {
    await visit(await shop('EN'), {}, async visitor => {
      for (const [count, lines] of [['<svg onload=window.ran=1>', 1], ['-3', 1], ['1e9', 1], ['99999999', 12], ['3|2', 3]]) {
        await visitor.keep({ NumberOrdered: count });
        await visitor.open('managecart.html');
        await unharmed(visitor);
        assert.equal((await visitor.cart()).lines.length, lines, count);
      }
    });
  });

  test('in the address kept for the next order', async () => {
    await visit(await shop('FR'), {}, async visitor => {
      await visitor.keep({ checkout: `b_city=${encodeURIComponent(HOSTILE[0])}&__proto__=x&constructor=x&=x&b_zip=%E0%A4%A&comment=%` });
      await visitor.open('checkout_cc.htm');
      await unharmed(visitor);
      assert.equal(await visitor.page.locator('form[name=checkout] [name=b_city]').inputValue(), HOSTILE[0]);
    });
  });
});
