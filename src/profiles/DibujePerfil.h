#pragma once
// The sketch of a double-tee section in the section generator, to scale, with its dimension
// labels, followed by the section's properties (PropiedadesPerfil).
//
// Dimensions in millimetres: d total depth, tw web, (bf, tf) upper flange, (bf2, tf2) lower
// flange. The sketch has a scale of its own (pixels per millimetre, a 90-pixel margin in all,
// from the canvas's Width and Height) and writes in the canvas's font; pixel positions are
// rounded with CI.

#include "drawing/Lienzo.h"
#include "profiles/PropiedadesPerfil.h"

namespace trevalo {

// Draws the sketch, then fills the labels. Returns false after any arithmetic fault (a zero
// dimension, a root of a negative ...): the caller shows MensajeErrorGeometria under
// TituloErrorGeometria; what was drawn and the labels set before the fault stay.
bool DibujePerfil(Lienzo& lienzo, double d, double tw, double bf, double tf, double bf2, double tf2,
                  EtiquetasPerfil& etiquetas, char separadorDecimal = '.',
                  char separadorMiles = ',');

enum class ResultadoCalculo { SinCambio, Calculado, FallaGeometria };

// "Calcular el Perfil": nothing happens unless d, tw, bf and tf all differ from 0; then the
// canvas is cleared and the section drawn and computed with one flange passed twice.
ResultadoCalculo CalcularPerfil(Lienzo& lienzo, double d, double tw, double bf, double tf,
                                EtiquetasPerfil& etiquetas, char separadorDecimal = '.',
                                char separadorMiles = ',');

} // namespace trevalo
