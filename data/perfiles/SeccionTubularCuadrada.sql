-- Template of a square tube profile table: area cm2, wall and corner radius mm, inertia cm4
-- (both axes), moduli cm3, radius of gyration cm. Field names are those of the files.
CREATE TABLE GeneralPerfil (DescripcionTabla VARCHAR(70), ResistenciaFY SMALLINT);
CREATE TABLE DatosPerfil (
  Numero SMALLINT,
  Designacion VARCHAR(50),
  Area DOUBLE,
  Espesor DOUBLE,
  Radio DOUBLE,
  Inercia DOUBLE,
  ModuloSeccion DOUBLE,
  RadioGiro DOUBLE,
  MOduloPlastico DOUBLE
);
