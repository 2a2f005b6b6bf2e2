-- The empty project: every table of a project file, no rows. Built at build time into
-- Imagen/ImagenViga.kvl; a new project is a copy of it.
--
-- Types: text TEXT; 16-bit, 32-bit integers and bytes INTEGER; double REAL; yes/no INTEGER
-- 0 or 1, never Null; the date as TEXT 'dd/MM/yyyy'. Plain SQLite: no column names a
-- collation, so any SQLite tool reads the file; the program compares and sorts beam names
-- by its own rules (case-blind, accents kept) in its statements. No key constraint: the
-- program keeps keys unique by deleting first.

CREATE TABLE GeneralProyecto (
  Proyecto TEXT,
  Propietario TEXT,
  Fecha TEXT,
  Calculista TEXT,
  Comentario TEXT,
  Cliente TEXT,
  PPV INTEGER NOT NULL DEFAULT 0,
  DEFCOR INTEGER NOT NULL DEFAULT 0,
  FC REAL,
  FY REAL,
  D8 REAL,
  PesoConcreto REAL,
  CFormaConcreto REAL,
  ModuloAcero REAL,
  PesoAcero REAL,
  CFormaAcero REAL,
  OpcionEstribos INTEGER NOT NULL DEFAULT 0
);

CREATE TABLE GeneralViga (
  NombreViga TEXT,
  NT INTEGER,
  OpcionConcreto INTEGER,
  OpcionCarga INTEGER,
  FMayoracionTC REAL,
  FMayoracion REAL
);

CREATE TABLE Tramos (
  NombreViga TEXT,
  Tramo INTEGER,
  LT REAL,
  VT REAL
);

CREATE TABLE Juntas (
  NombreViga TEXT,
  Numero INTEGER,
  NombreEje TEXT,
  LDer REAL,
  LIzq REAL,
  HC REAL
);

CREATE TABLE JuntasDesplazadas (
  NombreViga TEXT,
  R3 INTEGER,
  XX REAL,
  YY REAL
);

CREATE TABLE JuntasRestringidas (
  NombreViga TEXT,
  R1 INTEGER,
  Apoyo INTEGER
);

CREATE TABLE JuntasResortes (
  NombreViga TEXT,
  R10 INTEGER,
  SH10 REAL,
  SV10 REAL,
  SM10 REAL
);

CREATE TABLE TiposVigas (
  NombreViga TEXT,
  Tipo INTEGER,
  B1 REAL,
  T1 REAL,
  Designacion TEXT
);

CREATE TABLE CargasTramos (
  NombreViga TEXT,
  Tramo INTEGER,
  W1 INTEGER,
  Gravedad INTEGER,
  CantW2 INTEGER,
  P1 INTEGER,
  P2 INTEGER,
  P3 INTEGER,
  P4 INTEGER,
  P5 INTEGER,
  P6 INTEGER,
  P7 INTEGER,
  P8 INTEGER,
  P9 INTEGER,
  P10 INTEGER,
  LP1 REAL,
  LP2 REAL,
  LP3 REAL,
  LP4 REAL,
  LP5 REAL,
  LP6 REAL,
  LP7 REAL,
  LP8 REAL,
  LP9 REAL,
  LP10 REAL,
  CantW3 INTEGER,
  W3_1 INTEGER,
  W3_2 INTEGER,
  W3_3 INTEGER,
  W3_4 INTEGER,
  W3_5 INTEGER,
  W3_6 INTEGER,
  W3_7 INTEGER,
  W3_8 INTEGER,
  W3_9 INTEGER,
  W3_10 INTEGER,
  La3_1 REAL,
  La3_2 REAL,
  La3_3 REAL,
  La3_4 REAL,
  La3_5 REAL,
  La3_6 REAL,
  La3_7 REAL,
  La3_8 REAL,
  La3_9 REAL,
  La3_10 REAL,
  Lb3_1 REAL,
  Lb3_2 REAL,
  Lb3_3 REAL,
  Lb3_4 REAL,
  Lb3_5 REAL,
  Lb3_6 REAL,
  Lb3_7 REAL,
  Lb3_8 REAL,
  Lb3_9 REAL,
  Lb3_10 REAL,
  W4 INTEGER,
  W5 INTEGER,
  la5 REAL,
  CantW6 INTEGER,
  W6_1 INTEGER,
  W6_2 INTEGER,
  W6_3 INTEGER,
  W6_4 INTEGER,
  W6_5 INTEGER,
  La6_1 REAL,
  La6_2 REAL,
  La6_3 REAL,
  La6_4 REAL,
  La6_5 REAL,
  Lb6_1 REAL,
  Lb6_2 REAL,
  Lb6_3 REAL,
  Lb6_4 REAL,
  Lb6_5 REAL,
  CantW7 INTEGER,
  W7_1 INTEGER,
  W7_2 INTEGER,
  W7_3 INTEGER,
  W7_4 INTEGER,
  W7_5 INTEGER,
  La7_1 REAL,
  La7_2 REAL,
  La7_3 REAL,
  La7_4 REAL,
  La7_5 REAL,
  Lb7_1 REAL,
  Lb7_2 REAL,
  Lb7_3 REAL,
  Lb7_4 REAL,
  Lb7_5 REAL,
  CantW8 INTEGER,
  WIzq8_1 INTEGER,
  WIzq8_2 INTEGER,
  WIzq8_3 INTEGER,
  WIzq8_4 INTEGER,
  WIzq8_5 INTEGER,
  WDer8_1 INTEGER,
  WDer8_2 INTEGER,
  WDer8_3 INTEGER,
  WDer8_4 INTEGER,
  WDer8_5 INTEGER,
  La8_1 REAL,
  La8_2 REAL,
  La8_3 REAL,
  La8_4 REAL,
  La8_5 REAL,
  Lb8_1 REAL,
  Lb8_2 REAL,
  Lb8_3 REAL,
  Lb8_4 REAL,
  Lb8_5 REAL
);

CREATE TABLE AccionesNodales (
  NombreViga TEXT,
  R2 INTEGER,
  QC1 REAL,
  QC2 REAL,
  QC3 REAL
);

-- Indexes for the reads of one beam; not unique.
CREATE INDEX GeneralVigaNombre ON GeneralViga (NombreViga);
CREATE INDEX TramosNombre ON Tramos (NombreViga, Tramo);
CREATE INDEX JuntasNombre ON Juntas (NombreViga, Numero);
CREATE INDEX JuntasDesplazadasNombre ON JuntasDesplazadas (NombreViga, R3);
CREATE INDEX JuntasRestringidasNombre ON JuntasRestringidas (NombreViga, R1);
CREATE INDEX JuntasResortesNombre ON JuntasResortes (NombreViga, R10);
CREATE INDEX TiposVigasNombre ON TiposVigas (NombreViga, Tipo);
CREATE INDEX CargasTramosNombre ON CargasTramos (NombreViga, Tramo);
CREATE INDEX AccionesNodalesNombre ON AccionesNodales (NombreViga, R2);
