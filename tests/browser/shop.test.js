/* One process and one browser for all visits: node's runner would start a browser for each file at once. */
import './visits/buying.js';
import './visits/cart.js';
import './visits/order_form.js';
import './visits/search.js';
import './visits/hostile.js';
import './visits/pages.js';
import './visits/quality.js';
