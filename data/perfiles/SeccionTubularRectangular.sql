-- Template of a rectangular tube profile table: area cm2, wall and corner radius mm,
-- inertias cm4, moduli cm3, radii of gyration cm. Field names are those of the files.
CREATE TABLE GeneralPerfil (DescripcionTabla VARCHAR(70), ResistenciaFY SMALLINT);
CREATE TABLE DatosPerfil (
  Numero SMALLINT,
  Designacion VARCHAR(50),
  Area DOUBLE,
  Espesor DOUBLE,
  Radio DOUBLE,
  InerciaX DOUBLE,
  ModuloSeccionX DOUBLE,
  RadioGiroX DOUBLE,
  InerciaY DOUBLE,
  ModuloSeccionY DOUBLE,
  RadioGiroY DOUBLE
);
