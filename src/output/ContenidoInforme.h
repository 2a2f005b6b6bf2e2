#pragma once
// What a report holds: the one row of Generales and the pictures of Graficos, as the report
// database keeps them, and, in memory only, the drawing each picture was made from. The
// report carries no data of its own beyond these.
//
// Units: FC and FY in kgf/cm2, D8 in metres. Pictures are whole PNG files.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace trevalo {

struct OperacionGrabada; // drawing/LienzoGrabador.h, which those who paint a picture include

// The constant title of every report.
inline constexpr const char* TituloInforme = "ANALISIS Y DISEÑO DE VIGAS CONTINUAS";

// Size of a report picture at screen scale: the hidden canvas of 10650 by 12150 twips.
inline constexpr int AnchoGraficoPantalla = 710;
inline constexpr int AltoGraficoPantalla = 810;
// Pictures are painted at print resolution: the same layout scaled by this factor, so that
// lines and text stay sharp on paper (about 300 dots per inch across the printed width).
inline constexpr int FactorImpresion = 2;
inline constexpr int AnchoGrafico = AnchoGraficoPantalla * FactorImpresion;
inline constexpr int AltoGrafico = AltoGraficoPantalla * FactorImpresion;

// The row of table Generales; the field names are the table's columns.
struct FilaGenerales {
    std::string Usuario;
    std::string Version;
    std::string TiTulo = TituloInforme;
    std::string Proyecto;
    std::string Propietario;
    std::string Calculista;
    double FC = 0;
    double FY = 0;
    double D8 = 0;
};

// A picture as the drawing it is: the operations painted on its canvas of AnchoGraficoPantalla
// by AltoGraficoPantalla pixels.
using DibujoInforme = std::vector<OperacionGrabada>;

// One row of table Graficos, with the drawing its picture was made from: none for a report
// read from the database alone.
struct GraficoInforme {
    std::int16_t Numero = 0;
    std::vector<std::uint8_t> Grafico; // a whole PNG file
    std::shared_ptr<const DibujoInforme> Dibujo;
};

// The drawings of a report's pictures in Numero order, as the fill of the database made them.
using DibujosInforme = std::vector<std::shared_ptr<const DibujoInforme>>;

struct ContenidoInforme {
    FilaGenerales Generales;
    std::vector<GraficoInforme> Graficos; // in Numero order
    // How numbers are shown: the machine's separators (not kept in the database).
    char SeparadorDecimal = '.';
    char SeparadorMiles = ',';
};

// One line of the report's head: a label and its value as printed. The three material
// lines also carry the number, its mask and its unit, for outputs that keep numbers.
struct LineaCabecera {
    std::string Etiqueta;
    std::string Valor;
    std::optional<double> Numero;
    std::string Mascara;
    std::string Unidad;
};

// The lines of the head under the title, the same for every kind of output: project,
// owner, engineer, the materials with their units, user and program version.
std::vector<LineaCabecera> LineasCabecera(const ContenidoInforme& contenido);

// Gives the pictures of `contenido` the drawings of the fill that wrote them: only when there
// are as many drawings as pictures, numbered 1, 2, 3 ... as the fill numbers them.
void UnirDibujos(ContenidoInforme& contenido, const DibujosInforme& dibujos);

} // namespace trevalo
