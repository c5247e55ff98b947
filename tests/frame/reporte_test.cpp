#include "frame/reportes/reporte.h"

#include <gtest/gtest.h>

#include "frame/reportes/frmPadre.h"
#include "frame/modulo/modulo.h"
#include "guion/plataformaguion.h"

namespace cuencalia {
namespace {

/// A module whose report is its rows and a last line; it may be stopped before that line.
class ModuloConReporte : public ModuloCalculo {
  public:
    explicit ModuloConReporte(Aplicacion& app)
        : ModuloCalculo(app, "frmUna", {.titulo = "Módulo de prueba", .encabezados = {"N°", "X"}}) {
        LeerEn({&x});
    }

    Serie x;
    bool falla = false;

    void bCalcular_Click() override {}
    void GenerarReporte(Reporte& reporte) override {
        reporte.TablaDeSerie("Serie:", {" N°", " X"}, grdt, grdt.Rows() - 2, 3);
        if (falla) {
            throw ErrorEjecucion(kSubindiceFuera);
        }
        reporte.ReporteLinea("fin");
    }

  protected:
    Disposicion Contenido() override { return Espacio(); }
};

class MenuPrueba : public Formulario {
  public:
    explicit MenuPrueba(Aplicacion& app) : Formulario(app, "frmCuencalia", "Menú") {}
};

template <typename Forma>
std::unique_ptr<Formulario> Hacer(Aplicacion& app) {
    return std::make_unique<Forma>(app);
}

const std::string kCabecera = "Resultados\n\nMódulo de prueba\n\n\n";
const std::string kVacio = kCabecera + "Serie:\n\n---\n N°\t\t X\t\t\n---\n---\n\nfin\n";

class ReporteTest : public testing::Test {
  protected:
    ReporteTest() {
        app.Despachar([&] { app.ModuloAbrir("frmUna"); });
    }

    ModuloConReporte& M() { return dynamic_cast<ModuloConReporte&>(*app.Cargada("frmUna")); }
    frmPadre& Padre() { return dynamic_cast<frmPadre&>(*app.Cargada("frmPadre")); }
    EditorTextoRico& Activo() { return Padre().ActiveForm()->rtfText.Editor(); }
    void Reportar() { app.Pulsar(M().bReporte); }
    void Elegir(Menu& entrada) {
        app.Despachar([&] { entrada.Elegir(); });
    }
    void TeclearEnDocumento(const std::string& texto) {
        app.Despachar([&] {
            Padre().ActiveForm()->rtfText.SetFocus();
            app.DoEvents();
        });
        for (const char c : texto) {
            app.PulsarTecla(0, c == '\n' ? int{kTeclaEnter} : c);
        }
    }
    void EsperarAviso() {
        ASSERT_EQ(sistema.mensajes.size(), 1U);
        EXPECT_EQ(sistema.mensajes[0].texto, "No se puede editar el reporte: Módulo de prueba");
        EXPECT_EQ(sistema.mensajes[0].icono, 64);
        EXPECT_EQ(sistema.mensajes[0].titulo, "Mensaje de error");
        EXPECT_TRUE(sistema.errores.empty());
        sistema.mensajes.clear();
    }

    PlataformaGuion sistema;
    Aplicacion app{
        sistema,
        {{"frmCuencalia", Hacer<MenuPrueba>}, {"frmPadre", Hacer<frmPadre>}, {"frmUna", Hacer<ModuloConReporte>}}};
};

TEST(ReporteOperacionesTest, RellenoRedondeaAlPar) {
    const auto relleno = [](const std::string& texto, int ancho) { return Relleno(texto, ancho).size(); };
    EXPECT_EQ(relleno("abc", 25), 11U);
    EXPECT_EQ(relleno("3.0000", 25), 10U) << "9.5";
    EXPECT_EQ(relleno("12.5", 25), 10U) << "10.5";
    EXPECT_EQ(relleno("1", 18), 8U) << "8.5";
    EXPECT_EQ(relleno("8.0", 18), 8U) << "7.5";
    EXPECT_EQ(relleno("", 25), 12U) << "12.5";
    EXPECT_EQ(relleno("años", 18), 7U) << "characters count, not bytes";
    EXPECT_EQ(relleno(std::string(24, 'x'), 25), 0U) << "0.5";
    EXPECT_EQ(relleno(std::string(25, 'x'), 25), 0U);
    EXPECT_EQ(relleno(std::string(40, 'x'), 25), 0U);
    EXPECT_EQ(Relleno("abcd", 8), "  ");
}

TEST(ReporteOperacionesTest, TextosReglasYCeldas) {
    EditorTextoRico documento;
    Reporte reporte(documento);
    reporte.ReporteTexto("a\tb");
    reporte.ReporteTexto("ñ");
    reporte.ReporteLinea(" fin");
    reporte.ReporteRegla(3);
    reporte.ReporteBlanco();
    reporte.LineaDeGuiones(2);
    reporte.Titulo("Bloque:");
    reporte.CeldaCentrada("3.0000", 12);
    reporte.CeldaCentrada("7.5", 6, 1);
    reporte.ReporteRegla(0);
    EXPECT_EQ(documento.Text(), "a\tbñ fin\n---\n--\nBloque:\n\n   3.0000      7.5  ")
        << "(12 - 6) / 2 = 3; (6 - 3) / 2 = 1.5, so 2";
}

TEST(ReporteOperacionesTest, CabeceraCentradaYConMargen) {
    EditorTextoRico documento;
    Reporte reporte(documento);
    reporte.Cabecera("Título");
    reporte.ReporteTexto("a la izquierda");
    EXPECT_EQ(documento.Text(), "Resultados\n\nTítulo\n\n\na la izquierda");
    EXPECT_EQ(documento.Alineaciones(), (std::vector<int>{2, 2, 2, 2, 0, 0}));
    reporte.ReporteBlanco();
    reporte.ReporteAlinear(2);
    reporte.ReporteLinea("al centro");
    EXPECT_EQ(documento.Alineaciones(), (std::vector<int>{2, 2, 2, 2, 0, 0, 2, 2}));
    for (const Parrafo& parrafo : documento.Documento().parrafos) {
        EXPECT_EQ(parrafo.formato.sangriaIzquierda, 200);
        EXPECT_EQ(parrafo.formato.sangriaDerecha, 200);
    }
}

TEST_F(ReporteTest, ElPrimeroAbreLaVentanaYUnDocumento) {
    ASSERT_EQ(app.Cargada("frmPadre"), nullptr);
    Reportar();
    EXPECT_EQ(Padre().ActiveForm()->Caption(), "Documento 1");
    EXPECT_EQ(Activo().Text(), kVacio);
    EXPECT_TRUE(sistema.mensajes.empty());
    EXPECT_TRUE(sistema.errores.empty());
}

TEST_F(ReporteTest, SeAcumulanEnElDocumentoActivo) {
    Reportar();
    Reportar();
    EXPECT_EQ(Activo().Text(), kVacio + kVacio);
    // 13 line ends each: four centred, nine at the left; then the line after the last one.
    const std::vector<int> esperadas{2, 2, 2, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0,  //
                                     2, 2, 2, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(Activo().Alineaciones(), esperadas);

    Elegir(Padre().mnuFileNew);
    Reportar();
    EXPECT_EQ(Padre().ActiveForm()->Caption(), "Documento 2");
    EXPECT_EQ(Activo().Text(), kVacio);
}

TEST_F(ReporteTest, SeEscribeEnElCursor) {
    Reportar();
    TeclearEnDocumento("despues");
    app.PulsarTecla(kTeclaInicio, 0);
    TeclearEnDocumento("antes\n");
    Reportar();
    EXPECT_EQ(Activo().Text(), "antes\n" + kVacio + kVacio + "despues");
}

TEST_F(ReporteTest, LoQueElUsuarioEscribioConservaSuMargen) {
    Reportar();
    Elegir(Padre().mnuFileNew);
    TeclearEnDocumento("nota\n");
    Reportar();
    const auto& parrafos = Activo().Documento().parrafos;
    EXPECT_EQ(Activo().Text(), "nota\n" + kVacio);
    EXPECT_EQ(parrafos[0].formato.sangriaIzquierda, 0);
    EXPECT_EQ(parrafos[0].formato.sangriaDerecha, 0);
    EXPECT_EQ(Activo().Alineaciones()[0], 0);
    for (std::size_t i = 1; i < parrafos.size(); ++i) {
        EXPECT_EQ(parrafos[i].formato.sangriaIzquierda, 200) << i;
        EXPECT_EQ(parrafos[i].formato.sangriaDerecha, 200) << i;
    }
}

TEST_F(ReporteTest, SinDocumentoActivo) {
    Reportar();
    app.CerrarVentana(*Padre().ActiveForm());
    ASSERT_EQ(Padre().ActiveForm(), nullptr);
    Reportar();
    EsperarAviso();
    EXPECT_EQ(Padre().ActiveForm(), nullptr) << "no document is made for it";

    Elegir(Padre().mnuFileNew);
    Reportar();
    EXPECT_EQ(Padre().ActiveForm()->Caption(), "Documento 2");
    EXPECT_EQ(Activo().Text(), kVacio);
    Elegir(Padre().mnuFileExit);
    ASSERT_EQ(app.Cargada("frmPadre"), nullptr);
    Reportar();
    EXPECT_EQ(Padre().ActiveForm()->Caption(), "Documento 3") << "the numbers carry on";
    EXPECT_EQ(Activo().Text(), kVacio);
}

TEST_F(ReporteTest, UnErrorTerminaElReporteYLoEscritoQueda) {
    M().falla = true;
    Reportar();
    EsperarAviso();
    EXPECT_EQ(Activo().Text(), kVacio.substr(0, kVacio.find("fin")));
    M().falla = false;
    Reportar();
    EXPECT_EQ(Activo().Text(), kVacio.substr(0, kVacio.find("fin")) + kVacio);
}

// The table is what the grid shows, also what was left in it without ENTER; reading it moves the grid's cursor.
TEST_F(ReporteTest, TablaDeLaCuadricula) {
    for (const char c : {'1', '2', '3'}) {
        app.PulsarTecla(0, c);
        app.PulsarTecla(kTeclaEnter, kTeclaEnter);
    }
    app.Despachar([&] { M().grdt.Presionar(kBotonIzquierdo, 2, 1); });
    app.PulsarTecla(0, 'z');
    app.PulsarTecla(kTeclaAbajo, 0);
    app.Despachar([&] { M().grdt.Presionar(kBotonIzquierdo, 4, 1); });
    ASSERT_EQ(M().grdt.TextMatrix(4, 0), "[->]");
    Reportar();
    EXPECT_EQ(Activo().Text(), kCabecera +
                                   "Serie:\n\n---\n N°\t\t X\t\t\n---\n"
                                   " 1\t\t1.0\t\t\n 2\t\tz\t\t\n 3\t\t3.0\t\t\n"
                                   "---\n\nfin\n");
    EXPECT_EQ(M().grdt.Row(), 3);
    EXPECT_EQ(M().grdt.Col(), 1);
    EXPECT_EQ(M().grdt.TextMatrix(4, 0), "[?]");
}

}  // namespace
}  // namespace cuencalia
