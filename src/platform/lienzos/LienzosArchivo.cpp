#include "platform/lienzos/LienzosArchivo.h"

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <cmath>

#include "model/Errores.h"

namespace trevalo {

namespace {

ErrorTrevalo ErrorAcceso() {
    return ErrorTrevalo(ErrAccesoArchivo, "Error de acceso a la ruta o el archivo");
}

std::unique_ptr<QPaintDevice> DispositivoVectorial(const std::string& ruta, int ancho, int alto,
                                                   bool pdf) {
    const QString archivo = QString::fromStdString(ruta);
    if (pdf) {
        auto escritor = std::make_unique<QPdfWriter>(archivo);
        escritor->setResolution(96);
        escritor->setPageSize(
            QPageSize(QSizeF(ancho * 72.0 / 96.0, alto * 72.0 / 96.0), QPageSize::Point));
        escritor->setPageMargins(QMarginsF(0, 0, 0, 0));
        return escritor;
    }
    auto generador = std::make_unique<QSvgGenerator>();
    generador->setFileName(archivo);
    generador->setSize(QSize(ancho, alto));
    generador->setViewBox(QRect(0, 0, ancho, alto));
    generador->setResolution(96);
    return generador;
}

bool Termina(const std::string& ruta, const std::string& extension) {
    if (ruta.size() < extension.size()) return false;
    std::string cola = ruta.substr(ruta.size() - extension.size());
    for (auto& c : cola) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return cola == extension;
}

} // namespace

namespace detalle {

SuperficieImagen::SuperficieImagen(int ancho, int alto, double escala)
    : imagen(static_cast<int>(std::lround(ancho * escala)),
             static_cast<int>(std::lround(alto * escala)), QImage::Format_RGB32) {
    imagen.fill(Qt::white);
    painter.begin(&imagen);
    painter.scale(escala, escala);
}

SuperficieVectorial::SuperficieVectorial(const std::string& ruta, int ancho, int alto, bool pdf)
    : dispositivo(DispositivoVectorial(ruta, ancho, alto, pdf)) {
    if (!painter.begin(dispositivo.get())) throw ErrorAcceso();
}

} // namespace detalle

LienzoImagen::LienzoImagen(int ancho, int alto, double escala)
    : SuperficieImagen(ancho, alto, escala), LienzoQt(painter, ancho, alto, true) {}

void LienzoImagen::Guardar(const std::string& ruta) const {
    if (!imagen.save(QString::fromStdString(ruta), "PNG")) throw ErrorAcceso();
}

LienzoVectorial::LienzoVectorial(const std::string& ruta, int ancho, int alto, Formato formato)
    : SuperficieVectorial(ruta, ancho, alto, formato == Formato::Pdf),
      LienzoQt(painter, ancho, alto, false) {}

void LienzoVectorial::Terminar() {
    if (painter.isActive()) painter.end();
}

std::string PintarSvg(int ancho, int alto, const std::string& titulo,
                      const std::function<void(Lienzo&)>& pintar) {
    QBuffer buffer;
    QSvgGenerator generador;
    generador.setOutputDevice(&buffer);
    generador.setSize(QSize(ancho, alto));
    generador.setViewBox(QRect(0, 0, ancho, alto));
    generador.setResolution(96);
    generador.setTitle(QString::fromStdString(titulo));
    QPainter painter(&generador);
    LienzoQt lienzo(painter, ancho, alto, false);
    pintar(lienzo);
    painter.end();
    return buffer.data().toStdString();
}

void PintarEnArchivo(const std::string& ruta, int ancho, int alto,
                     const std::function<void(Lienzo&)>& pintar) {
    const bool pdf = Termina(ruta, ".pdf");
    if (pdf || Termina(ruta, ".svg")) {
        LienzoVectorial lienzo(ruta, ancho, alto,
                               pdf ? LienzoVectorial::Formato::Pdf : LienzoVectorial::Formato::Svg);
        pintar(lienzo);
        lienzo.Terminar();
        return;
    }
    LienzoImagen lienzo(ancho, alto);
    pintar(lienzo);
    lienzo.Guardar(ruta);
}

} // namespace trevalo
