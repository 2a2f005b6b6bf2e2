#pragma once
// The one in-memory model: the settings of the open project, the current beam and the
// results of its last solve. Field names are those of the project file's columns.
//
// Units: metres, kgf, kgf-m, kgf/cm2 for strengths and moduli, kgf/m3 for unit weights;
// springs in kgf/m and kgf-m/rad. Loads are whole kilograms. Y is positive in the
// direction of gravity; a positive rotation carries +Y towards +X.

#include <cstdint>
#include <string>

#include "model/Arreglo.h"

namespace trevalo {

// Settings of the project: the single row of GeneralProyecto.
struct ProyectoActual {
    std::string Proyecto;
    std::string Propietario;
    std::string ProyFecha; // "dd/MM/yyyy"
    std::string Calculista;
    std::string Comentario;
    std::string Cliente;
    bool PPV = true;     // own weight folded into the uniform load
    bool DEFCOR = false; // shear deformation in the stiffness
    double FC = 250;     // kgf/cm2
    double FY = 4200;    // kgf/cm2
    double D8 = 0.05;    // m, face to centroid of the steel
    double PesoConcreto = 2500;
    double CFormaConcreto = 0;
    double ModuloAcero = 2100000;
    double PesoAcero = 7850;
    double CFormaAcero = 0;
    bool OpcionEstribos = false;
};

// Supports: label and restrained directions of each kind.
enum Apoyos : std::int16_t {
    ApoyoFijo = 1,
    RodilloEnX = 2,
    RodilloEnY = 3,
    Empotramiento = 4,
};

inline constexpr long MaxCargas10 = 10; // point loads and partial uniform loads per span
inline constexpr long MaxCargas5 = 5;   // kinds 6, 7 and 8 per span

struct VigaActual {
    // Header (GeneralViga).
    std::string NombreVigaActual;
    bool VigaNueva = false;
    std::int16_t NT = 0;
    std::uint8_t OpcionConcreto = 0; // 0 concrete; any other value steel
    std::uint8_t OpcionCarga = 0;    // stored only
    double FMayoracion = 1.5;
    double FMayoracionTC = 0; // stored only
    double LongTotal = 0;     // not stored

    // Spans, 1..NT.
    Arreglo<double> LT;
    Arreglo<double> VT; // beam type, rounded ties to even at every use
    Arreglo<double> FMayorTramo;
    Arreglo<bool> TramoMarcado;

    // Joints, 1..NT+1.
    Arreglo<std::string> NombreEje;
    Arreglo<double> LDer;
    Arreglo<double> LIzq;
    Arreglo<double> HC;

    // Displaced joints, 1..NJDesp, ordered by R3.
    std::int16_t NJDesp = 0;
    Arreglo<std::int16_t> R3;
    Arreglo<double> XX;
    Arreglo<double> YY;

    // Restrained joints, 1..NJRest, ordered by R1.
    std::int16_t NJRest = 0;
    Arreglo<std::int16_t> R1;
    Arreglo<std::int16_t> Apoyo;

    // Spring joints, 1..NJRes, ordered by R10.
    std::int16_t NJRes = 0;
    Arreglo<std::int16_t> R10;
    Arreglo<double> SH10;
    Arreglo<double> SV10;
    Arreglo<double> SM10;

    // Beam types, 1..NTipos, ordered by Tipo. Concrete: B1 width and T1 depth in metres.
    // Steel: B1 area in cm2 and T1 inertia in cm4.
    std::int16_t NTipos = 0;
    Arreglo<double> B1;
    Arreglo<double> T1;
    Arreglo<std::string> Designacion;

    // Loads per span (1..NT); slots of kinds 2 and 3 are 1..10, of kinds 6 to 8 1..5.
    Arreglo<std::int32_t> W1;
    Arreglo<std::uint8_t> Gravedad; // 0 vertical, 1 perpendicular to the span
    Arreglo<std::int16_t> CantW2;
    Arreglo2<std::int32_t> P;
    Arreglo2<double> LP;
    Arreglo<std::int16_t> CantW3;
    Arreglo2<std::int32_t> W3_;
    Arreglo2<double> La3_;
    Arreglo2<double> Lb3_;
    Arreglo<std::int32_t> W4;
    Arreglo<std::int32_t> W5;
    Arreglo<double> la5;
    Arreglo<std::int16_t> CantW6;
    Arreglo2<std::int32_t> W6_;
    Arreglo2<double> La6_;
    Arreglo2<double> Lb6_;
    Arreglo<std::int16_t> CantW7;
    Arreglo2<std::int32_t> W7_;
    Arreglo2<double> La7_;
    Arreglo2<double> Lb7_;
    Arreglo<std::int16_t> CantW8;
    Arreglo2<std::int32_t> WIzq8_;
    Arreglo2<std::int32_t> WDer8_;
    Arreglo2<double> La8_;
    Arreglo2<double> Lb8_;

    // Joint actions, 1..NAcc, ordered by R2. QC1 moment (clockwise positive), QC2 vertical
    // (with gravity positive), QC3 horizontal (towards decreasing X positive).
    std::int16_t NAcc = 0;
    Arreglo<std::int16_t> R2;
    Arreglo<double> QC1;
    Arreglo<double> QC2;
    Arreglo<double> QC3;

    bool operator==(const VigaActual&) const = default;
};

// Results of the last solve, service values. Resized and zeroed at every solve.
struct ResultadosViga {
    std::int16_t NJuntas = 0;
    Arreglo<double> XJunta;
    Arreglo<double> YJunta;
    Arreglo<std::int16_t> JuntaI;
    Arreglo<std::int16_t> JuntaJ;
    Arreglo<double> LBarra;
    Arreglo<double> CosX;
    Arreglo<double> CosY;
    Arreglo<double> DespX;
    Arreglo<double> DespY;
    Arreglo<double> GiroZ;
    Arreglo<double> AxiI;
    Arreglo<double> AxiJ;
    Arreglo<double> CorI;
    Arreglo<double> CorJ;
    Arreglo<double> MomI; // sagging positive at both ends
    Arreglo<double> MomJ;
    Arreglo<double> ReacV; // upward positive
    Arreglo<double> ReacH;
    Arreglo<double> ReacM;
};

// The default beam of a new name: one span of 4 m, type 0.3 x 0.5, two fixed supports.
void NuevaVigaDefecto(VigaActual& viga);

// Empties the beam but keeps NT (types, spans, joints and loads cleared).
void ReiniciarArreglosViga(VigaActual& viga);

// Follows a change of NT: span arrays to NT, joint arrays to NT + 1, keeping the slots that
// remain; new slots are zero or empty and TramoMarcado is cleared whole. The lists of
// restraints, springs, displaced joints and joint actions are not touched.
void RedimensionarViga(VigaActual& viga);

// Removes every span load of spans 1..NT (the eight kinds, their counts and positions).
void EliminarCargas(VigaActual& viga);

// Empties the results: every list of zero length and NJuntas = 0.
void LimpiarResultados(ResultadosViga& resultados);

} // namespace trevalo
