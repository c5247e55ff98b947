#include "modules/comparacion/frmComparacion.h"

#include <algorithm>

#include "frame/base/textos.h"
#include "modules/distribuciones/frmDisGumbel.h"
#include "tests/datos_publicados.h"
#include "tests/forma_en_uso.h"

namespace cuencalia::pruebas {
namespace {

class VentanaComparacion : public FormaEnUso<frmComparacion> {
  protected:
    VentanaComparacion() : FormaEnUso("frmComparacion") {}
    void Recibir(const std::vector<double>& serie) {
        app.Despachar([&] { F().RecibirSerie("Origen", serie); });
    }
    void Elegir(ComboBox& lista, const std::string& texto) {
        app.Despachar([&] { lista.Text = texto; });
    }
    void Ficha(int pagina) {
        app.Despachar([&] { F().SSTab1.Tab = pagina; });
    }
    /// The row of a grid that begins with these texts; 0 when there is none.
    static int Fila(const FlexGrid& grid, const std::string& primero, const std::string& segundo = {}) {
        for (int f = 1; f < grid.Rows(); ++f) {
            if (grid.TextMatrix(f, 0) == primero && (segundo.empty() || grid.TextMatrix(f, 1) == segundo)) {
                return f;
            }
        }
        return 0;
    }
};

// Gumbel by moments of 1 to 4: alfa = 1.290994·√6/π = 1.006584, mu = 1.918984, Q100 = mu + 4.600149·alfa = 6.5494.
TEST_F(VentanaComparacion, SeAbreConLaSerieDeUnAjuste) {
    app.Despachar([this] { app.ModuloAbrir("frmDisGumbel"); });
    auto& gumbel = dynamic_cast<frmDisGumbel&>(*app.Cargada("frmDisGumbel"));
    EsperarMensaje(gumbel.bComparar, "Antes de comparar, ingresar datos", kIconoInformacion, "Mensaje de Error");
    app.Despachar([&] {
        gumbel.datos.grdt.PonerRows(6);
        for (int i = 1; i <= 4; ++i) {
            gumbel.datos.grdt.PonerTextMatrix(i, 1, Str(i == 1 ? 4 : i - 1));
        }
    });
    app.Pulsar(gumbel.bComparar);
    EsperarSilencio();
    EXPECT_EQ(F().serie.lblSerie.Caption(),
              "Serie de 4 datos de la ventana «Ajuste de una serie de datos a la distribución Gumbel»");
    EXPECT_EQ(F().serie.grdSerie.TextMatrix(1, 1) + " " + F().serie.grdSerie.TextMatrix(1, 2), "4.0 1.0");
    const int diseno = Fila(F().diseno.grdDiseno, "Gumbel, Momentos ordinarios");
    EXPECT_EQ(F().diseno.grdDiseno.TextMatrix(diseno, 9), "6.55");
    const int candidato = Fila(F().candidatos.grdCandidatos, "Gumbel", "Momentos ordinarios");
    EXPECT_EQ(F().candidatos.grdCandidatos.TextMatrix(candidato, 12), "µ = 1.919; alfa = 1.0066");
    EXPECT_EQ(F().candidatos.grdCandidatos.TextMatrix(candidato, 3), "") << "no significance before the resampling";
    // A symmetric series: Pearson III has no greatest likelihood, is no fit, and has no design discharges.
    const int imposible = Fila(F().candidatos.grdCandidatos, "Gamma de 3 parámetros", "Máxima verosimilitud");
    EXPECT_NE(F().candidatos.grdCandidatos.TextMatrix(imposible, 11).find("no tiene máximo"), std::string::npos);
    EXPECT_EQ(Fila(F().diseno.grdDiseno, "Gamma de 3 parámetros, Máxima verosimilitud"), 0);
}

TEST_F(VentanaComparacion, OrdenaRemuestreaYDibuja) {
    Ficha(2);
    EsperarMensaje(F().diseno.bRemuestrear, "Efectuar cálculos antes de remuestrear", kIconoError, "Mensaje de Error");
    Recibir(LeerColumna("rao_hamed_tippecanoe.csv"));
    EXPECT_EQ(F().candidatos.grdCandidatos.Rows(), 30);
    Elegir(F().candidatos.cmbOrden, "Anderson-Darling");
    for (int f = 2; f < 27; ++f) {
        EXPECT_LE(std::stod(F().candidatos.grdCandidatos.TextMatrix(f - 1, 4)),
                  std::stod(F().candidatos.grdCandidatos.TextMatrix(f, 4)));
    }
    const std::string primero = F().candidatos.grdCandidatos.TextMatrix(1, 0);
    // A heading is an order too, one without figures is none; the design table follows, and has orders of its own.
    const auto pulsar = [this](FlexGrid& grid, int columna) {
        app.Despachar([&] { grid.Presionar(kBotonIzquierdo, 0, columna); });
    };
    pulsar(F().candidatos.grdCandidatos, 6);
    pulsar(F().candidatos.grdCandidatos, 12);
    EXPECT_EQ(F().candidatos.cmbOrden.Text(), "Correlación");
    EXPECT_GE(std::stod(F().candidatos.grdCandidatos.TextMatrix(1, 6)),
              std::stod(F().candidatos.grdCandidatos.TextMatrix(2, 6)));
    Ficha(2);
    pulsar(F().diseno.grdDiseno, 13);
    for (int f = 2; f < F().diseno.grdDiseno.Rows(); ++f) {
        EXPECT_LE(std::stod(F().diseno.grdDiseno.TextMatrix(f - 1, 13)),
                  std::stod(F().diseno.grdDiseno.TextMatrix(f, 13)));
    }
    Elegir(F().candidatos.cmbOrden, "Anderson-Darling");
    EXPECT_EQ(F().candidatos.grdCandidatos.TextMatrix(1, 0), primero);
    // The exponential and the Pareto have data beyond their ends, and come last.
    EXPECT_EQ(F().candidatos.grdCandidatos.TextMatrix(29, 4), "∞");
    EXPECT_EQ(F().candidatos.grdCandidatos.TextMatrix(29, 11), "Hay datos más allá del extremo de la distribución");
    EXPECT_EQ(F().papel.Graph1.NumSets(), 2);
    Elegir(F().diseno.cmbNivel, "80");
    app.Pulsar(F().diseno.bRemuestrear);
    EsperarSilencio();
    EXPECT_EQ(F().diseno.lblAvance.Caption(), "Límites del 80 % y significaciones por 1000 muestras, semilla 1");
    const int normal = Fila(F().diseno.grdDiseno, "Normal, Momentos ordinarios");
    EXPECT_EQ(F().diseno.grdDiseno.TextMatrix(normal + 1, 0), "   límite inferior 80 %");
    for (int c = 1; c <= 13; ++c) {
        const auto Q = [&](int fila) { return std::stod(F().diseno.grdDiseno.TextMatrix(fila, c)); };
        EXPECT_LT(Q(normal + 1), Q(normal));
        EXPECT_LT(Q(normal), Q(normal + 2));
    }
    EXPECT_EQ(F().papel.Graph1.NumSets(), 4) << "data, curve and two limits";
    for (const int c : {3, 5, 7, 9}) {
        pulsar(F().candidatos.grdCandidatos, c);
        for (int f = 2; f < 27; ++f) {
            EXPECT_GE(std::stod(F().candidatos.grdCandidatos.TextMatrix(f - 1, c)),
                      std::stod(F().candidatos.grdCandidatos.TextMatrix(f, c)));
        }
    }
    // Of a skew so near 0 many samples have a negative one, or none that has a greatest likelihood.
    const int gamma = Fila(F().candidatos.grdCandidatos, "Gamma de 3 parámetros", "Máxima verosimilitud");
    EXPECT_TRUE(F().candidatos.grdCandidatos.TextMatrix(gamma, 11).starts_with("Muestras sin ajuste posible: "));
    Elegir(F().papel.cmbCurva2, "Gumbel, Momentos lineales");
    EXPECT_EQ(F().papel.Graph1.NumSets(), 5);
    const std::vector<double> x = LeerColumna("rao_hamed_tippecanoe.csv");
    const double mayor = *std::max_element(x.begin(), x.end());
    // On log-normal paper the greatest of 48 has z of p = 47.6/48.2, 2.2430, and its decimal logarithm.
    Elegir(F().papel.cmbPapel, "Log-normal");
    const GraficoModulo::Conjunto& datos = F().papel.Graph1.Conjuntos()[0];
    EXPECT_TRUE(datos.sueltos);
    EXPECT_NEAR(datos.x.at(47)->valor(), 2.243009, 1e-6);
    EXPECT_NEAR(datos.y.at(47)->valor(), std::log10(mayor), 1e-9);
    // Another plotting position measures anew and takes the resampling away.
    Elegir(F().papel.cmbPosicion, "Weibull");
    EXPECT_EQ(F().diseno.grdDiseno.TextMatrix(2, 0).find("límite"), std::string::npos);
    EXPECT_EQ(F().diseno.lblAvance.Caption(), "");
}

TEST_F(VentanaComparacion, SalenLasTablas) {
    EsperarMensaje(F().bCalcular, "No hay serie: abrir la comparación desde la ventana de un ajuste con datos",
                   kIconoInformacion, "Comparación de ajustes");
    Recibir({0, 2, 3, 5, 9});
    Ficha(1);
    app.Pulsar(F().bCrearExcel);
    // The series below its headings, as numbers; the tests after an empty row, in row 8 their headings.
    EXPECT_EQ(sistema.libro.Cells(2, 2), ValorCelda(Double(0)));
    EXPECT_EQ(sistema.libro.Cells(8, 1), ValorCelda(std::string("Prueba")));
    app.Pulsar(F().bCopiar);
    EXPECT_NE(sistema.TextoDelPortapapeles().find("Hay valores que no son mayores que 0"), std::string::npos);
    app.Pulsar(F().bReporte);
    app.Pulsar(F().bLimpiar);
    EXPECT_EQ(F().candidatos.grdCandidatos.TextMatrix(1, 0), "");
    EXPECT_FALSE(F().momentos.Graph2.EsVisible());
    EsperarSilencio();
}

}  // namespace
}  // namespace cuencalia::pruebas
