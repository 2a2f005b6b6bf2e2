#include "output/LlenarImpreDatos.h"

#include <QThreadPool>

#include <algorithm>
#include <cassert>
#include <deque>
#include <future>
#include <thread>
#include <variant>

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

int HilosPintura() {
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

namespace {

// What the walk gives, messages and pictures, stored and shown in the order given, however
// many threads paint. Only a few pictures wait at a time, to bound the memory held.
class SalidaInforme {
  public:
    SalidaInforme(EscrituraBaseInforme& base, const PasosInforme& pasos, int hilos)
        : base_(base), pasos_(pasos), limite_(static_cast<std::size_t>(2 * hilos)) {
        if (hilos > 1) {
            pintores_.emplace();
            pintores_->setMaxThreadCount(hilos);
        }
    }
    // Pictures not begun are dropped (the walk ended by an error); those under way are waited for.
    ~SalidaInforme() {
        if (pintores_) pintores_->clear();
    }
    SalidaInforme(const SalidaInforme&) = delete;
    SalidaInforme& operator=(const SalidaInforme&) = delete;

    void Aviso(const std::optional<Pregunta>& aviso) {
        if (!aviso) return;
        if (pendientes_.empty())
            pasos_.Avisar(*aviso);
        else
            pendientes_.emplace_back(*aviso);
    }

    void Grafico(TrabajoGrafico trabajo) {
        if (!pintores_) return Guardar(trabajo());
        auto tarea = std::make_shared<std::packaged_task<GraficoPintado()>>(std::move(trabajo));
        pendientes_.emplace_back(tarea->get_future());
        pintores_->start([tarea] { (*tarea)(); });
        ++graficos_;
        while (graficos_ > limite_ || FrenteListo()) Entregar();
    }

    DibujosInforme Terminar() {
        while (!pendientes_.empty()) Entregar();
        return std::move(dibujos_);
    }

  private:
    using Pendiente = std::variant<Pregunta, std::future<GraficoPintado>>;

    bool FrenteListo() const {
        if (pendientes_.empty()) return false;
        const auto* futuro = std::get_if<std::future<GraficoPintado>>(&pendientes_.front());
        return !futuro || futuro->wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    }

    void Entregar() {
        Pendiente frente = std::move(pendientes_.front());
        pendientes_.pop_front();
        if (auto* aviso = std::get_if<Pregunta>(&frente)) return pasos_.Avisar(*aviso);
        --graficos_;
        Guardar(std::get<std::future<GraficoPintado>>(frente).get());
    }

    void Guardar(const GraficoPintado& grafico) {
        if (grafico.Aviso) pasos_.Avisar(*grafico.Aviso);
        base_.AgregarGrafico(n_++, grafico.Png);
        dibujos_.push_back(grafico.Dibujo);
    }

    EscrituraBaseInforme& base_;
    const PasosInforme& pasos_;
    std::size_t limite_;
    std::deque<Pendiente> pendientes_;
    std::size_t graficos_ = 0;
    std::int16_t n_ = 1;
    DibujosInforme dibujos_;
    std::optional<QThreadPool> pintores_; // last: its threads end before the rest goes
};

// Steps A to C of one loaded beam.
void PintarViga(SalidaInforme& salida, const std::vector<VistaInforme>& vistas,
                const PasosInforme& pasos) {
    salida.Aviso(pasos.Analizar());
    for (const auto vista : vistas) salida.Grafico(pasos.Preparar(vista));
}

// Step 6: the progress panel is hidden however the walk ends.
struct OcultarPanel {
    const PasosInforme& pasos;
    ~OcultarPanel() {
        if (pasos.Panel) pasos.Panel(false);
    }
};

} // namespace

DibujosInforme LlenarImpreDatos(const std::string& rutaTemporal, const FilaGenerales& generales,
                                const std::vector<std::string>& vigas,
                                const OpcionesImpresion& opciones, const PasosInforme& pasos,
                                int hilos) {
    assert(!vigas.empty());
    EscrituraBaseInforme base(rutaTemporal);
    base.EscribirGenerales(generales);
    base.VaciarGraficos();
    const auto vistas = VistasInforme(opciones);
    const OcultarPanel ocultar{pasos};
    SalidaInforme salida(base, pasos, hilos);
    if (opciones.VigaReporte == 0) {
        const double paso = 100.0 / static_cast<double>(vigas.size());
        double valor = paso;
        if (pasos.Panel) pasos.Panel(true);
        for (const auto& nombre : vigas) {
            if (pasos.Progreso) pasos.Progreso("Exportando la Viga: " + nombre, valor);
            valor += paso;
            salida.Aviso(pasos.CargarViga(nombre));
            PintarViga(salida, vistas, pasos);
        }
    } else {
        if (opciones.VigaReporte < 0 ||
            static_cast<std::size_t>(opciones.VigaReporte) > vigas.size())
            throw ErrorTrevalo::SubindiceFueraDeIntervalo();
        salida.Aviso(pasos.CargarViga(vigas[static_cast<std::size_t>(opciones.VigaReporte - 1)]));
        PintarViga(salida, vistas, pasos);
    }
    auto dibujos = salida.Terminar();
    base.Confirmar();
    return dibujos;
}

} // namespace trevalo
