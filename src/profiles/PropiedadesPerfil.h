#pragma once
// Section properties of a double-tee steel section, computed from its plate dimensions and
// written as the texts of the twelve property labels of the section generator.
//
// Dimensions in millimetres: d total depth, tw web thickness, (bfs, tfs) upper flange width
// and thickness, (bfi, tfi) lower flange. Results: A cm2, Ix cm4, Sx cm3, Rx cm, Iy cm4,
// Sy cm3, Ry cm, Rt cm, J cm4, Cw cm6, Zx cm3, Zy cm3, in that order.
//
// The formulas are the program's own and are kept as users know them, three oddities
// included: Iy adds d (in mm) and takes the web as d - tw^3 (tfs + tfi) / 12; Sy divides by
// the wider flange rounded to a whole millimetre (ties to even); Zx and Zy take the web over
// the full depth (or h) and the flanges as the rest of the area. Some steps read only the
// upper flange; with equal flanges, as the generator passes them, that makes no difference.

#include <string>
#include <vector>

#include "model/Arreglo.h"

namespace trevalo {

// The property labels LSLabel(1..12), in the order above, as the user reads them.
struct EtiquetasPerfil {
    Arreglo<std::string> LSLabel{12};
};

// Computes the twelve properties in order and sets each label before the next step, so a
// fault leaves the earlier labels new and the later ones as they were.
// Raises 5 (root of a negative), 11 (division by zero) or 6 (0/0 or overflow).
void PropiedadesPerfil(double d, double tw, double bfs, double tfs, double bfi, double tfi,
                       EtiquetasPerfil& etiquetas, char separadorDecimal = '.',
                       char separadorMiles = ',');

// True when the generator's gate lets the four dimensions through.
bool DimensionesCompletas(double d, double tw, double bf, double tf);

// The generator's capture of a section as a new row of the open double-tee table: the
// trimmed name, then the numbers of grid columns 2 to 17 in order: A (label 1), d, bf, tf,
// tw, and labels 2 to 12. The numbers are read back from the labels' texts, so they are the
// rounded, displayed values; a label never computed reads 0. Returns false, capturing
// nothing, when the trimmed name is empty (the form beeps) or a dimension is 0.
struct CapturaSeccion {
    std::string Designacion;
    std::vector<double> Numeros;
};
bool CapturarSeccion(const std::string& nombre, double d, double tw, double bf, double tf,
                     const EtiquetasPerfil& etiquetas, CapturaSeccion& captura,
                     char separadorDecimal = '.', char separadorMiles = ',');

// The question asked before a capture, under "Capturar Secciones".
std::string MensajeCapturaSeccion(const std::string& nombre);

// Any arithmetic fault of the sketch or of the properties ends in this message box, with the
// exclamation mark.
inline const std::string TituloErrorGeometria = "Error en Geometría";
inline const std::string MensajeErrorGeometria = "Error en la Geometría del Perfil...    ";

} // namespace trevalo
