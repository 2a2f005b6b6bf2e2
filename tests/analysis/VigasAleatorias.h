#pragma once
// Random beams for the checks that run over many cases: up to 30 spans, concrete or steel,
// own weight and shear deformation on or off, supports of every kind, springs, displaced
// joints, joint actions and every load kind. A fixed seed makes every run the same.

#include <random>

#include "analysis/VigasPrueba.h"

namespace trevalo::prueba {

struct OpcionesAleatorias {
    bool inclinadas = true;     // displaced joints
    bool resortes = true;       // spring joints
    bool apoyosLibres = true;   // any support at any joint; else a stable horizontal beam
    bool momentosLibres = true; // joint moments anywhere; else none where a rotation is held
    bool areasNulas = true;     // steel profiles without area (no axial stiffness)
};

class GeneradorVigas {
  public:
    explicit GeneradorVigas(unsigned semilla) : gen_(semilla) {}

    double Real(double a, double b) { return std::uniform_real_distribution<double>(a, b)(gen_); }
    long Entero(long a, long b) { return std::uniform_int_distribution<long>(a, b)(gen_); }
    bool Moneda(double p) { return Real(0, 1) < p; }

    ProyectoActual Proyecto() {
        ProyectoActual p = ProyectoPrueba();
        p.PPV = Moneda(0.5);
        p.DEFCOR = Moneda(0.5);
        p.FC = Real(150, 400);
        p.CFormaConcreto = Real(1.0, 1.3);
        p.CFormaAcero = Real(1.0, 1.3);
        return p;
    }

    VigaActual Viga(const OpcionesAleatorias& op) {
        std::vector<double> luces(static_cast<std::size_t>(Entero(1, 30)));
        for (double& l : luces) l = Real(2, 8);
        VigaActual v = VigaRecta(luces);
        v.OpcionConcreto = static_cast<std::uint8_t>(Entero(0, 2) == 0 ? 0 : Entero(1, 2));
        Tipos(v, op.areasNulas);
        for (long t = 1; t <= v.NT; ++t) {
            v.VT(t) = static_cast<double>(Entero(1, v.NTipos));
            Cargas(v, t);
        }
        const long nj = v.NT + 1;
        if (op.apoyosLibres)
            ApoyosLibres(v, nj);
        else
            ApoyosEstables(v, nj);
        if (op.resortes) Resortes(v, nj, op.apoyosLibres);
        if (op.inclinadas) Desplazamientos(v, nj);
        AccionesNodales(v, nj, op.momentosLibres);
        return v;
    }

  private:
    void Tipos(VigaActual& v, bool areasNulas) {
        v.NTipos = static_cast<std::int16_t>(Entero(1, 3));
        v.B1.Redim(v.NTipos);
        v.T1.Redim(v.NTipos);
        v.Designacion.Redim(v.NTipos);
        for (long k = 1; k <= v.NTipos; ++k) {
            if (v.OpcionConcreto == 0) {
                v.B1(k) = Real(0.2, 0.5);
                v.T1(k) = Real(0.3, 0.9);
            } else {
                v.B1(k) = areasNulas && Moneda(0.1) ? 0 : Real(20, 150);
                v.T1(k) = Real(1000, 80000);
            }
        }
    }

    std::int32_t Carga(long desde, long hasta) {
        return static_cast<std::int32_t>(Entero(desde, hasta));
    }

    void Cargas(VigaActual& v, long t) {
        const double L = v.LT(t);
        if (Moneda(0.7)) v.W1(t) = Carga(-500, 3000);
        v.Gravedad(t) = static_cast<std::uint8_t>(Moneda(0.3));
        v.CantW2(t) = static_cast<std::int16_t>(Entero(0, 3));
        for (long k = 1; k <= v.CantW2(t); ++k) {
            v.P(t, k) = Carga(-2000, 8000);
            v.LP(t, k) = Moneda(0.1) ? 0 : Real(0, L);
        }
        v.CantW3(t) = static_cast<std::int16_t>(Entero(0, 3));
        for (long k = 1; k <= v.CantW3(t); ++k) {
            v.W3_(t, k) = Carga(-500, 3000);
            Tramo(L, v.La3_(t, k), v.Lb3_(t, k));
        }
        if (Moneda(0.4)) v.W4(t) = Carga(100, 3000);
        if (Moneda(0.4)) {
            v.W5(t) = Carga(100, 3000);
            v.la5(t) = Moneda(0.1) ? 0 : Real(0, L / 3);
        }
        v.CantW6(t) = static_cast<std::int16_t>(Entero(0, 2));
        for (long k = 1; k <= v.CantW6(t); ++k) {
            v.W6_(t, k) = Carga(-500, 3000);
            Tramo(L, v.La6_(t, k), v.Lb6_(t, k));
        }
        v.CantW7(t) = static_cast<std::int16_t>(Entero(0, 2));
        for (long k = 1; k <= v.CantW7(t); ++k) {
            v.W7_(t, k) = Carga(-500, 3000);
            Tramo(L, v.La7_(t, k), v.Lb7_(t, k));
        }
        v.CantW8(t) = static_cast<std::int16_t>(Entero(0, 2));
        for (long k = 1; k <= v.CantW8(t); ++k) {
            v.WIzq8_(t, k) = Carga(0, 3000);
            v.WDer8_(t, k) = Moneda(0.2) ? v.WIzq8_(t, k) : Carga(0, 3000);
            Tramo(L, v.La8_(t, k), v.Lb8_(t, k));
        }
    }

    void Tramo(double L, double& a, double& b) {
        a = Real(0, L * 0.8);
        b = Real(a, L);
    }

    void ApoyosLibres(VigaActual& v, long nj) {
        std::vector<ApoyoPrueba> lista;
        for (long j = 1; j <= nj; ++j) {
            if (!Moneda(0.6)) continue;
            lista.push_back(
                {static_cast<std::int16_t>(j), static_cast<std::int16_t>(Entero(1, 5))});
            if (Moneda(0.05)) lista.push_back(lista.back()); // listed twice
        }
        PonerApoyos(v, lista);
    }

    // Joint 1 pinned or fixed, the last joint on a support, the joints between free or on
    // any support that holds the vertical.
    void ApoyosEstables(VigaActual& v, long nj) {
        std::vector<ApoyoPrueba> lista;
        lista.push_back({1, static_cast<std::int16_t>(Moneda(0.5) ? ApoyoFijo : Empotramiento)});
        const std::int16_t interiores[] = {ApoyoFijo, RodilloEnX, Empotramiento};
        for (long j = 2; j < nj; ++j)
            if (Moneda(0.5))
                lista.push_back({static_cast<std::int16_t>(j), interiores[Entero(0, 2)]});
        lista.push_back({static_cast<std::int16_t>(nj),
                         static_cast<std::int16_t>(Moneda(0.5) ? ApoyoFijo : RodilloEnX)});
        PonerApoyos(v, lista);
    }

    bool Restringida(const VigaActual& v, long j) {
        for (long k = 1; k <= v.NJRest; ++k)
            if (v.R1(k) == j) return true;
        return false;
    }

    // Springs: horizontal ones of stiffness exactly 1.0 among them. Unless any mix is asked
    // for, only vertical springs at joints without a support.
    void Resortes(VigaActual& v, long nj, bool libres) {
        std::vector<ResortePrueba> lista;
        for (long j = 1; j <= nj; ++j) {
            if (!Moneda(0.3) || (!libres && Restringida(v, j))) continue;
            ResortePrueba r{static_cast<std::int16_t>(j), 0, 0, 0};
            r.SV = Moneda(0.8) ? Real(1e5, 1e7) : 0;
            if (libres) {
                const long h = Entero(0, 3);
                r.SH = h == 0 ? 0 : h == 1 ? 1.0 : h == 2 ? 2.0 : Real(1e5, 1e7);
                r.SM = Moneda(0.5) ? Real(1e5, 1e7) : 0;
            }
            lista.push_back(r);
        }
        PonerResortes(v, lista);
    }

    void Desplazamientos(VigaActual& v, long nj) {
        std::vector<DesplazadaPrueba> lista;
        for (long j = 1; j <= nj; ++j)
            if (Moneda(0.3))
                lista.push_back({static_cast<std::int16_t>(j), Real(-0.3, 0.3), Real(-0.6, 0.6)});
        PonerDesplazadas(v, lista);
    }

    // A joint moment where a rotation is held by a support or a spring is left out of ReacM,
    // so a beam meant for equilibrium checks has none there.
    bool GiroRetenido(const VigaActual& v, long j) {
        for (long k = 1; k <= v.NJRest; ++k)
            if (v.R1(k) == j && v.Apoyo(k) == Empotramiento) return true;
        for (long k = 1; k <= v.NJRes; ++k)
            if (v.R10(k) == j && v.SM10(k) > 0) return true;
        return false;
    }

    void AccionesNodales(VigaActual& v, long nj, bool momentosLibres) {
        v.NAcc = static_cast<std::int16_t>(Entero(0, 4));
        v.R2.Redim(v.NAcc);
        v.QC1.Redim(v.NAcc);
        v.QC2.Redim(v.NAcc);
        v.QC3.Redim(v.NAcc);
        for (long k = 1; k <= v.NAcc; ++k) {
            v.R2(k) = static_cast<std::int16_t>(Entero(1, nj));
            if (momentosLibres || !GiroRetenido(v, v.R2(k))) v.QC1(k) = Real(-5000, 5000);
            v.QC2(k) = Real(-3000, 9000);
            v.QC3(k) = Real(-2000, 2000);
        }
    }

    std::mt19937 gen_;
};

} // namespace trevalo::prueba
