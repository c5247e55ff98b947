#include <atomic>

#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

class SegundoPlanoTest : public Mesa {
  protected:
    /// Work that goes on until it is cancelled.
    TrabajoLargo SinFin() {
        return {.trabajo =
                    [veces = veces_](const std::function<bool(double)>& avanzar) {
                        while (avanzar(++*veces % 100 / 100.0)) {
                            QThread::msleep(1);
                        }
                    },
                .alAvanzar = [this](double parte) { avance_ = parte; },
                .alTerminar = [] { ADD_FAILURE() << "ended after the program"; }};
    }

    std::shared_ptr<std::atomic<int>> veces_ = std::make_shared<std::atomic<int>>(0);
    double avance_ = 0;
};

// The windows answer while it runs; the end of the program ends it.
TEST_F(SegundoPlanoTest, LasVentanasSiguenMientrasTanto) {
    Hacer([this] { escritorio_->EnSegundoPlano(SinFin()); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return avance_ > 0.02; }, 60000));
    Clic(Widget(F().btn1));
    EXPECT_EQ(Sucesos().back(), "btn1 clic");
    escritorio_.reset();
    const int alCerrar = *veces_;
    QTest::qWait(20);
    EXPECT_EQ(*veces_, alCerrar);
}

// What fails aside of the windows is told as what fails in a handler, after its end; an open box puts either off.
TEST_F(SegundoPlanoTest, UnFalloSeDice) {
    int fines = 0;
    Hacer([&] {
        escritorio_->EnSegundoPlano({.trabajo = [](const auto&) { throw ErrorEjecucion(kDesbordamiento); },
                                     .alAvanzar = [](double) {},
                                     .alTerminar = [&] { ++fines; }});
    });
    QThread::msleep(20);
    escritorio_->MsgBox("abierta", kSinIcono, "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return vigia_.mensajes.size() == 2; }, 60000));
    EXPECT_EQ(fines, 1);
    EXPECT_TRUE(vigia_.mensajes.back().texto.contains("Desbordamiento"));
}

}  // namespace cuencalia::pruebas
