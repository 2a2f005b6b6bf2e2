#pragma once
// A fresh temporary folder for one test (mkdtemp, so tests that run side by side never
// share one), removed with everything in it at the end; whole files written and read; what a
// command prints.

#include <stdio.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>

namespace trevalo::prueba {

class CarpetaTemporal {
  public:
    CarpetaTemporal() {
        std::string plantilla =
            (std::filesystem::temp_directory_path() / "trevalo_XXXXXX").string();
        if (::mkdtemp(plantilla.data()) == nullptr) throw std::runtime_error("mkdtemp");
        ruta_ = plantilla;
    }
    ~CarpetaTemporal() {
        std::error_code ec;
        std::filesystem::remove_all(ruta_, ec);
    }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    std::string operator/(const std::string& relativa) const { return (ruta_ / relativa).string(); }
    std::string Ruta() const { return ruta_.string(); }

  private:
    std::filesystem::path ruta_;
};

inline void EscribirArchivo(const std::string& ruta, const std::string& contenido) {
    std::filesystem::create_directories(std::filesystem::path(ruta).parent_path());
    std::ofstream(ruta, std::ios::binary) << contenido;
}

inline std::string LeerArchivo(const std::string& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>());
}

// What a shell command prints on its standard output.
inline std::string SalidaOrden(const std::string& orden) {
    std::string r;
    const std::unique_ptr<FILE, int (*)(FILE*)> tubo(::popen(orden.c_str(), "r"), ::pclose);
    if (!tubo) return r;
    char bloque[4096];
    for (std::size_t n; (n = std::fread(bloque, 1, sizeof bloque, tubo.get())) > 0;)
        r.append(bloque, n);
    return r;
}

} // namespace trevalo::prueba
