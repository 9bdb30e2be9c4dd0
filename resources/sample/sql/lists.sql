-- Lists that offer choices for product attributes. An attribute takes its list from REF_LISTE.

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (2, 1, 'BOIS', 'Essences de bois'),
  (3, 1, 'ENTR', 'Entretien'),
  (4, 1, 'FEUX', 'Feux compatibles'),
  (5, 1, 'OUIN', 'Oui ou non'),
  (6, 1, 'CERA', 'Céramiques et voisins'),
  (7, 1, 'VERR', 'Types de verre'),
  (8, 1, 'ORIG', 'Origine'),
  (9, 1, 'PARF', 'Parfums'),
  (10, 1, 'TEXT', 'Textiles'),
  (11, 1, 'CULO', 'Culots'),
  (12, 1, 'USAG', 'Usage'),
  (13, 1, 'REGL', 'Réglure');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (101, 2, 'BOIS1', 'Acacia'),
  (102, 2, 'BOIS2', 'Bambou'),
  (103, 2, 'BOIS3', 'Chêne'),
  (104, 2, 'BOIS4', 'Érable'),
  (105, 2, 'BOIS5', 'Frêne'),
  (106, 2, 'BOIS6', 'Hêtre'),
  (107, 2, 'BOIS7', 'Noyer'),
  (108, 2, 'BOIS8', 'Olivier');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (109, 3, 'ENTR1', 'Lave-vaisselle'),
  (110, 3, 'ENTR2', 'Lavage à la main'),
  (111, 3, 'ENTR3', 'Chiffon humide'),
  (112, 3, 'ENTR4', 'Lavage en machine à 30 °C'),
  (113, 3, 'ENTR5', 'Lavage en machine à 40 °C'),
  (114, 3, 'ENTR6', 'Nettoyage à sec');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (115, 4, 'FEUX1', 'Tous feux dont induction'),
  (116, 4, 'FEUX2', 'Tous feux sauf induction'),
  (117, 4, 'FEUX3', 'Gaz et vitrocéramique');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (118, 5, 'OUIN1', 'Oui'),
  (119, 5, 'OUIN2', 'Non');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (120, 6, 'CERA1', 'Grès'),
  (121, 6, 'CERA2', 'Porcelaine'),
  (122, 6, 'CERA3', 'Faïence'),
  (123, 6, 'CERA4', 'Terre vernissée'),
  (124, 6, 'CERA5', 'Émail sur acier'),
  (125, 6, 'CERA6', 'Ardoise');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (126, 7, 'VERR1', 'Borosilicate'),
  (127, 7, 'VERR2', 'Cristallin sans plomb'),
  (128, 7, 'VERR3', 'Verre recyclé'),
  (129, 7, 'VERR4', 'Verre sodocalcique'),
  (130, 7, 'VERR5', 'Verre soufflé bouche');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (131, 8, 'ORIG1', 'France'),
  (132, 8, 'ORIG2', 'Allemagne'),
  (133, 8, 'ORIG3', 'Espagne'),
  (134, 8, 'ORIG4', 'Inde'),
  (135, 8, 'ORIG5', 'Italie'),
  (136, 8, 'ORIG6', 'Japon'),
  (137, 8, 'ORIG7', 'Pologne'),
  (138, 8, 'ORIG8', 'Portugal');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (139, 9, 'PARF1', 'Ambre et cèdre'),
  (140, 9, 'PARF2', 'Figuier'),
  (141, 9, 'PARF3', 'Fleur de tilleul'),
  (142, 9, 'PARF4', 'Sans parfum');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (143, 10, 'TEXT1', 'Coton'),
  (144, 10, 'TEXT2', 'Laine'),
  (145, 10, 'TEXT3', 'Lin'),
  (146, 10, 'TEXT4', 'Mohair'),
  (147, 10, 'TEXT5', 'Velours de coton');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (148, 11, 'CULO1', 'E14'),
  (149, 11, 'CULO2', 'E27'),
  (150, 11, 'CULO3', 'LED intégrée');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (151, 12, 'USAG1', 'Intérieur'),
  (152, 12, 'USAG2', 'Extérieur'),
  (153, 12, 'USAG3', 'Intérieur et extérieur');

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (154, 13, 'REGL1', 'Ligné'),
  (155, 13, 'REGL2', 'Pointillé'),
  (156, 13, 'REGL3', 'Quadrillé'),
  (157, 13, 'REGL4', 'Uni');

-- The same choices as details of each list.

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (1, 2, 'BOIS1', 'Acacia'),
  (2, 2, 'BOIS2', 'Bambou'),
  (3, 2, 'BOIS3', 'Chêne'),
  (4, 2, 'BOIS4', 'Érable'),
  (5, 2, 'BOIS5', 'Frêne'),
  (6, 2, 'BOIS6', 'Hêtre'),
  (7, 2, 'BOIS7', 'Noyer'),
  (8, 2, 'BOIS8', 'Olivier');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (9, 3, 'ENTR1', 'Lave-vaisselle'),
  (10, 3, 'ENTR2', 'Lavage à la main'),
  (11, 3, 'ENTR3', 'Chiffon humide'),
  (12, 3, 'ENTR4', 'Lavage en machine à 30 °C'),
  (13, 3, 'ENTR5', 'Lavage en machine à 40 °C'),
  (14, 3, 'ENTR6', 'Nettoyage à sec');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (15, 4, 'FEUX1', 'Tous feux dont induction'),
  (16, 4, 'FEUX2', 'Tous feux sauf induction'),
  (17, 4, 'FEUX3', 'Gaz et vitrocéramique');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (18, 5, 'OUIN1', 'Oui'),
  (19, 5, 'OUIN2', 'Non');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (20, 6, 'CERA1', 'Grès'),
  (21, 6, 'CERA2', 'Porcelaine'),
  (22, 6, 'CERA3', 'Faïence'),
  (23, 6, 'CERA4', 'Terre vernissée'),
  (24, 6, 'CERA5', 'Émail sur acier'),
  (25, 6, 'CERA6', 'Ardoise');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (26, 7, 'VERR1', 'Borosilicate'),
  (27, 7, 'VERR2', 'Cristallin sans plomb'),
  (28, 7, 'VERR3', 'Verre recyclé'),
  (29, 7, 'VERR4', 'Verre sodocalcique'),
  (30, 7, 'VERR5', 'Verre soufflé bouche');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (31, 8, 'ORIG1', 'France'),
  (32, 8, 'ORIG2', 'Allemagne'),
  (33, 8, 'ORIG3', 'Espagne'),
  (34, 8, 'ORIG4', 'Inde'),
  (35, 8, 'ORIG5', 'Italie'),
  (36, 8, 'ORIG6', 'Japon'),
  (37, 8, 'ORIG7', 'Pologne'),
  (38, 8, 'ORIG8', 'Portugal');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (39, 9, 'PARF1', 'Ambre et cèdre'),
  (40, 9, 'PARF2', 'Figuier'),
  (41, 9, 'PARF3', 'Fleur de tilleul'),
  (42, 9, 'PARF4', 'Sans parfum');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (43, 10, 'TEXT1', 'Coton'),
  (44, 10, 'TEXT2', 'Laine'),
  (45, 10, 'TEXT3', 'Lin'),
  (46, 10, 'TEXT4', 'Mohair'),
  (47, 10, 'TEXT5', 'Velours de coton');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (48, 11, 'CULO1', 'E14'),
  (49, 11, 'CULO2', 'E27'),
  (50, 11, 'CULO3', 'LED intégrée');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (51, 12, 'USAG1', 'Intérieur'),
  (52, 12, 'USAG2', 'Extérieur'),
  (53, 12, 'USAG3', 'Intérieur et extérieur');

INSERT INTO REF_LISTE_DETAIL (idRef_liste_detail, idRef_liste, sCode, sLibelle) VALUES
  (54, 13, 'REGL1', 'Ligné'),
  (55, 13, 'REGL2', 'Pointillé'),
  (56, 13, 'REGL3', 'Quadrillé'),
  (57, 13, 'REGL4', 'Uni');
