// Costs on the desktop, painting included: every window is drawn by the processor into memory, as on a screen without
// the help of a graphics card.

#include "escritorio/programa/escritorio.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTableView>
#include <QTimer>
#include <cmath>
#include <string>
#include <utility>

#include "escritorio/ventanas/ventana.h"
#include "escritorio/vistas/estilo.h"
#include "escritorio/vistas/vista.h"
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

/// Closes at once what waits for a user, who is not there.
class Vigia : public QObject {
  public:
    std::string caja;  ///< What the last box said, or the title of another dialog.

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        auto* dialogo = qobject_cast<QDialog*>(objeto);
        if (dialogo != nullptr && evento->type() == QEvent::Show) {
            const auto* mensaje = qobject_cast<QMessageBox*>(dialogo);
            caja = Std(mensaje != nullptr ? mensaje->text() : dialogo->windowTitle());
            QTimer::singleShot(0, dialogo, &QDialog::reject);
        }
        return false;
    }
};
Vigia vigia;

/// Counts what is drawn: a measure of painting that paints nothing is none, nor is one that opened a box.
class Testigo : public QObject {
  public:
    Testigo() { qApp->installEventFilter(this); }

    /// Marks the measure as failed unless every round painted so many times at least, with no box since the last one.
    void Exigir(benchmark::State& estado, benchmark::IterationCount porVuelta) const {
        if (const std::string caja = std::exchange(vigia.caja, {}); !caja.empty()) {
            estado.SkipWithError(("a box was opened: " + caja).c_str());
        } else if (pinturas_ < estado.iterations() * porVuelta) {
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
    explicit Mesa(const char* modulo = "frmParamEsta") : modulo_(modulo) {
        Abrir("frmCuencalia");
        Pintar();
    }

    Aplicacion& App() { return escritorio_.App(); }
    void Abrir(const char* forma) {
        App().Despachar([&] { App().ModuloAbrir(forma); });
    }
    void AbrirModulo() { Abrir(modulo_); }
    Formulario& Modulo(const char* forma = nullptr) { return *App().Cargada(forma != nullptr ? forma : modulo_); }
    FlexGrid& Grid() { return dynamic_cast<FlexGrid&>(*Modulo().Controls("grdt")); }
    QWidget& Ventana() { return *static_cast<Vista*>(Modulo().Controls("bCalcular")->Vista())->Widget()->window(); }
    void Llenar(int filas = kFilas, double medio = 100) {
        App().Despachar([&] {
            FlexGrid& grid = Grid();
            grid.PonerRows(filas + 2);
            for (int i = 1; i <= filas; ++i) {
                grid.PonerTextMatrix(i, 0, Str(i));
                for (int c = 1; c < grid.Cols(); ++c) {
                    grid.PonerTextMatrix(i, c, Format(medio * (1 + 0.4 * std::sin(0.7 * i * c)), "0.0###"));
                }
            }
        });
        Pintar();
    }

  private:
    const char* modulo_;
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
void AbrirModulo(benchmark::State& estado, const char* forma) {
    Mesa mesa(forma);
    const Testigo testigo;
    for (auto _ : estado) {
        mesa.AbrirModulo();
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
    mesa.AbrirModulo();
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
    mesa.AbrirModulo();
    mesa.Llenar();
    for (auto _ : estado) {
        benchmark::DoNotOptimize(mesa.Ventana().grab());
    }
}

void Pulsar(benchmark::State& estado, const char* boton) {
    Mesa mesa;
    mesa.AbrirModulo();
    mesa.Llenar();
    const Testigo testigo;
    for (auto _ : estado) {
        mesa.App().Pulsar(*mesa.Modulo().Controls(boton));
        Pintar();
    }
    testigo.Exigir(estado, 1);
}

/// A module, the rows that it takes at most, about what values, and what its lists must say.
struct ModuloLleno {
    const char* forma;
    int filas;
    const char* antes = nullptr;  ///< Button to be pressed before the chart.
    const char* caja = nullptr;   ///< Box with the value of a window without a grid.
    double medio = 100;
    std::vector<std::pair<const char*, int>> listas = {};
};
constexpr const char* kTablaIDT = "bCalPreviosIDT";
const ModuloLleno kModulos[] = {{"frmVariacionEsta", 1500},
                                {"frmCurvaDuracion", 499},
                                {"frmAnalisisTor", 198},
                                {"frmIntensidadMax", 1500, kTablaIDT},
                                {"frmDyckPeschkeImax", 1500, kTablaIDT},
                                {"frmBell", 0, kTablaIDT, "txtPD60T10"},
                                {"frmAforoCorren", 49},
                                {.forma = "frmThornthwaite", .filas = 12, .medio = 20},
                                {.forma = "frmBlaneyCriddle",
                                 .filas = 12,
                                 .medio = 20,
                                 .listas = {{"cobInsolacion", 0}, {"cobHumedad", 1}, {"cobViento", 1}, {"cobKc", 0}}},
                                {.forma = "frmBalanceHidro", .filas = 12, .medio = 20}};

/// A command of a full module whose first value has changed; the chart is shown from the start.
void PulsarLleno(benchmark::State& estado, const ModuloLleno& modulo, const char* boton) {
    Mesa mesa(modulo.forma);
    mesa.AbrirModulo();
    if (modulo.caja == nullptr) {
        mesa.Llenar(modulo.filas, modulo.medio);
    }
    mesa.App().Despachar([&] {
        for (const auto& [lista, entrada] : modulo.listas) {
            dynamic_cast<ComboBox&>(*mesa.Modulo().Controls(lista)).Elegir(entrada);
        }
    });
    const auto cambiar = [&](const std::string& valor) {
        mesa.App().Despachar([&] {
            if (modulo.caja != nullptr) {
                auto& caja = dynamic_cast<TextBox&>(*mesa.Modulo().Controls(modulo.caja));
                caja.TraerAlFrente();
                caja.Text = valor;
            } else {
                mesa.Grid().TraerAlFrente();
                mesa.Grid().PonerTextMatrix(1, 1, valor);
            }
        });
        Pintar();
    };
    const auto pulsar = [&mesa](const char* cual) {
        mesa.App().Pulsar(*mesa.Modulo().Controls(cual));
        Pintar();
    };
    cambiar(Format(modulo.medio * 1.5, "0.0"));
    pulsar("bCalcular");
    if (modulo.antes != nullptr) {
        mesa.App().Despachar([&] { mesa.Modulo().Controls(modulo.antes)->TraerAlFrente(); });
        pulsar(modulo.antes);
    }
    pulsar("bGraficar");
    const Testigo testigo;
    bool mayor = false;
    for (auto _ : estado) {
        estado.PauseTiming();
        mayor = !mayor;
        cambiar(Format(modulo.medio * (mayor ? 1.6 : 1.5), "0.0"));
        if (std::string_view(boton) == "bGraficar") {
            pulsar("bCalcular");  // the same chart again would paint nothing
        }
        estado.ResumeTiming();
        pulsar(boton);
    }
    testigo.Exigir(estado, 1);
}

/// As many values as can be generated, the first ones painted; the chart of both series likewise.
void GenerarAR1(benchmark::State& estado, const char* boton) {
    Mesa mesa;
    mesa.Abrir("frmAutoregresivo");
    Formulario& forma = mesa.Modulo("frmAutoregresivo");
    mesa.App().Despachar([&] {
        auto& grid = dynamic_cast<FlexGrid&>(*forma.Controls("grdt"));
        grid.PonerRows(42);
        for (int i = 1; i <= 40; ++i) {
            grid.PonerTextMatrix(i, 1, Format(100 + 40 * std::sin(0.7 * i), "0.0###"));
        }
        dynamic_cast<TextBox&>(*forma.Controls("txtNgen")).Text = "2950";
    });
    mesa.App().Pulsar(*forma.Controls("bCalcular"));
    Pintar();
    const Testigo testigo;
    for (auto _ : estado) {
        estado.PauseTiming();
        if (std::string_view(boton) == "bGraficar") {
            mesa.App().Pulsar(*forma.Controls("bCalcular"));
            Pintar();
        }
        estado.ResumeTiming();
        mesa.App().Pulsar(*forma.Controls(boton));
        Pintar();
    }
    testigo.Exigir(estado, 1);
}

/// The intensity of a basin from 1500 daily maxima, with the table of its ranks.
void CalcularIntensidad(benchmark::State& estado) {
    Mesa mesa("frmQmaxRacDyckPeschke");
    mesa.AbrirModulo();
    const auto control = [&mesa](const char* nombre) -> Control& { return *mesa.Modulo().Controls(nombre); };
    mesa.App().Despachar([&] {
        mesa.Grid().TraerAlFrente();
        for (const char* caja : {"txtLi", "txtHi", "txtTi"}) {
            dynamic_cast<TextBox&>(control(caja)).Text = "100";
        }
    });
    mesa.Llenar();
    const Testigo testigo;
    for (auto _ : estado) {
        mesa.App().Pulsar(control("bcalcularI"));
        Pintar();
    }
    testigo.Exigir(estado, 1);
}

BENCHMARK_CAPTURE(AbrirModulo, AbrirModulo_pintado, "frmParamEsta")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AbrirModulo, AbrirPenman_pintado, "frmPenman")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AbrirModulo, AbrirHargreaves_pintado, "frmHargreaves")->Unit(benchmark::kMillisecond);
BENCHMARK(TeclearUnValor)->Name("DosTeclas_1500_pintado")->Unit(benchmark::kMillisecond);
BENCHMARK(PintarVentana)->Name("VentanaEntera_pintado")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Pulsar, Calcular_1500_pintado, "bCalcular")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Pulsar, Ordenar_1500_pintado, "bOrdenar")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GenerarAR1, AR1_2950_pintado, "bCalcular")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GenerarAR1, GraficoAR1_2950_pintado, "bGraficar")->Unit(benchmark::kMillisecond);
BENCHMARK(CalcularIntensidad)->Name("QmaxDyck_pintado")->Unit(benchmark::kMillisecond);

}  // namespace

/// Opening, Calcular and Graficar of each module of the table.
void RegistrarModulos() {
    for (const ModuloLleno& modulo : kModulos) {
        const std::string abrir = std::string(modulo.forma) + "_Abrir_pintado";
        benchmark::RegisterBenchmark(abrir.c_str(), AbrirModulo, modulo.forma)->Unit(benchmark::kMillisecond);
        for (const char* boton : {"bCalcular", "bGraficar"}) {
            const std::string nombre = std::string(modulo.forma) + "_" + boton + "_pintado";
            benchmark::RegisterBenchmark(nombre.c_str(), PulsarLleno, modulo, boton)->Unit(benchmark::kMillisecond);
        }
    }
}

}  // namespace cuencalia::pruebas

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    benchmark::Initialize(&argc, argv);
    QApplication programa(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    programa.installEventFilter(&cuencalia::pruebas::vigia);
    cuencalia::estilo::Aplicar(programa);
    benchmark::AddCustomContext("qt", qVersion());
    cuencalia::pruebas::RegistrarModulos();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
