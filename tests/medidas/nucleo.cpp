// Costs of the program's own work, with no screen: what the forms and the calculations take for themselves.

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "frame/flexgrid.h"
#include "frame/textos.h"
#include "shell/formas.h"
#include "tests/guion/plataformaguion.h"

namespace cuencalia::pruebas {

namespace {

constexpr int kFilas = 1500;  // the most that a module takes

/// The module of the statistical parameters with a full grid.
class Modulo {
  public:
    Modulo() {
        app_.Despachar([this] { app_.ModuloAbrir("frmParamEsta"); });
        grid_ = dynamic_cast<FlexGrid*>(app_.Cargada("frmParamEsta")->Controls("grdt"));
        app_.Despachar([this] {
            grid_->PonerRows(kFilas + 2);
            for (int i = 1; i <= kFilas; ++i) {
                grid_->PonerTextMatrix(i, 0, Str(i));
                grid_->PonerTextMatrix(i, 1, Format(100 + 40 * std::sin(0.7 * i), "0.0###"));
            }
        });
    }

    void Pulsar(const char* boton) { app_.Pulsar(*app_.Cargada("frmParamEsta")->Controls(boton)); }
    /// A digit opens the edit box on the row, ENTER stores it.
    void Teclear(int fila) {
        app_.Despachar([&] { grid_->Presionar(kBotonIzquierdo, fila, 1); });
        app_.PulsarTecla('5', '5');
        app_.PulsarTecla(kTeclaEnter, kTeclaEnter);
    }
    bool Bien() const { return plataforma_.errores.empty() && plataforma_.mensajes.empty(); }

  private:
    PlataformaGuion plataforma_;
    Aplicacion app_{plataforma_, FormasDelPrograma()};
    FlexGrid* grid_ = nullptr;
};

void Pulsar(benchmark::State& estado, const char* boton) {
    Modulo modulo;
    for (auto _ : estado) {
        modulo.Pulsar(boton);
    }
    if (!modulo.Bien()) {
        estado.SkipWithError("the command failed");
    }
}

void TeclearUnValor(benchmark::State& estado) {
    Modulo modulo;
    int fila = 0;
    for (auto _ : estado) {
        fila = fila % (kFilas - 1) + 1;
        modulo.Teclear(fila);
    }
}

/// The entry row grows the grid: the labels are numbered anew.
void AgregarUnaFila(benchmark::State& estado) {
    auto modulo = std::make_unique<Modulo>();
    int filas = kFilas;
    for (auto _ : estado) {
        modulo->Teclear(++filas);
        if (filas == kFilas + 100) {
            estado.PauseTiming();
            modulo = std::make_unique<Modulo>();
            filas = kFilas;
            estado.ResumeTiming();
        }
    }
}

BENCHMARK_CAPTURE(Pulsar, Calcular_1500, "bCalcular")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Pulsar, Ordenar_1500, "bOrdenar")->Unit(benchmark::kMillisecond);
BENCHMARK(TeclearUnValor)->Name("Tecla_1500")->Unit(benchmark::kMillisecond);
BENCHMARK(AgregarUnaFila)->Name("FilaNueva_1500")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace cuencalia::pruebas
