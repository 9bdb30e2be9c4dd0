/* The words of the cart in Italian. This script loads before the cart script. */
'use strict';

var bLanguageDefined = true;

var strSorry   = 'Il carrello \u00e8 pieno. Procedere all\u2019ordine.';
var strAdded   = ' nel carrello.';
var strRemove  = 'Fare clic su OK per togliere questo prodotto dal carrello.';
var strILabel  = 'Codice articolo';
var strDLabel  = 'Descrizione';
var strQLabel  = 'Quantit\u00e0';
var strPLabel  = 'Prezzo';
var strSLabel  = 'Spedizione';
var strRLabel  = 'Togli dal carrello';
var strRButton = 'Togli';
var strSUB     = 'SUBTOTALE';
var strSHIP    = 'SPEDIZIONE';
var strTAX     = 'IMPOSTE';
var strTOT     = 'TOTALE';
var strErrQty  = 'Quantit\u00e0 non valida.';
var strNewQty  = 'Inserire la nuova quantit\u00e0:';

document.documentElement.lang = 'it';
