#include <boost/math/distributions/lognormal.hpp>
#include <map>

#include "modules/aforo/frmAforoCorren.h"
#include "modules/curvas/frmCurvaDuracion.h"
#include "modules/curvas/frmVariacionEsta.h"
#include "tests/archivos_en_disco.h"
#include "tests/datos_publicados.h"
#include "tests/forma_en_uso.h"
#include "tests/numero_de_error.h"

namespace cuencalia::pruebas {
namespace {

// The quantiles are Boost's. The inverse normal is off by less than 4.5e-4, and the quantile relatively by that times
// the deviation of the logarithms.
TEST(VariacionEstacional, CuantilesLogNormales) {
    const LogNormalMensual mes = AjustarMes(EnSerie({std::exp(1.0), std::exp(2.0), std::exp(3.5), std::exp(3.5)}), 4);
    EXPECT_NEAR(mes.media.valor(), 2.5, 1e-14);
    EXPECT_NEAR(mes.desviacion.valor(), std::sqrt(4.5 / 3), 1e-14);  // deviations -1.5, -0.5, 1, 1
    for (const auto& [media, desviacion] : {std::pair{2.5, 0.3}, {-1.0, 1.2}, {4.0, 0.01}}) {
        const boost::math::lognormal exacta(media, desviacion);
        for (const double P : {0.05, 0.5, 0.7, 0.75, 0.8, 0.85, 0.9, 0.95}) {
            EsperarRelativo(CalcularQ(P, {media, desviacion}), quantile(complement(exacta, P)), 4.6e-4 * desviacion);
        }
    }
}

// The share of each flow is counted as it is defined: the days that have at least as much.
TEST(CurvaDuracion, PorcentajesContadosUnoAUno) {
    for (const int n : {1, 365, 3000}) {
        ColumnaDuracion Q;
        std::map<double, int> dias;
        for (int i = 1; i <= n; ++i) {
            Q(i) = i * 7919 % 101 / 4.0;
            ++dias[Q(i).valor()];
        }
        OrdenarDescendente(Q, n);
        const CurvaDuracion curva = FormarCurva(Q, n);
        int k = 0, alcanzan = 0;
        for (auto caudal = dias.rbegin(); caudal != dias.rend(); ++caudal) {
            alcanzan += caudal->second;
            EXPECT_EQ(curva.Q(++k), Double(caudal->first));
            EsperarRelativo(curva.Prob(k), 100.0 * alcanzan / n, 4 * kRedondeo);
            EXPECT_EQ(CaudalDeDuracion(curva, curva.Prob(k)), curva.Q(k));
            if (k > 1) {
                const Double medio = (curva.Prob(k - 1) + curva.Prob(k)) / 2;
                EsperarRelativo(CaudalDeDuracion(curva, medio), (curva.Q(k - 1) + curva.Q(k)).valor() / 2, 1e-11);
            }
        }
        EXPECT_EQ(curva.m, k);
        EXPECT_EQ(CaudalDeDuracion(curva, 100), curva.Q(k));
        EXPECT_EQ(NumeroDeError([&] { return CaudalDeDuracion(curva, curva.Prob(1) / 2); }), 9);
    }
}

// Two tables end before the arrays do; the months end with the arrays, after 125 years.
TEST(CurvasYAforo, LimiteDeFilas) {
    struct Caso {
        const char* forma;
        int limite, demasiados;
    };
    for (const Caso& caso :
         {Caso{"frmCurvaDuracion", 499, 500}, {"frmAforoCorren", 49, 50}, {"frmVariacionEsta", 1500, 1512}}) {
        SCOPED_TRACE(caso.forma);
        PlataformaGuion sistema;
        Aplicacion app{sistema, FormasDelPrograma()};
        app.Despachar([&] { app.ModuloAbrir(caso.forma); });
        auto& modulo = dynamic_cast<ModuloCalculo&>(*app.Cargada(caso.forma));
        const auto calcular = [&](int filas) {
            app.Despachar([&] {
                modulo.datos.EmpezarCarga(filas);
                for (int i = 1; i <= filas; ++i) {
                    for (int c = 1; c <= modulo.datos.UltimaColumna(); ++c) {
                        modulo.datos.grdt.PonerTextMatrix(i, c, "2");
                    }
                }
            });
            app.Pulsar(modulo.bCalcular);
            return modulo.calculado && sistema.mensajes.empty() && sistema.errores.empty();
        };
        EXPECT_FALSE(calcular(caso.demasiados));
        EXPECT_EQ(modulo.StatusBar1.Panel(kPanelAvisos),
                  "El módulo admite hasta " + std::to_string(caso.limite) + " datos");
        sistema.mensajes.clear();
        EXPECT_TRUE(calcular(caso.limite));
    }
}

class Aforo : public FormaEnUso<frmAforoCorren> {
  protected:
    Aforo() : FormaEnUso("frmAforoCorren") {}
};

// Records of three little-endian Singles, the margin behind the tramos with a length of 0.
TEST_F(Aforo, ElMargenEsElUltimoRegistro) {
    const CarpetaTemporal carpeta;
    app.Despachar([this] {
        F().txtho.Text = "1.5";
        F().datos.EmpezarCarga(1);
        F().datos.grdt.PonerTextMatrix(1, 1, "2");
        F().datos.grdt.PonerTextMatrix(1, 2, "0.75");
    });
    sistema.archivo = carpeta / "dos.LHV";
    app.Pulsar(F().archivos.bCrear);
    const float registros[] = {2, 0.75F, 0, 0, 1.5F, 0};
    EXPECT_EQ(BytesDe(carpeta / "dos.LHV"), std::string(reinterpret_cast<const char*>(registros), sizeof registros));
    sistema.archivo = Guardar(carpeta / "uno.LHV", BytesDe(carpeta / "dos.LHV").substr(12));
    app.Pulsar(F().archivos.bAccesar);
    EXPECT_EQ(F().datos.Filas(), 0);
    EXPECT_EQ(F().txtho.Text(), "1.5");
    EsperarSilencio();
}

}  // namespace
}  // namespace cuencalia::pruebas
