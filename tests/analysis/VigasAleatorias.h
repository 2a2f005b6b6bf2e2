#pragma once
// Random beams for the checks that run over many cases: up to 30 spans, concrete or steel,
// own weight and shear deformation on or off, supports of every kind, springs, displaced
// joints, joint actions and every load kind. A fixed seed makes every run the same.

#include <random>

#include "analysis/AnalisisPrueba.h"

namespace trevalo::prueba {

struct OpcionesAleatorias {
    bool inclinadas = true; // displaced joints
    bool resortes = true;   // spring joints
    // Any support at any joint, springs of every kind, joint moments where a rotation is held
    // and steel types without area; else a stable beam whose reactions balance the loads.
    bool libre = true;
};

class GeneradorVigas {
  public:
    explicit GeneradorVigas(unsigned semilla) : gen_(semilla) {}

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
        VigaActual v = VigaDeTramos(luces);
        v.OpcionConcreto = static_cast<std::uint8_t>(Entero(0, 2) == 0 ? 0 : Entero(1, 2));
        Tipos(v, op.libre);
        for (long t = 1; t <= v.NT; ++t) {
            v.VT(t) = static_cast<double>(Entero(1, v.NTipos));
            Cargas(v, t);
        }
        const long nj = v.NT + 1;
        op.libre ? ApoyosLibres(v, nj) : ApoyosEstables(v, nj);
        if (op.resortes) Resortes(v, nj, op.libre);
        if (op.inclinadas) {
            Filas lista;
            for (long j = 1; j <= nj; ++j)
                if (Moneda(0.3)) lista.push_back({double(j), Real(-0.3, 0.3), Real(-0.6, 0.6)});
            PonerDesplazadas(v, lista);
        }
        AccionesNodales(v, nj, op.libre);
        return v;
    }

  private:
    double Real(double a, double b) { return std::uniform_real_distribution<double>(a, b)(gen_); }
    long Entero(long a, long b) { return std::uniform_int_distribution<long>(a, b)(gen_); }
    bool Moneda(double p) { return Real(0, 1) < p; }
    std::int32_t Carga(long desde) { return static_cast<std::int32_t>(Entero(desde, 3000)); }

    void Tipos(VigaActual& v, bool areasNulas) {
        v.NTipos = static_cast<std::int16_t>(Entero(1, 3));
        v.B1.Redim(v.NTipos);
        v.T1.Redim(v.NTipos);
        v.Designacion.Redim(v.NTipos);
        for (long k = 1; k <= v.NTipos; ++k) {
            const bool acero = v.OpcionConcreto != 0;
            v.B1(k) = acero ? (areasNulas && Moneda(0.1) ? 0 : Real(20, 150)) : Real(0.2, 0.5);
            v.T1(k) = acero ? Real(1000, 80000) : Real(0.3, 0.9);
        }
    }

    void Tramo(double L, double& a, double& b) {
        a = Real(0, L * 0.8);
        b = Real(a, L);
    }

    // Up to `hasta` loads of one kind placed from a to b on span t.
    void Parciales(std::int16_t& cantidad, long hasta, long t, double L, Arreglo2<std::int32_t>& W,
                   Arreglo2<double>& a, Arreglo2<double>& b) {
        cantidad = static_cast<std::int16_t>(Entero(0, hasta));
        for (long k = 1; k <= cantidad; ++k) {
            W(t, k) = Carga(-500);
            Tramo(L, a(t, k), b(t, k));
        }
    }

    void Cargas(VigaActual& v, long t) {
        const double L = v.LT(t);
        if (Moneda(0.7)) v.W1(t) = Carga(-500);
        v.Gravedad(t) = static_cast<std::uint8_t>(Moneda(0.3));
        v.CantW2(t) = static_cast<std::int16_t>(Entero(0, 3));
        for (long k = 1; k <= v.CantW2(t); ++k) {
            v.P(t, k) = static_cast<std::int32_t>(Entero(-2000, 8000));
            v.LP(t, k) = Moneda(0.1) ? 0 : Real(0, L);
        }
        Parciales(v.CantW3(t), 3, t, L, v.W3_, v.La3_, v.Lb3_);
        if (Moneda(0.4)) v.W4(t) = Carga(100);
        if (Moneda(0.4)) {
            v.W5(t) = Carga(100);
            v.la5(t) = Moneda(0.1) ? 0 : Real(0, L / 3);
        }
        Parciales(v.CantW6(t), 2, t, L, v.W6_, v.La6_, v.Lb6_);
        Parciales(v.CantW7(t), 2, t, L, v.W7_, v.La7_, v.Lb7_);
        v.CantW8(t) = static_cast<std::int16_t>(Entero(0, 2));
        for (long k = 1; k <= v.CantW8(t); ++k) {
            v.WIzq8_(t, k) = Carga(0);
            v.WDer8_(t, k) = Moneda(0.2) ? v.WIzq8_(t, k) : Carga(0);
            Tramo(L, v.La8_(t, k), v.Lb8_(t, k));
        }
    }

    void ApoyosLibres(VigaActual& v, long nj) {
        Filas lista;
        for (long j = 1; j <= nj; ++j) {
            if (!Moneda(0.6)) continue;
            lista.push_back({double(j), double(Entero(1, 5))});
            if (Moneda(0.05)) lista.push_back(lista.back()); // listed twice
        }
        PonerApoyos(v, lista);
    }

    // Joint 1 pinned or fixed, the last joint on a support, the joints between free or on
    // any support that holds the vertical.
    void ApoyosEstables(VigaActual& v, long nj) {
        Filas lista{{1, double(Moneda(0.5) ? ApoyoFijo : Empotramiento)}};
        const double interiores[] = {ApoyoFijo, RodilloEnX, Empotramiento};
        for (long j = 2; j < nj; ++j)
            if (Moneda(0.5)) lista.push_back({double(j), interiores[Entero(0, 2)]});
        lista.push_back({double(nj), double(Moneda(0.5) ? ApoyoFijo : RodilloEnX)});
        PonerApoyos(v, lista);
    }

    bool Listada(const Arreglo<std::int16_t>& juntas, long n, long j) {
        for (long k = 1; k <= n; ++k)
            if (juntas(k) == j) return true;
        return false;
    }

    // Springs: horizontal ones of stiffness exactly 1.0 among them. Unless any mix is asked
    // for, only vertical springs at joints without a support.
    void Resortes(VigaActual& v, long nj, bool libres) {
        Filas lista;
        for (long j = 1; j <= nj; ++j) {
            if (!Moneda(0.3) || (!libres && Listada(v.R1, v.NJRest, j))) continue;
            const double SV = Moneda(0.8) ? Real(1e5, 1e7) : 0;
            const long h = libres ? Entero(0, 3) : 0;
            const double SH = h == 3 ? Real(1e5, 1e7) : double(h);
            lista.push_back({double(j), SH, SV, libres && Moneda(0.5) ? Real(1e5, 1e7) : 0});
        }
        PonerResortes(v, lista);
    }

    // A joint moment where a rotation is held by a support or a spring is left out of ReacM,
    // so a beam meant for equilibrium checks has none at a fixed joint (its springs never
    // hold a rotation).
    void AccionesNodales(VigaActual& v, long nj, bool momentosLibres) {
        Filas lista;
        for (long k = Entero(0, 4); k > 0; --k) {
            const long j = Entero(1, nj);
            bool retenido = false;
            for (long s = 1; s <= v.NJRest; ++s)
                retenido = retenido || (v.R1(s) == j && v.Apoyo(s) == Empotramiento);
            lista.push_back({double(j), momentosLibres || !retenido ? Real(-5000, 5000) : 0,
                             Real(-3000, 9000), Real(-2000, 2000)});
        }
        PonerAcciones(v, lista);
    }

    std::mt19937 gen_;
};

} // namespace trevalo::prueba
