import assert from 'node:assert/strict';
import { after } from 'node:test';
import { chromium } from 'playwright-core';

export const WIDE = { name: 'wide screen', viewport: { width: 1280, height: 900 } };
export const PHONE = { name: 'telephone', viewport: { width: 390, height: 844 }, hasTouch: true, isMobile: true };

let launched = null;
after(async () => { if (launched) { await (await launched).close(); } });

function browser() {
  launched ||= chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking', '--disable-quic']
  });
  return launched;
}

/** Notes whatever a visitor would call broken: script errors, missing files, requests to a host that is no shop. */
function watch(context, hosts, faults) {
  context.on('weberror', failure => faults.push(`${failure.page()?.url()}: ${failure.error()}`));
  context.on('console', line => {
    if (['error', 'warning'].includes(line.type())) { faults.push(`${line.location().url}: ${line.text()}`); }
  });
  context.on('request', request => {
    if (!hosts.concat('data:').some(host => request.url().startsWith(host))) {
      faults.push(`request to another host: ${request.url()}`);
    }
  });
  context.on('response', response => {
    if (response.status() >= 400) { faults.push(`${response.status()}: ${response.url()}`); }
  });
  context.on('requestfailed', request => {
    const { errorText } = request.failure();
    /* A page that is left stops what it was still loading. */
    if (errorText !== 'net::ERR_ABORTED') { faults.push(`${errorText}: ${request.url()}`); }
  });
}

/** One person before one screen, who acts by pointer (mouse or finger) or by the keyboard alone. */
class Visitor {
  constructor(page, address, screen, hand) {
    Object.assign(this, { page, address, hand, heard: [], accepts: true });
    this.narrow = screen === PHONE;
    page.on('dialog', async dialog => {
      this.heard.push(dialog.message());
      await (this.accepts ? dialog.accept() : dialog.dismiss());
    });
  }

  open(path) { return this.page.goto(this.address + path); }

  /** The messages that an act brings up. */
  async hears(act) {
    const before = this.heard.length;
    await Promise.all([this.page.waitForEvent('dialog'), act()]);
    return this.heard.slice(before);
  }

  /** Goes on when the page that the act leads to stands there. */
  async leaves(act) {
    await Promise.all([this.page.waitForEvent('load'), act()]);
  }

  /** Walks with a key until the element has the focus. */
  async reach(element, key = 'Tab') {
    for (let steps = 0; steps < 150; steps += 1) {
      const outline = await element.evaluate(one => one === document.activeElement && getComputedStyle(one).outlineStyle);
      if (outline) {
        assert.ok(steps === 0 || outline !== 'none', `the focus of ${element} is not to be seen`);
        return;
      }
      await this.page.keyboard.press(key);
    }
    assert.fail(`the keyboard does not reach ${element} on ${this.page.url()}`);
  }

  async press(element) {
    if (this.hand === 'keyboard') {
      await this.reach(element);
      await this.page.keyboard.press('Enter');
    } else if (this.narrow) {
      await element.tap();
    } else {
      await element.click();
    }
  }

  async write(element, text) {
    await (this.hand === 'keyboard' ? this.reach(element) : element.click());
    await this.page.keyboard.press('Control+A');
    await this.page.keyboard.type(text);
  }

  /** Ends the writing in a field: Enter by keyboard, a touch of the page's title otherwise. */
  async done() {
    await (this.hand === 'keyboard' ? this.page.keyboard.press('Enter') : this.page.locator('h1').click());
  }

  /** Through the menu to the page of an entry, which stands below the entries named before it. */
  async menu(...entries) {
    const entry = name => this.page.locator('.menu .entry').filter({ hasText: new RegExp(`^${name}$`) });
    const last = entry(entries.pop());
    if (this.narrow) { await this.press(this.page.locator('.menu .fold')); }
    if (this.hand === 'keyboard') {
      let walk = 'Tab';
      for (const name of entries) {
        await this.reach(entry(name), walk);
        await this.page.keyboard.press(walk === 'Tab' && !this.narrow ? 'ArrowDown' : 'ArrowRight');
        walk = 'ArrowDown';
      }
      await this.reach(last, walk);
    } else {
      for (const name of entries) { await this.press(entry(name)); }
    }
    await this.leaves(() => this.press(last));
  }

  /** The rows of a list page. */
  products() { return this.page.locator('.products tr.row'); }

  /** What a row of the list says about its product. */
  async product(row) {
    const text = async column => (await row.locator(column).innerText()).trim();
    return { id: await text('.reference'), name: await text('.name'), cents: cents(await text('.price')) };
  }

  /** Puts a product of the list into the cart and gives the messages heard. */
  async add(row, quantity) {
    await this.write(row.locator('[name=QUANTITY]'), quantity);
    return this.hears(() => this.press(row.locator('[name=add1]')));
  }

  /** The cart as it is shown, here and at the checkout. */
  async cart() {
    return this.page.locator('table.nopcart').evaluate(table => {
      const words = cell => (cell.querySelector('[name=Q]')?.value ?? cell.textContent).trim();
      const rows = name => Array.from(table.querySelectorAll(name), row => Array.from(row.cells, words));
      return {
        lines: rows('.nopentry').map(cells => cells.slice(0, 4)),
        totals: Object.fromEntries(rows('.noptotal'))
      };
    });
  }

  async cookie(name) {
    const found = (await this.page.context().cookies()).find(cookie => cookie.name === name);
    return found && unescape(found.value);
  }

  /** Keeps values as an earlier page of the shop would have kept them. */
  async keep(values) {
    await this.page.context().addCookies(Object.entries(values)
      .map(([name, value]) => ({ name, value: escape(value), url: this.address })));
  }
}

/** Lets one visitor act in a shop; afterwards nothing may have been broken on his way. */
export async function visit({ address }, { screen = WIDE, hand = 'pointer', hosts = [] }, act) {
  const { name, ...device } = screen;
  const context = await (await browser()).newContext({ ...device, locale: 'en-GB' });
  context.setDefaultTimeout(120000); /* far beyond what a busy machine needs */
  const faults = [];
  watch(context, [address, ...hosts], faults);
  try {
    await act(new Visitor(await context.newPage(), address, screen, hand));
    assert.deepEqual(faults, []);
  } finally {
    await context.close();
  }
}

/** "45.90 EUR" or "€45.90/ea" as 4590. */
export function cents(text) {
  const [, whole, part] = /(\d+)\.(\d\d)/.exec(text);
  return Number(whole) * 100 + Number(part);
}

/** 4590 as the cart shows it. */
export const money = amount => `€${Math.floor(amount / 100)}.${String(amount % 100).padStart(2, '0')}`;

/** The cookies of a cart whose lines were made elsewhere. */
export function cartOf(lines) {
  return {
    NumberOrdered: lines.length,
    ...Object.fromEntries(lines.map((line, at) => [`Order.${at + 1}`, line.join('|')]))
  };
}
