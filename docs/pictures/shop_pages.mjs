// Pictures of the pages of a shop at three widths, with a cart that holds three products: node shop_pages.mjs SHOP OUT
import { createRequire } from 'node:module';
import { pathToFileURL } from 'node:url';
import fs from 'node:fs';
import path from 'node:path';

const require = createRequire(new URL('../../tests/browser/package.json', import.meta.url));
const { chromium } = require('playwright-core');

const [shop, out] = process.argv.slice(2).map(name => path.resolve(name));
fs.mkdirSync(out, { recursive: true });
const names = fs.readdirSync(shop).filter(name => /\.html?$/.test(name));
const oneOf = pattern => names.filter(name => pattern.test(name)).slice(0, 1);
const fixed = names.filter(name => !/^g\d/.test(name) && !fs.existsSync(path.join(shop, 'images', name)));
const products = names.filter(name => /^\d/.test(name));
const pages = [...oneOf(/^g\d+_s\d+\.htm$/), ...products.slice(0, 1), ...fixed.filter(name => !products.includes(name))];

const browser = await chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking', '--disable-quic'],
});
try {
    const context = await browser.newContext();
    const page = await context.newPage();
    page.on('dialog', dialog => dialog.accept());
    const open = name => page.goto(pathToFileURL(path.join(shop, name)).href);
    await open(pages[0]);
    for (const row of [0, 1, 2]) {
        await page.locator('input[name=add1]').nth(row).click();
    }
    for (const width of [390, 768, 1280]) {
        await page.setViewportSize({ width, height: 860 });
        for (const name of pages) {
            await open(name);
            const room = await page.evaluate(() => [document.documentElement.scrollWidth, window.innerWidth]);
            if (room[0] > room[1]) {
                console.error(`${name} at ${width}: ${room[0]} pixels wide`);
            }
            await page.screenshot({ path: path.join(out, `${path.parse(name).name}-${width}.png`), fullPage: true });
        }
    }
} finally {
    await browser.close();
}
