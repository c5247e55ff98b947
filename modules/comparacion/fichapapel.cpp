#include "modules/comparacion/fichapapel.h"

#include <algorithm>
#include <cmath>

#include "modules/comparacion/textos.h"
#include "modules/distribuciones/leyes.h"

namespace cuencalia {

namespace {

constexpr std::size_t kPuntosDeCurva = 60;

std::vector<std::string> NombresDePosiciones() {
    std::vector<std::string> nombres;
    for (const PosicionGrafica& p : kPosiciones) {
        nombres.emplace_back(p.nombre);
    }
    return nombres;
}

}  // namespace

FichaPapel::FichaPapel(MarcoModulo& modulo, const Comparacion& comparacion)
    : lblPapel(modulo, "lblPapel", "Papel:"),
      lblPosicion(modulo, "lblPosicion", "Posición gráfica:"),
      lblCurva(modulo, "lblCurva", "Ajuste:"),
      lblCurva2(modulo, "lblCurva2", "Otro ajuste:"),
      cmbPapel(modulo, "cmbPapel", {"Gumbel", "Normal", "Log-normal"}),
      cmbPosicion(modulo, "cmbPosicion", NombresDePosiciones()),
      cmbCurva(modulo, "cmbCurva"),
      cmbCurva2(modulo, "cmbCurva2"),
      lblEjeY(modulo, "lblEjeY", "Q (m3/s)"),
      lblEjeX(modulo, "lblEjeX"),
      Graph1(modulo, "Graph1", "Papel de probabilidad"),
      comparacion_(comparacion) {
    cmbPapel.Text = "Gumbel";
    cmbPosicion.Text = kPosicionCunnane.nombre;
    lblPapel.Nombra(cmbPapel);
    lblPosicion.Nombra(cmbPosicion);
    lblCurva.Nombra(cmbCurva);
    lblCurva2.Nombra(cmbCurva2);
    for (ComboBox* lista : {&cmbPapel, &cmbPosicion, &cmbCurva, &cmbCurva2}) {
        lista->Editable = false;
    }
    Graph1.RotularEjes(lblEjeX, lblEjeY);
    modulo.DeclararLimpieza([this] {
        for (ComboBox* lista : {&cmbCurva, &cmbCurva2}) {
            lista->List = std::vector<std::string>{};
            lista->Text = "";
        }
    });
    modulo.DeclararGraficos({&Graph1});
    for (ComboBox* lista : {&cmbPapel, &cmbCurva, &cmbCurva2}) {
        lista->Change.Conectar([this] { Dibujar(); });
    }
}

const PosicionGrafica& FichaPapel::Posicion() const { return kPosiciones[std::max(cmbPosicion.ListIndex(), 0)]; }

void FichaPapel::OfrecerAjustes() {
    std::vector<std::string> nombres{""};
    for (const Comparado& c : comparacion_.comparados) {
        if (c.ajuste.distribucion) {
            nombres.push_back(NombreDe(c.ajuste));
        }
    }
    const auto elegir = [&nombres](ComboBox& lista, std::size_t omision) {
        const std::string antes = lista.Text;
        lista.List = nombres;
        const bool queda = !antes.empty() && std::find(nombres.begin(), nombres.end(), antes) != nombres.end();
        lista.Text = queda ? antes : nombres[std::min(omision, nombres.size() - 1)];
    };
    elegir(cmbCurva, 1);
    elegir(cmbCurva2, 0);
}

std::optional<std::size_t> FichaPapel::Elegido(const ComboBox& lista) const {
    for (std::size_t i = 0; i < comparacion_.comparados.size(); ++i) {
        if (comparacion_.comparados[i].ajuste.distribucion &&
            NombreDe(comparacion_.comparados[i].ajuste) == lista.Text()) {
            return i;
        }
    }
    return std::nullopt;
}

void FichaPapel::Dibujar() {
    if (comparacion_.comparados.empty()) {
        return;
    }
    const bool gumbel = cmbPapel.ListIndex() == 0;
    const bool logaritmos = cmbPapel.ListIndex() == 2;
    const auto reducida = [gumbel](double p) { return gumbel ? -std::log(-std::log(p)) : CuantilNormal(p); };
    const auto agregar = [&](SerieGrafico& s, double p, double Q) {
        if (std::isfinite(Q) && (!logaritmos || Q > 0)) {
            s.x.emplace_back(reducida(p));
            s.y.emplace_back(logaritmos ? std::log10(Q) : Q);
        }
    };
    std::vector<SerieGrafico> series{{.leyenda = "Datos", .sueltos = true}};
    const int n = static_cast<int>(comparacion_.ordenada.size());
    for (int i = 1; i <= n; ++i) {
        agregar(series[0], Posicion()(i, n), comparacion_.ordenada[static_cast<std::size_t>(i - 1)]);
    }
    for (const ComboBox* lista : {&cmbCurva, &cmbCurva2}) {
        const auto i = Elegido(*lista);
        if (!i) {
            continue;
        }
        const auto& d = *comparacion_.comparados[*i].ajuste.distribucion;
        SerieGrafico curva{.leyenda = NombreDe(comparacion_.comparados[*i].ajuste)};
        // Evenly spaced on the paper, from T = 1.01 to 1000.
        const double desde = reducida(0.01);
        const double hasta = reducida(0.999);
        for (std::size_t k = 0; k <= kPuntosDeCurva; ++k) {
            const double y = desde + (hasta - desde) * static_cast<double>(k) / kPuntosDeCurva;
            const double p = gumbel ? std::exp(-std::exp(-y)) : ProbabilidadNormal(y);
            agregar(curva, p, d.Valor(d.Cuantil(p)));
        }
        series.push_back(std::move(curva));
        if (lista == &cmbCurva && !comparacion_.remuestreo.empty()) {
            SerieGrafico banda[2]{{.leyenda = "Límite inferior " + comparacion_.nivel},
                                  {.leyenda = "Límite superior " + comparacion_.nivel}};
            for (std::size_t t = 0; t + 1 < std::size(kPeriodosDeDiseno); ++t) {
                const double p = 1 - 1 / kPeriodosDeDiseno[t];
                agregar(banda[0], p, comparacion_.remuestreo[*i].limites[t].inferior);
                agregar(banda[1], p, comparacion_.remuestreo[*i].limites[t].superior);
            }
            for (SerieGrafico& limite : banda) {
                if (!limite.y.empty()) {
                    series.push_back(std::move(limite));
                }
            }
        }
    }
    lblEjeX.Caption = gumbel ? "Variable reducida de Gumbel, -ln(-ln P)" : "Variable normal estándar z";
    lblEjeY.Caption = logaritmos ? "Logaritmo decimal de Q (m3/s)" : "Q (m3/s)";
    // A chart has at least one point, on a logarithmic paper without a positive value too.
    const bool vacio = std::all_of(series.begin(), series.end(), [](const SerieGrafico& s) { return s.y.empty(); });
    GraficoDibujar(Graph1, {.puntos = vacio ? std::optional(1) : std::nullopt}, series);
}

Disposicion FichaPapel::Zona() {
    return Columna({Fila({lblPapel, cmbPapel, lblPosicion, cmbPosicion, Espacio()}),
                    Fila({lblCurva, cmbCurva, lblCurva2, cmbCurva2, Espacio()}), Fila({lblEjeY, Espacio()}),
                    Disposicion(Graph1).Estira(1), Fila({Espacio(), lblEjeX})});
}

}  // namespace cuencalia
