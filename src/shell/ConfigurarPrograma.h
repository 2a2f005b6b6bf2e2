#pragma once
// The program's settings: the wallpaper of the main window (picture, alignment, fitting) and
// the look of the tool tips of every window (font size, colours, centred, traditional). The
// tool tip tab shows a sample that follows every change at once. "Aceptar" asks, writes the
// ten records of Tapiz.kvl and sets the program-wide values; the main window then places the
// new wallpaper (Imagen()). Windows already open keep their tool tips; each window takes the
// look when it opens.
//
// "Cancelar" leaves the settings, but for the font size of the tool tips, which every change
// of the size list sets for the rest of the run.

#include <QDialog>
#include <QPixmap>
#include <memory>

#include "shell/Programa.h"

class QButtonGroup;
class QLabel;

namespace Ui {
class ConfigurarPrograma;
}

namespace trevalo {

class ToolTipTrevalo;

class ConfigurarPrograma : public QDialog {
    Q_OBJECT

  public:
    ConfigurarPrograma(Programa& programa, QWidget* padre = nullptr);
    ~ConfigurarPrograma() override;

    // The picture of the wallpaper as accepted (empty when none could be loaded).
    const QPixmap& Imagen() const { return imagen_; }
    // The path shown by the dialog (TapizNuevo).
    const QString& TapizNuevo() const { return tapizNuevo_; }
    // The design size of the preview; the preview is the picture fitted into it.
    static QSize TamanoVista();
    ToolTipTrevalo& ToolTip() { return *toolTip_; }

  private:
    void ColoqueTapiz();
    void ConfiguraToolTip();
    void AbrirToolTipC();
    void Abrir();
    void PonerImagen(const QPixmap& imagen);
    void ElegirColor(QLabel* etiqueta);
    void PonerColor(QLabel* etiqueta, std::int32_t color);
    void ValoresPorDefecto();
    void Aceptar();
    ConfiguracionTapiz Valores() const;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

    Programa& programa_;
    std::unique_ptr<Ui::ConfigurarPrograma> ui_;
    ToolTipTrevalo* toolTip_;
    QButtonGroup* vertical_; // the options by TapizVertical
    QButtonGroup* horizontal_;
    QPixmap imagen_;
    QString tapizNuevo_;
    QString carpetaDialogo_;
    std::uint8_t efecto_ = 0;
    bool cargando_ = false;
};

} // namespace trevalo
