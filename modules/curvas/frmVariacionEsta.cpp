#include "modules/curvas/frmVariacionEsta.h"

#include "frame/base/textos.h"
#include "frame/modulo/meses.h"
#include "modules/estadistica/orden.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoVE{
    .rotuloCrear = "Valores mensuales de X", .rotuloAccesar = "Valores mensuales de X", .extension = "*.VE"};
constexpr int kMeses = 12;

/// The probabilities of the table, with their names in the chart.
struct Nivel {
    double P;
    const char* leyenda;
};
constexpr std::array<Nivel, frmVariacionEsta::kNiveles> kTablaNiveles{
    {{0.70, "70%"}, {0.75, "75%"}, {0.80, "80%"}, {0.85, "85%"}, {0.90, "90%"}, {0.95, "95%"}}};

constexpr int kAnchoDato = 12, kAnchoNivel = 18;       // characters of a report's column
constexpr int kReglaDatos = 140, kReglaNiveles = 130;  // dashes

}  // namespace

frmVariacionEsta::frmVariacionEsta(Aplicacion& app)
    : ModuloCalculo(app, "frmVariacionEsta",
                    {.titulo = "Curva de variación estacional",
                     .datos = {.encabezados = {"Mes", "X"}, .etiqueta = MesCorto},
                     .archivo = &kArchivoVE}) {
    LeerEn({&serie});
    DeclararBotones({{&bGraficar, "graficar"}});
    DeclararTablas({&grddis});
    DeclararResultados({&txtnanos});
    DeclararGraficos({&Graph1}, kFondoGris);
    AvisarFallos(kDatosInadecuados);
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    Label4.Nombra(txtnanos);
    Graph1.RotularEjes(lblEjeX, lblEjeY);
}

void frmVariacionEsta::CargarMatrices() {
    ModuloCalculo::CargarMatrices();
    if (n == 0 || n % kMeses != 0) {
        App().MsgBox({"Ingresar los datos de años completos", kIconoInformacion, "Datos mensuales incompletos"});
        return;
    }
    nAnos = n / kMeses;
    int dato = 0;
    for (int i = 1; i <= nAnos; ++i) {
        for (Serie& mes : meses) {
            mes(i) = serie(++dato);
        }
    }
    txtnanos.Text = CStr(nAnos);
    copia = meses;
}

bool frmVariacionEsta::TodosPositivos() const {
    for (const Serie& mes : meses) {
        for (int i = 1; i <= nAnos; ++i) {
            if (mes(i) <= 0) {
                return false;
            }
        }
    }
    return true;
}

bool frmVariacionEsta::Calcular() {
    // After a refused series the calculation goes on with the last complete one. Without one there are no years, and
    // the mean of the logarithms fails.
    CargarMatrices();
    for (Serie& mes : meses) {
        OrdenarPorSeleccion(mes, nAnos);
    }
    if (!TodosPositivos()) {
        App().MsgBox({"Los valores de la serie no pueden ser iguales a 0, ¡Revisar y corregir valores¡",
                      kIconoInformacion, "Mensaje de error"});
        return false;
    }
    std::array<LogNormalMensual, kMeses> ajustes;
    for (std::size_t m = 0; m < kMeses; ++m) {
        ajustes[m] = AjustarMes(meses[m], nAnos);
    }
    for (std::size_t k = 0; k < kNiveles; ++k) {
        for (std::size_t m = 0; m < kMeses; ++m) {
            niveles[k][m] = CalcularQ(kTablaNiveles[k].P, ajustes[m]);
        }
    }
    for (int mes = 1; mes <= kMeses; ++mes) {
        std::vector<std::string> fila{MesCorto(mes)};
        for (const auto& nivel : niveles) {
            fila.push_back(Format(nivel[static_cast<std::size_t>(mes - 1)], "#####0.0#"));
        }
        grddis.PonerFila(mes, fila);
    }
    calculado = true;  // of the last complete series, too
    return n == nAnos * kMeses;
}

void frmVariacionEsta::bGraficar_Click() {
    if (!ExigirCalculo()) {
        return;
    }
    std::vector<SerieGrafico> curvas;
    for (std::size_t k = 0; k < kNiveles; ++k) {
        curvas.push_back({.leyenda = kTablaNiveles[k].leyenda, .y = {niveles[k].begin(), niveles[k].end()}});
    }
    GraficoDibujar(Graph1, {.fondo = kFondoGris, .conTrama = true}, curvas);
}

void frmVariacionEsta::GenerarReporte(Reporte& reporte) {
    std::string meses = "Año  ";
    for (int mes = 1; mes <= kMeses; ++mes) {
        meses += "  " + MesCorto(mes) + "   ";
    }
    reporte.Titulo("Serie de datos mensuales");
    reporte.LineaDeGuiones(kReglaDatos);
    reporte.ReporteLinea(meses + "   ");
    reporte.LineaDeGuiones(kReglaDatos);
    for (int i = 1; i <= nAnos; ++i) {
        std::string linea = Str(i) + Space(8);
        for (const Serie& mes : copia) {
            const std::string valor = Str(mes(i));
            linea += valor + Relleno(valor, kAnchoDato);
        }
        reporte.ReporteLinea(linea);
    }
    reporte.LineaDeGuiones(kReglaDatos);
    reporte.ReporteBlanco();

    std::string probabilidades = "Meses  ";
    for (const Nivel& nivel : kTablaNiveles) {
        probabilidades += Space(10) + nivel.leyenda + Space(3);
    }
    const auto celda = [](const std::string& texto, int, int columna) {
        const std::string relleno = Relleno(texto, kAnchoNivel);
        return (columna > 0 ? relleno : "") + texto + relleno;
    };
    reporte.EscribirTabla({.titulo = "Probabilidad de que los eventos mensuales sean igualados o superados",
                           .regla = kReglaNiveles,
                           .encabezado = probabilidades + "   ",
                           .celda = celda},
                          grddis, kMeses);
}

Disposicion frmVariacionEsta::Contenido() {
    return Columna({Fila({Label3, Espacio(), Label4, txtnanos}), grddis, Fila({lblEjeY, Espacio()}),
                    Disposicion(Graph1).Estira(1), Fila({Espacio(), lblEjeX}), Espacio(0)});
}

}  // namespace cuencalia
