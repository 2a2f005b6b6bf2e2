-- Template of a channel profile table: areas cm2, dimensions mm, inertias cm4, moduli cm3,
-- radii cm, warping constant cm6. Field names are those of the files.
CREATE TABLE GeneralPerfil (DescripcionTabla VARCHAR(70), ResistenciaFY SMALLINT);
CREATE TABLE DatosPerfil (
  Numero SMALLINT,
  Designacion VARCHAR(50),
  Area DOUBLE,
  DimensionD DOUBLE,
  DimensionBF DOUBLE,
  DimensionTF DOUBLE,
  DimensionTw DOUBLE,
  InerciaX DOUBLE,
  ModuloSeccionX DOUBLE,
  RadioGiroX DOUBLE,
  InerciaY DOUBLE,
  ModuloSeccionY DOUBLE,
  RadioGiroY DOUBLE,
  CosntanteTorsionJ DOUBLE,
  ConstanteAlabeoCW DOUBLE
);
