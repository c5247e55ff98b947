// Costs on the desktop, painting included: every window is drawn by the processor into memory, as on a screen without
// the help of a graphics card.

#include "escritorio/escritorio.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTableView>
#include <cmath>

#include "escritorio/estilo.h"
#include "escritorio/ventana.h"
#include "escritorio/vista.h"
#include "frame/base/textos.h"
#include "frame/controles/flexgrid.h"
#include "shell/formas.h"

namespace cuencalia::pruebas {

namespace {

constexpr int kFilas = 1500;

/// Delivers everything that waits, the painting of the windows among it.
void Pintar() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// Counts what is drawn: a measure of painting that paints nothing is none.
class Testigo : public QObject {
  public:
    Testigo() { qApp->installEventFilter(this); }

    /// Marks the measure as failed unless every round painted so many times at least.
    void Exigir(benchmark::State& estado, benchmark::IterationCount porVuelta) const {
        if (pinturas_ < estado.iterations() * porVuelta) {
            estado.SkipWithError("nothing was painted");
        }
    }

  protected:
    bool eventFilter(QObject*, QEvent* evento) override {
        pinturas_ += evento->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

  private:
    benchmark::IterationCount pinturas_ = 0;
};

/// The program with its main menu on the screen.
class Mesa {
  public:
    Mesa() {
        Abrir("frmCuencalia");
        Pintar();
    }

    Aplicacion& App() { return escritorio_.App(); }
    void Abrir(const char* forma) {
        App().Despachar([&] { App().ModuloAbrir(forma); });
    }
    Formulario& Modulo() { return *App().Cargada("frmParamEsta"); }
    FlexGrid& Grid() { return dynamic_cast<FlexGrid&>(*Modulo().Controls("grdt")); }
    QWidget& Ventana() { return *static_cast<Vista*>(Grid().Vista())->Widget()->window(); }
    void Llenar() {
        App().Despachar([this] {
            FlexGrid& grid = Grid();
            grid.PonerRows(kFilas + 2);
            for (int i = 1; i <= kFilas; ++i) {
                grid.PonerTextMatrix(i, 0, Str(i));
                grid.PonerTextMatrix(i, 1, Format(100 + 40 * std::sin(0.7 * i), "0.0###"));
            }
        });
        Pintar();
    }

  private:
    Escritorio escritorio_{FormasDelPrograma()};
};

void Teclear(int tecla, const QString& texto) {
    QKeyEvent baja(QEvent::KeyPress, tecla, Qt::NoModifier, texto);
    QApplication::sendEvent(QApplication::focusWidget(), &baja);
    QKeyEvent sube(QEvent::KeyRelease, tecla, Qt::NoModifier, texto);
    QApplication::sendEvent(QApplication::focusWidget(), &sube);
    Pintar();
}

/// From the command of the menu to the painted window of the module.
void AbrirModulo(benchmark::State& estado) {
    Mesa mesa;
    const Testigo testigo;
    for (auto _ : estado) {
        mesa.Abrir("frmParamEsta");
        Pintar();
        estado.PauseTiming();
        mesa.Ventana().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Pintar();
        estado.ResumeTiming();
    }
    testigo.Exigir(estado, 10);
}

/// A digit that opens the edit box, painted, and ENTER, painted: two keys.
void TeclearUnValor(benchmark::State& estado) {
    Mesa mesa;
    mesa.Abrir("frmParamEsta");
    mesa.Llenar();
    mesa.App().Despachar([&] { mesa.Grid().PonerCelda(1, 1); });
    const Testigo testigo;
    for (auto _ : estado) {
        Teclear(Qt::Key_5, "5");
        Teclear(Qt::Key_Return, "\r");
        if (mesa.Grid().Row() >= kFilas) {
            estado.PauseTiming();
            mesa.App().Despachar([&] { mesa.Grid().PonerCelda(1, 1); });
            estado.ResumeTiming();
        }
    }
    testigo.Exigir(estado, 2);
}

/// The whole window drawn anew: what it costs at worst to show any change.
void PintarVentana(benchmark::State& estado) {
    Mesa mesa;
    mesa.Abrir("frmParamEsta");
    mesa.Llenar();
    for (auto _ : estado) {
        benchmark::DoNotOptimize(mesa.Ventana().grab());
    }
}

void Pulsar(benchmark::State& estado, const char* boton) {
    Mesa mesa;
    mesa.Abrir("frmParamEsta");
    mesa.Llenar();
    const Testigo testigo;
    for (auto _ : estado) {
        mesa.App().Pulsar(*mesa.Modulo().Controls(boton));
        Pintar();
    }
    testigo.Exigir(estado, 1);
}

BENCHMARK(AbrirModulo)->Name("AbrirModulo_pintado")->Unit(benchmark::kMillisecond);
BENCHMARK(TeclearUnValor)->Name("DosTeclas_1500_pintado")->Unit(benchmark::kMillisecond);
BENCHMARK(PintarVentana)->Name("VentanaEntera_pintado")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Pulsar, Calcular_1500_pintado, "bCalcular")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Pulsar, Ordenar_1500_pintado, "bOrdenar")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace cuencalia::pruebas

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    benchmark::Initialize(&argc, argv);
    QApplication programa(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    cuencalia::estilo::Aplicar(programa);
    benchmark::AddCustomContext("qt", qVersion());
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
