// Pictures of a shop and the PDF of a guide: node make_guide.mjs SHOP PICTURES GUIDE PDF WORD
// WORD is what the search of the shop is asked for.
import { createRequire } from 'node:module';
import { pathToFileURL } from 'node:url';
import path from 'node:path';

const require = createRequire(new URL('../../tests/browser/package.json', import.meta.url));
const { chromium } = require('playwright-core');

const [shop, pictures, guide, pdf] = process.argv.slice(2, 6).map(name => path.resolve(name));
const word = process.argv[6];
const browser = await chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking', '--disable-quic'],
});
try {
    const context = await browser.newContext({ viewport: { width: 1280, height: 860 } });
    const page = await context.newPage();
    page.on('dialog', dialog => dialog.accept());
    const open = name => page.goto(pathToFileURL(path.join(shop, name)).href);
    const save = (name, part = {}) => page.screenshot({ path: path.join(pictures, name + '.png'), ...part });

    await open('index.htm');
    await save('home', { clip: { x: 0, y: 0, width: 1280, height: 640 } });
    await page.locator('input[name=sw]').fill(word);
    await page.locator('input[name=sw]').press('Enter');
    await page.waitForURL(/searchfunc/);
    await save('search');
    await open('g3_s14.htm');
    await save('shop');
    for (const row of [0, 1, 2]) {
        await page.locator('input[name=add1]').nth(row).click();
    }
    await page.locator('main a[href="00019202505.htm"]').first().click();
    await page.waitForLoadState();
    await save('product', { fullPage: true });
    await open('managecart.html');
    await save('cart');
    await open('checkout.htm');
    await page.locator('select[name=Ship_cost]').selectOption({ index: 1 });
    await page.waitForLoadState();
    await save('checkout', { fullPage: true });
    await page.setViewportSize({ width: 390, height: 760 });
    await open('g3_s14.htm');
    await save('phone');

    await page.goto(pathToFileURL(guide).href);
    const missing = await page.evaluate(() => [...document.images].filter(image => !image.naturalWidth)
        .map(image => image.getAttribute('src')));
    if (missing.length) {
        throw new Error('pictures missing: ' + missing.join(', '));
    }
    await page.pdf({
        path: pdf,
        format: 'A4',
        printBackground: true,
        displayHeaderFooter: true,
        headerTemplate: '<span></span>',
        footerTemplate: '<div style="width:100%;font-size:8px;text-align:center;color:#4d5b6a">'
            + '<span class="pageNumber"></span></div>',
        preferCSSPageSize: true,
        outline: true,
        tagged: true,
    });
} finally {
    await browser.close();
}
