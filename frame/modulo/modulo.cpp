#include "frame/modulo/modulo.h"

#include <algorithm>
#include <array>

#include "frame/reportes/frmPadre.h"
#include "frame/base/hojas.h"
#include "frame/base/textos.h"

namespace cuencalia {

namespace {

constexpr int kAnchoEtiqueta = 700;
constexpr int kAnchoDatos = 1800;
constexpr int kAltoEncabezado = 340;
constexpr int kFilasALaVista = 14;
constexpr const char* kMarcaEspera = "[?]";
constexpr const char* kMarcaEntrada = "[->]";
constexpr const char* kCalculadora = "frmCalculadora";
constexpr const char* kVentanaReportes = "frmPadre";

/// A number of a sheet by the pattern of the cells; a text as it stands.
std::string TextoDeCelda(const ValorCelda& valor) {
    if (const auto* numero = std::get_if<Double>(&valor)) {
        return Format(*numero, kPatronEdicionB);
    }
    const auto* texto = std::get_if<std::string>(&valor);
    return texto == nullptr ? std::string() : *texto;
}

}  // namespace

MarcoModulo::MarcoModulo(Aplicacion& app, std::string nombre, const std::string& titulo)
    : Formulario(app, std::move(nombre), titulo) {
    bCalcular.Click.Conectar([this] { bCalcular_Click(); });
    bLimpiar.Click.Conectar([this] { bLimpiar_Click(); });
    bImprimir.Click.Conectar([this] { bImprimir_Click(); });
    bMenu.Click.Conectar([this] { bMenu_Click(); });
    bReporte.Click.Conectar([this] { bReporte_Click(); });
    if (app.Existe(kCalculadora)) {
        bCalculadora.Click.Conectar([this] { bCalculadora_Click(); });
    }
    MouseMove.Conectar([this] { ApagarBotones(nullptr); });
    for (Frame* marco : {&Frame6, &Frame7, &fraCalculadora}) {
        marco->MouseMove.Conectar([this, marco] { ApagarBotones(marco); });
    }
}

void MarcoModulo::Form_Load() {
    for (const BotonConImagen& b : botones_) {
        b.boton->Enabled = b.boton->Click.Atendido();
    }
}

void MarcoModulo::bImprimir_Click() { App().Sistema().ImprimirForma(*this); }

void MarcoModulo::bMenu_Click() { App().ModuloCerrar(*this); }

void MarcoModulo::bCalculadora_Click() { App().ModuloAbrir(kCalculadora); }

void MarcoModulo::bReporte_Click() {
    auto& padre = static_cast<frmPadre&>(App().ModuloAbrir(kVentanaReportes));
    try {
        frmDocumento* documento = padre.ActiveForm();
        if (documento == nullptr) {
            throw ErrorEjecucion(kObjetoNoEstablecido);
        }
        Reporte reporte(documento->rtfText.Editor());
        reporte.Cabecera(Caption());
        GenerarReporte(reporte);
    } catch (const ErrorEjecucion&) {
        App().MsgBox("No se puede editar el reporte: " + Caption(), kIconoInformacion, "Mensaje de error");
    }
}

void MarcoModulo::AgregarBoton(CommandButton& boton, const std::string& imagen) {
    botones_.push_back({&boton, ImageList1.AgregarPar(imagen)});
    boton.Picture = ImageList1.Imagen(botones_.back().reposo);
    boton.MouseMove.Conectar([this, &boton] { EfectoBoton(boton, true); });
}

void MarcoModulo::EfectoBoton(CommandButton& boton, bool encendido) {
    for (const BotonConImagen& b : botones_) {
        if (b.boton == &boton) {
            boton.Picture = ImageList1.Imagen(b.reposo + (encendido ? 1 : 0));
        }
    }
}

void MarcoModulo::ApagarBotones(const Control* contenedor) {
    for (const BotonConImagen& b : botones_) {
        if (contenedor == nullptr || b.boton->Contenedor() == contenedor) {
            EfectoBoton(*b.boton, false);
        }
    }
}

ModuloCalculo::ModuloCalculo(Aplicacion& app, std::string nombre, DescripcionModulo descripcion)
    : MarcoModulo(app, std::move(nombre), descripcion.titulo), descripcion_(std::move(descripcion)) {
    lbl1.Caption = descripcion_.tituloDatos;
    grdt.NombreAccesible = descripcion_.tituloDatos;
    txtt.FlotarSobre(grdt);
    txtt.Visible = false;

    grdt.GotFocus.Conectar([this] { grdt_GotFocus(); });
    grdt.KeyDown.Conectar([this](int codigo) { grdt_KeyDown(codigo); });
    grdt.KeyPress.Conectar([this](int& keyAscii) { grdt_KeyPress(keyAscii); });
    grdt.LeaveCell.Conectar([this] { OcultarEdicion(); });
    grdt.Scroll.Conectar([this] { OcultarEdicion(); });
    grdt.RowColChange.Conectar([this] { CambioFilaGrid(); });
    grdt.MouseDown.Conectar([this](int boton) { grdt_MouseDown(boton); });
    txtt.GotFocus.Conectar(
        [this] { StatusBar1.PonerPanel(1, "Para introducir o modificar datos, digitarlos y luego presionar ENTER"); });
    txtt.LostFocus.Conectar([this] { StatusBar1.PonerPanel(1, ""); });
    txtt.KeyDown.Conectar([this](int codigo) { txtt_KeyDown(codigo); });
    txtt.KeyPress.Conectar([](int& keyAscii) { keyAscii = keyAscii == kTeclaEnter ? 0 : keyAscii; });
    cdCrear.DialogTitle = "Ubicar directorio y escribir el nombre archivo a crear";
    cdAccesar.DialogTitle = cdCargarExcel.DialogTitle = "Seleccionar el archivo a cargar";
    cdCargarExcel.Filter = "Archivos de Excel 97-2003|*.xls|Archivos de Excel 07-2010|*.xlsx";
    if (descripcion_.archivo != nullptr) {
        cdCrear.Filter = descripcion_.archivo->FiltroCrear();
        cdAccesar.Filter = descripcion_.archivo->FiltroAccesar();
        bCrear.Click.Conectar([this] { bCrear_Click(); });
        bAccesar.Click.Conectar([this] { bAccesar_Click(); });
        bCargarExcel.Click.Conectar([this] { bCargarExcel_Click(); });
    }
    mnuEditInsertar.Click.Conectar([this] { InsertarFila(); });
    mnuEditEliminar.Click.Conectar([this] { EliminarFila(); });
}

void ModuloCalculo::AgregarBotones(const std::vector<std::pair<CommandButton*, const char*>>& propios) {
    AgregarBoton(bCalcular, "calcular");
    for (const auto& [boton, imagen] : propios) {
        AgregarBoton(*boton, imagen);
    }
    AgregarBoton(bLimpiar, "limpiar");
    AgregarBoton(bImprimir, "imprimir");
    AgregarBoton(bMenu, "menu");
    AgregarBoton(bCrear, "crear");
    AgregarBoton(bAccesar, "accesar");
    AgregarBoton(bReporte, "reporte");
    AgregarBoton(bCalculadora, "calculadora");
    AgregarBoton(bCargarExcel, "excel");
}

void ModuloCalculo::Form_Load() {
    MarcoModulo::Form_Load();
    IniciarGrid();
    InicializarResultados();
}

void ModuloCalculo::IniciarGrid() {
    grdt.Clear();
    grdt.PonerRows(2);
    grdt.PonerCols(UltimaColumna() + 1);
    grdt.PonerFixedRows(1);
    grdt.PonerFixedCols(1);
    int ancho = 0;
    for (int c = 0; c <= UltimaColumna(); ++c) {
        const auto k = static_cast<std::size_t>(c);
        const int porOmision = c == 0 ? kAnchoEtiqueta : kAnchoDatos;
        grdt.PonerColWidth(c, k < descripcion_.anchos.size() ? descripcion_.anchos[k] : porOmision);
        grdt.PonerColAlignment(c, kAlinearCentro);
        ancho += grdt.ColWidth(c);
    }
    grdt.PonerRowHeight(0, kAltoEncabezado);
    grdt.PonerEncabezados(descripcion_.encabezados);
    grdt.PonerTextMatrix(1, 0, kMarcaEspera);
    grdt.BorderStyle = 1;
    if (grdt.PuedeRecibirFoco()) {
        grdt.SetFocus();
    }
    grdt.Width = ancho + 300;
    grdt.Height = kFilasALaVista * grdt.RowHeight(1) + grdt.RowHeight(0);
    txtt.Visible = false;
}

void ModuloCalculo::CargarMatrices() {
    n = grdt.Rows() - 2;
    for (int i = 1; i <= n; ++i) {
        for (std::size_t c = 0; c < columnas_.size(); ++c) {
            (*columnas_[c])(i) = Val(grdt.TextMatrix(i, static_cast<int>(c) + 1));
        }
    }
}

void ModuloCalculo::GridEdit(int keyAscii) {
    txtt.FontName = grdt.FontName();
    txtt.FontSize = grdt.FontSize();
    if (keyAscii > Asc(" ") || keyAscii < 0) {
        txtt.Text = Chr(keyAscii);
        txtt.Seleccionar(1, 0);
    } else {
        txtt.Text = Format(std::string_view(grdt.Text()), descripcion_.patronEdicion);
        txtt.Seleccionar(0, Len(Trim(txtt.Text())));
    }
    txtt.Left = grdt.Left + grdt.CellLeft();
    txtt.Top = grdt.Top + grdt.CellTop();
    txtt.Width = grdt.CellWidth();
    txtt.Height = grdt.CellHeight();
    txtt.Visible = true;
    txtt.SetFocus();
}

void ModuloCalculo::ConfirmarCelda() {
    txtt.Text = Format(Val(txtt.Text()), kPatronEdicionA);
    // The grid's got-focus handler stores the text; it must have run before the cursor leaves the cell.
    grdt.SetFocus();
    App().DoEvents();
    MoverCelda();
}

void ModuloCalculo::MoverCelda() {
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

std::string ModuloCalculo::Etiqueta(int i) const {
    static constexpr std::array<const char*, 12> kMeses{"Dic", "Ene", "Feb", "Mar", "Abr", "May",
                                                        "Jun", "Jul", "Ago", "Set", "Oct", "Nov"};
    return descripcion_.etiquetas == EtiquetaFila::Mes ? kMeses[static_cast<std::size_t>(i % 12)] : Str(i);
}

void ModuloCalculo::RenumerarGrid() {
    for (int i = 1; i < FilaEntrada(); ++i) {
        grdt.PonerTextMatrix(i, 0, Etiqueta(i));
    }
}

void ModuloCalculo::VaciarFila(int fila) {
    for (int c = 1; c <= UltimaColumna(); ++c) {
        grdt.PonerTextMatrix(fila, c, "");
    }
}

void ModuloCalculo::CambioFilaGrid() {
    if (EnFilaEntrada()) {
        Marcar(kMarcaEntrada);
    } else {
        Marcar(kMarcaEspera);
        VaciarFila(FilaEntrada());
    }
    grdt.HighLight = 1;
}

void ModuloCalculo::InsertarFila() {
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

void ModuloCalculo::EliminarFila() {
    if (!EnFilaEntrada() && grdt.Rows() > 2) {
        grdt.RemoveItem(grdt.Row());
        RenumerarGrid();
        Marcar(kMarcaEspera);
    } else {
        IniciarGrid();
    }
    grdt.PonerCelda(grdt.Row(), 1);
}

void ModuloCalculo::LimpiarModulo() {
    IniciarGrid();
    LimpiarResultados();
}

void ModuloCalculo::LimpiarResultados() {
    InicializarResultados();
    LimpiarOtros();
}

void ModuloCalculo::ConTrampa(const char* mensaje, const std::function<void()>& orden) {
    try {
        orden();
    } catch (const ErrorEjecucion& error) {
        if (error.Numero() == kDialogoCancelado) {
            App().MsgBox(mensaje + App().Globales().NombreArchivo);
        }
    }
}

void ModuloCalculo::bCrear_Click() {
    ConTrampa("Error desconocido al salvar el archivo ", [this] {
        App().Sistema().IrACarpetaDelPrograma();
        cdCrear.ShowSave();
        App().Globales().NombreArchivo = cdCrear.FileName;
        CargarMatrices();
        EscritorSerie archivo(cdCrear.FileName, descripcion_.archivo->valores);
        for (int i = 1; i <= n; ++i) {
            Registro registro;
            for (std::size_t c = 0; c < columnas_.size(); ++c) {
                registro[c] = CSng((*columnas_[c])(i));
            }
            archivo.Escribir(registro);
        }
        for (const Registro& registro : RegistrosDeCola()) {
            archivo.Escribir(registro);
        }
    });
}

void ModuloCalculo::bAccesar_Click() {
    LimpiarResultados();
    ConTrampa("Error desconocido al abrir el archivo ", [this] {
        cdAccesar.ShowOpen();
        App().Globales().NombreArchivo = cdAccesar.FileName;
        IniciarGrid();
        n = 0;
        LectorSerie archivo(cdAccesar.FileName, descripcion_.archivo->valores);
        App().Globales().NRegistros = Integer(archivo.Registros());
        grdt.PonerRows(archivo.Registros() + 2);
        for (int i = 1; i <= archivo.Registros(); ++i) {
            const Registro registro = archivo.Leer();
            grdt.PonerTextMatrix(i, 0, Etiqueta(i));
            for (int c = 1; c <= UltimaColumna(); ++c) {
                grdt.PonerTextMatrix(i, c, Format(registro[static_cast<std::size_t>(c - 1)], kPatronEdicionA));
            }
        }
        TerminarCarga(archivo.Registros());
    });
}

void ModuloCalculo::bCargarExcel_Click() {
    LimpiarResultados();
    ConTrampa("Error desconocido al abrir el archivo ", [this] {
        IniciarGrid();
        cdCargarExcel.ShowOpen();
        App().Globales().NombreArchivo = cdCargarExcel.FileName;
        // One row more than the arrays hold, to learn that a sheet is too long for them.
        const int filasMax = columnas_.at(0)->UBound();
        const Hoja hoja =
            App().Sistema().Hojas().LeerPrimeraHoja(cdCargarExcel.FileName, UltimaColumna(), filasMax + 1);
        const int filas = hoja.Filas();
        if (filas > filasMax) {
            throw ErrorEjecucion(kSubindiceFuera);
        }
        App().Globales().NRegistros = Integer(filas);
        grdt.PonerRows(filas + 2);
        for (int i = 1; i <= filas; ++i) {
            grdt.PonerTextMatrix(i, 0, Str(i));
            for (int c = 1; c <= UltimaColumna(); ++c) {
                grdt.PonerTextMatrix(i, c, TextoDeCelda(hoja.Cells(i, c)));
            }
        }
        TerminarCarga(filas);
    });
}

void ModuloCalculo::TerminarCarga(int filas) {
    Marcar(kMarcaEntrada);
    grdt.PonerCelda(filas + 1, 1);
    n = filas;
}

void ModuloCalculo::IrACeldaPorLlenar(int k) {
    grdt.SetFocus();
    grdt.PonerCelda(std::min(FilaEntrada(), k), 1);
}

void ModuloCalculo::grdt_GotFocus() {
    if (txtt.Visible) {
        grdt.PonerText(txtt.Text);
        txtt.Visible = false;
    }
}

void ModuloCalculo::grdt_KeyDown(int codigo) {
    if (codigo == kTeclaF2) {
        GridEdit(kTeclaEspacio);
    }
}

void ModuloCalculo::grdt_KeyPress(int& keyAscii) {
    if (keyAscii != kTeclaEnter) {
        GridEdit(keyAscii);
        return;
    }
    App().DoEvents();
    MoverCelda();
    keyAscii = 0;
    if (grdt.Row() >= 12) {
        grdt.PonerTopRow(grdt.Row() - 12);
    }
}

void ModuloCalculo::grdt_MouseDown(int boton) {
    mnuEditInsertar.Enabled = true;
    if (boton != kBotonDerecho) {
        return;
    }
    const int columnaSel = descripcion_.columnaSel > 0 ? descripcion_.columnaSel : UltimaColumna();
    if (EnFilaEntrada()) {
        mnuEditInsertar.Enabled = false;
        grdt.PonerRow(FilaEntrada());
        grdt.PonerCol(1);
        // The whole of the data is selected: deleting on the entry row empties the grid.
        grdt.Seleccionar(1, descripcion_.columnaSelEntrada > 0 ? descripcion_.columnaSelEntrada : columnaSel);
    } else {
        grdt.PonerCol(1);
        grdt.Seleccionar(grdt.Row(), columnaSel);
    }
    App().Sistema().MenuEmergente(mnuEdicion);
}

void ModuloCalculo::OcultarEdicion() {
    if (!txtt.Visible) {
        return;
    }
    txtt.Visible = false;
    if (txtt.TieneFoco()) {
        // The keys must not go on to a box that is gone.
        grdt.SetFocus();
    }
}

void ModuloCalculo::txtt_KeyDown(int codigo) {
    switch (codigo) {
        case kTeclaEscape:
            txtt.Visible = false;
            grdt.SetFocus();
            break;
        case kTeclaAbajo:
            grdt.SetFocus();
            App().DoEvents();
            if (grdt.Row() < FilaEntrada()) {
                grdt.PonerRow(grdt.Row() + 1);
            }
            break;
        case kTeclaArriba:
            grdt.SetFocus();
            App().DoEvents();
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

Disposicion ModuloCalculo::ZonaDatos() {
    return Columna({lbl1, Disposicion(grdt).Estira(1), Fila({Label2, Disposicion(Label1).Estira(1)}), txtt});
}

std::vector<Disposicion> ModuloCalculo::BotonesAccion() { return {bCalcular, bLimpiar, bImprimir, bMenu}; }

Disposicion ModuloCalculo::ZonaBotones() {
    return Fila({Grupo(Frame6, {Fila(BotonesAccion())}),
                 Grupo(Frame7, {Fila({bCargarExcel, bReporte, bCrear, bAccesar})}),
                 Grupo(fraCalculadora, {bCalculadora}), Espacio()});
}

Disposicion ModuloCalculo::Disponer() {
    return Columna({ZonaBotones(), Fila({ZonaDatos(), Contenido().Estira(1)}).Estira(1), StatusBar1});
}

}  // namespace cuencalia
