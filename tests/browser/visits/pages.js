import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { readdir } from 'node:fs/promises';
import { LONG_CART, PRODUCT } from '../support/kinds.js';
import { LANGUAGES, shop, shopText, shopWords } from '../support/shop.js';
import { PHONE, visit } from '../support/visitor.js';

const FORM_OF_PAYMENT = 'https://www.paypal.com/dgi-bin/webscr';
const SHARED = ['Contact', 'TOTAL']; /* words of other languages, too */
const APART = ['blank.htm', 'thanks.htm', 'searchfunc.html']; /* no page links to them */

const pagesOf = async folder => (await readdir(folder)).filter(name => /\.html?$/.test(name));

/** What a visitor sees of a page, and where it leads. Runs in the page. */
function look() {
  const all = (selector, give) => Array.from(document.querySelectorAll(selector), give);
  const text = element => (element.textContent || element.value || '').trim();
  return {
    menu: all('.level1 > li > .entry', text),
    words: all('.entry, h1, .greyband h2, th, .heads td, legend, label, .skip, .noptotal td:first-child, #table1 b, .thanks,' +
      '[type=submit], [type=button], [type=reset]', text),
    links: all('a[href], form[action]', one => one.getAttribute(one.matches('a') ? 'href' : 'action')),
    files: all('[src], link[href], [background]', one => one.getAttribute('src') || one.getAttribute('background') || one.getAttribute('href'))
      .concat(all('[style*="url("], style', one => one.outerHTML).flatMap(style => style.match(/url\([^)]*\)/g) || [])
        .map(url => url.replace(/^url\(|\)$|&quot;/g, ''))),
    broken: all('img', one => one.naturalWidth ? '' : one.getAttribute('src')).filter(Boolean),
    unfilled: document.body.innerText.match(/\[[A-Za-z]+\]/g) || [],
    width: document.documentElement.scrollWidth
  };
}

/** The French words of pages and scripts that no other language may show. */
async function frenchWords() {
  const script = await shopText((await shop('FR')).folder, 'language-fr.js');
  const spoken = Array.from(script.matchAll(/^var str\w+ *= '(.*)';/gm), found => JSON.parse(`"${found[1]}"`));
  return [...(await shopWords('FR')).values(), ...spoken].filter(word => !SHARED.includes(word));
}

describe('Every page', () => {
  for (const language of LANGUAGES) {
    test(`loads whole, leads on and fits a telephone: ${language}`, async () => {
      const one = await shop(language);
      const pictures = (await readdir(`${one.folder}/images`)).map(name => `images/${name}`);
      const files = new Set((await readdir(one.folder)).concat(pictures));
      const words = await shopWords(language);
      const french = language === 'FR' ? [] : await frenchWords();
      const menu = [1, 2, 3, 4, 5, 6, 7, 8].map(i => words.get(`m${i}`));
      const leads = new Map();

      await visit(one, { screen: PHONE }, async visitor => {
        await visitor.keep(LONG_CART);
        const names = await pagesOf(one.folder);
        const walk = async page => {
          for (let name = names.shift(); name; name = names.shift()) {
            await page.goto(one.address + name);
            const seen = await page.evaluate(look);
            assert.deepEqual({
              menu: seen.menu.length && seen.menu.join() !== menu.join() ? seen.menu : [],
              french: seen.words.filter(word => french.includes(word)),
              broken: seen.broken,
              unfilled: seen.unfilled,
              missing: seen.files.filter(file => !files.has(file)),
              width: Math.max(seen.width, PHONE.viewport.width)
            }, { menu: [], french: [], broken: [], unfilled: [], missing: [], width: PHONE.viewport.width }, name);
            leads.set(name, seen.links.filter(link => !/^(#|mailto:|javascript:)/i.test(link) && link !== FORM_OF_PAYMENT));
          }
        };
        await Promise.all([visitor.page, await visitor.page.context().newPage()].map(walk));
      });

      const reached = new Set(['index.htm']);
      for (const name of reached) {
        for (const link of leads.get(name) || []) {
          assert.ok(files.has(link), `${name} leads to ${link}, which is not there`);
          reached.add(link);
        }
      }
      assert.deepEqual([...leads.keys()].filter(name => !reached.has(name)).sort(), [...APART].sort());
      for (const name of APART.slice(0, 2)) { assert.ok(leads.get(name).includes('index.htm'), `${name} leads back`); }
    });
  }

  test('shows a big picture for each small one', async () => {
    await visit(await shop('FR'), { hand: 'keyboard' }, async visitor => {
      await visitor.open(PRODUCT);
      const small = visitor.page.locator('#table6 a');
      const big = visitor.page.locator('[name=bigimage]');
      assert.equal(await big.getAttribute('src'), await small.first().getAttribute('href'));
      await visitor.press(small.nth(1));
      assert.equal(new URL(await big.getAttribute('src'), visitor.address).pathname, `/${await small.nth(1).getAttribute('href')}`);
      assert.ok(visitor.page.url().endsWith(PRODUCT), 'the page stays');
    });
  });
});
