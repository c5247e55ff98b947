#include "frame/reportes/richtextbox.h"

#include "frame/base/json.h"
#include "frame/base/textos.h"
#include "frame/controles/formulario.h"

namespace cuencalia {

void RichTextBox::Traer() {
    if (traer_) {
        traer_(editor_);
    }
}

const EditorTextoRico& RichTextBox::Leer() {
    Traer();
    return editor_;
}

EditorTextoRico& RichTextBox::Editor() {
    Traer();
    ++version_;
    Notificar();
    return editor_;
}

bool RichTextBox::Describir(EscritorJson& json) {
    const EditorTextoRico& editor = Leer();
    json.Clave("titulo").Texto(Forma().Caption()).Clave("texto").Texto(editor.Text()).Clave("alineacion").Abrir('[');
    for (const int alineacion : editor.Alineaciones()) {
        json.Entero(alineacion);
    }
    json.Cerrar(']');
    return true;
}

void RichTextBox::TeclaPorDefecto(int codigo, int caracter) {
    EditorTextoRico& editor = Editor();
    if (caracter == kTeclaEnter) {
        editor.SelText("\n");
    } else if (caracter == kTeclaRetroceso) {
        if (editor.SelLength() == 0 && editor.SelStart() > 0) {
            editor.SelStart(editor.SelStart() - 1);
            editor.SelLength(1);
        }
        editor.SelText("");
    } else if (caracter >= kTeclaEspacio) {
        editor.SelText(Chr(caracter));
    } else if (codigo == kTeclaInicio) {
        editor.SelStart(0);
    } else if (codigo == kTeclaFin) {
        editor.SelStart(editor.Longitud());
    }
}

}  // namespace cuencalia
