/* The cart of the shop: one cookie per line, no server. */
'use strict';

var ShipTotal, MonetarySymbol, DisplayNotice, DisplayShippingColumn, DisplayShippingRow, DisplayTaxRow, TaxRate,
  TaxByRegion, TaxPrompt, TaxablePrompt, NonTaxablePrompt, MinimumOrder, MinimumOrderPrompt, PaymentProcessor,
  OutputItemId, OutputItemQuantity, OutputItemPrice, OutputItemName, OutputItemShipping, OutputItemAddtlInfo,
  OutputOrderSubtotal, OutputOrderShipping, OutputOrderTax, OutputOrderTotal, AppendItemNumToOutput,
  HiddenFieldsToCheckout, bLanguageDefined, g_TotalCost, strSorry, strAdded, strRemove, strILabel, strDLabel,
  strQLabel, strPLabel, strSLabel, strRLabel, strRButton, strSUB, strSHIP, strTAX, strTOT, strErrQty, strNewQty;

/* The settings of the merchant. An empty minimum leaves a line that no browser reads: the cart needs that number. */
ShipTotal             = "[SHIP]";
MonetarySymbol        = '[DEVISE]';
DisplayNotice         = true;
DisplayShippingColumn = false;
DisplayShippingRow    = [SHIPTRUE];
DisplayTaxRow         = [TAXETRUE];
TaxRate               = [TAXE];
TaxByRegion           = false;
TaxPrompt             = false;
TaxablePrompt         = false;
NonTaxablePrompt      = false;
MinimumOrder          = [MINORDER];
MinimumOrderPrompt    = '[LBMINORDER]';
strTAX                = '[MTAXE]';

/* Field names for order handlers other than 'pp', which has its own in CheckoutCart. */
PaymentProcessor       = 'pp';
OutputItemId           = 'ID_';
OutputItemQuantity     = 'QUANTITY_';
OutputItemPrice        = 'PRICE_';
OutputItemName         = 'NAME_';
OutputItemShipping     = 'SHIPPING_';
OutputItemAddtlInfo    = 'ADDTLINFO_';
OutputOrderSubtotal    = 'SUBTOTAL';
OutputOrderShipping    = 'SHIPPING';
OutputOrderTax         = 'TAX';
OutputOrderTotal       = 'TOTAL';
AppendItemNumToOutput  = true;
HiddenFieldsToCheckout = false;

/* The language script loads first; without it the cart speaks English. */
if (!bLanguageDefined) {
  strSorry   = "I'm Sorry, your cart is full, please proceed to checkout.";
  strAdded   = " added to your shopping cart.";
  strRemove  = "Click 'Ok' to remove this product from your shopping cart.";
  strILabel  = "Product Id";
  strDLabel  = "Product Name/Description";
  strQLabel  = "Quantity";
  strPLabel  = "Price";
  strSLabel  = "Shipping";
  strRLabel  = "Remove From Cart";
  strRButton = "Remove";
  strSUB     = "SUBTOTAL";
  strSHIP    = "SHIPPING";
  strTAX     = "TAX";
  strTOT     = "TOTAL";
  strErrQty  = "Invalid Quantity.";
  strNewQty  = 'Please enter new quantity:';
}

(function () {
  const MOST_LINES = 12;
  const EXPIRED = 'Thu, 01-Jan-70 00:00:01 GMT';
  const FIELDS = ['id', 'quantity', 'price', 'name', 'shipping', 'info'];
  let busy = false; /* a change of a line is under way: the form must not leave now */

  /* ---- cookies ---- */

  /* Some browsers keep no cookies for a page opened from a folder. There the same values live in the session
     storage, so that a shop can be tried before it is published. Over http cookies alone are used. */
  function jar(text) {
    try {
      if (window.location.protocol !== 'file:') {
        if (text) { document.cookie = text; }
        return document.cookie;
      }
      const name = text ? text.split('=')[0] : '';
      const kept = (window.sessionStorage.getItem('cookies') || '').split('; ')
        .filter(pair => pair && (!name || pair.split('=')[0] !== name));
      if (name && !text.includes(EXPIRED)) { kept.push(text.split(';')[0]); }
      if (name) { window.sessionStorage.setItem('cookies', kept.join('; ')); }
      return kept.join('; ');
    } catch (refused) {
      return '';
    }
  }

  function FixCookieDate(date) {
    /* A clock whose zero is not zero would make every date too late. */
    date.setTime(date.getTime() - Math.max(0, new Date(0).getTime()));
  }

  function getCookieVal(offset) {
    return unescape(jar().slice(offset).split(';')[0]);
  }

  function GetCookie(name) {
    const at = ('; ' + jar()).indexOf('; ' + name + '=');
    return at === -1 ? null : getCookieVal(at + name.length + 1);
  }

  function SetCookie(name, value, expires, path, domain, secure) {
    jar(name + '=' + escape(value) +
      (expires ? '; expires=' + expires.toUTCString() : '') +
      (path ? '; path=' + path : '') +
      (domain ? '; domain=' + domain : '') +
      (secure ? '; secure' : ''));
  }

  function DeleteCookie(name, path, domain) {
    if (GetCookie(name) === null) { return; }
    jar(name + '=' + (path ? '; path=' + path : '') + (domain ? '; domain=' + domain : '') + '; expires=' + EXPIRED);
  }

  /* ---- lines ---- */

  function count() {
    const lines = parseInt(GetCookie('NumberOrdered'), 10);
    return Math.min(MOST_LINES, lines > 0 ? lines : 0);
  }

  function line(i) {
    const parts = (GetCookie('Order.' + i) || '').split('|');
    return Object.fromEntries(FIELDS.map((field, at) => [field, parts[at] || '']));
  }

  function writeLine(i, one) {
    SetCookie('Order.' + i, FIELDS.map(field => one[field]).join('|'), null, '/');
  }

  const whole = text => parseInt(text, 10) || 0;
  const amount = text => parseFloat(text) || 0;

  /* Whatever stands in a cookie is text: it goes into the page through here. */
  function html(text) {
    return String(text).replace(/[&<>"']/g, sign => '&#' + sign.charCodeAt(0) + ';');
  }

  function reload() {
    busy = true;
    window.location.reload();
  }

  /* ---- functions of the pages ---- */

  function CKquantity(text) {
    return String(text).replace(/[^0-9.]/g, '') || '1';
  }

  function AddToCart(form) {
    /* The cart is filled here and now; sending the form would only reload the list. */
    if (window.event && window.event.type === 'submit') { window.event.preventDefault(); }

    const field = (name, otherwise) => form[name] ? form[name].value : otherwise;
    const wanted = {
      id: field('ID_NUM', ''),
      quantity: field('QUANTITY', '1'),
      price: field('PRICE', '0.00'),
      name: field('NAME', ''),
      shipping: field('SHIPPING', '0.00'),
      info: ['ADDITIONALINFO', 'ADDITIONALINFO2', 'ADDITIONALINFO3', 'ADDITIONALINFO4']
        .filter(name => form[name])
        .map(name => form[name].value)
        .join('; ')
    };
    const lines = count();
    const note = wanted.quantity + ' ' + wanted.name + strAdded;

    for (let i = 1; i <= lines; i += 1) {
      const old = line(i);
      if (['id', 'price', 'name', 'info'].every(key => old[key] === wanted[key])) {
        writeLine(i, { ...wanted, quantity: whole(old.quantity) + whole(wanted.quantity) });
        if (DisplayNotice) { window.alert(note); }
        return;
      }
    }

    if (lines + 1 > MOST_LINES) {
      window.alert(strSorry);
      if (DisplayNotice) { window.alert(''); } /* the notice of a line that found no room is empty */
      return;
    }
    writeLine(lines + 1, wanted);
    SetCookie('NumberOrdered', lines + 1, null, '/');
    if (DisplayNotice) { window.alert(note); }
  }

  function RemoveFromCart(i) {
    if (!window.confirm(strRemove)) { return; }
    const lines = count();
    for (let next = i + 1; next <= lines; next += 1) { writeLine(next - 1, line(next)); }
    SetCookie('NumberOrdered', lines - 1, null, '/');
    DeleteCookie('Order.' + lines, '/');
    reload();
  }

  function ChangeQuantity(i, quantity) {
    if (String(quantity).trim() === '' || isNaN(quantity)) {
      busy = true;
      window.setTimeout(() => { busy = false; }, 0);
      window.alert(strErrQty);
      /* Show again what the cart holds. */
      if (window.event && window.event.type === 'change') { window.event.target.value = line(i).quantity; }
      return;
    }
    writeLine(i, { ...line(i), quantity: String(quantity).trim() });
    reload();
  }

  /* Only the amount chosen at the checkout counts as shipping; the amounts of the lines do not. An empty cart
     keeps the initial values: its tax is the bare rate. */
  function totals(lines) {
    const sum = { subtotal: 0, shipping: amount(ShipTotal), tax: Number(TaxRate) };
    for (let i = 1; i <= lines; i += 1) {
      const one = line(i);
      sum.subtotal += whole(one.quantity) * amount(one.price);
    }
    if (lines > 0) {
      sum.shipping = amount(GetCookie('cdship'));
      sum.tax = sum.subtotal * TaxRate + sum.shipping * TaxRate;
    }
    sum.total = sum.subtotal + sum.shipping + sum.tax;
    return sum;
  }

  function header(labels) {
    return '<TR CLASS="nopheader">' + labels.map(text => '<TH SCOPE="col">' + html(text) + '</TH>').join('') + '</TR>';
  }

  function emptyRow(columns) {
    return '<TR CLASS="nopentry"><TD COLSPAN="' + columns + '" LANG="en">Your cart is empty</TD></TR>';
  }

  function described(one) {
    return html(one.name) + (one.info ? ' - <I>' + html(one.info) + '</I>' : '');
  }

  function cell(label, content) {
    return '<TD DATA-LABEL="' + html(label) + '">' + content + '</TD>';
  }

  const each = one => html(MonetarySymbol) + html(one.price) + '/ea';

  function totalRows(sum, columns) {
    return [[strSUB, sum.subtotal, true], [strSHIP, sum.shipping, DisplayShippingRow],
      [strTAX, sum.tax, DisplayTaxRow], [strTOT, sum.total, true]]
      .filter(row => row[2])
      .map(row => '<TR CLASS="noptotal"><TD COLSPAN="' + columns + '">' + html(row[0]) +
        '</TD><TD COLSPAN="2" ALIGN="right">' + html(MonetarySymbol) + moneyFormat(row[1]) + '</TD></TR>')
      .join('');
  }

  function ManageCart() {
    const lines = count();
    const sum = totals(lines);
    let rows = header([strILabel, strDLabel, strQLabel, strPLabel, strRLabel]);
    if (lines === 0) { rows += emptyRow(6); }
    for (let i = 1; i <= lines; i += 1) {
      const one = line(i);
      rows += '<TR CLASS="nopentry">' + cell(strILabel, html(one.id)) + cell(strDLabel, described(one)) +
        cell(strQLabel, '<INPUT TYPE="text" NAME="Q" SIZE="2" INPUTMODE="decimal" VALUE="' + html(one.quantity) +
          '" ARIA-LABEL="' + html(strQLabel + ', ' + one.name) + '" onChange="ChangeQuantity(' + i + ', this.value);">') +
        cell(strPLabel, each(one)) +
        cell('', '<INPUT TYPE="button" CLASS="nopbutton" VALUE="' + html(strRButton) +
          '" ARIA-LABEL="' + html(strRButton + ': ' + one.name) + '" onClick="RemoveFromCart(' + i + ');">') + '</TR>';
    }
    window.g_TotalCost = sum.total;
    document.write('<TABLE CLASS="nopcart">' + rows + totalRows(sum, 4) + '</TABLE>');
  }

  function CheckoutCart() {
    const lines = count();
    const sum = totals(lines);
    const hidden = (name, value) => '<INPUT TYPE="hidden" NAME="' + name + '" VALUE="' + html(value) + '">';
    let rows = header([strILabel, strDLabel, strQLabel, strPLabel]);
    let fields = '';
    if (lines === 0) { rows += emptyRow(5); }
    for (let i = 1; i <= lines; i += 1) {
      const one = line(i);
      rows += '<TR CLASS="nopentry">' + cell(strILabel, html(one.id)) + cell(strDLabel, described(one)) +
        cell(strQLabel, html(one.quantity)) + cell(strPLabel, each(one)) + '</TR>';
      /* The whole quantity goes out, since the totals are made of it. */
      fields += hidden('item_number_' + i, one.id) + hidden('quantity_' + i, whole(one.quantity)) +
        hidden('amount_' + i, one.price) + hidden('item_name_' + i, one.name) +
        hidden('shipping_' + i, one.shipping) + hidden('on0_' + i, one.info);
      /* The payment page takes the last of two equal names: shipping is charged once, on the last line. */
      if (i === lines) { fields += hidden('shipping_' + i, moneyFormat(sum.shipping)); }
    }
    document.write('<TABLE CLASS="nopcart">' + rows + totalRows(sum, 3) + '</TABLE>' + fields);
  }

  function GetFromCart(shipping) {
    ManageCart();
  }

  function ValidateCart(form) {
    /* Enter in a quantity changes the line and sends the form in one go: show the new totals first. */
    if (busy) { return false; }
    if (MinimumOrder >= 0.01 && window.g_TotalCost < MinimumOrder) {
      window.alert(MinimumOrderPrompt);
      return false;
    }
    return true;
  }

  function moneyFormat(value) {
    const number = Number(value) || 0;
    let dollars = Math.floor(number);
    let cents = String(Math.round(number * 100)).slice(-2);
    /* 19.999 rounds up to a whole amount, which the floor has missed. */
    if ((String(number).split('.')[1] || '')[1] === '9' && cents === '00') { dollars += 1; }
    if (cents.length === 1) { cents = '0' + cents; }
    return dollars + '.' + cents;
  }

  function RadioChecked(group) {
    const buttons = group && group.length !== undefined ? Array.from(group) : [group];
    return buttons.some(button => Boolean(button && button.checked));
  }

  let parameters = null;

  function QueryString_Parse() {
    parameters = new URLSearchParams(window.location.search);
  }

  function QueryString(key) {
    if (!parameters) { QueryString_Parse(); }
    return parameters.get(key);
  }

  Object.assign(window, {
    CKquantity, AddToCart, ManageCart, CheckoutCart, ValidateCart, RemoveFromCart, ChangeQuantity, GetFromCart,
    SetCookie, GetCookie, DeleteCookie, getCookieVal, FixCookieDate, moneyFormat, RadioChecked, QueryString,
    QueryString_Parse
  });
}());
