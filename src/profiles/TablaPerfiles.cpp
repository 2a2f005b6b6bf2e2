#include "profiles/TablaPerfiles.h"

#include <algorithm>
#include <cassert>
#include <filesystem>

#include "model/Errores.h"
#include "platform/motor/MotorDatos.h"
#include "profiles/Recorte.h"

namespace fs = std::filesystem;

namespace trevalo {

namespace {

// A numeric cell of the grid is never empty: a Null field reads as 0, as the grid shows it.
double Numero(const Valor& v) {
    return v.EsNulo() ? 0 : v.Doble();
}
std::string Texto(const Valor& v) {
    return v.EsNulo() ? std::string() : v.Texto();
}

// A field of a row read: a file of another family lacks one of the fields, and the message
// names it, so the user knows the file is not a table of this family.
const Valor& Leido(const Recordset& rs, const std::string& campo) {
    try {
        return rs.Campo(campo);
    } catch (const ErrorTrevalo& e) {
        if (e.Numero() != ErrNoEnColeccion) throw;
        throw ErrorTrevalo(ErrNoEnColeccion,
                           "La tabla no tiene el campo \"" + campo +
                               "\": no es una tabla de esta familia de perfiles.");
    }
}

} // namespace

double ValorCampo(FamiliaPerfil familia, const FilaPerfil& fila, const std::string& campo) {
    const auto& campos = Familia(familia).Campos;
    const auto i = std::find(campos.begin(), campos.end(), campo) - campos.begin();
    assert(i < static_cast<long>(campos.size()) && fila.Valores.size() == campos.size());
    return fila.Valores[static_cast<std::size_t>(i)];
}

TablaPerfiles LeerTablaPerfiles(const std::string& ruta, FamiliaPerfil familia) {
    BaseDatos bd = BaseDatos::Abrir(ruta);
    TablaPerfiles tabla;
    Recordset general = bd.AbrirRecordset("GeneralPerfil");
    if (!general.AlFinal()) {
        tabla.DescripcionTabla = Texto(general.Campo("DescripcionTabla"));
        const Valor& fy = general.Campo("ResistenciaFY");
        tabla.ResistenciaFY = fy.EsNulo() ? std::int16_t{0} : fy.Entero16();
    }
    general.Close();

    Recordset datos = bd.AbrirRecordset("SELECT * FROM DatosPerfil ORDER BY Numero");
    const DatosFamilia& f = Familia(familia);
    for (; !datos.AlFinal(); datos.MoveNext()) {
        FilaPerfil fila;
        fila.Numero = Leido(datos, "Numero").Entero16();
        fila.Designacion = Texto(Leido(datos, "Designacion"));
        for (const auto& campo : f.Campos) fila.Valores.push_back(Numero(Leido(datos, campo)));
        tabla.Filas.push_back(std::move(fila));
    }
    return tabla;
}

bool SalvarTablaPerfiles(const std::string& ruta, FamiliaPerfil familia,
                         const TablaPerfiles& tabla) {
    const std::string descripcion = Recortar(tabla.DescripcionTabla);
    if (descripcion.empty()) return false;
    const DatosFamilia& f = Familia(familia);
    BaseDatos bd = BaseDatos::Abrir(ruta);
    Transaccion transaccion(bd);

    bd.Ejecutar("DELETE FROM GeneralPerfil");
    Recordset general = bd.AbrirRecordset("GeneralPerfil");
    general.AddNew();
    general.Campo("DescripcionTabla", descripcion);
    general.Campo("ResistenciaFY", tabla.ResistenciaFY);
    general.Update();
    general.Close();

    bd.Ejecutar("DELETE FROM DatosPerfil");
    Recordset datos = bd.AbrirRecordset("DatosPerfil");
    long numero = 0;
    for (const FilaPerfil& fila : tabla.Filas) {
        assert(fila.Valores.size() == f.Campos.size());
        datos.AddNew();
        datos.Campo("Numero", Valor(std::int64_t{++numero}).Entero16());
        datos.Campo("Designacion", Recortar(fila.Designacion));
        for (std::size_t i = 0; i < f.Campos.size(); ++i) datos.Campo(f.Campos[i], fila.Valores[i]);
        datos.Update();
    }
    datos.Close();
    transaccion.Confirmar();
    return true;
}

void CrearTablaPerfiles(const std::string& rutaPrograma, FamiliaPerfil familia,
                        const std::string& ruta) {
    const fs::path plantilla = fs::path(rutaPrograma) / "Imagen" / Familia(familia).Plantilla;
    std::error_code ec;
    fs::copy_file(plantilla, ruta, fs::copy_options::overwrite_existing, ec);
    if (ec) throw ErrorTrevalo(ErrArchivoNoEncontrado, "No se encontró el archivo");
}

std::string RutaTablaNueva(const std::string& rutaPerfiles, FamiliaPerfil familia,
                           const std::string& tituloDialogo) {
    return rutaPerfiles + "/" + TituloConPrefijo(familia, tituloDialogo);
}

std::string MensajeTablaExiste(const std::string& titulo) {
    return "La Tabla: \"" + titulo + "\" Ya Existe en el Programa...      \n" +
           "Desea Reemplazarla?      ";
}

std::vector<std::string> TablasDeFamilia(const std::string& carpeta, FamiliaPerfil familia) {
    std::vector<std::string> nombres;
    std::error_code ec;
    for (fs::directory_iterator it(carpeta, ec), fin; !ec && it != fin; it.increment(ec))
        if (it->is_regular_file(ec) && CoincidePatron(familia, it->path().filename().string()))
            nombres.push_back(it->path().filename().string());
    std::sort(nombres.begin(), nombres.end());
    return nombres;
}

} // namespace trevalo
