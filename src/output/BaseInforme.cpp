#include "output/BaseInforme.h"

#include "platform/motor/MotorDatos.h"

namespace trevalo {

namespace {

std::string Texto(const Valor& v) {
    return v.EsNulo() ? std::string() : v.Texto();
}
double Numero(const Valor& v) {
    return v.EsNulo() ? 0.0 : v.Doble();
}

} // namespace

ContenidoInforme LeerBaseInforme(const std::string& ruta) {
    auto bd = BaseDatos::Abrir(ruta);
    ContenidoInforme contenido;
    auto g = bd.AbrirRecordset("SELECT * FROM Generales");
    if (!g.AlFinal()) {
        auto& f = contenido.Generales;
        f.Usuario = Texto(g.Campo("Usuario"));
        f.Version = Texto(g.Campo("Version"));
        f.TiTulo = Texto(g.Campo("TiTulo"));
        f.Proyecto = Texto(g.Campo("Proyecto"));
        f.Propietario = Texto(g.Campo("Propietario"));
        f.Calculista = Texto(g.Campo("Calculista"));
        f.FC = Numero(g.Campo("FC"));
        f.FY = Numero(g.Campo("FY"));
        f.D8 = Numero(g.Campo("D8"));
    }
    // The report is in Numero order whatever order the rows were stored in.
    auto s = bd.AbrirRecordset("SELECT Numero, Grafico FROM Graficos ORDER BY Numero");
    for (; !s.AlFinal(); s.MoveNext()) {
        const auto& grafico = s.Campo("Grafico");
        contenido.Graficos.push_back({s.Campo("Numero").Entero16(),
                                      grafico.EsNulo() ? Valor::Binario{} : grafico.Bytes(),
                                      nullptr});
    }
    return contenido;
}

struct EscrituraBaseInforme::Estado {
    explicit Estado(const std::string& ruta) : bd(BaseDatos::Abrir(ruta)), transaccion(bd) {}
    BaseDatos bd;
    Transaccion transaccion;
};

EscrituraBaseInforme::EscrituraBaseInforme(const std::string& ruta)
    : estado_(std::make_unique<Estado>(ruta)) {}

EscrituraBaseInforme::~EscrituraBaseInforme() = default;

void EscrituraBaseInforme::EscribirGenerales(const FilaGenerales& f) {
    estado_->bd.Ejecutar("DELETE FROM Generales");
    estado_->bd.Ejecutar("INSERT INTO Generales (Usuario, Version, TiTulo, Proyecto, "
                         "Propietario, Calculista, FC, FY, D8) VALUES (?,?,?,?,?,?,?,?,?)",
                         {f.Usuario, f.Version, f.TiTulo, f.Proyecto, f.Propietario, f.Calculista,
                          f.FC, f.FY, f.D8});
}

void EscrituraBaseInforme::VaciarGraficos() {
    estado_->bd.Ejecutar("DELETE FROM Graficos");
}

void EscrituraBaseInforme::AgregarGrafico(std::int16_t numero,
                                          const std::vector<std::uint8_t>& png) {
    // An empty picture leaves the field empty, as a bitmap file of no length did.
    estado_->bd.Ejecutar("INSERT INTO Graficos (Numero, Grafico) VALUES (?, ?)",
                         {numero, png.empty() ? Valor() : Valor(png)});
}

void EscrituraBaseInforme::Confirmar() {
    estado_->transaccion.Confirmar();
}

} // namespace trevalo
