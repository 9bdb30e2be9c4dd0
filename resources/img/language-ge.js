/* The words of the cart in German. This script loads before the cart script. */
'use strict';

var bLanguageDefined = true;

var strSorry   = 'Ihr Warenkorb ist leider voll. Bitte gehen Sie zur Kasse.';
var strAdded   = ' wurde in Ihren Warenkorb gelegt.';
var strRemove  = 'Klicken Sie auf OK, um dieses Produkt aus dem Warenkorb zu entfernen.';
var strILabel  = 'Artikelnummer';
var strDLabel  = 'Bezeichnung';
var strQLabel  = 'Menge';
var strPLabel  = 'Preis';
var strSLabel  = 'Versand';
var strRLabel  = 'Aus dem Warenkorb entfernen';
var strRButton = 'Entfernen';
var strSUB     = 'ZWISCHENSUMME';
var strSHIP    = 'VERSAND';
var strTAX     = 'STEUER';
var strTOT     = 'GESAMTSUMME';
var strErrQty  = 'Ung\u00fcltige Menge.';
var strNewQty  = 'Bitte geben Sie die neue Menge ein:';

document.documentElement.lang = 'de';
