#pragma once
// A fresh temporary folder for one test, removed with everything in it at the end, and small
// helpers to write and read whole files.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <stdlib.h>

class CarpetaPrueba {
  public:
    CarpetaPrueba() {
        std::string plantilla =
            (std::filesystem::temp_directory_path() / "trevalo_XXXXXX").string();
        if (::mkdtemp(plantilla.data()) == nullptr) throw std::runtime_error("mkdtemp");
        ruta_ = plantilla;
    }
    ~CarpetaPrueba() {
        std::error_code ec;
        std::filesystem::remove_all(ruta_, ec);
    }
    CarpetaPrueba(const CarpetaPrueba&) = delete;
    CarpetaPrueba& operator=(const CarpetaPrueba&) = delete;

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
