/* The words of the cart in Spanish. This script loads before the cart script. */
'use strict';

var bLanguageDefined = true;

var strSorry   = 'Lo sentimos, su carrito est\u00e1 lleno. Tramite el pedido, por favor.';
var strAdded   = ' en su carrito.';
var strRemove  = 'Haga clic en Aceptar para quitar este producto de su carrito.';
var strILabel  = 'Referencia';
var strDLabel  = 'Descripci\u00f3n';
var strQLabel  = 'Cantidad';
var strPLabel  = 'Precio';
var strSLabel  = 'Env\u00edo';
var strRLabel  = 'Quitar del carrito';
var strRButton = 'Quitar';
var strSUB     = 'SUBTOTAL';
var strSHIP    = 'ENV\u00cdO';
var strTAX     = 'IMPUESTOS';
var strTOT     = 'TOTAL';
var strErrQty  = 'Cantidad no v\u00e1lida.';
var strNewQty  = 'Introduzca la nueva cantidad:';

document.documentElement.lang = 'es';
