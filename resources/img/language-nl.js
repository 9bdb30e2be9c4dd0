/* The words of the cart in Dutch. This script loads before the cart script. */
'use strict';

var bLanguageDefined = true;

var strSorry   = 'Sorry, uw winkelwagen is vol. Ga verder met bestellen.';
var strAdded   = ' toegevoegd aan uw winkelwagen.';
var strRemove  = 'Klik op OK om dit product uit uw winkelwagen te verwijderen.';
var strILabel  = 'Artikelnummer';
var strDLabel  = 'Omschrijving';
var strQLabel  = 'Aantal';
var strPLabel  = 'Prijs';
var strSLabel  = 'Verzending';
var strRLabel  = 'Uit winkelwagen verwijderen';
var strRButton = 'Verwijderen';
var strSUB     = 'SUBTOTAAL';
var strSHIP    = 'VERZENDING';
var strTAX     = 'BELASTING';
var strTOT     = 'TOTAAL';
var strErrQty  = 'Ongeldig aantal.';
var strNewQty  = 'Voer het nieuwe aantal in:';

document.documentElement.lang = 'nl';
