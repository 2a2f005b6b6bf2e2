#pragma once
// The program's help window: the topics of the help file with its contents, its index of
// keywords and a full-text search on the left, the topic on the right. It opens over the
// window in front and does not block it, so that the user can read while working.
//
// The help file (AyudaTrevalo.qch, in the program's folder) is registered in a collection
// kept in the data folder's "Trabajo", where the search index is written too.

#include <QUrl>
#include <QWidget>

class QHelpEngine;
class QTabWidget;
class QTextBrowser;

namespace trevalo {

class VentanaAyuda : public QWidget {
    Q_OBJECT

  public:
    // `archivo`: the help file; `coleccion`: the collection file to use (made if missing).
    VentanaAyuda(const QString& archivo, const QString& coleccion, QWidget* padre);

    // Shows the topic file `tema` ("MenuP.html"); an empty name shows the first topic.
    void MostrarTema(const QString& tema);
    // The address of the topic shown.
    QUrl Actual() const;
    // The address of a topic file in the help.
    static QUrl Direccion(const QString& tema);
    QHelpEngine& Motor() { return *motor_; }
    QTabWidget& Paneles() { return *paneles_; }

  private:
    void Mostrar(const QUrl& direccion);

    QHelpEngine* motor_;
    QTabWidget* paneles_;
    QTextBrowser* texto_;
};

} // namespace trevalo
