#include "frame/modulo/griddatos.h"

#include <algorithm>
#include <utility>

#include "frame/base/bloque.h"
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

std::size_t S(int n) { return static_cast<std::size_t>(n); }

/// The history of a form's data outlives its window: the series of the last one can be brought back.
std::shared_ptr<HistoriaGrid> RecuerdoDe(Formulario& forma) {
    std::shared_ptr<void>& recuerdo = forma.App().Globales().recuerdos[forma.Nombre()];
    if (recuerdo == nullptr) {
        recuerdo = std::make_shared<HistoriaGrid>();
    }
    return std::static_pointer_cast<HistoriaGrid>(recuerdo);
}

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
      mnuEditraya2(mnuEdicion, "mnuEditraya2", "-"),
      mnuEditDeshacer(mnuEdicion, "mnuEditDeshacer", "Deshacer"),
      mnuEditRehacer(mnuEdicion, "mnuEditRehacer", "Rehacer"),
      mnuEditCopiar(mnuEdicion, "mnuEditCopiar", "Copiar"),
      mnuEditPegar(mnuEdicion, "mnuEditPegar", "Pegar"),
      app_(forma.App()),
      estado_(estado),
      descripcion_(std::move(descripcion)),
      historia_(RecuerdoDe(forma)) {
    txtt.FlotarSobre(grdt);
    txtt.Visible = false;

    grdt.GotFocus.Conectar([this] { grdt_GotFocus(); });
    grdt.MarcarTextos([](const std::string& texto) { return !texto.empty() && !ValLeeTodo(texto); });
    grdt.KeyDown.Conectar([this](int codigo) { grdt_KeyDown(codigo); });
    grdt.KeyPress.Conectar([this](int& keyAscii) { grdt_KeyPress(keyAscii); });
    grdt.DblClick.Conectar([this] { GridEdit(kTeclaEspacio); });
    grdt.LeaveCell.Conectar([this] { OcultarEdicion(); });
    grdt.Scroll.Conectar([this] { OcultarEdicion(); });
    grdt.RowColChange.Conectar([this] { CambioFilaGrid(); });
    grdt.MouseDown.Conectar([this](int boton) { grdt_MouseDown(boton); });
    txtt.GotFocus.Conectar([&estado] { estado.PonerPanel(kPanelDigitar, kComoSeDigita); });
    txtt.LostFocus.Conectar([&estado] { estado.PonerPanel(kPanelDigitar, ""); });
    txtt.KeyDown.Conectar([this](int codigo) { txtt_KeyDown(codigo); });
    txtt.KeyPress.Conectar([](int& keyAscii) { keyAscii = keyAscii == kTeclaEnter ? 0 : keyAscii; });
    mnuEditInsertar.Click.Conectar([this] { InsertarFila(); });
    mnuEditEliminar.Click.Conectar([this] { EliminarFila(); });
    mnuEditDeshacer.Click.Conectar([this] { Deshacer(); });
    mnuEditRehacer.Click.Conectar([this] { Rehacer(); });
    mnuEditCopiar.Click.Conectar([this] { app_.Sistema().PonerEnPortapapeles(grdt.TextoSeleccionado()); });
    mnuEditPegar.Click.Conectar([this] { Pegar(app_.Sistema().TextoDelPortapapeles()); });
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
    grdt.PonerCelda(1, 1);
    grdt.PonerTextMatrix(1, 0, kMarcaEspera);
    if (grdt.PuedeRecibirFoco()) {
        grdt.SetFocus();
    }
    txtt.Visible = false;
    Avisar("");
}

void GridDatos::GridEdit(int keyAscii) {
    Avisar("");
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
    DecirLectura(txtt.Text);
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

void GridDatos::grdt_KeyDown(int codigo) {
    if (codigo == kTeclaF2) {
        GridEdit(kTeclaEspacio);
    } else if (codigo == kTeclaSuprimir) {
        VaciarSeleccion();
    } else if (app_.ConControl() && codigo == 'Z') {
        Deshacer();
    } else if (app_.ConControl() && codigo == 'Y') {
        Rehacer();
    } else if (app_.ConControl() && codigo == 'V') {
        Pegar(app_.Sistema().TextoDelPortapapeles());
    }
}

void GridDatos::VaciarSeleccion() {
    const auto [f0, f1] = std::minmax({grdt.Row(), grdt.RowSel()});
    const auto [c0, c1] = std::minmax({grdt.Col(), grdt.ColSel()});
    for (int f = f0; f <= f1; ++f) {
        for (int c = c0; c <= c1; ++c) {
            grdt.PonerTextMatrix(f, c, "");
        }
    }
}

void GridDatos::GuardarEdicion() {
    if (!txtt.Visible) {
        return;
    }
    DecirLectura(txtt.Text);
    grdt.SetFocus();
    app_.DoEvents();
    if (EnFilaEntrada()) {
        Avisar("La última fila no se ha confirmado y no cuenta todavía: presionar ENTER");
    }
    Anotar();
}

void GridDatos::DecirLectura(const std::string& texto) {
    if (const std::string aviso = AvisoDeLectura(texto); !aviso.empty()) {
        Avisar(aviso);
    }
}

bool GridDatos::EntradaAMedias() const {
    bool aMedias = txtt.Visible;
    for (int c = 1; c <= UltimaColumna(); ++c) {
        aMedias = aMedias || !grdt.TextMatrix(FilaEntrada(), c).empty();
    }
    return aMedias;
}

std::string GridDatos::DatoDudoso() const {
    for (const bool textos : {true, false}) {
        for (int f = 1; f <= Filas(); ++f) {
            for (int c = 1; c <= UltimaColumna(); ++c) {
                const std::string& texto = grdt.TextMatrix(f, c);
                if (textos ? grdt.EstaMarcada(f, c) : Val(texto) <= Double(0)) {
                    return ", y «" + texto + "» en la fila " + std::to_string(f) +
                           (UltimaColumna() > 1 ? ", columna " + std::to_string(c) : "");
                }
            }
        }
    }
    return {};
}

void GridDatos::Anotar() {
    if (historia_->Anotar(grdt)) {
        ++version_;
    }
}

void GridDatos::Aplicar(const std::optional<HistoriaGrid::Paso>& paso) {
    if (!paso) {
        Avisar("No hay nada más que deshacer ni rehacer");
        return;
    }
    const int filas = grdt.Rows() + static_cast<int>(paso->despues.size()) - static_cast<int>(paso->antes.size());
    std::vector<HistoriaGrid::Fila> resto = paso->despues;
    for (int f = paso->fila + static_cast<int>(paso->antes.size()); f < grdt.Rows(); ++f) {
        HistoriaGrid::Fila& fila = resto.emplace_back();
        for (int c = 1; c <= UltimaColumna(); ++c) {
            fila.push_back(grdt.TextMatrix(f, c));
        }
    }
    grdt.PonerRows(filas);
    // The cursor first: leaving the entry row empties it.
    grdt.PonerCelda(std::clamp(paso->filaDespues, 1, filas - 1), std::clamp(paso->columnaDespues, 1, UltimaColumna()));
    for (int f = paso->fila; f < filas; ++f) {
        const HistoriaGrid::Fila& fila = resto[static_cast<std::size_t>(f - paso->fila)];
        for (int c = 1; c <= UltimaColumna(); ++c) {
            grdt.PonerTextMatrix(
                f, c, static_cast<std::size_t>(c) <= fila.size() ? fila[static_cast<std::size_t>(c - 1)] : "");
        }
    }
    RenumerarGrid();
    Marcar(EnFilaEntrada() ? kMarcaEntrada : kMarcaEspera);
    historia_->Acordar(grdt);
    ++version_;
    Avisar("");
}

void GridDatos::Pegar(const std::string& texto) {
    const Bloque bloque = SepararBloque(texto);
    const LecturaBloque lectura = LeerBloque(bloque);
    if (bloque.size() <= lectura.encabezados) {
        Avisar("El portapapeles no tiene datos que pegar");
        return;
    }
    SignoDecimal signo = SignoDecimal::Punto;
    if (lectura.signo) {
        signo = *lectura.signo;
    } else {
        const std::optional<bool> esPunto =
            app_.Sistema().PreguntarOCancelar("«" + lectura.dudoso +
                                                  "» puede leerse de dos maneras.\n\n¿El punto es el signo "
                                                  "decimal de los datos copiados?",
                                              "Pegar datos");
        if (!esPunto) {
            Avisar("No se pegó nada");
            return;
        }
        signo = *esPunto ? SignoDecimal::Punto : SignoDecimal::Coma;
    }
    const int columna = grdt.Col(), primera = grdt.Row();
    const Pegado pegado = LeerPegado(bloque, lectura.encabezados, signo, S(UltimaColumna() - columna + 1));
    const int filas = static_cast<int>(pegado.celdas.size());
    const int nuevas = std::max(0, primera + filas - FilaEntrada());
    grdt.PonerRows(grdt.Rows() + nuevas);
    for (int i = 0; i < filas; ++i) {
        const int fila = primera + i;
        int c = columna;
        for (const std::string& celda : pegado.celdas[S(i)]) {
            grdt.PonerTextMatrix(fila, c++, Format(Val(celda), kPatronEdicionA));
        }
        for (c = 1; fila >= FilaEntrada() - nuevas && c <= UltimaColumna(); ++c) {
            grdt.PonerTextMatrix(fila, c, Format(Val(grdt.TextMatrix(fila, c)), kPatronEdicionB));
        }
    }
    RenumerarGrid();
    grdt.PonerCelda(std::min(primera + filas, FilaEntrada()), nuevas > 0 ? 1 : columna);
    Marcar(EnFilaEntrada() ? kMarcaEntrada : kMarcaEspera);
    Avisar(AvisoDePegado(pegado, signo, lectura.encabezados > 0));
}

void GridDatos::AvanzarPorTabulador() {
    if (EnFilaEntrada()) {
        ConfirmarCelda();
        return;
    }
    DecirLectura(txtt.Text);
    txtt.Text = Format(Val(txtt.Text()), kPatronEdicionA);
    grdt.SetFocus();
    app_.DoEvents();
    const bool ultima = grdt.Col() == UltimaColumna();
    grdt.PonerCelda(grdt.Row() + (ultima ? 1 : 0), ultima ? 1 : grdt.Col() + 1);
}

void GridDatos::txtt_KeyDown(int codigo) {
    switch (codigo) {
        case kTeclaTab:
            AvanzarPorTabulador();
            break;
        case kTeclaEscape:
            txtt.Visible = false;
            grdt.SetFocus();
            break;
        case kTeclaAbajo:
            DecirLectura(txtt.Text);
            grdt.SetFocus();
            app_.DoEvents();
            if (grdt.Row() < FilaEntrada()) {
                grdt.PonerRow(grdt.Row() + 1);
            }
            break;
        case kTeclaArriba:
            DecirLectura(txtt.Text);
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
