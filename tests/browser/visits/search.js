import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { runInNewContext } from 'node:vm';
import { shop, shopText } from '../support/shop.js';
import { PHONE, WIDE, visit } from '../support/visitor.js';

/** The pages of the index that a search must find, in their order. */
async function holding(folder, test) {
  const files = runInNewContext(`${await shopText(folder, 'searchdb.js')};array_files`);
  return Array.from(files).filter(([, , , title, , , text]) => test(`${title}\n${text}`.toLowerCase())).map(file => file[2]);
}

/** What the page of results shows. */
function results(page) {
  return page.evaluate(() => ({
    heading: document.querySelector('h1').textContent,
    files: Array.from(document.querySelectorAll('.results li a'), link => link.getAttribute('href')),
    numbers: Array.from(document.querySelectorAll('.results .hit'), hit => parseInt(hit.textContent, 10)),
    pages: Array.from(document.querySelectorAll('.pages a'), link => link.textContent.trim())
  }));
}

async function searchFor(visitor, words) {
  await visitor.write(visitor.page.locator('[name=sw]'), words);
  await visitor.leaves(() => visitor.press(visitor.page.locator('form[name=form_search] [type=submit]')));
}

describe('The search', () => {
  for (const [screen, hand] of [[WIDE, 'keyboard'], [PHONE, 'pointer']]) {
    test(`shows many results in pages of ten: ${screen.name}, ${hand}`, async () => {
      const french = await shop('FR');
      const all = await holding(french.folder, text => text.includes('remise'));
      const last = Math.ceil(all.length / 10) - 1;
      assert.ok(last >= 6, 'more pages than links to them');
      await visit(french, { screen, hand }, async visitor => {
        const link = name => visitor.page.locator('.pages').getByRole('link', { name, exact: true });
        const shows = async (page, pages) => {
          const first = page * 10;
          const files = all.slice(first, first + 10);
          assert.deepEqual(await results(visitor.page), {
            heading: `${first + 1} - ${first + files.length} of ${all.length} results for remise`,
            files, numbers: files.map((_, at) => first + at + 1), pages
          });
        };
        await visitor.open('contact.htm');
        await searchFor(visitor, ' remise ');
        await shows(0, ['2', '3', '4', '5', '6', 'Next']);
        await visitor.leaves(() => visitor.press(link('2')));
        assert.match(visitor.page.url(), /[?&]page=1\b/);
        await shows(1, ['Prev', '1', '3', '4', '5', '6', '7', 'Next']);
        await visitor.leaves(() => visitor.press(link('Prev')));
        await shows(0, ['2', '3', '4', '5', '6', 'Next']);
        await visitor.open(`searchfunc.html?sw=remise&ss=0&sm=0&sin=0&page=${last - 1}`);
        await visitor.leaves(() => visitor.press(link('Next')));
        await shows(last, ['Prev', ...[5, 4, 3, 2, 1].map(before => String(last - before + 1))]);

        await visitor.leaves(() => visitor.press(visitor.page.locator('.results li a').first()));
        assert.ok(visitor.page.url().endsWith(all[last * 10]));
      });
    });
  }

  test('finds all words, any word or one phrase, and no word that has a hyphen', async () => {
    const french = await shop('FR');
    const has = (...words) => text => words.every(word => text.includes(word));
    await visit(french, {}, async visitor => {
      for (const [address, found] of [
        ['sw=introuvable', () => false],
        ['sw=th%C3%A9i%C3%A8re+FONTE', has('théière', 'fonte')],
        ['sw=th%C3%A9i%C3%A8re+bougie&sm=1', text => has('théière')(text) || has('bougie')(text)],
        ['sw=%20en%20%20fonte%20&sm=2', has('en fonte')],
        ['sw=lave-vaisselle', () => false],
        ['sw=lavevaisselle', has('lavevaisselle')]
      ]) {
        const expected = await holding(french.folder, found);
        await visitor.open(`searchfunc.html?${address}&ss=0&sin=0`);
        const { heading, files } = await results(visitor.page);
        assert.deepEqual(files, expected.slice(0, 10), address);
        if (expected.length) {
          assert.match(heading, new RegExp(`^1 - ${files.length} of ${expected.length} results for `));
        } else {
          assert.match(heading, /^No results found for /);
        }
      }
      assert.ok((await holding(french.folder, has('lavevaisselle'))).length > 0, 'the word stands in the index without its hyphen');
    });
  });

  test('excerpts the text around the words and marks them', async () => {
    const french = await shop('FR');
    await visit(french, {}, async visitor => {
      await visitor.open('searchfunc.html?sw=osier&ss=0&sm=0&sin=0');
      const excerpts = visitor.page.locator('.results li p:nth-of-type(2)');
      const marks = await excerpts.evaluateAll(all => all.map(one => Array.from(one.querySelectorAll('b'), mark => mark.textContent)));
      assert.ok(marks.length > 0);
      for (const [at, words] of marks.entries()) {
        assert.ok(words.length > 0 && words.every(word => /^osier$/i.test(word)), `result ${at + 1}`);
        const shown = (await excerpts.nth(at).textContent()).replace(/^\.\.\.|\.\.\.$/g, '');
        assert.ok(shown.length <= 240);
        const holders = await holding(french.folder, text => text.includes(shown.toLowerCase()));
        assert.ok(holders.length > 0, `no page holds "${shown}"`);
      }
    });
  });

  test('without words shows nothing and leaves the page where it is', async () => {
    await visit(await shop('FR'), {}, async visitor => {
      await visitor.open('searchfunc.html?sw=++&ss=0');
      assert.equal((await visitor.page.locator('body').innerText()).trim(), '');
      await visitor.open('index.htm');
      await visitor.write(visitor.page.locator('[name=sw]'), '   ');
      await visitor.press(visitor.page.locator('form[name=form_search] [type=submit]'));
      assert.match(visitor.page.url(), /index\.htm$/);
    });
  });
});
