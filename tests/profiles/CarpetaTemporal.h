#pragma once
// A fresh folder per test under the system's temporary folder, removed at the end.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <unistd.h>

namespace trevalo {

class CarpetaTemporal {
  public:
    CarpetaTemporal() {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        ruta_ = std::filesystem::temp_directory_path() /
                (std::string("trevalo_perfiles_") + std::to_string(::getpid()) + "_" +
                 info->test_suite_name() + "_" + info->name());
        std::filesystem::remove_all(ruta_);
        std::filesystem::create_directories(ruta_);
    }
    ~CarpetaTemporal() { std::filesystem::remove_all(ruta_); }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    std::string Ruta() const { return ruta_.string(); }
    std::string Archivo(const std::string& nombre) const { return (ruta_ / nombre).string(); }

  private:
    std::filesystem::path ruta_;
};

inline const std::string RutaPrograma = TREVALO_RUTA_PROGRAMA;

} // namespace trevalo
