#include "design/TablaDiseno.h"

#include <cmath>

#include "analysis/CorteMomentoTramo.h"
#include "design/AceroFlexion.h"
#include "design/Cociente.h"
#include "design/SeparacionEstribos.h"
#include "model/Conversiones.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

enum class Recorrido { Hoja, CAD };

TramoDiseno Estaciones(const ProyectoActual& p, const VigaActual& v, const ResultadosViga& r,
                       const Arreglo<double>& XPlot, const Arreglo<double>& YPlot,
                       double estacionesPorMetro, std::int16_t t, Recorrido recorrido) {
    TramoDiseno tr;
    tr.t = t;
    tr.dX = XPlot(t + 1) - XPlot(t);
    tr.dY = YPlot(t + 1) - YPlot(t);
    tr.L = std::sqrt(tr.dX * tr.dX + tr.dY * tr.dY);
    tr.c = Cociente(tr.dX, tr.L);
    tr.s = Cociente(tr.dY, tr.L);
    tr.Wp = PesoPropioTramo(p, v, t);
    tr.n = SegmentosTramo(tr.dX, estacionesPorMetro);
    const bool concreto = v.OpcionConcreto == 0;
    const bool acero = recorrido == Recorrido::CAD || concreto;
    const bool estribos = recorrido == Recorrido::Hoja && concreto;
    if (tr.n > 0) tr.Estaciones.reserve(static_cast<std::size_t>(tr.n + 1));
    for (long i = 0; i <= tr.n; ++i) {
        EstacionDiseno e;
        e.i = i;
        e.h = i * tr.dX / tr.n;
        e.x = Cociente(e.h, tr.c);
        CorteMomentoTramo(v, r, t, tr.Wp, tr.L, e.x, tr.c, tr.s, e.M, e.V);
        e.Mu = e.M * v.FMayorTramo(t);
        e.Vu = e.V * v.FMayorTramo(t);
        if (estribos) SeparacionEstribos(p, v, t, e.Vu, e.x, tr.L, e.Estribos);
        if (acero) AceroFlexion(p, v, t, e.Mu, e.AsSup, e.AsInf, e.Excede);
        tr.Estaciones.push_back(std::move(e));
    }
    return tr;
}

void VaciarResumen(ResumenAcero& res, long nt) {
    res.AsSupIzquierda.Redim(nt);
    res.AsInfIzquierda.Redim(nt);
    res.AsSupDerecha.Redim(nt);
    res.AsInfDerecha.Redim(nt);
    res.AsSupCentro.Redim(nt);
    res.AsInfCentro.Redim(nt);
}

// Ends of the span; `redondeo` is applied to every stored value.
template <typename Redondeo>
void ResumenExtremos(const TramoDiseno& tr, ResumenAcero& res, Redondeo redondeo) {
    if (tr.Estaciones.empty()) return;
    const EstacionDiseno& primera = tr.Estaciones.front();
    const EstacionDiseno& ultima = tr.Estaciones.back();
    res.AsSupIzquierda(tr.t) = redondeo(primera.AsSup);
    res.AsInfIzquierda(tr.t) = redondeo(primera.AsInf);
    res.AsSupDerecha(tr.t) = redondeo(ultima.AsSup);
    res.AsInfDerecha(tr.t) = redondeo(ultima.AsInf);
}

std::string TextoAcero(double as, bool excede, char sd, char sm) {
    return excede ? ">FMáx" : Formato(as, "0.00", sd, sm);
}

} // namespace

long SegmentosTramo(double dX, double estacionesPorMetro) {
    const long n = CI16(dX * estacionesPorMetro);
    return n == 0 ? 1 : n;
}

TramoDiseno DisenarTramo(const ProyectoActual& proyecto, const VigaActual& viga,
                         const ResultadosViga& resultados, const Arreglo<double>& XPlot,
                         const Arreglo<double>& YPlot, double estacionesPorMetro, std::int16_t t) {
    return Estaciones(proyecto, viga, resultados, XPlot, YPlot, estacionesPorMetro, t,
                      Recorrido::Hoja);
}

std::vector<TramoDiseno> TablaDiseno(const ProyectoActual& proyecto, const VigaActual& viga,
                                     const ResultadosViga& resultados, const Arreglo<double>& XPlot,
                                     const Arreglo<double>& YPlot, double estacionesPorMetro,
                                     ResumenAcero& resumen) {
    VaciarResumen(resumen, viga.NT);
    std::vector<TramoDiseno> tabla;
    for (std::int16_t t = 1; t <= viga.NT; ++t) {
        tabla.push_back(
            DisenarTramo(proyecto, viga, resultados, XPlot, YPlot, estacionesPorMetro, t));
        const TramoDiseno& tr = tabla.back();
        if (viga.OpcionConcreto != 0) continue;
        ResumenExtremos(tr, resumen, [](double v) { return v; });
        for (long i = 1; i < tr.n; ++i) {
            const EstacionDiseno& e = tr.Estaciones[static_cast<std::size_t>(i)];
            if (resumen.AsInfCentro(t) < e.AsInf) {
                resumen.AsInfCentro(t) = e.AsInf;
                resumen.AsSupCentro(t) = e.AsSup;
            }
        }
    }
    return tabla;
}

void DisenoParaCAD(const ProyectoActual& proyecto, const VigaActual& viga,
                   const ResultadosViga& resultados, const Arreglo<double>& XPlot,
                   const Arreglo<double>& YPlot, double estacionesPorMetro, ResumenAcero& resumen) {
    VaciarResumen(resumen, viga.NT);
    const auto dosDecimales = [](double v) { return RoundKorvel(v, 2); };
    for (std::int16_t t = 1; t <= viga.NT; ++t) {
        const TramoDiseno tr = Estaciones(proyecto, viga, resultados, XPlot, YPlot,
                                          estacionesPorMetro, t, Recorrido::CAD);
        ResumenExtremos(tr, resumen, dosDecimales);
        // The faces cross here, and the comparison is with the rounded value stored.
        for (long i = 1; i < tr.n; ++i) {
            const EstacionDiseno& e = tr.Estaciones[static_cast<std::size_t>(i)];
            if (resumen.AsInfCentro(t) < e.AsSup) {
                resumen.AsSupCentro(t) = dosDecimales(e.AsInf);
                resumen.AsInfCentro(t) = dosDecimales(e.AsSup);
            }
        }
    }
}

TextosEstacion TextosDeEstacion(const TramoDiseno& tramo, const EstacionDiseno& e, char sd,
                                char sm) {
    TextosEstacion tx;
    tx.E = e.Estribos;
    tx.AsS = TextoAcero(e.AsSup, e.Excede, sd, sm);
    tx.AsI = TextoAcero(e.AsInf, e.Excede, sd, sm);
    tx.MuS = Formato(e.Mu < 0 ? e.Mu : 0, "0", sd, sm);
    tx.MuI = Formato(e.Mu < 0 ? 0 : e.Mu, "0", sd, sm);
    tx.Vu = Formato(e.Vu, "0", sd, sm);
    tx.Progresiva = Formato(e.h <= tramo.dX / 2 ? e.h : tramo.dX - e.h, "0.00", sd, sm);
    return tx;
}

} // namespace trevalo
