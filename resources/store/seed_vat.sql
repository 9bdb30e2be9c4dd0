-- VAT rates in force in 2026: code, label, rate in per cent with a decimal point.
-- Screens read the columns by position and sort by the second one: the number in front of the label
-- keeps France first, then the exemption, then one country after the other, the standard rate leading.
-- Quantity prices remember a rate by its rank in that list, so a new rate goes to the end of its country
-- only together with a check of the rows of T_PRODUIT_PRIX.

INSERT INTO REF_TVA (idTva, sLibelle, sTaux) VALUES
  (1, '1.1 France 20 %', '20'),
  (2, '1.2 France 10 %', '10'),
  (3, '1.3 France 5,5 %', '5.5'),
  (4, '1.4 France 2,1 %', '2.1'),
  (5, '2.1 Exonéré 0 %', '0'),
  (6, '3.1 Belgique 21 %', '21'),
  (7, '3.2 Belgique 12 %', '12'),
  (8, '3.3 Belgique 6 %', '6'),
  (9, '4.1 Allemagne 19 %', '19'),
  (10, '4.2 Allemagne 7 %', '7'),
  (11, '5.1 Italie 22 %', '22'),
  (12, '5.2 Italie 10 %', '10'),
  (13, '5.3 Italie 5 %', '5'),
  (14, '5.4 Italie 4 %', '4'),
  (15, '6.1 Espagne 21 %', '21'),
  (16, '6.2 Espagne 10 %', '10'),
  (17, '6.3 Espagne 4 %', '4'),
  (18, '7.1 Pays-Bas 21 %', '21'),
  (19, '7.2 Pays-Bas 9 %', '9'),
  (20, '7.3 Pays-Bas 0 %', '0');
