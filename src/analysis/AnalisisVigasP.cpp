#include "analysis/AnalisisVigasP.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "analysis/FuerzasEmpotramiento.h"
#include "model/Conversiones.h"
#include "model/Redondeo.h"

namespace trevalo {

namespace {

double Cuad(double x) {
    return x * x;
}
double Cubo(double x) {
    return x * x * x;
}

// Moduli in kgf/m2 and the shear form factor of the beam's material.
struct Material {
    double E;
    double G;
    double CF;
};

Material ConstantesMaterial(const ProyectoActual& p, const VigaActual& v) {
    if (v.OpcionConcreto == 0) {
        if (p.FC < 0) throw ErrorTrevalo::LlamadaNoValida();
        const double E = 15100 * std::sqrt(p.FC) * 10000;
        return {E, E / (2 * (1 + 0.2)), p.CFormaConcreto};
    }
    const double E = p.ModuloAcero * 10000;
    return {E, E / (2 * (1 + 0.3)), p.CFormaAcero};
}

void VerificarJunta(long n, long nJuntas) {
    if (n < 1 || n > nJuntas) throw ErrorTrevalo::SubindiceFueraDeIntervalo();
}

// Restrained directions of one support, from its kind; an unknown kind restrains nothing.
struct Restriccion {
    bool X = false;
    bool Y = false;
    bool Z = false;
};

Restriccion RestriccionDeApoyo(std::int16_t apoyo) {
    switch (apoyo) {
    case ApoyoFijo:
        return {true, true, false};
    case RodilloEnX:
        return {false, true, false};
    case RodilloEnY:
        return {true, false, false};
    case Empotramiento:
        return {true, true, true};
    default:
        return {};
    }
}

// The entries of a list (restraints, springs) that name each joint, in list order:
// entries of joint n are lista[inicio[n]] .. lista[inicio[n + 1] - 1]. It lets the
// reaction passes visit only the pairs whose joint numbers match, in the same order as a
// walk over every pair, so the sums come out the same to the last bit.
struct IndicePorJunta {
    std::vector<long> inicio;
    std::vector<long> lista;
};

IndicePorJunta Indexar(const Arreglo<std::int16_t>& juntas, long cuantos, long nJuntas) {
    IndicePorJunta ind;
    ind.inicio.assign(static_cast<std::size_t>(nJuntas + 2), 0);
    for (long k = 1; k <= cuantos; ++k) ++ind.inicio[static_cast<std::size_t>(juntas(k) + 1)];
    for (long n = 1; n <= nJuntas + 1; ++n)
        ind.inicio[static_cast<std::size_t>(n)] += ind.inicio[static_cast<std::size_t>(n - 1)];
    ind.lista.resize(static_cast<std::size_t>(std::max(cuantos, 0L)));
    std::vector<long> siguiente(ind.inicio.begin(), ind.inicio.end());
    for (long k = 1; k <= cuantos; ++k)
        ind.lista[static_cast<std::size_t>(siguiente[static_cast<std::size_t>(juntas(k))]++)] = k;
    return ind;
}

template <typename F> void ParaCadaEntrada(const IndicePorJunta& ind, long n, F f) {
    const auto desde = static_cast<std::size_t>(ind.inicio[static_cast<std::size_t>(n)]);
    const auto hasta = static_cast<std::size_t>(ind.inicio[static_cast<std::size_t>(n + 1)]);
    for (std::size_t i = desde; i < hasta; ++i) f(ind.lista[i]);
}

// Everything one run works on besides the results.
struct Trabajo {
    Material mat{};
    bool DEFCOR = false;
    long nJuntas = 0;
    std::vector<Restriccion> rest; // 1..NJRest
    Arreglo<double> IBarra;
    Arreglo<double> ABarra;
    std::vector<FuerzasExtremos> fe; // stored fixed-end forces, MI and MJ as MFI = -MI, MFJ
};

// Steps 3, 4 and 9: joints after displacement, bar ends, lengths and direction cosines.
void Geometria(const VigaActual& v, ResultadosViga& r) {
    const long nj = r.NJuntas;
    r.XJunta(1) = 0;
    for (long t = 2; t <= nj; ++t) r.XJunta(t) = r.XJunta(t - 1) + v.LT(t - 1);
    for (long k = 1; k <= v.NJDesp; ++k) {
        r.XJunta(v.R3(k)) += v.XX(k);
        r.YJunta(v.R3(k)) += v.YY(k);
    }
    for (long t = 1; t <= v.NT; ++t) {
        r.JuntaI(t) = Entero<std::int16_t>(t);
        r.JuntaJ(t) = Entero<std::int16_t>(t + 1);
        const double dX = r.XJunta(t + 1) - r.XJunta(t);
        const double dY = r.YJunta(t + 1) - r.YJunta(t);
        const double L = std::sqrt(Cuad(dX) + Cuad(dY));
        r.LBarra(t) = L;
        if (L > 0) {
            r.CosX(t) = dX / L;
            r.CosY(t) = dY / L;
        }
    }
}

// Step 8: inertia (m4) and area (m2) of every bar from its type.
void Secciones(const VigaActual& v, Trabajo& w) {
    Arreglo<double> ITipo(v.NTipos), ATipo(v.NTipos);
    for (long k = 1; k <= v.NTipos; ++k) {
        if (v.OpcionConcreto == 0) {
            ITipo(k) = Cubo(v.T1(k)) * v.B1(k) / 12;
            ATipo(k) = v.B1(k) * v.T1(k);
        } else {
            ITipo(k) = v.T1(k) * 1e-08;
            ATipo(k) = v.B1(k) * 0.0001;
        }
    }
    w.IBarra.Redim(v.NT);
    w.ABarra.Redim(v.NT);
    for (long t = 1; t <= v.NT; ++t) {
        const long tipo = CI(v.VT(t));
        w.IBarra(t) = ITipo(tipo);
        w.ABarra(t) = ATipo(tipo);
    }
}

// Shear deformation parameters of a bar: p = 0 without DEFCOR or without area.
struct Corte {
    double f;
    double a;
    double b;
};

Corte ParametrosCorte(const Trabajo& w, double I, double A, double L) {
    const Material& m = w.mat;
    double p = 0;
    if (w.DEFCOR && A > 0) p = Dividir(6 * m.E * I * m.CF, Cuad(L) * A * m.G);
    return {1 / (2 * p + 1), 1 - p, p / 2 + 1};
}

// Step 11 for bar t: its stiffness into the band and its fixed-end forces into the loads.
void Ensamblar(const ProyectoActual& proyecto, const VigaActual& v, const ResultadosViga& r, long t,
               Trabajo& w, SistemaBanda& sis) {
    const double L = r.LBarra(t);
    if (L == 0) throw ErrorTrevalo::DivisionPorCero();
    const double c = r.CosX(t), s = r.CosY(t), I = w.IBarra(t), A = w.ABarra(t);
    const double E = w.mat.E;
    const auto [f, a, b] = ParametrosCorte(w, I, A, L);
    const double k1 = Cuad(c) * A * E / L + Cuad(s) * 12 * E * I * f / Cubo(L);
    const double k2 = 12 * E * I * f * c * s / Cubo(L) - c * s * A * E / L;
    const double k3 = Cuad(s) * A * E / L + Cuad(c) * 12 * E * I * f / Cubo(L);
    const double k4 = 6 * E * I * f * s / Cuad(L);
    const double k5 = 6 * E * I * f * c / Cuad(L);
    const double k6 = 4 * E * I * f * b / L;
    const double k7 = 2 * E * I * f * a / L;
    // Upper half in global axes; the rotation is positive from +Y towards +X.
    const double K[6][6] = {{k1, -k2, k4, -k1, k2, k4}, {0, k3, -k5, k2, -k3, -k5},
                            {0, 0, k6, -k4, k5, k7},    {0, 0, 0, k1, -k2, -k4},
                            {0, 0, 0, 0, k3, k5},       {0, 0, 0, 0, 0, k6}};
    const long gi = 3 * r.JuntaI(t), gj = 3 * r.JuntaJ(t);
    const long g[6] = {gi - 2, gi - 1, gi, gj - 2, gj - 1, gj};
    for (int i = 0; i < 6; ++i)
        for (int j = i; j < 6; ++j) sis.S(g[j] + 1 - g[i], g[i]) += K[i][j];

    FuerzasExtremos fe;
    FuerzasEmpotramientoTramo(proyecto, v, Entero<std::int16_t>(t), L, s, c, fe);
    // Equivalent joint loads with their own sign: (NI, VI, -MI) at I, (NJ, VJ, MJ) at J.
    const double local[6] = {fe.NI, fe.VI, -fe.MI, fe.NJ, fe.VJ, fe.MJ};
    for (int e = 0; e < 6; e += 3) {
        sis.X(g[e]) += c * local[e] - s * local[e + 1];
        sis.X(g[e + 1]) += s * local[e] + c * local[e + 1];
        sis.X(g[e + 2]) += local[e + 2];
    }
    fe.MI = -fe.MI;
    w.fe[static_cast<std::size_t>(t)] = fe;
}

// Step 17: end forces of bar t from the displacements of its joints.
void FuerzasExtremo(long t, const Trabajo& w, ResultadosViga& r) {
    const double L = r.LBarra(t), c = r.CosX(t), s = r.CosY(t);
    const double I = w.IBarra(t), A = w.ABarra(t), E = w.mat.E;
    const auto [f, a, b] = ParametrosCorte(w, I, A, L);
    const long i = r.JuntaI(t), j = r.JuntaJ(t);
    const double u1 = c * r.DespX(i) + s * r.DespY(i);
    const double v1 = -s * r.DespX(i) + c * r.DespY(i);
    const double r1 = r.GiroZ(i);
    const double u2 = c * r.DespX(j) + s * r.DespY(j);
    const double v2 = -s * r.DespX(j) + c * r.DespY(j);
    const double r2 = r.GiroZ(j);
    const FuerzasExtremos& fe = w.fe[static_cast<std::size_t>(t)];

    r.AxiI(t) = E * A * (u2 - u1) / L + fe.NI;
    r.MomI(t) = E * I *
                    (6 * f * v1 / Cuad(L) - 4 * f * b * r1 / L - 6 * f * v2 / Cuad(L) -
                     2 * f * a * r2 / L) +
                fe.MI;
    const double TI = E * I *
                      (12 * f * v1 / Cubo(L) - 6 * f * r1 / Cuad(L) - 12 * f * v2 / Cubo(L) -
                       6 * f * r2 / Cuad(L));
    r.CorI(t) = -TI + fe.VI;

    r.AxiJ(t) = E * A * (u2 - u1) / L - fe.NJ;
    r.MomJ(t) = E * I *
                    (-6 * f * v1 / Cuad(L) + 2 * f * a * r1 / L + 6 * f * v2 / Cuad(L) +
                     4 * f * b * r2 / L) -
                fe.MJ;
    const double TJ = E * I *
                      (-12 * f * v1 / Cubo(L) + 6 * f * r1 / Cuad(L) + 12 * f * v2 / Cubo(L) +
                       6 * f * r2 / Cuad(L));
    r.CorJ(t) = -TJ + fe.VJ;
}

// Step 18. The signs of the spring pass differ from those of the restraint pass in the
// axial terms, and a horizontal joint action reaches a spring's reaction only when its
// stiffness is exactly 1.0: both kept, users rely on the reactions as they always were.
void Reacciones(const VigaActual& v, const Trabajo& w, ResultadosViga& r) {
    const IndicePorJunta rest = Indexar(v.R1, v.NJRest, w.nJuntas);
    for (long t = 1; t <= v.NT; ++t) {
        const long i = r.JuntaI(t), j = r.JuntaJ(t);
        ParaCadaEntrada(rest, i, [&](long k) {
            const Restriccion& R = w.rest[static_cast<std::size_t>(k)];
            if (R.Y) r.ReacV(i) += r.AxiI(t) * r.CosY(t) + r.CorI(t) * r.CosX(t);
            if (R.X) r.ReacH(i) += r.AxiI(t) * r.CosX(t) - r.CorI(t) * r.CosY(t);
            if (R.Z) r.ReacM(i) -= r.MomI(t);
        });
        ParaCadaEntrada(rest, j, [&](long k) {
            const Restriccion& R = w.rest[static_cast<std::size_t>(k)];
            if (R.Y) r.ReacV(j) += -r.AxiJ(t) * r.CosY(t) + r.CorJ(t) * r.CosX(t);
            if (R.X) r.ReacH(j) += -r.AxiJ(t) * r.CosX(t) - r.CorJ(t) * r.CosY(t);
            if (R.Z) r.ReacM(j) += r.MomJ(t);
        });
    }
    for (long ac = 1; ac <= v.NAcc; ++ac) {
        const long n = v.R2(ac);
        ParaCadaEntrada(rest, n, [&](long k) {
            const Restriccion& R = w.rest[static_cast<std::size_t>(k)];
            if (R.Y) r.ReacV(n) += v.QC2(ac);
            if (R.X) r.ReacH(n) -= v.QC3(ac);
        });
    }
    if (v.NJRes <= 0) return;
    const IndicePorJunta res = Indexar(v.R10, v.NJRes, w.nJuntas);
    for (long t = 1; t <= v.NT; ++t) {
        const long i = r.JuntaI(t), j = r.JuntaJ(t);
        ParaCadaEntrada(res, i, [&](long k) {
            if (v.SV10(k) > 0) r.ReacV(i) += -r.AxiI(t) * r.CosY(t) + r.CorI(t) * r.CosX(t);
            if (v.SH10(k) > 0) r.ReacH(i) += -r.AxiI(t) * r.CosX(t) - r.CorI(t) * r.CosY(t);
            if (v.SM10(k) > 0) r.ReacM(i) -= r.MomI(t);
        });
        ParaCadaEntrada(res, j, [&](long k) {
            if (v.SV10(k) > 0) r.ReacV(j) += r.AxiJ(t) * r.CosY(t) + r.CorJ(t) * r.CosX(t);
            if (v.SH10(k) > 0) r.ReacH(j) += r.AxiJ(t) * r.CosX(t) - r.CorJ(t) * r.CosY(t);
            if (v.SM10(k) > 0) r.ReacM(j) += r.MomJ(t);
        });
    }
    for (long ac = 1; ac <= v.NAcc; ++ac) {
        const long n = v.R2(ac);
        ParaCadaEntrada(res, n, [&](long k) {
            if (v.SV10(k) > 0) r.ReacV(n) += v.QC2(ac);
            if (v.SH10(k) == 1.0) r.ReacH(n) -= v.QC3(ac);
        });
    }
}

void DimensionarResultados(long nt, ResultadosViga& r) {
    const long nj = r.NJuntas;
    for (Arreglo<double>* a :
         {&r.XJunta, &r.YJunta, &r.DespX, &r.DespY, &r.GiroZ, &r.ReacV, &r.ReacH, &r.ReacM})
        a->Redim(nj);
    for (Arreglo<double>* a :
         {&r.LBarra, &r.CosX, &r.CosY, &r.AxiI, &r.AxiJ, &r.CorI, &r.CorJ, &r.MomI, &r.MomJ})
        a->Redim(nt);
    r.JuntaI.Redim(nt);
    r.JuntaJ.Redim(nt);
}

void VerificarFinitos(const ResultadosViga& r) {
    for (const Arreglo<double>* a :
         {&r.XJunta, &r.YJunta, &r.DespX, &r.DespY, &r.GiroZ, &r.ReacV, &r.ReacH, &r.ReacM,
          &r.LBarra, &r.CosX, &r.CosY, &r.AxiI, &r.AxiJ, &r.CorI, &r.CorJ, &r.MomI, &r.MomJ})
        for (long i = 1; i <= a->Ubound(); ++i)
            if (!std::isfinite((*a)(i))) throw ErrorTrevalo::Desbordamiento();
}

// Every value the solve reads is a finite number: a NaN or an infinity from a file stops here
// with error 6 instead of spreading through the system.
void VerificarEntradas(const ProyectoActual& p, const VigaActual& v) {
    const auto finito = [](double x) {
        if (!std::isfinite(x)) throw ErrorTrevalo::Desbordamiento();
    };
    for (double x :
         {p.FC, p.ModuloAcero, p.PesoConcreto, p.PesoAcero, p.CFormaConcreto, p.CFormaAcero})
        finito(x);
    for (const Arreglo<double>* a : {&v.LT, &v.VT, &v.XX, &v.YY, &v.B1, &v.T1, &v.SH10, &v.SV10,
                                     &v.SM10, &v.QC1, &v.QC2, &v.QC3, &v.la5})
        for (long i = 1; i <= a->Ubound(); ++i) finito((*a)(i));
    for (const Arreglo2<double>* a :
         {&v.LP, &v.La3_, &v.Lb3_, &v.La6_, &v.Lb6_, &v.La7_, &v.Lb7_, &v.La8_, &v.Lb8_})
        for (long i = 1; i <= a->Ubound1(); ++i)
            for (long j = 1; j <= a->Ubound2(); ++j) finito((*a)(i, j));
}

// Every joint number of the lists lies within the joints; checked before any use.
void VerificarListas(const VigaActual& v, long nj) {
    for (long k = 1; k <= v.NJRest; ++k) VerificarJunta(v.R1(k), nj);
    for (long k = 1; k <= v.NJRes; ++k) VerificarJunta(v.R10(k), nj);
    for (long k = 1; k <= v.NAcc; ++k) VerificarJunta(v.R2(k), nj);
}

void Analizar(const ProyectoActual& p, const VigaActual& v, ResultadosViga& r,
              ResolvedorBanda resolver) {
    // A beam without spans has no bars to solve; its joints would be sized from nothing.
    if (v.NT < 1) throw ErrorTrevalo::SubindiceFueraDeIntervalo();
    VerificarEntradas(p, v);
    Trabajo w;
    w.mat = ConstantesMaterial(p, v);
    w.DEFCOR = p.DEFCOR;
    w.nJuntas = v.NT + 1;
    r.NJuntas = Entero<std::int16_t>(w.nJuntas);
    DimensionarResultados(v.NT, r);
    Geometria(v, r);
    VerificarListas(v, w.nJuntas);

    w.rest.resize(static_cast<std::size_t>(std::max<long>(v.NJRest, 0)) + 1);
    for (long k = 1; k <= v.NJRest; ++k)
        w.rest[static_cast<std::size_t>(k)] = RestriccionDeApoyo(v.Apoyo(k));
    Secciones(v, w);

    // A chain of bars couples each joint with the next one only: a band of 6 holds every
    // non-zero term of the stiffness.
    const long neq = 3 * w.nJuntas;
    SistemaBanda sis(neq, 6);
    w.fe.resize(static_cast<std::size_t>(v.NT) + 1);
    for (long t = 1; t <= v.NT; ++t) Ensamblar(p, v, r, t, w, sis);
    for (long k = 1; k <= v.NAcc; ++k) {
        const long n = v.R2(k);
        sis.X(3 * n) -= v.QC1(k);
        sis.X(3 * n - 1) += v.QC2(k);
        sis.X(3 * n - 2) -= v.QC3(k);
    }
    // Supports by a penalty on the diagonal: no row or column is cleared.
    for (long k = 1; k <= v.NJRest; ++k) {
        const Restriccion& R = w.rest[static_cast<std::size_t>(k)];
        const long n = v.R1(k);
        if (R.X) sis.S(1, 3 * n - 2) += 1e+20;
        if (R.Y) sis.S(1, 3 * n - 1) += 1e+20;
        if (R.Z) sis.S(1, 3 * n) += 1e+20;
    }
    for (long k = 1; k <= v.NJRes; ++k) {
        const long n = v.R10(k);
        sis.S(1, 3 * n - 2) += v.SH10(k);
        sis.S(1, 3 * n - 1) += v.SV10(k);
        sis.S(1, 3 * n) += v.SM10(k);
    }
    resolver(sis);
    // The residue of the penalty goes: a restrained degree reads exactly zero.
    for (long e = 1; e <= neq; ++e)
        if (std::fabs(sis.X(e)) < 1e-10) sis.X(e) = 0.0;
    for (long n = 1; n <= w.nJuntas; ++n) {
        r.DespX(n) = sis.X(3 * n - 2);
        r.DespY(n) = sis.X(3 * n - 1);
        r.GiroZ(n) = sis.X(3 * n);
    }
    for (long t = 1; t <= v.NT; ++t) FuerzasExtremo(t, w, r);
    Reacciones(v, w, r);
    VerificarFinitos(r);
}

} // namespace

void AnalizarViga(const LectorProyecto& leerProyecto, ProyectoActual& proyecto,
                  const VigaActual& viga, ResultadosViga& resultados, ResolvedorBanda resolver) {
    try {
        if (leerProyecto) leerProyecto(proyecto);
        Analizar(proyecto, viga, resultados, resolver);
    } catch (...) {
        LimpiarResultados(resultados);
        throw;
    }
}

void AnalizarViga(const LectorProyecto& leerProyecto, ProyectoActual& proyecto,
                  const VigaActual& viga, ResultadosViga& resultados) {
    AnalizarViga(leerProyecto, proyecto, viga, resultados, ResolverBanda);
}

} // namespace trevalo
