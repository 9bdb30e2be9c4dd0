-- The roots of both trees. Product groups and free lists hang from row 1 of their table.

INSERT INTO REF_CATEGORIE_P (idRef_Categorie, idRef_parent, sCode, sLibelle, iNiveau) VALUES
  (1, NULL, 'RACINE', 'Groupes', 0);

INSERT INTO REF_LISTE (idRef_liste, idRef_parent, sCode, sLibelle) VALUES
  (1, NULL, 'RACINE', 'Listes');
