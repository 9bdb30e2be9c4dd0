import { cartOf } from './visitor.js';

export const LIST = 'g3_s15.htm';
export const PRODUCT = '00001202501.htm';

const LINE = ['00007/202502', '3', '129.90', 'Runder Bräter aus Gusseisen, ziegelrot, 24 cm', '0', ''];
export const LONG_CART = cartOf(Array.from({ length: 12 }, (_, at) => [`000${at + 10}/202502`, ...LINE.slice(1)]));

/** One page of each kind, with the cookies that fill it. */
export const KINDS = {
  home: { address: 'index.htm' },
  contact: { address: 'contact.htm' },
  terms: { address: 'terme.htm' },
  delivery: { address: 'expedition.htm' },
  privacy: { address: 'privacy.htm' },
  list: { address: LIST },
  product: { address: PRODUCT },
  'empty cart': { address: 'managecart.html' },
  cart: { address: 'managecart.html', cookies: LONG_CART },
  checkout: { address: 'checkout.htm', cookies: { ...LONG_CART, cdship: '6.90' } },
  'order by form': { address: 'checkout_cc.htm', cookies: LONG_CART },
  results: { address: 'searchfunc.html?sw=de&ss=0&sm=0&sin=0' },
  'no results': { address: `searchfunc.html?sw=${'x'.repeat(300)}&ss=0&sm=0&sin=0` },
  'a group of the menu': { address: 'blank.htm' },
  thanks: { address: 'thanks.htm' }
};
