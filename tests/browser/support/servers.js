import { createServer } from 'node:http';
import { readFile } from 'node:fs/promises';
import { basename, extname, join } from 'node:path';
import { windows1252 } from './codepage.js';

const TYPES = {
  '.htm': 'text/html', '.html': 'text/html', '.js': 'text/javascript', '.css': 'text/css',
  '.gif': 'image/gif', '.jpg': 'image/jpeg', '.png': 'image/png'
};

async function listen(handler) {
  const server = createServer(handler);
  await new Promise(ready => { server.listen(0, '127.0.0.1', ready); });
  return {
    address: `http://127.0.0.1:${server.address().port}/`,
    close() {
      server.closeAllConnections();
      server.close();
    }
  };
}

/** Serves a shop as a plain web host does: no charset of its own, so that the pages' own declaration counts. */
export function serveShop(folder) {
  return listen(async (request, response) => {
    const path = decodeURIComponent(new URL(request.url, 'http://shop').pathname).slice(1);
    const inside = path.startsWith('images/') ? join('images', basename(path)) : basename(path);
    try {
      const content = await readFile(join(folder, inside));
      const type = TYPES[extname(inside).toLowerCase()] || 'application/octet-stream';
      response.writeHead(200, { 'content-type': type, 'cache-control': type === 'text/html' ? 'no-cache' : 'max-age=600' });
      response.end(content);
    } catch {
      response.writeHead(404).end();
    }
  });
}

/** The pairs of a form as a handler sees them, in their order; the pages of the shop send windows-1252. */
function formFields(text) {
  const plain = part => windows1252(Buffer.from(unescape(part.replace(/\+/g, ' ')), 'latin1'));
  return text.split('&').filter(Boolean).map(pair => {
    const at = pair.indexOf('=');
    return [plain(pair.slice(0, at)), plain(pair.slice(at + 1))];
  });
}

/** Stands where the payment page or the form handler of the merchant would stand and keeps what arrives. */
export async function catchingOrders(act) {
  const orders = [];
  const server = await listen(async (request, response) => {
    let body = '';
    for await (const piece of request) { body += piece; }
    const { pathname, search } = new URL(request.url, 'http://catcher');
    const fields = formFields(search.slice(1)).concat(formFields(body));
    orders.push({ method: request.method, path: pathname, fields });
    response.writeHead(200, { 'content-type': 'text/html' });
    response.end('<!DOCTYPE html><html lang="en"><title>Order received</title><link rel="icon" href="data:,">');
  });
  try {
    await act({ address: server.address, orders });
  } finally {
    server.close();
  }
}
