-- Groups (level 1), sub-groups (level 2) and the attributes of each sub-group (level 3).

INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES
  (2, 1, 'CUI', 'Cuisine', 1),
  (3, 1, 'TAB', 'Table', 1),
  (4, 1, 'THE', 'Thé et café', 1),
  (5, 1, 'MAI', 'Maison', 1),
  (6, 1, 'JAR', 'Jardin', 1),
  (7, 1, 'PAP', 'Papeterie', 1);

-- Cuisine
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES
  (11, 2, 'CUI-COU', 'Couteaux et planches', 2),
  (12, 2, 'CUI-CAS', 'Casseroles et cocottes', 2),
  (13, 2, 'CUI-UST', 'Ustensiles', 2);

-- Table
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES
  (14, 3, 'TAB-TAS', 'Tasses et bols', 2),
  (15, 3, 'TAB-ASS', 'Assiettes et plats', 2),
  (16, 3, 'TAB-VER', 'Verres et carafes', 2);

-- Thé et café
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES
  (17, 4, 'THE-THE', 'Théières', 2),
  (18, 4, 'THE-CAF', 'Cafetières', 2),
  (19, 4, 'THE-BOI', 'Boîtes et moulins', 2);

-- Maison
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES
  (20, 5, 'MAI-BOU', 'Bougies', 2),
  (21, 5, 'MAI-COU', 'Coussins et plaids', 2),
  (22, 5, 'MAI-LAM', 'Lampes', 2);

-- Jardin
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES
  (23, 6, 'JAR-POT', 'Pots et jardinières', 2),
  (24, 6, 'JAR-OUT', 'Outils', 2);

-- Papeterie
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES
  (25, 7, 'PAP-CAR', 'Carnets et stylos', 2);

-- Cuisine / Couteaux et planches
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (101, 11, 'CUI-COU-1', 'Matière', 3, NULL, NULL),
  (102, 11, 'CUI-COU-2', 'Essence de bois', 3, 'Essences de bois', 2),
  (103, 11, 'CUI-COU-3', 'Longueur', 3, NULL, NULL),
  (104, 11, 'CUI-COU-4', 'Entretien', 3, 'Entretien', 3);

-- Cuisine / Casseroles et cocottes
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (105, 12, 'CUI-CAS-1', 'Matière', 3, NULL, NULL),
  (106, 12, 'CUI-CAS-2', 'Diamètre', 3, NULL, NULL),
  (107, 12, 'CUI-CAS-3', 'Contenance', 3, NULL, NULL),
  (108, 12, 'CUI-CAS-4', 'Feux compatibles', 3, 'Feux compatibles', 4),
  (109, 12, 'CUI-CAS-5', 'Passe au four', 3, 'Oui ou non', 5);

-- Cuisine / Ustensiles
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (110, 13, 'CUI-UST-1', 'Matière', 3, NULL, NULL),
  (111, 13, 'CUI-UST-2', 'Longueur', 3, NULL, NULL),
  (112, 13, 'CUI-UST-3', 'Entretien', 3, 'Entretien', 3);

-- Table / Tasses et bols
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (113, 14, 'TAB-TAS-1', 'Matière', 3, 'Céramiques et voisins', 6),
  (114, 14, 'TAB-TAS-2', 'Contenance', 3, NULL, NULL),
  (115, 14, 'TAB-TAS-3', 'Hauteur', 3, NULL, NULL),
  (116, 14, 'TAB-TAS-4', 'Lave-vaisselle', 3, 'Oui ou non', 5),
  (117, 14, 'TAB-TAS-5', 'Micro-ondes', 3, 'Oui ou non', 5);

-- Table / Assiettes et plats
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (118, 15, 'TAB-ASS-1', 'Matière', 3, 'Céramiques et voisins', 6),
  (119, 15, 'TAB-ASS-2', 'Dimensions', 3, NULL, NULL),
  (120, 15, 'TAB-ASS-3', 'Passe au four', 3, 'Oui ou non', 5),
  (121, 15, 'TAB-ASS-4', 'Lave-vaisselle', 3, 'Oui ou non', 5);

-- Table / Verres et carafes
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (122, 16, 'TAB-VER-1', 'Type de verre', 3, 'Types de verre', 7),
  (123, 16, 'TAB-VER-2', 'Contenance', 3, NULL, NULL),
  (124, 16, 'TAB-VER-3', 'Hauteur', 3, NULL, NULL),
  (125, 16, 'TAB-VER-4', 'Lave-vaisselle', 3, 'Oui ou non', 5);

-- Thé et café / Théières
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (126, 17, 'THE-THE-1', 'Matière', 3, NULL, NULL),
  (127, 17, 'THE-THE-2', 'Contenance', 3, NULL, NULL),
  (128, 17, 'THE-THE-3', 'Filtre fourni', 3, 'Oui ou non', 5),
  (129, 17, 'THE-THE-4', 'Origine', 3, 'Origine', 8);

-- Thé et café / Cafetières
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (130, 18, 'THE-CAF-1', 'Matière', 3, NULL, NULL),
  (131, 18, 'THE-CAF-2', 'Contenance', 3, NULL, NULL),
  (132, 18, 'THE-CAF-3', 'Nombre de tasses', 3, NULL, NULL),
  (133, 18, 'THE-CAF-4', 'Feux compatibles', 3, 'Feux compatibles', 4);

-- Thé et café / Boîtes et moulins
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (134, 19, 'THE-BOI-1', 'Matière', 3, NULL, NULL),
  (135, 19, 'THE-BOI-2', 'Hauteur', 3, NULL, NULL),
  (136, 19, 'THE-BOI-3', 'Contenance', 3, NULL, NULL);

-- Maison / Bougies
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (137, 20, 'MAI-BOU-1', 'Parfum', 3, 'Parfums', 9),
  (138, 20, 'MAI-BOU-2', 'Durée de combustion', 3, NULL, NULL),
  (139, 20, 'MAI-BOU-3', 'Hauteur', 3, NULL, NULL);

-- Maison / Coussins et plaids
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (140, 21, 'MAI-COU-1', 'Textile', 3, 'Textiles', 10),
  (141, 21, 'MAI-COU-2', 'Dimensions', 3, NULL, NULL),
  (142, 21, 'MAI-COU-3', 'Entretien', 3, 'Entretien', 3),
  (143, 21, 'MAI-COU-4', 'Origine', 3, 'Origine', 8);

-- Maison / Lampes
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (144, 22, 'MAI-LAM-1', 'Matière', 3, NULL, NULL),
  (145, 22, 'MAI-LAM-2', 'Hauteur', 3, NULL, NULL),
  (146, 22, 'MAI-LAM-3', 'Culot', 3, 'Culots', 11),
  (147, 22, 'MAI-LAM-4', 'Puissance maximale', 3, NULL, NULL),
  (148, 22, 'MAI-LAM-5', 'Longueur du câble', 3, NULL, NULL);

-- Jardin / Pots et jardinières
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (149, 23, 'JAR-POT-1', 'Matière', 3, NULL, NULL),
  (150, 23, 'JAR-POT-2', 'Diamètre ou longueur', 3, NULL, NULL),
  (151, 23, 'JAR-POT-3', 'Hauteur', 3, NULL, NULL),
  (152, 23, 'JAR-POT-4', 'Usage', 3, 'Usage', 12),
  (153, 23, 'JAR-POT-5', 'Fond percé', 3, 'Oui ou non', 5);

-- Jardin / Outils
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (154, 24, 'JAR-OUT-1', 'Matière', 3, NULL, NULL),
  (155, 24, 'JAR-OUT-2', 'Longueur', 3, NULL, NULL),
  (156, 24, 'JAR-OUT-3', 'Origine', 3, 'Origine', 8);

-- Papeterie / Carnets et stylos
INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau, sListe, idListe) VALUES
  (157, 25, 'PAP-CAR-1', 'Matière', 3, NULL, NULL),
  (158, 25, 'PAP-CAR-2', 'Format', 3, NULL, NULL),
  (159, 25, 'PAP-CAR-3', 'Réglure', 3, 'Réglure', 13);
