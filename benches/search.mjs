// Times the search of generated shops in Chromium: node search.mjs NAME=FOLDER...
import { createReadStream, existsSync } from 'node:fs';
import { createServer } from 'node:http';
import { createRequire } from 'node:module';
import path from 'node:path';

const require = createRequire(new URL('../tests/browser/package.json', import.meta.url));
const { chromium } = require('playwright-core');

const limit = 1000; // milliseconds
const rounds = 5;

function serve(folder) {
    const server = createServer((request, response) => {
        const file = path.join(folder, path.basename(new URL(request.url, 'http://x').pathname));
        if (!existsSync(file)) {
            response.writeHead(404).end();
            return;
        }
        const type = file.endsWith('.js') ? 'text/javascript' : file.endsWith('.css') ? 'text/css' : 'text/html';
        response.writeHead(200, { 'content-type': type });
        createReadStream(file).pipe(response);
    });
    return new Promise(resolve => server.listen(0, '127.0.0.1', () => resolve(server)));
}

/** Milliseconds from the opening of the page, and from the end of the data script's loading, to the results. */
async function search(browser, address) {
    const page = await browser.newPage();
    await page.goto(address);
    const times = await page.evaluate(() => {
        const script = performance.getEntriesByType('resource').find(entry => entry.name.endsWith('searchdb.js'));
        const load = performance.getEntriesByType('navigation')[0].loadEventEnd;
        return { all: load, behindScript: load - script.responseEnd, text: document.body.innerText };
    });
    await page.close();
    if (!/1 - 10 of \d+ results for/.test(times.text)) {
        throw new Error('no results: ' + times.text.slice(0, 200));
    }
    return times;
}

const browser = await chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking', '--disable-quic'],
});
try {
    for (const argument of process.argv.slice(2)) {
        const [name, folder] = argument.split('=');
        const server = await serve(folder);
        const address = `http://127.0.0.1:${server.address().port}/searchfunc.html?sw=tasse+poids&ss=0&sm=0&sin=0`;
        let best = { all: Infinity, behindScript: Infinity };
        for (let i = 0; i < rounds; i++) {
            const times = await search(browser, address);
            best = {
                all: Math.min(best.all, times.all),
                behindScript: Math.min(best.behindScript, times.behindScript),
            };
        }
        console.log(`search in ${name} products, from opening to results:\t${best.all.toFixed(0)} ms\t\t\t`);
        const ratio = best.behindScript / limit;
        console.log(`search in ${name} products, once the script is loaded:\t${best.behindScript.toFixed(0)} ms\t`
            + `at most ${limit} ms\t${ratio.toFixed(2)}\t${ratio > 1 ? 'MISSED' : ''}`);
        server.close();
    }
} finally {
    await browser.close();
}
