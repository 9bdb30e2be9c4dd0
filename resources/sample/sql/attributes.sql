-- Attribute values. A product without a row for an attribute has no value to give.

-- Cuisine / Couteaux et planches
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (101, 1, 'Acier inoxydable forgé'),
  (102, 1, 'Olivier'),
  (103, 1, '33 cm'),
  (104, 1, 'Lavage à la main');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (101, 2, 'Acier inoxydable'),
  (103, 2, '20 cm'),
  (104, 2, 'Lave-vaisselle');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (101, 3, 'Acier inoxydable'),
  (102, 3, 'Hêtre'),
  (103, 3, '35 cm'),
  (104, 3, 'Lavage à la main');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (101, 4, 'Bois debout huilé'),
  (102, 4, 'Hêtre'),
  (103, 4, '38 cm'),
  (104, 4, 'Lavage à la main');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (101, 5, 'Bambou lamellé'),
  (102, 5, 'Bambou'),
  (103, 5, '36 cm'),
  (104, 5, 'Lavage à la main');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (101, 6, 'Noyer massif, acier aimanté'),
  (102, 6, 'Noyer'),
  (103, 6, '24 cm'),
  (104, 6, 'Chiffon humide');

-- Cuisine / Casseroles et cocottes
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (105, 7, 'Fonte émaillée'),
  (106, 7, '24 cm'),
  (107, 7, '4,2 l'),
  (108, 7, 'Tous feux dont induction'),
  (109, 7, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (105, 8, 'Fonte émaillée'),
  (106, 8, '29 x 22 cm'),
  (107, 8, '4,7 l'),
  (108, 8, 'Tous feux dont induction'),
  (109, 8, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (105, 9, 'Acier inoxydable 18/10'),
  (106, 9, '16 cm'),
  (107, 9, '1,5 l'),
  (108, 9, 'Tous feux dont induction'),
  (109, 9, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (105, 10, 'Tôle de fer'),
  (106, 10, '26 cm'),
  (108, 10, 'Tous feux dont induction'),
  (109, 10, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (105, 11, 'Acier inoxydable 18/10'),
  (106, 11, '24 cm'),
  (107, 11, '6 l'),
  (108, 11, 'Tous feux dont induction'),
  (109, 11, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (105, 12, 'Acier cuivré, intérieur inox'),
  (106, 12, '24 cm'),
  (107, 12, '2,8 l'),
  (108, 12, 'Tous feux sauf induction'),
  (109, 12, 'Non');

-- Cuisine / Ustensiles
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (110, 13, 'Hêtre huilé'),
  (111, 13, '30 cm'),
  (112, 13, 'Lavage à la main');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (110, 14, 'Acier inoxydable'),
  (111, 14, '25 cm'),
  (112, 14, 'Lave-vaisselle');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (110, 15, 'Acier émaillé'),
  (111, 15, '33 cm'),
  (112, 15, 'Lave-vaisselle');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (110, 16, 'Érable massif'),
  (111, 16, '45 cm'),
  (112, 16, 'Lavage à la main');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (110, 17, 'Acier émaillé'),
  (111, 17, '24 cm'),
  (112, 17, 'Lave-vaisselle');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (110, 18, 'Acier inoxydable, acacia'),
  (111, 18, '33 cm'),
  (112, 18, 'Lavage à la main');

-- Table / Tasses et bols
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (113, 19, 'Grès'),
  (114, 19, '25 cl'),
  (115, 19, '9 cm'),
  (116, 19, 'Oui'),
  (117, 19, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (113, 20, 'Porcelaine'),
  (114, 20, '8 cl'),
  (115, 20, '6 cm'),
  (116, 20, 'Oui'),
  (117, 20, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (113, 21, 'Émail sur acier'),
  (114, 21, '35 cl'),
  (115, 21, '8,5 cm'),
  (116, 21, 'Oui'),
  (117, 21, 'Non');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (113, 22, 'Faïence'),
  (114, 22, '45 cl'),
  (115, 22, '7 cm'),
  (116, 22, 'Oui'),
  (117, 22, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (113, 23, 'Grès'),
  (114, 23, '50 cl'),
  (115, 23, '7 cm'),
  (116, 23, 'Oui'),
  (117, 23, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (113, 24, 'Grès'),
  (114, 24, '1,1 l'),
  (115, 24, '9 cm'),
  (116, 24, 'Oui'),
  (117, 24, 'Oui');

-- Table / Assiettes et plats
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (118, 25, 'Grès'),
  (119, 25, '27 cm'),
  (120, 25, 'Oui'),
  (121, 25, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (118, 26, 'Grès'),
  (119, 26, '22 cm'),
  (120, 26, 'Oui'),
  (121, 26, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (118, 27, 'Grès'),
  (119, 27, '20 cm'),
  (120, 27, 'Non'),
  (121, 27, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (118, 28, 'Terre vernissée'),
  (119, 28, '32 x 20 cm'),
  (120, 28, 'Oui'),
  (121, 28, 'Non');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (118, 29, 'Faïence'),
  (119, 29, '36 x 26 cm'),
  (120, 29, 'Non'),
  (121, 29, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (118, 30, 'Ardoise'),
  (119, 30, '40 x 25 cm'),
  (120, 30, 'Non'),
  (121, 30, 'Non');

-- Table / Verres et carafes
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (122, 31, 'Verre soufflé bouche'),
  (123, 31, '28 cl'),
  (124, 31, '10 cm'),
  (125, 31, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (122, 32, 'Cristallin sans plomb'),
  (123, 32, '45 cl'),
  (124, 32, '22 cm'),
  (125, 32, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (122, 33, 'Verre sodocalcique'),
  (123, 33, '14 cl'),
  (124, 33, '9 cm'),
  (125, 33, 'Non');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (122, 34, 'Borosilicate'),
  (123, 34, '1,2 l'),
  (124, 34, '28 cm'),
  (125, 34, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (122, 35, 'Cristallin sans plomb'),
  (123, 35, '1,5 l'),
  (124, 35, '24 cm'),
  (125, 35, 'Non');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (122, 36, 'Verre recyclé'),
  (123, 36, '18 cl'),
  (124, 36, '20 cm'),
  (125, 36, 'Oui');

-- Thé et café / Théières
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (126, 37, 'Fonte, intérieur émaillé'),
  (127, 37, '0,8 l'),
  (128, 37, 'Oui'),
  (129, 37, 'Japon');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (126, 38, 'Borosilicate'),
  (127, 38, '1 l'),
  (128, 38, 'Oui'),
  (129, 38, 'Allemagne');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (126, 39, 'Grès'),
  (127, 39, '0,9 l'),
  (128, 39, 'Oui'),
  (129, 39, 'Portugal');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (126, 40, 'Porcelaine'),
  (127, 40, '1,2 l'),
  (128, 40, 'Oui'),
  (129, 40, 'France');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (126, 41, 'Acier émaillé'),
  (127, 41, '1,4 l'),
  (128, 41, 'Non'),
  (129, 41, 'Pologne');

-- Thé et café / Cafetières
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (130, 42, 'Borosilicate, acier laqué'),
  (131, 42, '1 l'),
  (132, 42, '8');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (130, 43, 'Acier inoxydable double paroi'),
  (131, 43, '0,75 l'),
  (132, 43, '6');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (130, 44, 'Aluminium'),
  (131, 44, '30 cl'),
  (132, 44, '6'),
  (133, 44, 'Tous feux sauf induction');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (130, 45, 'Acier inoxydable laqué'),
  (131, 45, '20 cl'),
  (132, 45, '4'),
  (133, 45, 'Tous feux dont induction');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (130, 46, 'Porcelaine'),
  (132, 46, '2');

-- Thé et café / Boîtes et moulins
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (134, 47, 'Acier laqué'),
  (135, 47, '12 cm'),
  (136, 47, '125 g');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (134, 48, 'Acier cuivré'),
  (135, 48, '17 cm'),
  (136, 48, '500 g');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (134, 49, 'Fer-blanc'),
  (135, 49, '9 cm'),
  (136, 49, '3,5 l');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (134, 50, 'Hêtre teinté, acier, meules céramique'),
  (135, 50, '22 cm'),
  (136, 50, '40 g');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (134, 51, 'Noyer massif, mécanisme acier'),
  (135, 51, '21 cm'),
  (136, 51, '35 g');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (134, 52, 'Verre, liège naturel'),
  (135, 52, '15 cm'),
  (136, 52, '0,9 l');

-- Maison / Bougies
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (137, 53, 'Figuier'),
  (138, 53, '40 heures'),
  (139, 53, '9 cm');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (137, 54, 'Ambre et cèdre'),
  (138, 54, '40 heures'),
  (139, 54, '9 cm');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (137, 55, 'Sans parfum'),
  (138, 55, '8 heures'),
  (139, 55, '25 cm');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (137, 56, 'Sans parfum'),
  (138, 56, '4 heures'),
  (139, 56, '1,5 cm');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (139, 57, '12 cm');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (139, 58, '6 cm');

-- Maison / Coussins et plaids
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (140, 59, 'Lin'),
  (141, 59, '45 x 45 cm'),
  (142, 59, 'Lavage en machine à 30 °C'),
  (143, 59, 'Portugal');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (140, 60, 'Velours de coton'),
  (141, 60, '45 x 45 cm'),
  (142, 60, 'Nettoyage à sec'),
  (143, 60, 'France');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (140, 61, 'Coton'),
  (141, 61, '50 x 30 cm'),
  (142, 61, 'Lavage en machine à 30 °C'),
  (143, 61, 'Portugal');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (140, 62, 'Laine'),
  (141, 62, '170 x 130 cm'),
  (142, 62, 'Lavage à la main'),
  (143, 62, 'France');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (140, 63, 'Coton'),
  (141, 63, '180 x 130 cm'),
  (142, 63, 'Lavage en machine à 40 °C'),
  (143, 63, 'Portugal');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (140, 64, 'Mohair'),
  (141, 64, '180 x 120 cm'),
  (142, 64, 'Nettoyage à sec'),
  (143, 64, 'Espagne');

-- Maison / Lampes
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (144, 65, 'Céramique, abat-jour en coton'),
  (145, 65, '46 cm'),
  (146, 65, 'E27'),
  (147, 65, '40 W'),
  (148, 65, '1,8 m');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (144, 66, 'Acier laqué, laiton'),
  (145, 66, '52 cm'),
  (146, 66, 'E14'),
  (147, 66, '25 W'),
  (148, 66, '1,5 m');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (144, 67, 'Frêne, abat-jour en lin'),
  (145, 67, '148 cm'),
  (146, 67, 'E27'),
  (147, 67, '60 W'),
  (148, 67, '2,5 m');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (144, 68, 'Rotin'),
  (145, 68, '32 cm'),
  (146, 68, 'E27'),
  (147, 68, '40 W'),
  (148, 68, '1,2 m');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (144, 69, 'Métal peint, verre'),
  (145, 69, '32 cm');

-- Jardin / Pots et jardinières
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (149, 70, 'Terre cuite'),
  (150, 70, '20 cm'),
  (151, 70, '18 cm'),
  (152, 70, 'Intérieur et extérieur'),
  (153, 70, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (149, 71, 'Grès émaillé'),
  (150, 71, '30 cm'),
  (151, 71, '28 cm'),
  (152, 71, 'Intérieur et extérieur'),
  (153, 71, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (149, 72, 'Zinc'),
  (150, 72, '60 x 18 cm'),
  (151, 72, '17 cm'),
  (152, 72, 'Extérieur'),
  (153, 72, 'Oui');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (149, 73, 'Osier'),
  (150, 73, '22 cm'),
  (151, 73, '22 cm'),
  (152, 73, 'Intérieur'),
  (153, 73, 'Non');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (149, 74, 'Grès'),
  (150, 74, '16 cm'),
  (151, 74, '14 cm'),
  (152, 74, 'Intérieur et extérieur'),
  (153, 74, 'Non');

-- Jardin / Outils
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (154, 75, 'Acier au carbone, frêne'),
  (155, 75, '32 cm'),
  (156, 75, 'France');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (154, 76, 'Acier forgé, poignées aluminium'),
  (155, 76, '21 cm'),
  (156, 76, 'France');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (154, 77, 'Zinc, pomme en laiton'),
  (155, 77, '62 cm'),
  (156, 77, 'Portugal');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (154, 78, 'Acier au carbone, frêne'),
  (155, 78, '30 cm'),
  (156, 78, 'France');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (154, 79, 'Laiton'),
  (155, 79, '19 cm'),
  (156, 79, 'Inde');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (154, 80, 'Cuir de chèvre, manchette en toile'),
  (155, 80, '36 cm');

-- Papeterie / Carnets et stylos
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (157, 81, 'Toile, papier 90 g'),
  (158, 81, 'A5, 192 pages'),
  (159, 81, 'Pointillé');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (157, 82, 'Kraft, papier recyclé 80 g'),
  (158, 82, 'A5, 120 pages'),
  (159, 82, 'Quadrillé');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (157, 83, 'Laiton, plume acier'),
  (158, 83, '13 cm');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (157, 84, 'Noyer, acier'),
  (158, 84, '14 cm');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (157, 85, 'Tilleul, graphite'),
  (158, 85, '18 cm');
INSERT INTO REF_EXTENSION (idRef_Categorie, idRef_Produit, sValeur) VALUES
  (157, 86, 'Tilleul, pigments'),
  (158, 86, '18 cm');
