#include "frame/reportes/grafico.h"

#include <algorithm>

#include "frame/base/json.h"

namespace cuencalia {

namespace {

std::size_t S(int n) { return static_cast<std::size_t>(n); }

}  // namespace

GraficoModulo::GraficoModulo(Formulario& forma, std::string nombre, std::string nombreAccesible)
    : Control(forma, std::move(nombre)) {
    NombreAccesible = std::move(nombreAccesible);
    Visible = false;
    conjuntos_.resize(1);
}

void GraficoModulo::Vaciar() {
    for (Conjunto& conjunto : conjuntos_) {
        conjunto.leyenda.clear();
        conjunto.x.assign(S(puntos_), std::nullopt);
        conjunto.y.assign(S(puntos_), std::nullopt);
    }
    punto_ = conjunto_ = 1;
    siguienteY_ = siguienteX_ = {};
    Notificar();
}

void GraficoModulo::PonerNumPoints(int puntos) {
    if (puntos < 1) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    puntos_ = puntos;
    Vaciar();
}

void GraficoModulo::PonerNumSets(int conjuntos) {
    if (conjuntos < 1) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    conjuntos_.assign(S(conjuntos), {});
    Vaciar();
}

void GraficoModulo::PonerThisPoint(int punto) {
    if (punto < 1 || punto > puntos_) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    punto_ = siguienteY_.punto = siguienteX_.punto = punto;
}

void GraficoModulo::PonerThisSet(int conjunto) {
    if (conjunto < 1 || conjunto > NumSets()) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    conjunto_ = conjunto;
    siguienteY_ = siguienteX_ = {conjunto, punto_};
}

void GraficoModulo::PonerLegendText(const std::string& texto) {
    conjuntos_[S(conjunto_ - 1)].leyenda = texto;
    Notificar();
}

void GraficoModulo::PonerSueltos(bool sueltos) {
    conjuntos_[S(conjunto_ - 1)].sueltos = sueltos;
    Notificar();
}

void GraficoModulo::Escribir(std::vector<std::optional<Double>> Conjunto::*serie, Lugar& siguiente, Double valor) {
    const Lugar lugar = AutoInc == 1 ? siguiente : Lugar{conjunto_, punto_};
    if (lugar.conjunto > NumSets() || lugar.punto > puntos_) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    (conjuntos_[S(lugar.conjunto - 1)].*serie)[S(lugar.punto - 1)] = valor;
    Notificar();
    if (AutoInc != 1) {
        return;
    }
    siguiente = lugar.punto < puntos_ ? Lugar{lugar.conjunto, lugar.punto + 1} : Lugar{lugar.conjunto + 1, 1};
}

void GraficoModulo::PonerGraphData(Double y) { Escribir(&Conjunto::y, siguienteY_, y); }

void GraficoModulo::PonerXPosData(Double x) { Escribir(&Conjunto::x, siguienteX_, x); }

std::vector<std::optional<Double>> GraficoModulo::Abscisas(int conjunto) const {
    if (conjunto < 1 || conjunto > NumSets()) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    for (const Conjunto* de : {&conjuntos_[S(conjunto - 1)], &conjuntos_.front()}) {
        if (std::any_of(de->x.begin(), de->x.end(), [](const auto& x) { return x.has_value(); })) {
            return de->x;
        }
    }
    std::vector<std::optional<Double>> numeros;
    for (int i = 1; i <= puntos_; ++i) {
        numeros.emplace_back(i);
    }
    return numeros;
}

bool GraficoModulo::Describir(EscritorJson& json) {
    const auto entero = [&](const char* nombre, int valor) { json.Clave(nombre).Entero(valor); };
    const auto valores = [&](const char* nombre, const std::vector<std::optional<Double>>& lista) {
        json.Clave(nombre).Abrir('[');
        for (const auto& valor : lista) {
            if (valor) {
                json.Numero(valor->valor());
            } else {
                json.Nulo();
            }
        }
        json.Cerrar(']');
    };
    json.Clave("visible").Logico(EsVisible());
    entero("GraphType", GraphType);
    entero("GraphStyle", GraphStyle);
    entero("Background", Background);
    entero("NumPoints", NumPoints());
    entero("NumSets", NumSets());
    json.Clave("BottomTitle").Texto(BottomTitle()).Clave("sets").Abrir('[');
    for (const Conjunto& conjunto : conjuntos_) {
        json.Abrir('{').Clave("LegendText").Texto(conjunto.leyenda);
        valores("x", conjunto.x);
        valores("y", conjunto.y);
        json.Cerrar('}');
    }
    json.Cerrar(']');
    return true;
}

void GraficoModulo::RotularEjes(Label& x, Label& y, Label* unidadY) {
    rotuloX_ = &x;
    rotuloY_ = &y;
    unidadY_ = unidadY;
    MostrarRotulos(Visible);
}

std::string GraficoModulo::TextoDe(const Label* rotulo) {
    return rotulo != nullptr && rotulo->Visible ? rotulo->Caption() : std::string();
}

void GraficoModulo::NombrarEjes(std::string x, std::string y) {
    nombreX_ = std::move(x);
    nombreY_ = std::move(y);
}

std::string GraficoModulo::RotuloY() const {
    if (rotuloY_ == nullptr) {
        return nombreY_;
    }
    const std::string unidad = TextoDe(unidadY_);
    return unidad.empty() ? TextoDe(rotuloY_) : TextoDe(rotuloY_) + " " + unidad;
}

void GraficoModulo::MostrarRotulos(bool visibles) {
    for (Label* rotulo : {rotuloX_, rotuloY_, unidadY_}) {
        if (rotulo != nullptr) {
            rotulo->Visible = visibles;
        }
    }
}

void GraficoModulo::LimpiarGrafico(int fondo) {
    Background = fondo;
    BorderStyle = 0;
    DrawMode = kBorrarGrafico;
    Visible = false;
    MostrarRotulos(false);
}

void GraficoDibujar(GraficoModulo& grafico, const DescripcionGrafico& descripcion,
                    const std::vector<SerieGrafico>& series) {
    grafico.FontUse = 4;
    grafico.GraphType = descripcion.tipo;
    grafico.GraphStyle = descripcion.estilo;
    grafico.Background = descripcion.fondo;
    grafico.BorderStyle = 1;
    if (descripcion.conTrama) {
        grafico.PatternData = 2;
    }
    grafico.Cauce = descripcion.cauce;
    grafico.Visible = true;
    grafico.MostrarRotulos(true);
    grafico.BottomTitle = descripcion.titulo;
    grafico.NombresX = descripcion.nombres;
    grafico.AutoInc = descripcion.autoInc;
    const auto mayor = std::max_element(series.begin(), series.end(),
                                        [](const auto& a, const auto& b) { return a.y.size() < b.y.size(); });
    const std::size_t puntos = mayor == series.end() ? 0 : mayor->y.size();
    grafico.PonerNumPoints(descripcion.puntos.value_or(static_cast<int>(puntos)));
    const int dados = static_cast<int>(series.size());
    grafico.PonerNumSets(descripcion.conjuntos.value_or(dados));
    for (int c = 1; c <= dados; ++c) {
        grafico.PonerThisSet(c);
        grafico.PonerLegendText(series[S(c - 1)].leyenda);
        grafico.PonerSueltos(series[S(c - 1)].sueltos);
    }
    for (int c = 1; c <= dados; ++c) {
        const SerieGrafico& serie = series[S(c - 1)];
        grafico.PonerThisSet(c);
        for (std::size_t i = 0; i < serie.y.size(); ++i) {
            grafico.PonerThisPoint(static_cast<int>(i) + 1);
            grafico.PonerGraphData(serie.y[i]);
            if (!serie.x.empty()) {
                grafico.PonerXPosData(serie.x.at(i));
            }
        }
    }
    grafico.DrawMode = kDibujarGrafico;
}

}  // namespace cuencalia
