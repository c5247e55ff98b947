// Costs of the program's own work, with no screen: what the forms and the calculations take for themselves.

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "frame/archivoserie.h"
#include "frame/flexgrid.h"
#include "frame/textos.h"
#include "hojas/libros.h"
#include "shell/formas.h"
#include "tests/guion/plataformaguion.h"

namespace cuencalia::pruebas {

namespace {

constexpr int kFilas = 1500;  // the most that a module takes

/// A module with a full grid.
class Modulo {
  public:
    explicit Modulo(const char* forma = "frmParamEsta") : forma_(forma) {
        app_.Despachar([this] { app_.ModuloAbrir(forma_); });
        grid_ = dynamic_cast<FlexGrid*>(app_.Cargada(forma_)->Controls("grdt"));
        app_.Despachar([this] {
            grid_->PonerRows(kFilas + 2);
            for (int i = 1; i <= kFilas; ++i) {
                grid_->PonerTextMatrix(i, 0, Str(i));
                for (int c = 1; c < grid_->Cols(); ++c) {
                    grid_->PonerTextMatrix(i, c, Format(100 + 40 * std::sin(0.7 * i * c), "0.0###"));
                }
            }
        });
    }

    void Pulsar(const char* boton) { app_.Pulsar(*app_.Cargada(forma_)->Controls(boton)); }
    /// The answer of the next file dialog.
    void Responder(const std::string& archivo) { plataforma_.archivo = archivo; }
    int Filas() const { return grid_->Rows(); }
    /// A digit opens the edit box on the row, ENTER stores it.
    void Teclear(int fila) {
        app_.Despachar([&] { grid_->Presionar(kBotonIzquierdo, fila, 1); });
        app_.PulsarTecla('5', '5');
        app_.PulsarTecla(kTeclaEnter, kTeclaEnter);
    }
    bool Bien() const { return plataforma_.errores.empty() && plataforma_.mensajes.empty(); }

  private:
    std::string forma_;
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

/// A series file and a workbook of the most rows that a module takes, for as long as the program runs.
class Archivos {
  public:
    Archivos() {
        EscritorSerie serie(Serie(), 1);
        Hoja hoja;
        for (int i = 1; i <= kFilas; ++i) {
            const Double valor = 100 + 40 * std::sin(0.7 * i);
            serie.Escribir({CSng(valor)});
            hoja.Poner(i, 1, valor);
        }
        LibrosDeCalculo().EscribirLibro(Libro(), hoja);
    }
    ~Archivos() { std::filesystem::remove_all(carpeta_); }

    std::string Serie() const { return carpeta_ / "serie.X"; }
    std::string Libro() const { return carpeta_ / "serie.xlsx"; }

  private:
    static std::filesystem::path Carpeta() {
        std::string plantilla = std::filesystem::temp_directory_path() / "medidas-XXXXXX";
        return ::mkdtemp(plantilla.data());
    }

    std::filesystem::path carpeta_ = Carpeta();
};

/// A load through the module's button; the dialog is answered with the file.
void Cargar(benchmark::State& estado, const char* boton, std::string (Archivos::*archivo)() const) {
    const Archivos archivos;
    Modulo modulo;
    for (auto _ : estado) {
        modulo.Responder((archivos.*archivo)());
        modulo.Pulsar(boton);
    }
    if (!modulo.Bien() || modulo.Filas() != kFilas + 2) {
        estado.SkipWithError("the load failed");
    }
}

/// Each report goes into a document of its own.
void Reportar(benchmark::State& estado) {
    for (auto _ : estado) {
        estado.PauseTiming();
        auto modulo = std::make_unique<Modulo>();
        modulo->Pulsar("bCalcular");
        modulo->Pulsar("bOrdenar");
        estado.ResumeTiming();
        modulo->Pulsar("bReporte");
        estado.PauseTiming();
        if (!modulo->Bien()) {
            estado.SkipWithError("the report failed");
        }
        modulo.reset();
        estado.ResumeTiming();
    }
}

/// The chart of 1500 pairs, as the model that the screen draws.
void Graficar(benchmark::State& estado) {
    Modulo modulo("frmRegreLineal");
    for (auto _ : estado) {
        modulo.Pulsar("bGraficar");
    }
    if (!modulo.Bien()) {
        estado.SkipWithError("the chart failed");
    }
}

BENCHMARK_CAPTURE(Cargar, Accesar_1500, "bAccesar", &Archivos::Serie)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Cargar, Excel_1500, "bCargarExcel", &Archivos::Libro)->Unit(benchmark::kMillisecond);
BENCHMARK(Reportar)->Name("Reporte_1500")->Unit(benchmark::kMillisecond);
BENCHMARK(Graficar)->Name("Grafico_1500")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Pulsar, Calcular_1500, "bCalcular")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Pulsar, Ordenar_1500, "bOrdenar")->Unit(benchmark::kMillisecond);
BENCHMARK(TeclearUnValor)->Name("Tecla_1500")->Unit(benchmark::kMillisecond);
BENCHMARK(AgregarUnaFila)->Name("FilaNueva_1500")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace cuencalia::pruebas
