// Costs of the program's own work, with no screen: what the forms and the calculations take for themselves.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "frame/base/archivoserie.h"
#include "frame/base/textos.h"
#include "frame/controles/controles.h"
#include "frame/controles/flexgrid.h"
#include "guion/plataformaguion.h"
#include "hojas/libros.h"
#include "modules/comparacion/comparar.h"
#include "modules/comparacion/pruebasserie.h"
#include "modules/comparacion/remuestreo.h"
#include "modules/estadistica/momentos.h"
#include "shell/formas.h"

namespace cuencalia::pruebas {

namespace {

constexpr int kFilas = 1500;         // the most that most modules take
constexpr int kFilasAR1 = 3000;      // those of stochastic generation
constexpr int kGeneradosAR1 = 2950;  // the most that these generate

/// A module with a full grid, if it has one.
class Modulo {
  public:
    explicit Modulo(const char* forma = "frmParamEsta", int filas = kFilas, double medio = 100) : forma_(forma) {
        app_.Despachar([this] { app_.ModuloAbrir(forma_); });
        grid_ = dynamic_cast<FlexGrid*>(app_.Cargada(forma_)->Controls("grdt"));
        if (grid_ != nullptr) {
            Llenar(filas, medio);
        }
    }

    void Llenar(int filas, double medio = 100) {
        app_.Despachar([this, filas, medio] {
            grid_->PonerRows(filas + 2);
            for (int i = 1; i <= filas; ++i) {
                grid_->PonerTextMatrix(i, 0, Str(i));
                for (int c = 1; c < grid_->Cols(); ++c) {
                    grid_->PonerTextMatrix(i, c, Format(medio * (1 + 0.4 * std::sin(0.7 * i * c)), "0.0###"));
                }
            }
        });
    }
    void Elegir(const char* opcion) {
        app_.Despachar([&] {
            auto& boton = dynamic_cast<OptionButton&>(*app_.Cargada(forma_)->Controls(opcion));
            boton.TraerAlFrente();
            boton.Value = true;
        });
    }
    void Pulsar(const char* boton) { app_.Pulsar(*app_.Cargada(forma_)->Controls(boton)); }
    void Escribir(const char* caja, const std::string& texto) {
        app_.Despachar([&] { dynamic_cast<TextBox&>(*app_.Cargada(forma_)->Controls(caja)).Text = texto; });
    }
    const std::string& Texto(const char* caja) {
        return dynamic_cast<TextBox&>(*app_.Cargada(forma_)->Controls(caja)).Text();
    }
    const Hoja& Libro() const { return plataforma_.libro; }
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

/// The windows of distribution fits, all eight by default, each with the same series.
class Ajustes {
  public:
    explicit Ajustes(std::vector<std::string> formas = {"frmDisNormal", "frmDisLogNormal2", "frmDisLogNormal3",
                                                        "frmDisGamma2par", "frmDisGamma3par", "frmDisLogPearson3",
                                                        "frmDisGumbel", "frmDisLogGumbel"})
        : formas_(std::move(formas)) {
        for (const std::string& forma : formas_) {
            app_.Despachar([&] { app_.ModuloAbrir(forma); });
        }
    }
    void Escribir(const std::vector<double>& serie) {
        const int valores = static_cast<int>(serie.size());
        std::vector<std::string> textos;
        for (const double valor : serie) {
            textos.push_back(Format(valor, "0.0###"));
        }
        for (const std::string& forma : formas_) {
            auto& grid = dynamic_cast<FlexGrid&>(*app_.Cargada(forma)->Controls("grdt"));
            app_.Despachar([&] {
                grid.PonerRows(valores + 2);
                for (int i = 1; i <= valores; ++i) {
                    grid.PonerTextMatrix(i, 1, textos[static_cast<std::size_t>(i - 1)]);
                }
            });
        }
    }
    void Calcular() {
        for (const std::string& forma : formas_) {
            app_.Pulsar(*app_.Cargada(forma)->Controls("bCalcular"));
        }
    }
    /// In the first window.
    void CaudalDeDiseno(const char* T) {
        Formulario& f = *app_.Cargada(formas_[0]);
        app_.Despachar([&] { dynamic_cast<TextBox&>(*f.Controls("txtxt")).Text = T; });
        app_.Pulsar(*f.Controls("bQ"));
    }
    bool Bien() const { return plataforma_.errores.empty() && plataforma_.mensajes.empty(); }

  private:
    std::vector<std::string> formas_;
    PlataformaGuion plataforma_;
    Aplicacion app_{plataforma_, FormasDelPrograma()};
};

/// Random values skewed also in their logarithms, so that every fit runs to its end. The greatest of them would be
/// beyond the series of the gamma function.
std::vector<double> SerieAlAzar(int valores, std::mt19937& azar) {
    std::exponential_distribution<double> exponencial;
    std::vector<double> serie;
    for (int i = 0; i < valores; ++i) {
        serie.push_back(100 * std::exp(0.3 * std::min(exponencial(azar), 6.0)));
    }
    return serie;
}

/// Calcular in the eight windows: parameters, table, verdict.
void AjustarOcho(benchmark::State& estado, int valores) {
    std::mt19937 azar(1);
    Ajustes ajustes;
    ajustes.Escribir(SerieAlAzar(valores, azar));
    for (auto _ : estado) {
        ajustes.Calcular();
    }
    if (!ajustes.Bien()) {
        estado.SkipWithError("a fit failed");
    }
}

/// A thousand series, one after the other, each written into the eight windows and fitted there.
void AjustarMilSeries(benchmark::State& estado, int valores) {
    std::mt19937 azar(1);
    Ajustes ajustes;
    for (auto _ : estado) {
        for (int serie = 0; serie < 1000; ++serie) {
            estado.PauseTiming();
            ajustes.Escribir(SerieAlAzar(valores, azar));
            estado.ResumeTiming();
            ajustes.Calcular();
        }
    }
    if (!ajustes.Bien()) {
        estado.SkipWithError("a fit failed");
    }
}

/// The quantile of a fit to the 60 values that a Gumbel distribution has at the plotting positions.
void CaudalDeDiseno(benchmark::State& estado, const char* forma, const char* T) {
    std::vector<double> serie;
    for (int i = 1; i <= 60; ++i) {
        serie.push_back(100 - 30 * std::log(-std::log(i / 61.0)));
    }
    Ajustes ajustes({forma});
    ajustes.Escribir(serie);
    ajustes.Calcular();
    for (auto _ : estado) {
        ajustes.CaudalDeDiseno(T);
    }
    if (!ajustes.Bien()) {
        estado.SkipWithError("the quantile failed");
    }
}

void Pulsar(benchmark::State& estado, const char* boton) {
    Modulo modulo;
    for (auto _ : estado) {
        modulo.Pulsar(boton);
    }
    if (!modulo.Bien()) {
        estado.SkipWithError("the command failed");
    }
}

/// A window with the most rows that it takes, and what its box must say.
struct Llena {
    const char* forma;
    const char* caja = nullptr;
    const char* texto = nullptr;
    int filas = kFilas;
    double medio = 100;  ///< About what its values are.
};

void CalcularLlena(benchmark::State& estado, const Llena& llena) {
    Modulo modulo(llena.forma, llena.filas, llena.medio);
    if (llena.caja != nullptr) {
        modulo.Escribir(llena.caja, llena.texto);
    }
    for (auto _ : estado) {
        modulo.Pulsar("bCalcular");
    }
    if (!modulo.Bien()) {
        estado.SkipWithError("the calculation failed");
    }
}

/// The intensity of a basin from a full grid.
void CalcularIntensidad(benchmark::State& estado, const char* forma, const char* opcion) {
    Modulo modulo(forma, 0);
    modulo.Elegir(opcion);
    modulo.Llenar(kFilas);
    modulo.Escribir("txtLi", "2500");
    modulo.Escribir("txtHi", "80");
    modulo.Escribir("txtTi", "25");
    for (auto _ : estado) {
        modulo.Pulsar("bcalcularI");
    }
    if (!modulo.Bien() || modulo.Texto("txtImaxi").empty()) {
        estado.SkipWithError("the calculation failed");
    }
}

/// A window of boxes, each with its value; `opcion` shows the last of them.
void CalcularCajas(benchmark::State& estado, const char* forma,
                   const std::vector<std::pair<const char*, const char*>>& valores, const char* opcion = nullptr) {
    Modulo modulo(forma);
    if (opcion != nullptr) {
        modulo.Pulsar(opcion);
    }
    for (const auto& [caja, valor] : valores) {
        modulo.Escribir(caja, valor);
    }
    for (auto _ : estado) {
        modulo.Pulsar("bCalcular");
    }
    if (!modulo.Bien()) {
        estado.SkipWithError("the calculation failed");
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
        serie.Publicar();
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

/// Calcular of a regression. The values are above 0, and no column depends on the others.
void CalcularRegresion(benchmark::State& estado, const char* forma, int filas) {
    Modulo modulo(forma, filas);
    for (auto _ : estado) {
        modulo.Pulsar("bCalcular");
    }
    if (!modulo.Bien()) {
        estado.SkipWithError("the regression failed");
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

/// The model of the longest series and as many values as can be generated, in the grid.
void GenerarAR1(benchmark::State& estado, const char* forma) {
    Modulo modulo(forma, kFilasAR1);
    modulo.Escribir("txtNgen", std::to_string(kGeneradosAR1));
    for (auto _ : estado) {
        modulo.Pulsar("bCalcular");
    }
    if (!modulo.Bien()) {
        estado.SkipWithError("the calculation failed");
    }
}

/// The workbook of the generated series.
void EscribirLibro(benchmark::State& estado) {
    Modulo modulo("frmAutoregresivo");
    modulo.Escribir("txtNgen", std::to_string(kGeneradosAR1));
    modulo.Pulsar("bCalcular");
    modulo.Pulsar("bCrearExcel");
    const Archivos archivos;
    for (auto _ : estado) {
        LibrosDeCalculo().EscribirLibro(archivos.Libro(), modulo.Libro());
    }
    if (modulo.Libro().Filas() != kGeneradosAR1) {
        estado.SkipWithError("the workbook has other rows");
    }
}

/// Values of a Gumbel distribution, in order.
std::vector<double> SerieGumbel(std::uint32_t semilla, std::size_t valores) {
    std::mt19937 azar(semilla);
    std::extreme_value_distribution<double> gumbel(100, 30);
    std::vector<double> x(valores);
    std::generate(x.begin(), x.end(), [&] { return gumbel(azar); });
    std::sort(x.begin(), x.end());
    return x;
}

/// What the comparison shows without resampling: all candidates, their measures, the design table, the series' tests.
void Comparacion(benchmark::State& estado) {
    const std::vector<double> x = SerieGumbel(1, 60);
    for (auto _ : estado) {
        benchmark::DoNotOptimize(ProbarSerie(x));
        for (const Comparado& c : Comparar(x, kPosicionCunnane)) {
            for (const double T : kPeriodosDeDiseno) {
                benchmark::DoNotOptimize(c.ajuste.distribucion ? c.ajuste.distribucion->Caudal(T) : 0);
            }
        }
    }
}

void Remuestrear60(benchmark::State& estado) {
    const std::vector<double> x = SerieGumbel(1, 60);
    const std::vector<Ajuste> ajustes = AjustarCandidatos(x);
    for (auto _ : estado) {
        if (!Remuestrear(ajustes, x, kPeriodosDeDiseno, {.muestras = 1000, .hilos = 2})) {
            estado.SkipWithError("the resampling was cancelled");
        }
    }
}

void MomentosL10000(benchmark::State& estado) {
    std::vector<std::vector<double>> series;
    for (std::uint32_t s = 0; s < 10000; ++s) {
        series.push_back(SerieGumbel(s, 50));
    }
    for (auto _ : estado) {
        for (const std::vector<double>& x : series) {
            benchmark::DoNotOptimize(CalcularMomentosLineales(x));
        }
    }
}

BENCHMARK(Comparacion)->Name("Comparar_60")->Unit(benchmark::kMillisecond);
BENCHMARK(Remuestrear60)
    ->Name("Remuestreo_1000x60")
    ->UseRealTime()
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(MomentosL10000)->Name("MomentosL_10000x50")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Cargar, Accesar_1500, "bAccesar", &Archivos::Serie)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Cargar, Excel_1500, "bCargarExcel", &Archivos::Libro)->Unit(benchmark::kMillisecond);
BENCHMARK(Reportar)->Name("Reporte_1500")->Unit(benchmark::kMillisecond);
BENCHMARK(Graficar)->Name("Grafico_1500")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularRegresion, Lineal_1550, "frmRegreLineal", 1550)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularRegresion, Simple_1550, "frmEjRegSimple", 1550)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularRegresion, Multiple2_1500, "frmRegMul2Var", 1500)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularRegresion, Multiple3_1500, "frmRegMul3Var", 1500)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularRegresion, Polinomio2_1500, "frmRegPoli2Gra", 1500)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularRegresion, Polinomio3_1500, "frmRegPoli3Gra", 1500)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Pulsar, Calcular_1500, "bCalcular")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Pulsar, Ordenar_1500, "bOrdenar")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularLlena, PromArit, Llena{"frmPromArit"})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularLlena, Thiessen, Llena{"frmThiessen"})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularLlena, Isoyeta, Llena{"frmIsoyeta", "txtUltimaIsoyeta", "100", kFilas - 1})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularLlena, QmaxGumbel, Llena{"frmQmaxGumbel", "txtTdato", "100"})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularLlena, QmaxNash, Llena{"frmQmaxNash", "txtTdato", "100"})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularIntensidad, QmaxRacional, "frmQmaxRacional", "optRegistros")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularIntensidad, QmaxRacDyck, "frmQmaxRacDyckPeschke", "optDuracionAdiNo")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularIntensidad, QmaxMacMath, "frmQmaxMacMath", "optRegistros")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularIntensidad, QmaxMacDyck, "frmQmaxMacMathDyckPeschke", "optDuracionAdiNo")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularLlena, Thornthwaite, Llena{"frmThornthwaite", nullptr, nullptr, 12, 20})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularLlena, BalanceHidro, Llena{"frmBalanceHidro", nullptr, nullptr, 12, 20})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularCajas, Penman, "frmPenman",
                  {{"txth", "95"},
                   {"txtt", "28.5"},
                   {"txtHRmed", "55"},
                   {"txtHRmax", "80"},
                   {"txtUz", "9.66"},
                   {"txtHz", "2"},
                   {"txtRVdVn", "1.5"},
                   {"txtnp", "11.5"}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CalcularCajas, Hargreaves, "frmHargreaves",
                  {{"txtTmin", "14.8"}, {"txtTmax", "26.6"}, {"txtKcTabla", "1.15"}}, "optKcTabla")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GenerarAR1, AR1_2950, "frmAutoregresivo")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GenerarAR1, AR1Trans_2950, "frmAutoregTrans")->Unit(benchmark::kMillisecond);
BENCHMARK(EscribirLibro)->Name("Libro_2950")->Unit(benchmark::kMillisecond);
BENCHMARK(TeclearUnValor)->Name("Tecla_1500")->Unit(benchmark::kMillisecond);
BENCHMARK(AgregarUnaFila)->Name("FilaNueva_1500")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AjustarOcho, OchoAjustes_60, 60)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AjustarOcho, OchoAjustes_499, 499)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AjustarMilSeries, MilSeries_60, 60)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AjustarMilSeries, MilSeries_499, 499)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CaudalDeDiseno, Gamma2_100, "frmDisGamma2par", "100")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CaudalDeDiseno, Gamma3_100, "frmDisGamma3par", "100")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CaudalDeDiseno, Gamma3_1000, "frmDisGamma3par", "1000")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace cuencalia::pruebas
