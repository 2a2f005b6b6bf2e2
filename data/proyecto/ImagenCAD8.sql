-- The empty project of the companion drawing program, Korvel-CAD Estructural 8.0: the table
-- Proyecto and the thirteen tables of a beam that the export writes or clears, no rows.
-- Built at build time into Imagen/ImagenCAD8.kvl; a new ".Cad" project is a copy of it.
--
-- Only the fields the export writes are here, typed as the values written: 16-bit integers
-- INTEGER, doubles REAL, yes/no INTEGER 0 or 1, texts TEXT. Nombre ties the rows of a beam
-- together; the export compares it by the program's rules (case-blind, accents kept) in its
-- statements, never in the schema, so any SQLite tool reads the file.

CREATE TABLE Proyecto (
  Proyecto TEXT,
  Cliente TEXT,
  Propietario TEXT,
  Responsable TEXT,
  Fecha TEXT,
  FC REAL,
  FY REAL,
  RVigas REAL,
  RColumnas REAL,
  DVigas REAL,
  NormaSolape INTEGER,
  RVigasR REAL,
  OpcionDiametro INTEGER,
  OpcionEspesor INTEGER,
  ValorDatum INTEGER,
  NMAX INTEGER,
  LMax INTEGER
);

CREATE TABLE VigaDatos (
  Nombre TEXT,
  NT INTEGER,
  EscViga INTEGER,
  EscCorte INTEGER,
  EscPlano INTEGER,
  Nivel TEXT,
  Portico TEXT,
  Repeticiones INTEGER,
  NodoSismico INTEGER,
  SepD INTEGER,
  OpcionRecubrimiento INTEGER,
  OpcionNervio INTEGER,
  SepN INTEGER,
  DiametroN TEXT,
  B REAL,
  H REAL,
  Nervios INTEGER,
  Ramas INTEGER,
  ESolape INTEGER
);

CREATE TABLE VigaTramos (
  Nombre TEXT,
  Numero INTEGER,
  L REAL,
  B REAL,
  H REAL,
  Delta INTEGER
);

CREATE TABLE VigaEjes (
  Nombre TEXT,
  Numero INTEGER,
  Eje TEXT,
  OpcionColInf INTEGER,
  LIzqInf REAL,
  LDerInf REAL,
  OpcionColSup INTEGER,
  LIzqSup INTEGER,
  LDerSup INTEGER,
  OpcionViga INTEGER,
  B REAL,
  H REAL,
  AlineacionV INTEGER
);

CREATE TABLE VigaEstribos (
  Nombre TEXT,
  Tramo INTEGER,
  ESeparacionIzq REAL,
  ERamasIzq INTEGER,
  ESeparacionCentro REAL,
  ERamasCentro INTEGER,
  ESeparacionDer REAL,
  ERamasDer INTEGER,
  DistIzq REAL,
  DistCentro REAL,
  DistDer REAL,
  DiametroL TEXT,
  DiametroC TEXT,
  DiametroR TEXT
);

CREATE TABLE VigaRefTeorico (
  Nombre TEXT,
  Numero INTEGER,
  Tramo INTEGER,
  AsSupIzquierda REAL,
  AsSupCentro REAL,
  AsSupDerecha REAL,
  AsInfIzquierda REAL,
  AsInfCentro REAL,
  AsInfDerecha REAL
);

-- Tables the export only clears, beam by beam; the drawing program fills them.
CREATE TABLE VigaAuxiliares (Nombre TEXT);
CREATE TABLE VigaCortes (Nombre TEXT);
CREATE TABLE VigaIguales (Nombre TEXT);
CREATE TABLE VigaParamento (Nombre TEXT);
CREATE TABLE VigaRefuerzoEjeInferior (Nombre TEXT);
CREATE TABLE VigaRefuerzoEjeSuperior (Nombre TEXT);
CREATE TABLE VigaRefuerzoTramoInferior (Nombre TEXT);
CREATE TABLE VigaRefuerzoTramoSuperior (Nombre TEXT);
