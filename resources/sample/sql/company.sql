-- Company data. The telephone numbers come from the range kept free for fiction; address, registration
-- and account are invented.

UPDATE REF_INFO SET sValeur = 'La Remise aux Tilleuls' WHERE idInfo = 1;
UPDATE REF_INFO SET sValeur = '27 bis, montée du Clos-Verger' WHERE idInfo = 2;
UPDATE REF_INFO SET sValeur = 'Cour des Tilleuls' WHERE idInfo = 3;
UPDATE REF_INFO SET sValeur = '69000' WHERE idInfo = 4;
UPDATE REF_INFO SET sValeur = 'Lyon' WHERE idInfo = 5;
UPDATE REF_INFO SET sValeur = 'France' WHERE idInfo = 6;
UPDATE REF_INFO SET sValeur = '04 65 71 20 48' WHERE idInfo = 7;
UPDATE REF_INFO SET sValeur = '04 65 71 20 49' WHERE idInfo = 8;
UPDATE REF_INFO SET sValeur = 'bonjour@remise-tilleuls.example' WHERE idInfo = 9;
UPDATE REF_INFO SET sValeur = 'http://www.remise-tilleuls.example/' WHERE idInfo = 10;
UPDATE REF_INFO SET sValeur = 'FR00 000 000 000 (exemple)' WHERE idInfo = 11;
UPDATE REF_INFO SET sValeur = 'Banque de démonstration, IBAN FR00 0000 0000 0000 0000 0000 000 (exemple)' WHERE idInfo = 12;
UPDATE REF_INFO SET sValeur = 'pictures/logo.gif' WHERE idInfo = 13;
UPDATE REF_INFO SET sValeur = 'SIRET 000 000 000 00000 (exemple)' WHERE idInfo = 14;
UPDATE REF_INFO SET sValeur = 'Du mardi au samedi, de 10 h à 12 h 30 et de 14 h à 19 h' WHERE idInfo = 15;
UPDATE REF_INFO SET sValeur = 'SARL au capital de 8 000 euros (exemple)' WHERE idInfo = 16;

UPDATE REF_REMARQUE SET sValeur = 'Escompte pour paiement anticipé : néant. Merci de votre visite !' WHERE idInfo = 1;
UPDATE REF_REMARQUE SET sValeur = 'Vérifiez le colis devant le livreur et notez toute casse sur le bon.' WHERE idInfo = 2;
UPDATE REF_REMARQUE SET sValeur = 'Devis valable trente jours, dans la limite de nos stocks.' WHERE idInfo = 3;

UPDATE REF_SERVER SET
    sServer = 'mail.remise-tilleuls.example',
    sUser = 'bonjour@remise-tilleuls.example',
    sName = 'La Remise aux Tilleuls',
    sSenderName = 'La Remise aux Tilleuls',
    sEmail = 'bonjour@remise-tilleuls.example',
    sSMTP = 'smtp.remise-tilleuls.example'
WHERE idServer = 1;

UPDATE PARAM SET Ref_Produit = 86;

-- This user may add, modify and consult products, but not delete them.
INSERT INTO REF_USER (Num_user, Login, Mot_passe, sDroits) VALUES
  (1, 'vendeur', 'tilleul', 'S1:/1101/');
