import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { createRequire } from 'node:module';
import { HtmlValidate } from 'html-validate';
import { KINDS, LIST, PRODUCT } from '../support/kinds.js';
import { shop, shopText } from '../support/shop.js';
import { PHONE, WIDE, visit } from '../support/visitor.js';

const AXE = createRequire(import.meta.url).resolve('axe-core/axe.min.js');

const OLD = ['no-deprecated-attr', 'deprecated', 'element-permitted-content'];

/** Findings that stay: rules, the place (a selector and what lies below it), and why. */
const KEPT = {
  'every page': [
    [['attribute-allowed-values'], 'html > head > meta:nth-child(1)', 'the 8-bit code page of all that the shop writes'],
    [OLD, 'html > body > header > table:nth-child(1) > tr > td:nth-child(2)', 'the search cell has a fixed text']
  ],
  'index.htm': [],
  'contact.htm': [],
  [LIST]: [
    [OLD, '#content > table:nth-child(2) > tr', 'header, rows and order form have fixed texts'],
    [['no-dup-id'], '#content > table:nth-child(2) > tr', 'each order form brings its "table5"']
  ],
  [PRODUCT]: [
    [OLD, '#content > table:nth-child(2) > tr > td:nth-child(1) > table', 'the description is the merchant\'s own HTML'],
    [OLD, '#content > table:nth-child(2) > tr > td:nth-child(2) > img', 'the big picture has a fixed text'],
    [OLD, '#table6', 'the small pictures have a fixed text'],
    [OLD, '#table7', 'the attributes have a fixed text'],
    [OLD, '#table3', 'the attributes have a fixed text']
  ],
  'managecart.html': [],
  'checkout.htm': [
    [OLD, '#table1', 'the shipping table has a fixed text'],
    [OLD, '#content > section > form > nobr', 'the shipping table has a fixed text']
  ],
  'checkout_cc.htm': [],
  'searchfunc.html': [],
  'blank.htm': [],
  'thanks.htm': []
};

/** What the validator can't read, and what it then is taken for. */
const READ_AS = [
  ['"method"=post', 'method=post'], /* the quotes around the attribute's name are kept in the order form */
  ['TITLE>', 'title>'] /* it knows this name in lower case only */
];

test('The pages are valid HTML outside the texts that are fixed', async () => {
  const { folder } = await shop('FR');
  const validator = new HtmlValidate({ root: true, extends: ['html-validate:standard'] });
  const met = new Set();
  for (const [name, kept] of Object.entries(KEPT)) {
    if (name === 'every page') { continue; }
    const exceptions = [...KEPT['every page'], ...kept];
    const text = READ_AS.reduce((page, [from, to]) => page.replaceAll(from, to), await shopText(folder, name));
    const { results } = await validator.validateString(text, name);
    const findings = results.flatMap(result => result.messages).filter(({ ruleId, selector }) => {
      const exception = exceptions.find(([rules, place]) => rules.includes(ruleId) && String(selector).startsWith(place));
      met.add(exception);
      return !exception;
    });
    assert.deepEqual(findings.map(one => `${one.line}: ${one.ruleId}, ${one.message}, ${one.selector}`), [], name);
  }
  assert.deepEqual(Object.values(KEPT).flat().filter(exception => !met.has(exception)), [], 'exceptions that no page needs');
});

describe('Each kind of page serves everyone and fits the screen', () => {
  for (const [language, screen] of [['FR', WIDE], ['DE', PHONE]]) {
    test(`${language}, ${screen.name}`, async () => {
      await visit(await shop(language, { OPTTAXE: '20' }), { screen }, async visitor => {
        const { page } = visitor;
        for (const [kind, { address, cookies }] of Object.entries(KINDS)) {
          await page.context().clearCookies();
          await visitor.keep(cookies || {});
          await visitor.open(address);
          const opened = page.locator('.level1 > li > button.entry');
          if (await opened.count()) {
            if (visitor.narrow) { await visitor.press(page.locator('.menu .fold')); }
            await visitor.press(opened);
            await visitor.press(page.locator('.level2 > li > button.entry').first());
          }
          assert.ok(await page.title(), `${kind} has a title`);
          const width = await page.evaluate(() => document.documentElement.scrollWidth);
          assert.ok(width <= screen.viewport.width, `${kind} is ${width} wide`);
          await page.addScriptTag({ path: AXE });
          const found = await page.evaluate(async () => (await window.axe.run()).violations.map(one =>
            `${one.impact}: ${one.id}, ${one.help}, ${one.nodes.map(node => node.target.join(' ')).join('; ')}`));
          assert.deepEqual(found.filter(one => /^(serious|critical)/.test(one)), [], kind);
        }
      });
    });
  }
});
