-- Pictures, with paths relative to the folder of the store. The full ones come first: the product sheet draws the first row.

INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (1, 'pictures/couteau-chef-olivier-1.jpg', 0),
  (1, 'pictures/couteau-chef-olivier-2.jpg', 0),
  (1, 'pictures/couteau-chef-olivier-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (2, 'pictures/couteau-office-rouge-1.jpg', 0),
  (2, 'pictures/couteau-office-rouge-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (3, 'pictures/couteau-pain-hetre-1.jpg', 0),
  (3, 'pictures/couteau-pain-hetre-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (4, 'pictures/planche-bois-debout-1.jpg', 0),
  (4, 'pictures/planche-bois-debout-2.jpg', 0),
  (4, 'pictures/planche-bois-debout-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (5, 'pictures/planche-bambou-rigole-1.jpg', 0),
  (5, 'pictures/planche-bambou-rigole-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (6, 'pictures/bloc-couteaux-noyer-1.jpg', 0),
  (6, 'pictures/bloc-couteaux-noyer-2.jpg', 0),
  (6, 'pictures/bloc-couteaux-noyer-3.jpg', 0),
  (6, 'pictures/bloc-couteaux-noyer-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (7, 'pictures/cocotte-fonte-brique-1.jpg', 0),
  (7, 'pictures/cocotte-fonte-brique-2.jpg', 0),
  (7, 'pictures/cocotte-fonte-brique-3.jpg', 0),
  (7, 'pictures/cocotte-fonte-brique-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (8, 'pictures/cocotte-ovale-vert-1.jpg', 0),
  (8, 'pictures/cocotte-ovale-vert-2.jpg', 0),
  (8, 'pictures/cocotte-ovale-vert-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (9, 'pictures/casserole-inox-16-1.jpg', 0),
  (9, 'pictures/casserole-inox-16-2.jpg', 0),
  (9, 'pictures/casserole-inox-16-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (10, 'pictures/poele-fer-26-1.jpg', 0),
  (10, 'pictures/poele-fer-26-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (11, 'pictures/faitout-inox-24-1.jpg', 0),
  (11, 'pictures/faitout-inox-24-2.jpg', 0),
  (11, 'pictures/faitout-inox-24-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (12, 'pictures/sauteuse-cuivre-24-1.jpg', 0),
  (12, 'pictures/sauteuse-cuivre-24-2.jpg', 0),
  (12, 'pictures/sauteuse-cuivre-24-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (13, 'pictures/spatule-hetre-1.jpg', 0),
  (13, 'pictures/spatule-hetre-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (14, 'pictures/fouet-inox-1.jpg', 0),
  (14, 'pictures/fouet-inox-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (15, 'pictures/louche-emaillee-blanche-1.jpg', 0),
  (15, 'pictures/louche-emaillee-blanche-2.jpg', 0),
  (15, 'pictures/louche-emaillee-blanche-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (16, 'pictures/rouleau-patissier-1.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (17, 'pictures/passoire-emaillee-bleue-1.jpg', 0),
  (17, 'pictures/passoire-emaillee-bleue-2.jpg', 0),
  (17, 'pictures/passoire-emaillee-bleue-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (19, 'pictures/tasse-gres-bleu-1.jpg', 0),
  (19, 'pictures/tasse-gres-bleu-2.jpg', 0),
  (19, 'pictures/tasse-gres-bleu-3.jpg', 0),
  (19, 'pictures/tasse-gres-bleu-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (20, 'pictures/tasses-espresso-lot4-1.jpg', 0),
  (20, 'pictures/tasses-espresso-lot4-2.jpg', 0),
  (20, 'pictures/tasses-espresso-lot4-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (21, 'pictures/mug-email-blanc-1.jpg', 0),
  (21, 'pictures/mug-email-blanc-2.jpg', 0),
  (21, 'pictures/mug-email-blanc-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (22, 'pictures/bol-breton-rayures-1.jpg', 0),
  (22, 'pictures/bol-breton-rayures-2.jpg', 0),
  (22, 'pictures/bol-breton-rayures-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (23, 'pictures/bol-celadon-1.jpg', 0),
  (23, 'pictures/bol-celadon-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (24, 'pictures/bol-nouilles-noir-1.jpg', 0),
  (24, 'pictures/bol-nouilles-noir-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (25, 'pictures/assiette-plate-lin-1.jpg', 0),
  (25, 'pictures/assiette-plate-lin-2.jpg', 0),
  (25, 'pictures/assiette-plate-lin-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (26, 'pictures/assiette-creuse-lin-1.jpg', 0),
  (26, 'pictures/assiette-creuse-lin-2.jpg', 0),
  (26, 'pictures/assiette-creuse-lin-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (27, 'pictures/assiette-dessert-ocre-1.jpg', 0),
  (27, 'pictures/assiette-dessert-ocre-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (28, 'pictures/plat-four-terre-1.jpg', 0),
  (28, 'pictures/plat-four-terre-2.jpg', 0),
  (28, 'pictures/plat-four-terre-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (29, 'pictures/plat-ovale-faience-1.jpg', 0),
  (29, 'pictures/plat-ovale-faience-2.jpg', 0),
  (29, 'pictures/plat-ovale-faience-3.jpg', 0),
  (29, 'pictures/plat-ovale-faience-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (30, 'pictures/plateau-ardoise-1.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (31, 'pictures/verres-eau-bulles-lot6-1.jpg', 0),
  (31, 'pictures/verres-eau-bulles-lot6-2.jpg', 0),
  (31, 'pictures/verres-eau-bulles-lot6-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (32, 'pictures/verres-vin-tulipe-lot4-1.jpg', 0),
  (32, 'pictures/verres-vin-tulipe-lot4-2.jpg', 0),
  (32, 'pictures/verres-vin-tulipe-lot4-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (33, 'pictures/verres-the-dores-lot6-1.jpg', 0),
  (33, 'pictures/verres-the-dores-lot6-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (34, 'pictures/carafe-eau-liege-1.jpg', 0),
  (34, 'pictures/carafe-eau-liege-2.jpg', 0),
  (34, 'pictures/carafe-eau-liege-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (35, 'pictures/carafe-decanter-1.jpg', 0),
  (35, 'pictures/carafe-decanter-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (37, 'pictures/theiere-fonte-noire-1.jpg', 0),
  (37, 'pictures/theiere-fonte-noire-2.jpg', 0),
  (37, 'pictures/theiere-fonte-noire-3.jpg', 0),
  (37, 'pictures/theiere-fonte-noire-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (38, 'pictures/theiere-verre-infuseur-1.jpg', 0),
  (38, 'pictures/theiere-verre-infuseur-2.jpg', 0),
  (38, 'pictures/theiere-verre-infuseur-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (39, 'pictures/theiere-gres-celadon-1.jpg', 0),
  (39, 'pictures/theiere-gres-celadon-2.jpg', 0),
  (39, 'pictures/theiere-gres-celadon-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (40, 'pictures/theiere-porcelaine-blanche-1.jpg', 0),
  (40, 'pictures/theiere-porcelaine-blanche-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (41, 'pictures/theiere-emaillee-jaune-1.jpg', 0),
  (41, 'pictures/theiere-emaillee-jaune-2.jpg', 0),
  (41, 'pictures/theiere-emaillee-jaune-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (42, 'pictures/cafetiere-piston-1l-1.jpg', 0),
  (42, 'pictures/cafetiere-piston-1l-2.jpg', 0),
  (42, 'pictures/cafetiere-piston-1l-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (43, 'pictures/cafetiere-piston-inox-1.jpg', 0),
  (43, 'pictures/cafetiere-piston-inox-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (44, 'pictures/cafetiere-italienne-alu-1.jpg', 0),
  (44, 'pictures/cafetiere-italienne-alu-2.jpg', 0),
  (44, 'pictures/cafetiere-italienne-alu-3.jpg', 0),
  (44, 'pictures/cafetiere-italienne-alu-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (45, 'pictures/cafetiere-italienne-verte-1.jpg', 0),
  (45, 'pictures/cafetiere-italienne-verte-2.jpg', 0),
  (45, 'pictures/cafetiere-italienne-verte-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (46, 'pictures/porte-filtre-porcelaine-1.jpg', 0),
  (46, 'pictures/porte-filtre-porcelaine-2.jpg', 0),
  (46, 'pictures/porte-filtre-porcelaine-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (47, 'pictures/boite-the-laquee-1.jpg', 0),
  (47, 'pictures/boite-the-laquee-2.jpg', 0),
  (47, 'pictures/boite-the-laquee-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (48, 'pictures/boite-cafe-cuivre-1.jpg', 0),
  (48, 'pictures/boite-cafe-cuivre-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (49, 'pictures/boite-biscuits-tilleul-1.jpg', 0),
  (49, 'pictures/boite-biscuits-tilleul-2.jpg', 0),
  (49, 'pictures/boite-biscuits-tilleul-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (50, 'pictures/moulin-cafe-manuel-1.jpg', 0),
  (50, 'pictures/moulin-cafe-manuel-2.jpg', 0),
  (50, 'pictures/moulin-cafe-manuel-3.jpg', 0),
  (50, 'pictures/moulin-cafe-manuel-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (51, 'pictures/moulin-poivre-noyer-1.jpg', 0),
  (51, 'pictures/moulin-poivre-noyer-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (52, 'pictures/bocal-verre-liege-1.jpg', 0),
  (52, 'pictures/bocal-verre-liege-2.jpg', 0),
  (52, 'pictures/bocal-verre-liege-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (53, 'pictures/bougie-figuier-1.jpg', 0),
  (53, 'pictures/bougie-figuier-2.jpg', 0),
  (53, 'pictures/bougie-figuier-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (54, 'pictures/bougie-ambre-1.jpg', 0),
  (54, 'pictures/bougie-ambre-2.jpg', 0),
  (54, 'pictures/bougie-ambre-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (55, 'pictures/bougies-flambeau-lot6-1.jpg', 0),
  (55, 'pictures/bougies-flambeau-lot6-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (57, 'pictures/photophore-verre-ambre-1.jpg', 0),
  (57, 'pictures/photophore-verre-ambre-2.jpg', 0),
  (57, 'pictures/photophore-verre-ambre-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (58, 'pictures/bougeoir-laiton-1.jpg', 0),
  (58, 'pictures/bougeoir-laiton-2.jpg', 0),
  (58, 'pictures/bougeoir-laiton-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (59, 'pictures/coussin-lin-terracotta-1.jpg', 0),
  (59, 'pictures/coussin-lin-terracotta-2.jpg', 0),
  (59, 'pictures/coussin-lin-terracotta-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (60, 'pictures/coussin-velours-vert-1.jpg', 0),
  (60, 'pictures/coussin-velours-vert-2.jpg', 0),
  (60, 'pictures/coussin-velours-vert-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (61, 'pictures/coussin-rayures-marine-1.jpg', 0),
  (61, 'pictures/coussin-rayures-marine-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (62, 'pictures/plaid-laine-gris-1.jpg', 0),
  (62, 'pictures/plaid-laine-gris-2.jpg', 0),
  (62, 'pictures/plaid-laine-gris-3.jpg', 0),
  (62, 'pictures/plaid-laine-gris-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (63, 'pictures/plaid-coton-nid-abeille-1.jpg', 0),
  (63, 'pictures/plaid-coton-nid-abeille-2.jpg', 0),
  (63, 'pictures/plaid-coton-nid-abeille-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (64, 'pictures/plaid-mohair-moutarde-1.jpg', 0),
  (64, 'pictures/plaid-mohair-moutarde-2.jpg', 0),
  (64, 'pictures/plaid-mohair-moutarde-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (65, 'pictures/lampe-poser-ceramique-1.jpg', 0),
  (65, 'pictures/lampe-poser-ceramique-2.jpg', 0),
  (65, 'pictures/lampe-poser-ceramique-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (66, 'pictures/lampe-bureau-metal-1.jpg', 0),
  (66, 'pictures/lampe-bureau-metal-2.jpg', 0),
  (66, 'pictures/lampe-bureau-metal-3.jpg', 0),
  (66, 'pictures/lampe-bureau-metal-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (67, 'pictures/lampadaire-trepied-1.jpg', 0),
  (67, 'pictures/lampadaire-trepied-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (68, 'pictures/suspension-rotin-1.jpg', 0),
  (68, 'pictures/suspension-rotin-2.jpg', 0),
  (68, 'pictures/suspension-rotin-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (69, 'pictures/lanterne-metal-noir-1.jpg', 0),
  (69, 'pictures/lanterne-metal-noir-2.jpg', 0),
  (69, 'pictures/lanterne-metal-noir-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (70, 'pictures/pot-terre-cuite-20-1.jpg', 0),
  (70, 'pictures/pot-terre-cuite-20-2.jpg', 0),
  (70, 'pictures/pot-terre-cuite-20-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (71, 'pictures/pot-emaille-bleu-1.jpg', 0),
  (71, 'pictures/pot-emaille-bleu-2.jpg', 0),
  (71, 'pictures/pot-emaille-bleu-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (72, 'pictures/jardiniere-zinc-60-1.jpg', 0),
  (72, 'pictures/jardiniere-zinc-60-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (73, 'pictures/cache-pot-osier-1.jpg', 0),
  (73, 'pictures/cache-pot-osier-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (74, 'pictures/pot-suspendu-gres-1.jpg', 0),
  (74, 'pictures/pot-suspendu-gres-2.jpg', 0),
  (74, 'pictures/pot-suspendu-gres-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (75, 'pictures/transplantoir-frene-1.jpg', 0),
  (75, 'pictures/transplantoir-frene-2.jpg', 0),
  (75, 'pictures/transplantoir-frene-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (76, 'pictures/secateur-forge-1.jpg', 0),
  (76, 'pictures/secateur-forge-2.jpg', 0),
  (76, 'pictures/secateur-forge-3.jpg', 0),
  (76, 'pictures/secateur-forge-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (77, 'pictures/arrosoir-zinc-9l-1.jpg', 0),
  (77, 'pictures/arrosoir-zinc-9l-2.jpg', 0),
  (77, 'pictures/arrosoir-zinc-9l-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (78, 'pictures/griffe-frene-1.jpg', 0),
  (78, 'pictures/griffe-frene-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (79, 'pictures/pulverisateur-laiton-1.jpg', 0),
  (79, 'pictures/pulverisateur-laiton-2.jpg', 0),
  (79, 'pictures/pulverisateur-laiton-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (81, 'pictures/carnet-toile-bleu-1.jpg', 0),
  (81, 'pictures/carnet-toile-bleu-2.jpg', 0),
  (81, 'pictures/carnet-toile-bleu-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (82, 'pictures/carnet-spirale-kraft-1.jpg', 0),
  (82, 'pictures/carnet-spirale-kraft-2.jpg', 0),
  (82, 'pictures/carnet-spirale-kraft-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (83, 'pictures/stylo-plume-laiton-1.jpg', 0),
  (83, 'pictures/stylo-plume-laiton-2.jpg', 0),
  (83, 'pictures/stylo-plume-laiton-3.jpg', 0),
  (83, 'pictures/stylo-plume-laiton-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (84, 'pictures/stylo-bille-noyer-1.jpg', 0),
  (84, 'pictures/stylo-bille-noyer-2.jpg', 0);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (85, 'pictures/crayons-graphite-lot6-1.jpg', 0),
  (85, 'pictures/crayons-graphite-lot6-2.jpg', 0),
  (85, 'pictures/crayons-graphite-lot6-small.jpg', 1);
INSERT INTO T_PRODUIT_IMAGE (idProduit, sImage, iSmall) VALUES
  (86, 'pictures/crayons-couleur-lot24-1.jpg', 0),
  (86, 'pictures/crayons-couleur-lot24-2.jpg', 0),
  (86, 'pictures/crayons-couleur-lot24-small.jpg', 1);
