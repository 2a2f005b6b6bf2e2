#include "output/BaseInforme.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>

#include "model/Errores.h"

namespace trevalo {

namespace {

// Runs an engine call, turning the engine's failure into the program's error.
template <typename F> auto ConMotor(F&& f) {
    try {
        return f();
    } catch (const SQLite::Exception& e) {
        throw ErrorTrevalo(e.getErrorCode(), e.what());
    }
}

std::string Texto(const SQLite::Column& c) {
    return c.isNull() ? std::string() : c.getString();
}
double Numero(const SQLite::Column& c) {
    return c.isNull() ? 0.0 : c.getDouble();
}

} // namespace

ContenidoInforme LeerBaseInforme(const std::string& ruta) {
    return ConMotor([&] {
        SQLite::Database bd(ruta, SQLite::OPEN_READONLY);
        ContenidoInforme contenido;
        SQLite::Statement g(bd, "SELECT Usuario, Version, TiTulo, Proyecto, Propietario, "
                                "Calculista, FC, FY, D8 FROM Generales");
        if (g.executeStep()) {
            auto& f = contenido.Generales;
            f.Usuario = Texto(g.getColumn(0));
            f.Version = Texto(g.getColumn(1));
            f.TiTulo = Texto(g.getColumn(2));
            f.Proyecto = Texto(g.getColumn(3));
            f.Propietario = Texto(g.getColumn(4));
            f.Calculista = Texto(g.getColumn(5));
            f.FC = Numero(g.getColumn(6));
            f.FY = Numero(g.getColumn(7));
            f.D8 = Numero(g.getColumn(8));
        }
        SQLite::Statement s(bd, "SELECT Numero, Grafico FROM Graficos");
        while (s.executeStep()) {
            GraficoInforme grafico;
            grafico.Numero = static_cast<std::int16_t>(s.getColumn(0).getInt());
            const auto columna = s.getColumn(1);
            const auto* datos = static_cast<const std::uint8_t*>(columna.getBlob());
            grafico.Grafico.assign(datos, datos + columna.getBytes());
            contenido.Graficos.push_back(std::move(grafico));
        }
        std::stable_sort(contenido.Graficos.begin(), contenido.Graficos.end(),
                         [](const auto& a, const auto& b) { return a.Numero < b.Numero; });
        return contenido;
    });
}

struct EscrituraBaseInforme::Estado {
    explicit Estado(const std::string& ruta)
        : bd(ruta, SQLite::OPEN_READWRITE), transaccion(bd),
          insertar(bd, "INSERT INTO Graficos (Numero, Grafico) VALUES (?, ?)") {}
    SQLite::Database bd;
    SQLite::Transaction transaccion;
    SQLite::Statement insertar;
};

EscrituraBaseInforme::EscrituraBaseInforme(const std::string& ruta)
    : estado_(ConMotor([&] { return std::make_unique<Estado>(ruta); })) {}

EscrituraBaseInforme::~EscrituraBaseInforme() = default;

void EscrituraBaseInforme::EscribirGenerales(const FilaGenerales& f) {
    ConMotor([&] {
        estado_->bd.exec("DELETE FROM Generales");
        SQLite::Statement s(estado_->bd,
                            "INSERT INTO Generales (Usuario, Version, TiTulo, Proyecto, "
                            "Propietario, Calculista, FC, FY, D8) VALUES (?,?,?,?,?,?,?,?,?)");
        s.bind(1, f.Usuario);
        s.bind(2, f.Version);
        s.bind(3, f.TiTulo);
        s.bind(4, f.Proyecto);
        s.bind(5, f.Propietario);
        s.bind(6, f.Calculista);
        s.bind(7, f.FC);
        s.bind(8, f.FY);
        s.bind(9, f.D8);
        s.exec();
    });
}

void EscrituraBaseInforme::VaciarGraficos() {
    ConMotor([&] { estado_->bd.exec("DELETE FROM Graficos"); });
}

void EscrituraBaseInforme::AgregarGrafico(std::int16_t numero,
                                          const std::vector<std::uint8_t>& png) {
    ConMotor([&] {
        auto& s = estado_->insertar;
        s.reset();
        s.bind(1, numero);
        // An empty picture leaves the field empty, as a bitmap file of no length did.
        if (png.empty())
            s.bind(2);
        else
            s.bind(2, png.data(), static_cast<int>(png.size()));
        s.exec();
    });
}

void EscrituraBaseInforme::Confirmar() {
    ConMotor([&] { estado_->transaccion.commit(); });
}

} // namespace trevalo
