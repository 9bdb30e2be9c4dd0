-- The six languages of the program and of the catalogue, each under its own name.

INSERT INTO REF_LANGUE_U (CODE, LANGUE) VALUES
  ('FR', 'Français'),
  ('EN', 'English'),
  ('NL', 'Nederlands'),
  ('DE', 'Deutsch'),
  ('IT', 'Italiano'),
  ('ES', 'Español');
