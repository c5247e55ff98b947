#include <gtest/gtest.h>

#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/frmPadre.h"
#include "frame/reportes/rtf.h"
#include "guion/plataformaguion.h"
#include "tests/archivos_en_disco.h"
#include "tests/numero_de_error.h"

namespace cuencalia {
namespace {

using pruebas::BytesDe;
using pruebas::Guardar;

/// Writes down what the printer and the file dialogs were asked besides. A selection finds no printer.
class Sistema : public PlataformaGuion {
  public:
    void ImprimirDocumento(Formulario& documento, bool soloSeleccion, const std::string& titulo) override {
        pedidos += titulo + (soloSeleccion ? ": selección de " : ": todo ") + documento.Caption() + "\n";
        if (soloSeleccion) {
            throw ErrorEjecucion(kArgumentoNoValido);
        }
    }
    void ElegirArchivo(ModoArchivo modo, const std::string& titulo, const std::string& filtro,
                       std::string& nombre) override {
        pedidos += (modo == ModoArchivo::Guardar ? "guardar " : "abrir ") + titulo + " " + filtro + "\n";
        PlataformaGuion::ElegirArchivo(modo, titulo, filtro, nombre);
    }

    std::string pedidos;
};

/// A module whose report is its rows and a last line; it may be stopped before that line.
class ModuloConReporte : public ModuloCalculo {
  public:
    explicit ModuloConReporte(Aplicacion& app)
        : ModuloCalculo(app, "frmUna", {.titulo = "Módulo de prueba", .datos = {.encabezados = {"N°", "X"}}}) {}

    bool falla = false;

    void GenerarReporte(Reporte& reporte) override {
        reporte.EscribirTabla(TablaDeSerie("Serie:", {" N°", " X"}, 3), datos.grdt, datos.Filas());
        if (falla) {
            throw ErrorEjecucion(kSubindiceFuera);
        }
        reporte.ReporteLinea("fin");
    }

  protected:
    bool Calcular() override { return true; }
};

template <typename Forma>
std::unique_ptr<Formulario> Hacer(Aplicacion& app) {
    return std::make_unique<Forma>(app);
}

const std::string kVacio = "Resultados\n\nMódulo de prueba\n\n\nSerie:\n\n---\n N°\t\t X\t\t\n---\n---\n\nfin\n";

class ReportesTest : public testing::Test {
  protected:
    ReportesTest() {
        app.Despachar([&] { app.ModuloAbrir("frmUna"); });
        Reportar();
    }

    ModuloConReporte& M() { return dynamic_cast<ModuloConReporte&>(*app.Cargada("frmUna")); }
    frmPadre& Padre() { return dynamic_cast<frmPadre&>(*app.Cargada("frmPadre")); }
    EditorTextoRico& Texto() { return Padre().ActiveForm()->rtfText.Editor(); }
    std::string Titulo() { return Padre().ActiveForm() == nullptr ? "ninguno" : Padre().ActiveForm()->Caption(); }
    void Reportar() { app.Pulsar(M().bReporte); }
    void Elegir(Menu& entrada, const std::optional<std::string>& archivo = {}) {
        sistema.archivo = archivo;
        app.Despachar([&] { entrada.Elegir(); });
    }
    void CerrarTodos() {
        while (Padre().ActiveForm() != nullptr) {
            app.CerrarVentana(*Padre().ActiveForm());
        }
    }
    void Teclear(const std::string& texto) {
        app.Despachar([&] { Padre().ActiveForm()->rtfText.SetFocus(); });
        for (const char c : texto) {
            app.PulsarTecla(0, c == '\n' ? int{kTeclaEnter} : c);
        }
    }
    static std::string TextoGuardado(const std::string& ruta) { return LeerRtf(BytesDe(ruta)).Texto(); }

    pruebas::CarpetaTemporal carpeta;
    Sistema sistema;
    Aplicacion app{sistema,
                   {{"frmCuencalia", Hacer<ModuloConReporte>},
                    {"frmPadre", Hacer<frmPadre>},
                    {"frmUna", Hacer<ModuloConReporte>}}};
};

// (width - length) / 2 blanks on each side, a half going to the even number.
TEST_F(ReportesTest, CeldasYTablas) {
    // clang-format off
    const std::tuple<const char*, int, std::size_t> casos[] = {
        {"abc", 25, 11}, {"3.0000", 25, 10}, {"12.5", 25, 10}, {"1", 18, 8}, {"8.0", 18, 8}, {"", 25, 12},
        {"años", 18, 7}, {"x", 2, 0}, {"xx", 2, 0}, {"xxxx", 2, 0}};
    // clang-format on
    for (const auto& [texto, ancho, blancos] : casos) {
        EXPECT_EQ(Relleno(texto, ancho).size(), blancos) << texto;
    }
    EXPECT_EQ(CeldaBajo({" ab "})("12345", 1, 0), " 12345") << "too long, yet apart from the one before";
    EditorTextoRico documento;
    Formulario forma(app, "f", "f");
    FlexGrid grid(forma, "g");
    grid.PonerRows(3);
    grid.PonerCols(3);
    for (int c = 0; c < 3; ++c) {
        grid.PonerTextMatrix(1, c, std::to_string(c));
        grid.PonerTextMatrix(2, c, std::to_string(10 + c));
    }
    // clang-format off
    const Reporte::Tabla tabla{
        .titulo = "T:", .regla = 2, .encabezado = UnirEncabezados({"a", "b"}, "\t"),
        .celda = CeldaCentrada(4, [](int fila, int) { return fila == 1 ? 1 : 0; }),
        .primeraColumna = 1, .columnas = 1, .reglaFinal = 3, .paradas = ParadasBajo({"a ", "  bc ", " d"})};
    // clang-format on
    Reporte(documento).EscribirTabla(tabla, grid, 2);
    EXPECT_EQ(documento.Text(), "T:\n\n--\na\tb\t\n--\n   1  \n 11 \n---\n\n") << "(4 - 1) / 2 is 1.5, so 2";
    EXPECT_EQ(grid.Col(), 1) << "the cursor stays";
    EXPECT_EQ(tabla.paradas, (std::vector<int>{4, 8})) << "where bc and d begin";
    const auto& parrafos = documento.Documento().parrafos;
    for (std::size_t i = 0; i < parrafos.size(); ++i) {
        const std::vector<int>& paradas = parrafos[i].formato.tabuladores;
        EXPECT_EQ(paradas.size(), i == 5 || i == 6 ? 2U : 0U) << "the rows alone have tab stops, " << i;
    }
}

TEST_F(ReportesTest, SeAcumulanDondeEstaElCursor) {
    EXPECT_EQ(Titulo(), "Documento 1");
    EXPECT_EQ(Texto().Text(), kVacio);
    EXPECT_EQ(Texto().Alineaciones(), (std::vector<int>{2, 2, 2, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    Teclear("despues");
    app.PulsarTecla(kTeclaInicio, 0);
    Teclear("antes\n");
    Reportar();
    EXPECT_EQ(Texto().Text(), "antes\n" + kVacio + kVacio + "despues");

    Elegir(Padre().mnuFileNew);
    Teclear("x\bnota\n");
    M().falla = true;
    Reportar();
    EXPECT_EQ(Texto().Text(), "nota\n" + kVacio.substr(0, kVacio.find("fin"))) << "what was written stays";
    const auto& parrafos = Texto().Documento().parrafos;
    EXPECT_EQ(parrafos[0].formato.sangriaIzquierda, 0) << "what the user typed keeps its margin";
    for (std::size_t i = 1; i < parrafos.size(); ++i) {
        EXPECT_EQ(parrafos[i].formato.sangriaIzquierda, 200) << i;
        EXPECT_EQ(parrafos[i].formato.sangriaDerecha, 200) << i;
    }
    CerrarTodos();
    M().falla = false;
    Reportar();
    ASSERT_EQ(sistema.mensajes.size(), 2U) << "stopped half-way, and no document at all";
    for (const Mensaje& aviso : sistema.mensajes) {
        EXPECT_EQ(std::tuple(aviso.texto, int{aviso.icono}, aviso.titulo),
                  std::tuple("No se puede editar el reporte: Módulo de prueba", 64, "Mensaje de error"));
    }
    EXPECT_EQ(Titulo(), "ninguno");
    EXPECT_TRUE(sistema.errores.empty());
}

TEST_F(ReportesTest, DocumentosYSuVentana) {
    Elegir(Padre().mnuFileNew);
    EXPECT_EQ(Titulo(), "Documento 2");
    app.CerrarVentana(*Padre().ActiveForm());
    EXPECT_EQ(Titulo(), "Documento 1") << "the one that was active before";
    Padre().Left = -150.5;
    Padre().Height = 9000;
    Elegir(Padre().mnuFileExit);
    EXPECT_EQ(app.Cargada("frmPadre"), nullptr);
    EXPECT_FALSE(sistema.terminado);
    const std::map<std::string, std::string> guardado{
        {"MainLeft", "-150.5"}, {"MainTop", "1000"}, {"MainWidth", "6500"}, {"MainHeight", "9000"}};
    EXPECT_EQ(sistema.ajustes, guardado);
    Reportar();
    EXPECT_EQ(Titulo(), "Documento 3") << "the numbers carry on";
    EXPECT_EQ(Texto().Text(), kVacio);
    EXPECT_EQ(Padre().Left(), -150.5);
    Padre().Minimizada = true;
    Padre().Left = -30000;
    app.CerrarVentana(Padre());
    EXPECT_EQ(sistema.ajustes, guardado) << "a minimised window leaves them as they were";
    sistema.ajustes["MainTop"] = "1e999";
    Reportar();
    EXPECT_EQ(Padre().Top(), 1000) << "a damaged setting counts as absent";
    EXPECT_TRUE(sistema.mensajes.empty()) << "nobody asks about what was not saved";
}

TEST_F(ReportesTest, GuardarYAbrir) {
    Elegir(Padre().mnuFileNew);
    Texto().SelText("Año 1998");
    for (const std::string archivo : {"uno.rtf", "dos.rtf"}) {
        Elegir(Padre().mnuFileSave, carpeta / archivo);
        EXPECT_EQ(TextoGuardado(carpeta / archivo), "Año 1998");
    }
    EXPECT_EQ(Titulo(), "Documento 2") << "so it is asked for again";
    // The first 8 characters alone tell.
    Padre().ActiveForm()->Caption = "Documents/serie.rtf";
    Elegir(Padre().mnuFileSave);
    Elegir(Padre().mnuFileSaveAs);
    EXPECT_EQ(Titulo(), "Documents/serie.rtf") << "cancelled";
    Elegir(Padre().mnuFileSaveAs, carpeta / "tres.rtf");
    EXPECT_EQ(Titulo(), carpeta / "tres.rtf");
    Texto().SelText("!");
    Elegir(Padre().mnuFileSave);
    EXPECT_EQ(TextoGuardado(carpeta / "tres.rtf"), "Año 1998!") << "its name is known now";

    Elegir(Padre().mnuFileOpen, Guardar(carpeta / "serie.rtf", R"({\rtf1\pard\qc a\'f1o\par})"));
    EXPECT_EQ(Texto().Text(), "año");
    EXPECT_EQ(Texto().SelAlignment(), 2);
    EXPECT_EQ(Titulo(), carpeta / "serie.rtf");
    const std::string guardar = "guardar Guardar Archivos (*.RTF)|*.RTF\n";
    const std::string guardarComo = "guardar Guardar como Archivos RTF(*.RTF)|*.RTF\n";
    EXPECT_EQ(sistema.pedidos,
              guardar + guardar + guardar + guardarComo + guardarComo + "abrir Abrir Archivos (*.RTF)|*.RTF\n");
    Elegir(Padre().mnuFileOpen, carpeta / "no hay.rtf");
    Elegir(Padre().mnuFileSaveAs, carpeta / "no/hay.rtf");
    EXPECT_EQ(Titulo(), carpeta / "no/hay.rtf") << "set before the file is written";
    EXPECT_EQ(Texto().Text(), "año");
    CerrarTodos();
    Elegir(Padre().mnuFileSave);
    EXPECT_EQ(NumerosDe(sistema.errores),
              (std::vector<int>{kArchivoNoEncontrado, kRutaNoEncontrada, kObjetoNoEstablecido}));
    Elegir(Padre().mnuFileOpen);
    EXPECT_EQ(Titulo(), "Documento 3") << "made first, also when the dialog is cancelled then";
}

TEST_F(ReportesTest, PortapapelesEImpresora) {
    Elegir(Padre().mnuFileNew);
    Elegir(Padre().mnuFilePrint);
    Texto().SelRTF(R"({\rtf1\pard\qc uno\par\pard\b dos\b0  tres})");
    const TextoRico antes = Texto().Documento();
    Texto().SelStart(4);
    Texto().SelLength(5);
    Elegir(Padre().mnuFilePrint);
    Elegir(Padre().mnuEditCopy);
    EXPECT_EQ(LeerRtf(sistema.portapapeles, ClaseRtf::kFragmento).Texto(), "dos t");
    sistema.portapapeles.clear();
    Elegir(Padre().mnuEditCut);
    ASSERT_TRUE(EsRtf(sistema.portapapeles));
    EXPECT_EQ(Texto().Text(), "uno\nres");
    Elegir(Padre().mnuEditPaste);
    EXPECT_EQ(Texto().Documento(), antes);
    sistema.portapapeles = "ñ\n";
    Elegir(Padre().mnuEditPaste);
    EXPECT_EQ(Texto().Text(), "uno\ndos tñ\nres");

    CerrarTodos();
    for (Menu* entrada : {&Padre().mnuFileSaveAs, &Padre().mnuFilePrint, &Padre().mnuEditCut, &Padre().mnuEditCopy,
                          &Padre().mnuEditPaste}) {
        Elegir(*entrada);
    }
    EXPECT_EQ(sistema.portapapeles, "ñ\n");
    EXPECT_EQ(sistema.pedidos, "Imprimir: todo Documento 2\nImprimir: selección de Documento 2\n");
    EXPECT_TRUE(sistema.errores.empty()) << "a printer that fails and a missing document are no errors";
}

}  // namespace
}  // namespace cuencalia
