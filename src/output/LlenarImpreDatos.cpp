#include "output/LlenarImpreDatos.h"

#include <cassert>

#include "model/Errores.h"
#include "output/BaseInforme.h"

namespace trevalo {

std::vector<VistaInforme> VistasInforme(const OpcionesImpresion& opciones) {
    std::vector<VistaInforme> vistas{VistaInforme::Diseno};
    if (opciones.ConDiagramas == 1) {
        vistas.push_back(VistaInforme::Diagramas);
        if (opciones.ConReacciones == 1) vistas.push_back(VistaInforme::Reacciones);
    }
    return vistas;
}

namespace {

// Steps A to C of one loaded beam; n is the running Numero.
void PintarViga(EscrituraBaseInforme& base, const std::vector<VistaInforme>& vistas,
                const PasosInforme& pasos, std::int16_t& n) {
    pasos.Analizar();
    for (const auto vista : vistas) base.AgregarGrafico(n++, pasos.Pintar(vista));
}

// Step 6: the progress panel is hidden however the walk ends.
struct OcultarPanel {
    const PasosInforme& pasos;
    ~OcultarPanel() {
        if (pasos.Panel) pasos.Panel(false);
    }
};

} // namespace

void LlenarImpreDatos(const std::string& rutaTemporal, const FilaGenerales& generales,
                      const std::vector<std::string>& vigas, const OpcionesImpresion& opciones,
                      const PasosInforme& pasos) {
    assert(!vigas.empty());
    EscrituraBaseInforme base(rutaTemporal);
    base.EscribirGenerales(generales);
    base.VaciarGraficos();
    const auto vistas = VistasInforme(opciones);
    std::int16_t n = 1;
    const OcultarPanel ocultar{pasos};
    if (opciones.VigaReporte == 0) {
        const double paso = 100.0 / static_cast<double>(vigas.size());
        double valor = paso;
        if (pasos.Panel) pasos.Panel(true);
        for (const auto& nombre : vigas) {
            if (pasos.Progreso) pasos.Progreso("Exportando la Viga: " + nombre, valor);
            valor += paso;
            pasos.CargarViga(nombre);
            PintarViga(base, vistas, pasos, n);
        }
    } else {
        if (opciones.VigaReporte < 0 ||
            static_cast<std::size_t>(opciones.VigaReporte) > vigas.size())
            throw ErrorTrevalo::SubindiceFueraDeIntervalo();
        pasos.CargarViga(vigas[static_cast<std::size_t>(opciones.VigaReporte - 1)]);
        PintarViga(base, vistas, pasos, n);
    }
    base.Confirmar();
}

} // namespace trevalo
