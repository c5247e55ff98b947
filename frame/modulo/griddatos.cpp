#include "frame/modulo/griddatos.h"

#include <algorithm>
#include <utility>

#include "frame/base/textos.h"
#include "frame/controles/aplicacion.h"

namespace cuencalia {

namespace {

constexpr int kAnchoEtiqueta = 700;
constexpr int kAnchoDatos = 1800;
constexpr int kAltoEncabezado = 340;
constexpr const char* kMarcaEspera = "[?]";
constexpr const char* kMarcaEntrada = "[->]";
constexpr const char* kComoSeDigita = "Para introducir o modificar datos, digitarlos y luego presionar ENTER";

}  // namespace

std::string EtiquetaNumero(int fila) { return Str(fila); }

GridDatos::GridDatos(Formulario& forma, StatusBar& estado, DescripcionGrid descripcion)
    : lbl1(forma, "lbl1", descripcion.titulo, Papel::Encabezado),
      grdt(forma, "grdt", descripcion.titulo),
      txtt(forma, "txtt", "Dato de la celda"),
      Label2(forma, "Label2", "Nota:", Papel::Nota),
      Label1(forma, "Label1", "Una vez que digite el dato, presionar ENTER", Papel::Nota),
      mnuEdicion(forma, "mnuEdicion", "Edición", false),
      mnuEditInsertar(mnuEdicion, "mnuEditInsertar", "Insertar Fila"),
      mnuEditraya1(mnuEdicion, "mnuEditraya1", "-"),
      mnuEditEliminar(mnuEdicion, "mnuEditEliminar", "Eliminar Fila"),
      app_(forma.App()),
      descripcion_(std::move(descripcion)) {
    txtt.FlotarSobre(grdt);
    txtt.Visible = false;

    grdt.GotFocus.Conectar([this] { grdt_GotFocus(); });
    grdt.KeyDown.Conectar([this](int codigo) {
        if (codigo == kTeclaF2) {
            GridEdit(kTeclaEspacio);
        }
    });
    grdt.KeyPress.Conectar([this](int& keyAscii) { grdt_KeyPress(keyAscii); });
    grdt.LeaveCell.Conectar([this] { OcultarEdicion(); });
    grdt.Scroll.Conectar([this] { OcultarEdicion(); });
    grdt.RowColChange.Conectar([this] { CambioFilaGrid(); });
    grdt.MouseDown.Conectar([this](int boton) { grdt_MouseDown(boton); });
    txtt.GotFocus.Conectar([&estado] { estado.PonerPanel(1, kComoSeDigita); });
    txtt.LostFocus.Conectar([&estado] { estado.PonerPanel(1, ""); });
    txtt.KeyDown.Conectar([this](int codigo) { txtt_KeyDown(codigo); });
    txtt.KeyPress.Conectar([](int& keyAscii) { keyAscii = keyAscii == kTeclaEnter ? 0 : keyAscii; });
    mnuEditInsertar.Click.Conectar([this] { InsertarFila(); });
    mnuEditEliminar.Click.Conectar([this] { EliminarFila(); });
}

void GridDatos::IniciarGrid() {
    grdt.Clear();
    grdt.PonerRows(2);
    grdt.PonerCols(UltimaColumna() + 1);
    grdt.PonerFixedRows(1);
    grdt.PonerFixedCols(1);
    for (int c = 0; c <= UltimaColumna(); ++c) {
        const auto k = static_cast<std::size_t>(c);
        const int porOmision = c == 0 ? kAnchoEtiqueta : kAnchoDatos;
        grdt.PonerColWidth(c, k < descripcion_.anchos.size() ? descripcion_.anchos[k] : porOmision);
        grdt.PonerColAlignment(c, kAlinearCentro);
    }
    grdt.PonerRowHeight(0, kAltoEncabezado);
    grdt.PonerEncabezados(descripcion_.encabezados);
    grdt.PonerTextMatrix(1, 0, kMarcaEspera);
    if (grdt.PuedeRecibirFoco()) {
        grdt.SetFocus();
    }
    txtt.Visible = false;
}

void GridDatos::GridEdit(int keyAscii) {
    if (keyAscii > Asc(" ") || keyAscii < 0) {
        txtt.Text = Chr(keyAscii);
        txtt.Seleccionar(1, 0);
    } else {
        txtt.Text = Format(std::string_view(grdt.Text()), descripcion_.patronEdicion);
        txtt.Seleccionar(0, Len(Trim(txtt.Text())));
    }
    txtt.Visible = true;
    txtt.SetFocus();
}

void GridDatos::ConfirmarCelda() {
    txtt.Text = Format(Val(txtt.Text()), kPatronEdicionA);
    // The grid's got-focus handler stores the text, so DoEvents must run it before the current cell moves.
    grdt.SetFocus();
    app_.DoEvents();
    MoverCelda();
}

void GridDatos::MoverCelda() {
    if (!EnFilaEntrada()) {
        grdt.PonerRow(grdt.Row() + 1);
        return;
    }
    if (grdt.Col() < UltimaColumna()) {
        grdt.PonerCol(grdt.Col() + 1);
        return;
    }
    const int fila = grdt.Row();
    for (int c = 1; c <= UltimaColumna(); ++c) {
        grdt.PonerTextMatrix(fila, c, Format(Val(grdt.TextMatrix(fila, c)), kPatronEdicionB));
    }
    grdt.PonerRows(grdt.Rows() + 1);
    grdt.PonerCol(1);
    grdt.PonerRow(FilaEntrada());
    RenumerarGrid();
    Marcar(kMarcaEntrada);
}

void GridDatos::RenumerarGrid() {
    for (int i = 1; i < FilaEntrada(); ++i) {
        RotularFila(i);
    }
}

void GridDatos::VaciarFila(int fila) {
    for (int c = 1; c <= UltimaColumna(); ++c) {
        grdt.PonerTextMatrix(fila, c, "");
    }
}

void GridDatos::CambioFilaGrid() {
    if (EnFilaEntrada()) {
        Marcar(kMarcaEntrada);
    } else {
        Marcar(kMarcaEspera);
        VaciarFila(FilaEntrada());
    }
}

void GridDatos::InsertarFila() {
    const int fila = grdt.Row();
    if (!EnFilaEntrada()) {
        grdt.AddItem(Str(fila));
        for (int i = FilaEntrada(); i > fila; --i) {
            for (int c = 1; c <= UltimaColumna(); ++c) {
                grdt.PonerTextMatrix(i, c, grdt.TextMatrix(i - 1, c));
            }
        }
        VaciarFila(fila);
        RenumerarGrid();
        Marcar(kMarcaEspera);
    }
    grdt.PonerCelda(fila, 1);
}

void GridDatos::EliminarFila() {
    if (!EnFilaEntrada() && grdt.Rows() > 2) {
        grdt.RemoveItem(grdt.Row());
        RenumerarGrid();
        Marcar(kMarcaEspera);
    } else {
        IniciarGrid();
    }
    grdt.PonerCelda(grdt.Row(), 1);
}

void GridDatos::TerminarCarga(int filas) {
    Marcar(kMarcaEntrada);
    grdt.PonerCelda(filas + 1, 1);
}

void GridDatos::IrACeldaPorLlenar(int k) {
    grdt.SetFocus();
    grdt.PonerCelda(std::min(FilaEntrada(), k), 1);
}

void GridDatos::grdt_GotFocus() {
    if (txtt.Visible) {
        grdt.PonerText(txtt.Text);
        txtt.Visible = false;
    }
}

void GridDatos::grdt_KeyPress(int& keyAscii) {
    if (keyAscii != kTeclaEnter) {
        GridEdit(keyAscii);
        return;
    }
    app_.DoEvents();
    MoverCelda();
    keyAscii = 0;
    if (grdt.Row() >= 12) {
        grdt.PonerTopRow(grdt.Row() - 12);
    }
}

void GridDatos::grdt_MouseDown(int boton) {
    mnuEditInsertar.Enabled = true;
    if (boton != kBotonDerecho) {
        return;
    }
    const int columnaSel = descripcion_.columnaSel > 0 ? descripcion_.columnaSel : UltimaColumna();
    if (EnFilaEntrada()) {
        mnuEditInsertar.Enabled = false;
        grdt.PonerRow(FilaEntrada());
        grdt.PonerCol(1);
        // All data are selected, since Eliminar on the entry row empties the grid.
        grdt.Seleccionar(1, descripcion_.columnaSelEntrada > 0 ? descripcion_.columnaSelEntrada : columnaSel);
    } else {
        grdt.PonerCol(1);
        grdt.Seleccionar(grdt.Row(), columnaSel);
    }
    app_.Sistema().MenuEmergente(mnuEdicion);
}

void GridDatos::OcultarEdicion() {
    if (!txtt.Visible) {
        return;
    }
    txtt.Visible = false;
    if (txtt.TieneFoco()) {
        // The edit box had the focus and is hidden now: keys must not go to it any more.
        grdt.SetFocus();
    }
}

void GridDatos::txtt_KeyDown(int codigo) {
    switch (codigo) {
        case kTeclaEscape:
            txtt.Visible = false;
            grdt.SetFocus();
            break;
        case kTeclaAbajo:
            grdt.SetFocus();
            app_.DoEvents();
            if (grdt.Row() < FilaEntrada()) {
                grdt.PonerRow(grdt.Row() + 1);
            }
            break;
        case kTeclaArriba:
            grdt.SetFocus();
            app_.DoEvents();
            if (grdt.Row() > grdt.FixedRows()) {
                grdt.PonerRow(grdt.Row() - 1);
            }
            break;
        case kTeclaEnter:
            ConfirmarCelda();
            break;
        default:
            break;
    }
}

Disposicion GridDatos::Zona() {
    return Columna({lbl1, Disposicion(grdt).Estira(1), Fila({Label2, Disposicion(Label1).Estira(1)}), txtt});
}

}  // namespace cuencalia
