-- Documents, with paths relative to the folder of the store.

-- Entretenir ses couteaux
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (1, 'documents/entretien-couteaux.pdf'),
  (2, 'documents/entretien-couteaux.pdf'),
  (3, 'documents/entretien-couteaux.pdf'),
  (6, 'documents/entretien-couteaux.pdf');

-- Prendre soin du bois en cuisine
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (4, 'documents/entretien-bois.pdf'),
  (5, 'documents/entretien-bois.pdf'),
  (13, 'documents/entretien-bois.pdf'),
  (16, 'documents/entretien-bois.pdf'),
  (51, 'documents/entretien-bois.pdf');

-- Fonte émaillée : garantie de dix ans
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (7, 'documents/garantie-fonte.pdf'),
  (8, 'documents/garantie-fonte.pdf');

-- Culotter une poêle en fer
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (10, 'documents/culottage-poele.pdf');

-- Réussir son thé
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (37, 'documents/guide-du-the.pdf'),
  (38, 'documents/guide-du-the.pdf'),
  (39, 'documents/guide-du-the.pdf'),
  (40, 'documents/guide-du-the.pdf'),
  (47, 'documents/guide-du-the.pdf');

-- Cafetière italienne : mode d’emploi
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (44, 'documents/mode-emploi-cafetiere-italienne.pdf'),
  (45, 'documents/mode-emploi-cafetiere-italienne.pdf');

-- Bougies : conseils et sécurité
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (53, 'documents/securite-bougies.pdf'),
  (54, 'documents/securite-bougies.pdf'),
  (55, 'documents/securite-bougies.pdf'),
  (56, 'documents/securite-bougies.pdf'),
  (57, 'documents/securite-bougies.pdf'),
  (69, 'documents/securite-bougies.pdf');

-- Laver lin, laine et coton
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (59, 'documents/entretien-textiles.pdf'),
  (60, 'documents/entretien-textiles.pdf'),
  (61, 'documents/entretien-textiles.pdf'),
  (62, 'documents/entretien-textiles.pdf'),
  (63, 'documents/entretien-textiles.pdf'),
  (64, 'documents/entretien-textiles.pdf');

-- Lampes : montage et sécurité
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (65, 'documents/notice-lampes.pdf'),
  (66, 'documents/notice-lampes.pdf'),
  (67, 'documents/notice-lampes.pdf'),
  (68, 'documents/notice-lampes.pdf');

-- Affûter et régler son sécateur
INSERT INTO T_PRODUIT_DOC (idProduit, sDoc) VALUES
  (76, 'documents/affutage-secateur.pdf');
