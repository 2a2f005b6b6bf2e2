#include "model/Viga.h"

namespace trevalo {

namespace {

// Applies one operation to every span array of the beam (loads included) and another to
// every joint array, so the three reshaping procedures cannot forget a list.
template <typename FT, typename FT2, typename FJ>
void ParaCadaArreglo(VigaActual& v, FT tramo, FT2 tramo2, FJ junta) {
    tramo(v.LT);
    tramo(v.VT);
    tramo(v.FMayorTramo);
    tramo(v.TramoMarcado);
    tramo(v.W1);
    tramo(v.Gravedad);
    tramo(v.CantW2);
    tramo(v.CantW3);
    tramo(v.W4);
    tramo(v.W5);
    tramo(v.la5);
    tramo(v.CantW6);
    tramo(v.CantW7);
    tramo(v.CantW8);
    tramo2(v.P, MaxCargas10);
    tramo2(v.LP, MaxCargas10);
    tramo2(v.W3_, MaxCargas10);
    tramo2(v.La3_, MaxCargas10);
    tramo2(v.Lb3_, MaxCargas10);
    tramo2(v.W6_, MaxCargas5);
    tramo2(v.La6_, MaxCargas5);
    tramo2(v.Lb6_, MaxCargas5);
    tramo2(v.W7_, MaxCargas5);
    tramo2(v.La7_, MaxCargas5);
    tramo2(v.Lb7_, MaxCargas5);
    tramo2(v.WIzq8_, MaxCargas5);
    tramo2(v.WDer8_, MaxCargas5);
    tramo2(v.La8_, MaxCargas5);
    tramo2(v.Lb8_, MaxCargas5);
    junta(v.NombreEje);
    junta(v.LDer);
    junta(v.LIzq);
    junta(v.HC);
}

// Every span and joint array to NT and NT + 1 slots, all zero or empty.
void VaciarArreglos(VigaActual& v) {
    const long nt = v.NT;
    ParaCadaArreglo(
        v, [nt](auto& a) { a.Redim(nt); }, [nt](auto& a, long n2) { a.Redim(nt, n2); },
        [nt](auto& a) { a.Redim(nt + 1); });
}

void VaciarListas(VigaActual& v) {
    v.NJDesp = 0;
    v.R3.Redim(0);
    v.XX.Redim(0);
    v.YY.Redim(0);
    v.NJRest = 0;
    v.R1.Redim(0);
    v.Apoyo.Redim(0);
    v.NJRes = 0;
    v.R10.Redim(0);
    v.SH10.Redim(0);
    v.SV10.Redim(0);
    v.SM10.Redim(0);
    v.NAcc = 0;
    v.R2.Redim(0);
    v.QC1.Redim(0);
    v.QC2.Redim(0);
    v.QC3.Redim(0);
}

void UnTipo(VigaActual& v, double b1, double t1) {
    v.NTipos = 1;
    v.B1.Redim(1);
    v.T1.Redim(1);
    v.Designacion.Redim(1);
    v.B1(1) = b1;
    v.T1(1) = t1;
}

void CotasJuntasDefecto(VigaActual& v) {
    for (long j = 1; j <= v.NT + 1; ++j) {
        v.LDer(j) = 0.15;
        v.LIzq(j) = 0.15;
        v.HC(j) = 0.5;
    }
}

} // namespace

void NuevaVigaDefecto(VigaActual& v) {
    v.OpcionCarga = 0;
    v.OpcionConcreto = 0;
    v.FMayoracion = 1.5;
    v.NT = 1;
    VaciarArreglos(v);
    VaciarListas(v);
    UnTipo(v, 0.3, 0.5);
    v.FMayorTramo(1) = v.FMayoracion;
    v.VT(1) = 1.0;
    v.LT(1) = 4.0;
    for (long j = 1; j <= v.NT + 1; ++j) v.NombreEje(j) = std::to_string(j);
    v.NJRest = 2;
    v.R1.Redim(2);
    v.Apoyo.Redim(2);
    v.R1(1) = 1;
    v.R1(2) = 2;
    v.Apoyo(1) = ApoyoFijo;
    v.Apoyo(2) = ApoyoFijo;
    CotasJuntasDefecto(v);
}

void ReiniciarArreglosViga(VigaActual& v) {
    VaciarArreglos(v);
    VaciarListas(v);
    UnTipo(v, 0, 0);
    for (long t = 1; t <= v.NT; ++t) v.FMayorTramo(t) = 1.5;
    CotasJuntasDefecto(v);
}

void RedimensionarViga(VigaActual& v) {
    const long nt = v.NT;
    ParaCadaArreglo(
        v, [nt](auto& a) { a.RedimPreserve(nt); }, [nt](auto& a, long) { a.RedimPreserve(nt); },
        [nt](auto& a) { a.RedimPreserve(nt + 1); });
    v.TramoMarcado.Redim(nt);
}

void EliminarCargas(VigaActual& v) {
    const long nt = v.NT;
    const auto vaciar = [nt](auto&... a) { (a.Redim(nt), ...); };
    const auto vaciar10 = [nt](auto&... a) { (a.Redim(nt, MaxCargas10), ...); };
    const auto vaciar5 = [nt](auto&... a) { (a.Redim(nt, MaxCargas5), ...); };
    vaciar(v.W1, v.W4, v.W5, v.la5, v.Gravedad, v.CantW2, v.CantW3, v.CantW6, v.CantW7, v.CantW8);
    vaciar10(v.P, v.LP, v.W3_, v.La3_, v.Lb3_);
    vaciar5(v.W6_, v.La6_, v.Lb6_, v.W7_, v.La7_, v.Lb7_, v.WIzq8_, v.WDer8_, v.La8_, v.Lb8_);
}

void LimpiarResultados(ResultadosViga& r) {
    r = ResultadosViga{};
}

} // namespace trevalo
