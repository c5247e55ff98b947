#include "modules/comparacion/fichacandidatos.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "frame/base/textos.h"
#include "modules/comparacion/textos.h"

namespace cuencalia {

namespace {

constexpr int kColumnaAkaike = 10, kColumnaObservacion = 11, kColumnaParametros = 12;

/// An order of the rows, from the least key on, of the column of the candidates that shows it.
struct OrdenCandidatos {
    const char* nombre;
    int columna;
    double (*clave)(const Comparado& c, const Remuestreo& r);
};
constexpr OrdenCandidatos kOrdenes[] = {
    {"Distribución", 0, [](const Comparado&, const Remuestreo&) { return 0.0; }},
    {"Método", 1, [](const Comparado& c, const Remuestreo&) { return double(c.ajuste.candidato.metodo); }},
    {"Delta", 2, [](const Comparado& c, const Remuestreo&) { return c.bondad->delta; }},
    {"p de delta", 3, [](const Comparado&, const Remuestreo& r) { return -r.pDelta; }},
    {"Anderson-Darling", 4, [](const Comparado& c, const Remuestreo&) { return c.bondad->andersonDarling; }},
    {"p de Anderson-Darling", 5, [](const Comparado&, const Remuestreo& r) { return -r.pAndersonDarling; }},
    {"Correlación", 6, [](const Comparado& c, const Remuestreo&) { return -c.bondad->correlacion; }},
    {"p de la correlación", 7, [](const Comparado&, const Remuestreo& r) { return -r.pCorrelacion; }},
    {"Error cuadrático medio", 8, [](const Comparado& c, const Remuestreo&) { return c.bondad->error; }},
    {"p del error", 9, [](const Comparado&, const Remuestreo& r) { return -r.pError; }},
    {"Akaike (AIC)", kColumnaAkaike,
     [](const Comparado& c, const Remuestreo&) { return c.akaike.value_or(HUGE_VAL); }}};

std::string OrdenPorCaudal(double T) { return "Q de T = " + CStr(T); }

/// The orders by the columns of the candidates, then by those of the design table.
std::vector<std::string> NombresDeOrdenes() {
    std::vector<std::string> nombres;
    for (const OrdenCandidatos& o : kOrdenes) {
        nombres.emplace_back(o.nombre);
    }
    for (const double T : kPeriodosDeDiseno) {
        nombres.push_back(OrdenPorCaudal(T));
    }
    return nombres;
}

constexpr const char* kCautela =
    "Ningún ajuste es el mejor por un solo número: con pocas decenas de datos las medidas apenas separan las familias, "
    "y lo que decide Q en los grandes períodos es la cola, que los datos no alcanzan. Compare también los límites, el "
    "papel de probabilidad y lo que se sabe de la cuenca.";

/// The cells of a candidate, without those that have nothing to show.
std::vector<std::string> TextosDe(const Comparado& c, const Remuestreo* r) {
    const Candidato& candidato = c.ajuste.candidato;
    std::vector<std::string> textos{NombreFamilia(candidato.familia), NombreMetodo(candidato.metodo)};
    if (!c.bondad) {
        textos.resize(kColumnaObservacion);
        textos.push_back(c.ajuste.motivo);
        return textos;
    }
    const auto p = [r](double Remuestreo::*cual) { return r != nullptr ? Numero(r->*cual, "0.000") : ""; };
    std::string observacion;
    if (std::isinf(c.bondad->andersonDarling)) {
        observacion = "Hay datos más allá del extremo de la distribución";
    }
    if (r != nullptr && r->validas < kMuestras) {
        observacion += (observacion.empty() ? "Muestras" : "; muestras") +
                       (" sin ajuste posible: " + std::to_string(kMuestras - r->validas));
    }
    textos.insert(
        textos.end(),
        {Numero(c.bondad->delta, "0.0000"), p(&Remuestreo::pDelta), Numero(c.bondad->andersonDarling, "0.000"),
         p(&Remuestreo::pAndersonDarling), Numero(c.bondad->correlacion, "0.0000"), p(&Remuestreo::pCorrelacion),
         Numero(c.bondad->error, "0.0##"), p(&Remuestreo::pError), c.akaike ? Numero(*c.akaike, "0.00") : "",
         observacion, TextoParametros(*c.ajuste.distribucion)});
    return textos;
}

}  // namespace

FichaCandidatos::FichaCandidatos(MarcoModulo& modulo)
    : lblOrden(modulo, "lblOrden", "Ordenar por:"),
      cmbOrden(modulo, "cmbOrden", NombresDeOrdenes()),
      lblCautela(modulo, "lblCautela", {}, Papel::Nota),
      grdCandidatos(modulo, "grdCandidatos", "Candidatos",
                    {.filas = 2,
                     .columnas = {{"Distribución", 2600},
                                  {"Método", 2000},
                                  {"Delta", 900},
                                  {"p", 700},
                                  {"A-D", 900},
                                  {"p", 700},
                                  {"Correl.", 900},
                                  {"p", 700},
                                  {"Error", 1000},
                                  {"p", 700},
                                  {"AIC", 1000},
                                  {"Observación", 5000},
                                  {"Parámetros", 3400}},
                     .columnasFijas = 1}) {
    modulo.DeclararTablas({&grdCandidatos});
    modulo.DeclararInicio({&lblCautela});
    cmbOrden.Editable = false;
    cmbOrden.Text = kOrdenes[0].nombre;
    lblOrden.Nombra(cmbOrden);
    grdCandidatos.PulsarEncabezado.Conectar([this](int columna) {
        for (const OrdenCandidatos& o : kOrdenes) {
            if (o.columna == columna) {
                cmbOrden.Text = o.nombre;
            }
        }
    });
}

void FichaCandidatos::OrdenarPorCaudal(int columna) {
    cmbOrden.Text =
        columna == 0 ? kOrdenes[0].nombre : OrdenPorCaudal(kPeriodosDeDiseno[static_cast<std::size_t>(columna - 1)]);
}

void FichaCandidatos::Ordenar(Comparacion& c) const {
    c.orden.resize(c.comparados.size());
    std::iota(c.orden.begin(), c.orden.end(), 0);
    const auto elegido = static_cast<std::size_t>(std::max(cmbOrden.ListIndex(), 0));
    // In single precision, so that what is equal but for rounding, as the correlation of a family by any method, keeps
    // the order of the candidates.
    std::vector<float> claves;
    for (std::size_t i = 0; i < c.comparados.size(); ++i) {
        const Comparado& comparado = c.comparados[i];
        double clave = HUGE_VAL;  // what has no figure comes last
        if (comparado.bondad && elegido >= std::size(kOrdenes)) {
            clave = comparado.ajuste.distribucion->Caudal(kPeriodosDeDiseno[elegido - std::size(kOrdenes)]);
        } else if (comparado.bondad) {
            const Remuestreo* r = c.Significacion(i);
            clave = kOrdenes[elegido].clave(comparado, r != nullptr ? *r : Remuestreo{});
        }
        constexpr double kMayor = std::numeric_limits<float>::max();
        claves.push_back(std::isfinite(clave) ? static_cast<float>(std::clamp(clave, -kMayor, kMayor)) : HUGE_VALF);
    }
    std::stable_sort(c.orden.begin(), c.orden.end(),
                     [&claves](std::size_t a, std::size_t b) { return claves[a] < claves[b]; });
}

void FichaCandidatos::Mostrar(const Comparacion& c) {
    grdCandidatos.Iniciar(static_cast<int>(c.comparados.size()) + 1);
    int fila = 0;
    for (const std::size_t i : c.orden) {
        grdCandidatos.PonerFila(++fila, TextosDe(c.comparados[i], c.Significacion(i)));
    }
    lblCautela.Caption = kCautela;
}

void FichaCandidatos::Reportar(Reporte& reporte) {
    ReportarFilas(reporte, "Candidatos:", Columnas(grdCandidatos, 0, kColumnaAkaike + 1));
    Bloque parametros = Columnas(grdCandidatos, 0, 2);
    for (std::size_t f = 0; f < parametros.size(); ++f) {
        const std::string& observacion = grdCandidatos.TextMatrix(static_cast<int>(f), kColumnaObservacion);
        const std::string& valores = grdCandidatos.TextMatrix(static_cast<int>(f), kColumnaParametros);
        std::string texto = valores;
        texto += valores.empty() || observacion.empty() ? "" : ". ";
        parametros[f].push_back(texto += observacion);
    }
    parametros[0].back() = "Parámetros y observación";
    ReportarFilas(reporte, "Parámetros de los candidatos:", parametros);
    reporte.ReporteLinea(lblCautela.Caption());
    reporte.ReporteBlanco();
}

Disposicion FichaCandidatos::Zona(const std::vector<CommandButton*>& ordenes) {
    std::vector<Disposicion> arriba{lblOrden, cmbOrden, Espacio()};
    for (CommandButton* boton : ordenes) {
        arriba.emplace_back(*boton);
    }
    return Columna({Fila(std::move(arriba)), Disposicion(grdCandidatos).Estira(1), lblCautela});
}

}  // namespace cuencalia
