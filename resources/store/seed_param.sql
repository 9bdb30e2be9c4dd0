-- The one row of parameters: no product number has been given yet.

INSERT INTO PARAM (Ref_Produit, bComptoir, bTete, bCompteur) VALUES
  (0, 0, 0, 0);
