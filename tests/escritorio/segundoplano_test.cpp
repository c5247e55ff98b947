#include <atomic>

#include "modules/comparacion/frmComparacion.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

class SegundoPlanoTest : public Mesa {
  protected:
    SegundoPlanoTest() { Abrir("frmComparacion"); }
    frmComparacion& Comparacion() { return dynamic_cast<frmComparacion&>(Forma("frmComparacion")); }
    void Remuestrear(int datos) {
        std::vector<double> serie;
        for (int i = 1; i <= datos; ++i) {
            serie.push_back(100 - 30 * std::log(-std::log(i / (datos + 1.0))));
        }
        Hacer([&] { Comparacion().RecibirSerie("Origen", serie); });
        Hacer([this] {
            Comparacion().SSTab1.Tab = 2;
            Comparacion().bRemuestrear_Click();
        });
    }
    std::string Avance() { return Comparacion().diseno.lblAvance.Caption(); }
};

// The window answers while the resampling runs: a click reaches its button, and what was cancelled does not come back.
TEST_F(SegundoPlanoTest, LaVentanaSigueYCancela) {
    Remuestrear(500);
    EXPECT_EQ(Avance(), "Remuestreando…");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Avance().find(" %") != std::string::npos; }, 60000));
    Clic(Widget(Comparacion().diseno.bCancelar));
    EXPECT_EQ(Avance(), "Remuestreo cancelado");
    Remuestrear(12);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Avance().starts_with("Límites"); }, 60000));
    EXPECT_EQ(Comparacion().diseno.grdDiseno.TextMatrix(2, 0), "   límite inferior 90 %");
}

// What fails aside of the windows is told as what fails in a handler, after its end; the program goes on.
TEST_F(SegundoPlanoTest, UnFalloSeDice) {
    int fines = 0;
    Hacer([&] {
        escritorio_->EnSegundoPlano({.trabajo = [](const auto&) { throw ErrorEjecucion(kDesbordamiento); },
                                     .alAvanzar = [](double) {},
                                     .alTerminar = [&] { ++fines; }});
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !vigia_.mensajes.empty(); }, 60000));
    EXPECT_EQ(fines, 1);
    EXPECT_TRUE(vigia_.mensajes.back().texto.contains("Desbordamiento"));
}

// The window, and then the program, are closed while it runs.
TEST_F(SegundoPlanoTest, CerrarTerminaElTrabajo) {
    Remuestrear(500);
    Cerrar(Comparacion());
    QTest::qWait(50);
    auto veces = std::make_shared<std::atomic<int>>(0);
    Hacer([&] {
        escritorio_->EnSegundoPlano({.trabajo =
                                         [veces](const std::function<bool(double)>& avanzar) {
                                             while (avanzar(0.5)) {
                                                 ++*veces;
                                                 QThread::msleep(1);
                                             }
                                         },
                                     .alAvanzar = [](double) {},
                                     .alTerminar = [] { ADD_FAILURE() << "ended after the program"; }});
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return *veces > 3; }, 60000));
    escritorio_.reset();
}

}  // namespace cuencalia::pruebas
