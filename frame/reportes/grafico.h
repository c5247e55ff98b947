#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/base/numeros.h"
#include "frame/controles/controles.h"

namespace cuencalia {

/// Values for the properties of a chart.
enum TipoGrafico : int { kGraficoLineas = 6, kGraficoAreas = 8 };
enum EstiloGrafico : int { kLineasUnidas = 0, kSimbolosSueltos = 1 };
enum ModoDibujo : int { kBorrarGrafico = 1, kDibujarGrafico = 2 };
enum FondoGrafico : int { kFondoGris = 7, kFondoPapel = 11 };

/// A chart of NumSets data sets of NumPoints points each, in the units of the module that draws it. It is hidden until
/// the module draws it.
class GraficoModulo : public Control {
  public:
    struct Conjunto {
        std::string leyenda;
        std::vector<std::optional<Double>> x, y;  ///< An element is empty until it is written.
        bool operator==(const Conjunto&) const = default;
        bool sueltos = false;  ///< Symbols without a line, whatever GraphStyle says.
    };

    GraficoModulo(Formulario& forma, std::string nombre, std::string nombreAccesible = "Gráfico");

    Propiedad<int> FontUse{*this};
    Propiedad<int> GraphType{*this, kGraficoLineas};
    Propiedad<int> GraphStyle{*this, kLineasUnidas};
    Propiedad<int> Background{*this, kFondoPapel};
    Propiedad<int> BorderStyle{*this};
    Propiedad<int> PatternData{*this};
    /// Whether the sets are beds of a stream below the water surface y = 0: surface and water are drawn too.
    Propiedad<bool> Cauce{*this};
    Propiedad<int> AutoInc{
        *this, 1};  ///< 1: each value written moves on to the next point; 0: ThisPoint and ThisSet address it.
    Propiedad<std::string> BottomTitle{*this};
    /// Names of the points at the x axis, in place of the numbers 1 to n; empty: the numbers.
    Propiedad<std::vector<std::string>> NombresX{*this};
    Propiedad<int> DrawMode{*this, kBorrarGrafico};

    int NumPoints() const { return puntos_; }
    int NumSets() const { return static_cast<int>(conjuntos_.size()); }
    /// Either of these empties all values and legends. Error 5 for less than 1.
    void PonerNumPoints(int puntos);
    void PonerNumSets(int conjuntos);

    /// The point and the set to be written next, from 1. Error 5 for one that does not exist.
    void PonerThisPoint(int punto);
    void PonerThisSet(int conjunto);
    int ThisPoint() const { return punto_; }
    int ThisSet() const { return conjunto_; }

    /// Legend of the current set.
    void PonerLegendText(const std::string& texto);
    /// Whether the points of the current set are not joined.
    void PonerSueltos(bool sueltos);
    /// Writes y and x of the current point of the current set. With AutoInc, y and x advance separately, so that all y
    /// values may be written first, set after set, and then all x values.
    void PonerGraphData(Double y);
    void PonerXPosData(Double x);

    const std::vector<Conjunto>& Conjuntos() const { return conjuntos_; }

    /// Makes the y axes of both charts span the values of both.
    void CompartirEscala(GraficoModulo& otro) {
        par_ = &otro;
        otro.par_ = this;
    }
    /// The chart with the same y axis, or null.
    const GraficoModulo* Par() const { return par_; }
    /// The x at which each point of a set (from 1) is drawn, empty for a point without one. A set for which no x was
    /// written takes those of the first set; if that has none either, the points are at 1 to n. Error 5 for a set that
    /// does not exist.
    std::vector<std::optional<Double>> Abscisas(int conjunto) const;

    bool Describir(EscritorJson& json) override;
    /// The chart takes the focus so that the keyboard can step through its points.
    bool AceptaFoco() const override { return true; }

    /// Sets the labels of the window that name the axes. They come and go with the chart; a copy of it, which stands
    /// without the window, has their texts at its axes. `unidadY` is what stands behind the name of y.
    void RotularEjes(Label& x, Label& y, Label* unidadY = nullptr);
    /// Names the axes of a chart whose window has no labels for them: the chart itself shows the names.
    void NombrarEjes(std::string x, std::string y);
    const std::string& NombreX() const { return nombreX_; }
    const std::string& NombreY() const { return nombreY_; }
    /// The texts for the axes of a copy: those of the labels, but for hidden ones, or else the names.
    std::string RotuloX() const { return rotuloX_ == nullptr ? nombreX_ : TextoDe(rotuloX_); }
    std::string RotuloY() const;
    void MostrarRotulos(bool visibles);

    /// Hides the chart. Its values are not shown again, since the next drawing begins by emptying it.
    void LimpiarGrafico(int fondo = kFondoPapel);

  private:
    struct Lugar {
        int conjunto = 1, punto = 1;
    };

    static std::string TextoDe(const Label* rotulo);
    void Vaciar();
    void Escribir(std::vector<std::optional<Double>> Conjunto::*serie, Lugar& siguiente, Double valor);

    int puntos_ = 0;
    std::vector<Conjunto> conjuntos_;
    Label* rotuloX_ = nullptr;
    Label* rotuloY_ = nullptr;
    Label* unidadY_ = nullptr;
    std::string nombreX_, nombreY_;
    int punto_ = 1, conjunto_ = 1;
    Lugar siguienteY_, siguienteX_;
    const GraficoModulo* par_ = nullptr;
};

/// The settings in which the charts of the modules differ, for GraficoDibujar.
struct DescripcionGrafico {
    int tipo = kGraficoLineas;
    int estilo = kLineasUnidas;
    int fondo = kFondoPapel;
    bool conTrama = false;               ///< Whether the module sets PatternData.
    bool cauce = false;                  ///< Whether the sets are stream beds.
    std::string titulo{};                ///< Title under the x axis.
    std::vector<std::string> nombres{};  ///< Names of the points at the x axis.
    int autoInc = 1;
    std::optional<int> puntos{};     ///< NumPoints, when it differs from the length of the longest set.
    std::optional<int> conjuntos{};  ///< NumSets, when it differs from the number of series.
};

/// One data set of a chart; when x is empty, no x values are written.
struct SerieGrafico {
    std::string leyenda{};
    std::vector<Double> x{}, y{};
    bool sueltos = false;  ///< Points without a line among sets with lines.
};

/// Draws the sets and shows the chart. Error 5 for more sets or points than NumSets and NumPoints allow.
void GraficoDibujar(GraficoModulo& grafico, const DescripcionGrafico& descripcion,
                    const std::vector<SerieGrafico>& series);

}  // namespace cuencalia
