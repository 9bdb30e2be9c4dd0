-- A few neutral suppliers, so that the list of the product screen is not empty on the first day.

INSERT INTO REF_SHIPPER (idShipper, sReference, sRaisonSociale) VALUES
  (1, 'ARTI', 'Ateliers et artisans'),
  (2, 'GROS', 'Grossiste général'),
  (3, 'IMPO', 'Importateur'),
  (4, 'PROP', 'Fabrication propre');
