import assert from 'node:assert/strict';
import { after } from 'node:test';
import { execFile } from 'node:child_process';
import { cp, mkdtemp, readFile, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { windows1252 } from './codepage.js';
import { serveShop } from './servers.js';

const { ZELVANTOR_SHOP, ZELVANTOR_SHARE } = process.env;
assert.ok(ZELVANTOR_SHOP && ZELVANTOR_SHARE,
  'ZELVANTOR_SHOP names the shop generator, ZELVANTOR_SHARE the folder of what is delivered beside it');

export const SAMPLE = join(ZELVANTOR_SHARE, 'sample');
export const LANGUAGES = ['FR', 'EN', 'NL', 'DE', 'IT', 'ES'];

const made = new Map();
const cleanings = [];
after(async () => { for (const clean of cleanings) { await clean(); } });

async function make(language, settings) {
  const folder = await mkdtemp(join(tmpdir(), 'zelvantor-shop-'));
  cleanings.push(() => rm(folder, { recursive: true }));

  await cp(join(SAMPLE, 'settings'), join(folder, 'settings'), { recursive: true });
  const file = join(folder, 'settings', 'DORNELIQUE.ini');
  let text = await readFile(file, 'utf8');
  for (const [key, value] of Object.entries(settings)) {
    const line = new RegExp(`^${key}=.*$`, 'm');
    assert.match(text, line, `the sample has no setting ${key}`);
    text = text.replace(line, () => `${key}=${value}`);
  }
  await writeFile(file, text);

  const out = join(folder, 'shop');
  const [error, stderr] = await new Promise(done => {
    execFile(ZELVANTOR_SHOP,
      ['--app-folder', SAMPLE, '--settings', join(folder, 'settings'), '--out', out, '--language', language],
      (failure, _, complaints) => done([failure, complaints]));
  });
  assert.equal(error, null, `the shop is not whole: ${stderr}`);

  const server = await serveShop(out);
  cleanings.unshift(server.close);
  return { language, folder: out, address: server.address };
}

/** A shop of the sample in one language, with settings changed, behind its own server. Made once for all tests. */
export function shop(language, settings = {}) {
  const key = language + JSON.stringify(settings);
  if (!made.has(key)) { made.set(key, make(language, settings)); }
  return made.get(key);
}

/** A page or script of the shop as text. */
export async function shopText(folder, name) {
  return windows1252(await readFile(join(folder, name)));
}

/** The texts of one language file that reach the pages: numbers below 100 and the menu's "m1" to "m9". */
export async function shopWords(language) {
  const section = (await readFile(join(SAMPLE, `${language}.cda`), 'utf8')).split(/^\[CATALOG\]\s*$/m)[1].split(/^\[/m)[0];
  return new Map([...section.matchAll(/^(m\d|\d\d)=(.*?)\s*$/gm)].map(([, key, text]) => [key, text]));
}
