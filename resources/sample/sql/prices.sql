-- Prices by quantity. idTva is the rank of the rate in the sorted list, counted from 0: the French standard rate.

-- Tasse en grès bleu
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (19, 1, 5, 0, '14.08', '16.90', '0'),
  (19, 6, 11, 0, '13.38', '16.05', '5'),
  (19, 12, 999999, 0, '12.67', '15.20', '10');

-- Mug émaillé blanc à liseré bleu
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (21, 1, 5, 0, '8.75', '10.50', '0'),
  (21, 6, 11, 0, '8.33', '10.00', '5'),
  (21, 12, 999999, 0, '7.88', '9.45', '10');

-- Assiette plate en grès lin
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (25, 1, 5, 0, '15.75', '18.90', '0'),
  (25, 6, 11, 0, '14.96', '17.95', '5'),
  (25, 12, 999999, 0, '14.17', '17.00', '10');

-- Assiette creuse en grès lin
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (26, 1, 5, 0, '15.42', '18.50', '0'),
  (26, 6, 11, 0, '14.67', '17.60', '5'),
  (26, 12, 999999, 0, '13.88', '16.65', '10');

-- Bocal en verre à couvercle de liège
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (52, 1, 3, 0, '9.92', '11.90', '0'),
  (52, 4, 11, 0, '9.42', '11.30', '5'),
  (52, 12, 999999, 0, '8.92', '10.70', '10');

-- Bougies flambeau, lot de 6
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (55, 1, 4, 0, '9.58', '11.50', '0'),
  (55, 5, 19, 0, '9.13', '10.95', '5'),
  (55, 20, 999999, 0, '8.63', '10.35', '10');

-- Bougies chauffe-plat, lot de 24
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (56, 1, 9, 0, '5.75', '6.90', '0'),
  (56, 10, 39, 0, '5.46', '6.55', '5'),
  (56, 40, 999999, 0, '5.17', '6.20', '10');

-- Pot en terre cuite 20 cm
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (70, 1, 5, 0, '8.25', '9.90', '0'),
  (70, 6, 23, 0, '7.83', '9.40', '5'),
  (70, 24, 999999, 0, '7.42', '8.90', '10');

-- Carnet relié en toile bleue
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (81, 1, 4, 0, '14.58', '17.50', '0'),
  (81, 5, 24, 0, '13.88', '16.65', '5'),
  (81, 25, 999999, 0, '13.13', '15.75', '10');

-- Carnet à spirale en kraft
INSERT INTO T_PRODUIT_PRIX (idProduit, iQte1, iQte2, idTva, sPrixHT, sPrixTTC, sPourcent) VALUES
  (82, 1, 9, 0, '5.42', '6.50', '0'),
  (82, 10, 49, 0, '5.17', '6.20', '5'),
  (82, 50, 999999, 0, '4.88', '5.85', '10');
