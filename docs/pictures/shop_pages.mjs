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
const fixed = names.filter(name => !/^g\d|^searchfunc/.test(name) && !fs.existsSync(path.join(shop, 'images', name)));
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
    const open = name => page.goto(pathToFileURL(path.join(shop, name.split('?')[0])).href + (name.match(/\?.*/) ?? ''));
    const picture = (name, width) => page.screenshot({ path: path.join(out, `${name}-${width}.png`), fullPage: true });
    await page.setViewportSize({ width: 390, height: 860 });
    await open('managecart.html');
    await picture('empty_cart', 390);
    await open(pages[0]);
    const word = (await page.locator('.products .name').first().innerText()).split(' ')[0];
    const search = { found: `searchfunc.html?sw=${word}&ss=0&sm=0&sin=0`, not_found: 'searchfunc.html?sw=zzz&ss=0&sm=0&sin=0' };
    for (const row of [0, 1, 2]) {
        await page.locator('input[name=add1]').nth(row).click();
    }
    for (const width of [390, 768, 1280]) {
        await page.setViewportSize({ width, height: 860 });
        await page.mouse.move(0, 0);
        for (const [label, name] of [...pages.map(name => [path.parse(name).name, name]), ...Object.entries(search)]) {
            await open(name);
            const room = await page.evaluate(() => [document.documentElement.scrollWidth, window.innerWidth]);
            if (room[0] > room[1]) {
                console.error(`${name} at ${width}: ${room[0]} pixels wide`);
            }
            await picture(label, width);
        }
        await open('index.htm');
        await page.locator(width > 720 ? '.menu .level1 > li > button.entry' : '.menu .fold').first().click();
        await picture('menu', width);
    }
} finally {
    await browser.close();
}
