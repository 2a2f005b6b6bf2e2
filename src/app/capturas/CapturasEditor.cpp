#include "app/capturas/Capturas.h"

#include <QLineEdit>
#include <QPushButton>
#include <QUndoStack>

#include "shell/ListaVigas.h"
#include "shell/VigaDatos.h"
#include "shell/VigasProyecto.h"

namespace trevalo {

namespace {

// The pages of an editor, from the first, each moved to with " Siguiente " as a person does.
void Paginas(VigaDatos& editor, const QString& prefijo) {
    editor.show();
    auto* siguiente = editor.findChild<QPushButton*>(QStringLiteral("Button2"));
    for (;;) {
        const int pagina = editor.Pagina();
        if (pagina == 7) // every span marked for loads, in its colour
            editor.findChild<QPushButton*>(QStringLiteral("SSCommand1"))->click();
        Guardar(editor, prefijo + QStringLiteral("_pagina%1").arg(pagina));
        if (!siguiente->isEnabled()) break;
        siguiente->click();
    }
    editor.hide();
}

} // namespace

void CapturasEditor(Programa& programa, VigasProyecto& ventana) {
    {
        VigaDatos editor(programa, &ventana.Lista(), &ventana);
        Paginas(editor, QStringLiteral("06_editor_concreto"));
    }
    {
        // One span more: the undo button of the toolbar turns on; then undone.
        VigaDatos editor(programa, &ventana.Lista(), &ventana);
        editor.show();
        QLineEdit& tramos = editor.Long(1);
        tramos.setText(QString::number(programa.Viga.NT + 1));
        emit tramos.textEdited(tramos.text());
        emit tramos.returnPressed();
        Guardar(editor, QStringLiteral("06_editor_deshacer"));
        editor.Historia().undo();
        editor.hide();
    }
    VigaActual& viga = programa.Viga;
    viga.OpcionConcreto = 1;
    viga.NTipos = 2;
    viga.B1.Redim(2);
    viga.T1.Redim(2);
    viga.Designacion.Redim(2);
    viga.Designacion(1) = "IPE 300";
    viga.B1(1) = 53.8;
    viga.T1(1) = 8356;
    viga.Designacion(2) = "IPE 360";
    viga.B1(2) = 72.7;
    viga.T1(2) = 16270;
    for (long t = 1; t <= viga.NT; ++t) viga.VT(t) = t % 2 == 0 ? 2 : 1;
    {
        VigaDatos editor(programa, &ventana.Lista(), &ventana);
        Paginas(editor, QStringLiteral("06_editor_metalica"));
    }
    programa.Vista.ModoEditor = false;
}

} // namespace trevalo
