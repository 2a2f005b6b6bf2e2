// The one GUI application object of the test program (fonts and painting need it), made
// before the first test and destroyed after the last.

#include <gtest/gtest.h>

#include <QGuiApplication>

#include <memory>

namespace {

class EntornoQt : public testing::Environment {
  public:
    void SetUp() override { app_ = std::make_unique<QGuiApplication>(argc_, argv_); }
    void TearDown() override { app_.reset(); }

  private:
    int argc_ = 1;
    char nombre_[16] = "pruebas_output";
    char* argv_[2] = {nombre_, nullptr};
    std::unique_ptr<QGuiApplication> app_;
};

[[maybe_unused]] testing::Environment* const entorno =
    testing::AddGlobalTestEnvironment(new EntornoQt);

} // namespace
