// The screenshots of the steel profile windows.

#include <QApplication>
#include <QMouseEvent>
#include <QTableView>

#include "app/capturas/Capturas.h"
#include "profiles/TablaPerfiles.h"
#include "shell/CampoNumero.h"
#include "shell/DobleTee.h"
#include "shell/OpcionPerfil.h"
#include "shell/TablaPerfil.h"
#include "shell/TextoQt.h"
#include "shell/VigasMetalicas.h"

namespace trevalo {

namespace {

// The left button held on a cell of the grid, long enough for the sketch to come up.
void PulsarCelda(QTableView& grid, int fila, int columna, const std::function<void()>& mientras) {
    QWidget* vista = grid.viewport();
    const QPointF punto = grid.visualRect(grid.model()->index(fila, columna)).center();
    const QPointF global = vista->mapToGlobal(punto);
    QMouseEvent abajo(QEvent::MouseButtonPress, punto, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(vista, &abajo);
    Esperar(400);
    mientras();
    QMouseEvent arriba(QEvent::MouseButtonRelease, punto, global, Qt::LeftButton, Qt::NoButton,
                       Qt::NoModifier);
    QApplication::sendEvent(vista, &arriba);
}

// A table of the tables folder; a new one is first made from its template, as "Crear" makes it.
void CapturarTabla(Programa& programa, QWidget& padre, FamiliaPerfil familia,
                   const std::string& archivo, const QString& nombre, bool nueva = false) {
    const std::string ruta = programa.Carpetas.RutaPerfiles + "/" + archivo;
    if (nueva) CrearTablaPerfiles(programa.Carpetas.RutaPrograma, familia, ruta);
    TablaPerfil tabla(programa, familia, {ruta, archivo, nueva}, &padre);
    tabla.show();
    Guardar(tabla, nombre);
    if (tabla.Emergente() && !nueva)
        PulsarCelda(tabla.Grid(), 4, 4,
                    [&] { Guardar(tabla, nombre + QStringLiteral("_croquis")); });
    tabla.hide();
}

} // namespace

void CapturasPerfiles(Programa& programa, QWidget& padre) {
    OpcionPerfil opcion(programa, &padre);
    Capturar(opcion, QStringLiteral("20_opcion_perfil"));
    CapturarTabla(programa, padre, FamiliaPerfil::DobleTee, "DobleTee_IPE.pfl",
                  QStringLiteral("21_tabla_doble_tee"));
    CapturarTabla(programa, padre, FamiliaPerfil::SeccionU, "U_UPN.pfl",
                  QStringLiteral("22_tabla_u"));
    CapturarTabla(programa, padre, FamiliaPerfil::SeccionU, "U_Nueva.pfl",
                  QStringLiteral("22_tabla_u_nueva"), true);
    CapturarTabla(programa, padre, FamiliaPerfil::TuboCuadrado, "Cuadrada_SHS.pfl",
                  QStringLiteral("23_tabla_cuadrada"));
    CapturarTabla(programa, padre, FamiliaPerfil::TuboRectangular, "Rectangular_RHS.pfl",
                  QStringLiteral("24_tabla_rectangular"));

    DobleTee generador(
        programa, [](const CapturaSeccion&) {}, &padre);
    generador.show();
    generador.findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QStringLiteral("IG 300"));
    const double dimensiones[] = {300, 8, 150, 12};
    for (int i = 0; i < 4; ++i)
        generador.findChild<CampoNumero*>(QStringLiteral("Double%1").arg(i + 1))
            ->ColocarValor(dimensiones[i]);
    generador.Calcular();
    Capturar(generador, QStringLiteral("25_generador_doble_tee"));

    const ListaPerfiles antes = programa.ListaPerfil;
    CargarListaPerfiles(programa.Carpetas.RutaPerfiles + "/DobleTee_IPE.pfl", 2,
                        programa.ListaPerfil);
    VigasMetalicas vigas(programa, 1, &padre);
    Capturar(vigas, QStringLiteral("26_vigas_metalicas"));
    programa.ListaPerfil = antes;
}

} // namespace trevalo
