#pragma once
// The small pictures of a table row's section shown over the table windows: a double tee and
// a channel open to the right, on a background grid, with the depth, flange width, web and
// flange thicknesses (mm) written in Arial 7. The section takes a fixed share of the
// picture's height (0.58 of it for the double tee, 0.6 for the channel), centred.

#include "drawing/Lienzo.h"
#include "profiles/TablaPerfiles.h"

namespace trevalo {

// Background grid of the picture: lines `paso` pixels apart from 0, across the width and the
// height plus 30 pixels, in RGB 226, 232, 239.
void DibujarFondoP(Lienzo& lienzo, int paso);

// Clears the picture, draws the grid and, unless one of the row's DimensionBF, DimensionD,
// DimensionTF, DimensionTw is 0, the section. `fila` is a row of a double-tee table or of a
// channel table respectively.
void DibujeDobleTee(Lienzo& lienzo, const FilaPerfil& fila);
void DibujeSeccionU(Lienzo& lienzo, const FilaPerfil& fila);

// The picture of one of the seven items of the steel beam types (1 double tee, 2 two double
// tees, 3 channel, 4 two channels back to back, 5 two channels toe to toe, 6 square tube,
// 7 rectangular tube): the outlines alone, filled, fitted to the canvas.
void DibujeFamiliaPerfil(Lienzo& lienzo, int item);

} // namespace trevalo
