/* The words of the cart in English. This script loads before the cart script. */
'use strict';

var bLanguageDefined = true;

var strSorry   = 'Sorry, your cart is full. Please proceed to checkout.';
var strAdded   = ' added to your shopping cart.';
var strRemove  = 'Click OK to remove this product from your shopping cart.';
var strILabel  = 'Item no.';
var strDLabel  = 'Product';
var strQLabel  = 'Quantity';
var strPLabel  = 'Price';
var strSLabel  = 'Shipping';
var strRLabel  = 'Remove from cart';
var strRButton = 'Remove';
var strSUB     = 'SUBTOTAL';
var strSHIP    = 'SHIPPING';
var strTAX     = 'TAX';
var strTOT     = 'TOTAL';
var strErrQty  = 'Invalid quantity.';
var strNewQty  = 'Please enter the new quantity:';

document.documentElement.lang = 'en';
