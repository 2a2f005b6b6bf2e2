-- The empty report database: the general data of the report's head and its pictures.
-- Built at build time into Imagen/Temporal.kvl; renewed as Trabajo/Temporal.mdb at every
-- start. Numero is the running number of a picture; Grafico holds a whole PNG file.

CREATE TABLE Generales (
  Usuario TEXT,
  Version TEXT,
  TiTulo TEXT,
  Proyecto TEXT,
  Propietario TEXT,
  Calculista TEXT,
  FC REAL,
  FY REAL,
  D8 REAL
);

CREATE TABLE Graficos (
  Numero INTEGER,
  Grafico BLOB
);
