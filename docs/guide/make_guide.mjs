// Pictures of the sample shop and the PDF of the guide: node make_guide.mjs SHOP PICTURES GUIDE PDF
import { createRequire } from 'node:module';
import { pathToFileURL } from 'node:url';
import path from 'node:path';

const require = createRequire(new URL('../../tests/browser/package.json', import.meta.url));
const { chromium } = require('playwright-core');

const [shop, pictures, guide, pdf] = process.argv.slice(2).map(name => path.resolve(name));
const browser = await chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking', '--disable-quic'],
});
try {
    const context = await browser.newContext({ viewport: { width: 1280, height: 860 } });
    const page = await context.newPage();
    page.on('dialog', dialog => dialog.accept());
    const open = name => page.goto(pathToFileURL(path.join(shop, name)).href);
    await open('g3_s14.htm');
    await page.screenshot({ path: path.join(pictures, 'shop.png') });
    for (const row of [0, 1, 2]) {
        await page.locator('input[name=add1]').nth(row).click();
    }
    await open('managecart.html');
    await page.screenshot({ path: path.join(pictures, 'cart.png') });
    await page.goto(pathToFileURL(guide).href);
    await page.pdf({
        path: pdf,
        format: 'A4',
        printBackground: true,
        displayHeaderFooter: true,
        headerTemplate: '<span></span>',
        footerTemplate: '<div style="width:100%;font-size:8px;text-align:center;color:#4d5b6a">'
            + '<span class="pageNumber"></span></div>',
        preferCSSPageSize: true,
    });
} finally {
    await browser.close();
}
