-- Company data, remarks and mail server, empty but labelled. The place of a row in REF_INFO is its meaning,
-- so every number from 1 to 16 is there, and a row keeps its label even when it has no value.

INSERT INTO REF_INFO (idInfo, sInfo, sValeur) VALUES
  (1, 'Nom de la société', NULL),
  (2, 'Adresse', NULL),
  (3, 'Adresse (suite)', NULL),
  (4, 'Code postal', NULL),
  (5, 'Ville', NULL),
  (6, 'Pays', NULL),
  (7, 'Téléphone', NULL),
  (8, 'Fax', NULL),
  (9, 'Email', NULL),
  (10, 'Site web', NULL),
  (11, 'N° de TVA', NULL),
  (12, 'Compte bancaire', NULL),
  (13, 'Logo (chemin du fichier)', NULL),
  (14, 'N° d''immatriculation', NULL),
  (15, 'Horaires d''ouverture', NULL),
  (16, 'Mention légale', NULL);

INSERT INTO REF_REMARQUE (idInfo, sInfo, sValeur) VALUES
  (1, 'Remarque facture', NULL),
  (2, 'Remarque bon de livraison', NULL),
  (3, 'Remarque devis', NULL);

INSERT INTO REF_SERVER (idServer, sServer, sUser, sPassWord, sName, sSenderName, sEmail, sSMTP) VALUES
  (1, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
