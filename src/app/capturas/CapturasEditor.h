#pragma once
// Pictures of the beam editor for trevalo-capturas.

#include <QString>
#include <functional>

class QWidget;

namespace trevalo {

struct Programa;
class VigasProyecto;

// Every page of the editor on the beam of the project window's active row (concrete), and
// every page it reaches on the same beam made of steel profiles. `guardar` writes a picture.
void CapturasEditor(Programa& programa, VigasProyecto& ventana,
                    const std::function<void(QWidget&, const QString&)>& guardar);

} // namespace trevalo
