/* The words of the cart in French. This script loads before the cart script. */
'use strict';

var bLanguageDefined = true;

var strSorry   = 'D\u00e9sol\u00e9, votre panier est plein. Veuillez passer \u00e0 la commande.';
var strAdded   = ' ajout\u00e9 \u00e0 votre panier.';
var strRemove  = 'Cliquez sur \u00ab OK \u00bb pour retirer ce produit de votre panier.';
var strILabel  = 'R\u00e9f\u00e9rence';
var strDLabel  = 'D\u00e9signation';
var strQLabel  = 'Quantit\u00e9';
var strPLabel  = 'Prix';
var strSLabel  = 'Livraison';
var strRLabel  = 'Retirer du panier';
var strRButton = 'Retirer';
var strSUB     = 'SOUS-TOTAL';
var strSHIP    = 'LIVRAISON';
var strTAX     = 'TAXE';
var strTOT     = 'TOTAL';
var strErrQty  = 'Quantit\u00e9 non valide.';
var strNewQty  = 'Saisissez la nouvelle quantit\u00e9 :';

document.documentElement.lang = 'fr';
