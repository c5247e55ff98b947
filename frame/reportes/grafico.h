#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/base/numeros.h"
#include "frame/controles/control.h"

namespace cuencalia {

/// Values that the modules give to a chart's properties.
enum TipoGrafico : int { kGraficoLineas = 6, kGraficoAreas = 8 };
enum EstiloGrafico : int { kLineasUnidas = 0, kSimbolosSueltos = 1 };
enum ModoDibujo : int { kBorrarGrafico = 1, kDibujarGrafico = 2 };
enum FondoGrafico : int { kFondoGris = 7, kFondoPapel = 11 };

/// A chart of NumSets data sets of NumPoints points each, in the units of the module that draws it. It is hidden until
/// the module draws on it.
class GraficoModulo : public Control {
  public:
    struct Conjunto {
        std::string leyenda;
        std::vector<std::optional<Double>> x, y;  ///< Empty where nothing was written.
    };

    GraficoModulo(Formulario& forma, std::string nombre, std::string nombreAccesible = "Gráfico");

    Propiedad<int> FontUse{*this};
    Propiedad<int> GraphType{*this, kGraficoLineas};
    Propiedad<int> GraphStyle{*this, kLineasUnidas};
    Propiedad<int> Background{*this, kFondoPapel};
    Propiedad<int> BorderStyle{*this};
    Propiedad<int> PatternData{*this};
    Propiedad<int> AutoInc{
        *this, 1};  ///< 1: each value written moves on to the next point; 0: ThisPoint and ThisSet address it.
    Propiedad<std::string> BottomTitle{*this};
    Propiedad<int> DrawMode{*this, kBorrarGrafico};

    int NumPoints() const { return puntos_; }
    int NumSets() const { return static_cast<int>(conjuntos_.size()); }
    /// Either empties all values and legends. Error 5 for less than 1.
    void PonerNumPoints(int puntos);
    void PonerNumSets(int conjuntos);

    /// The point and the set to be written next, from 1. Error 5 for one that is not there.
    void PonerThisPoint(int punto);
    void PonerThisSet(int conjunto);
    int ThisPoint() const { return punto_; }
    int ThisSet() const { return conjunto_; }

    /// Legend of the current set.
    void PonerLegendText(const std::string& texto);
    /// y and x of the current point of the current set. With AutoInc each of the two has its own next point, so that
    /// all the y may be written first, set after set, and then all the x.
    void PonerGraphData(Double y);
    void PonerXPosData(Double x);

    const std::vector<Conjunto>& Conjuntos() const { return conjuntos_; }
    /// The x with which each point of a set (from 1) is drawn, empty for a point that has none. A set without positions
    /// takes those of the first set, and without those its points stand at 1 to n. Error 5 for a set that is not there.
    std::vector<std::optional<Double>> Abscisas(int conjunto) const;

    /// The keyboard reads the points one by one.
    bool AceptaFoco() const override { return true; }

    /// Hides the chart; what it showed is not shown again, as the next drawing begins by emptying it.
    void LimpiarGrafico(int fondo = kFondoPapel);

  private:
    struct Lugar {
        int conjunto = 1, punto = 1;
    };

    void Vaciar();
    void Escribir(std::vector<std::optional<Double>> Conjunto::*serie, Lugar& siguiente, Double valor);

    int puntos_ = 0;
    std::vector<Conjunto> conjuntos_;
    int punto_ = 1, conjunto_ = 1;
    Lugar siguienteY_, siguienteX_;
};

/// What a module's chart has of its own in the drawing sequence that all share.
struct DescripcionGrafico {
    int tipo = kGraficoLineas;
    int estilo = kLineasUnidas;
    int fondo = kFondoPapel;
    bool conTrama = false;  ///< Whether PatternData is set.
    std::string titulo{};   ///< Under the axis.
    int autoInc = 1;
    std::optional<int> puntos{};     ///< NumPoints, where it is not the length of the first set.
    std::optional<int> conjuntos{};  ///< NumSets, where it is not the number of the sets.
};

/// One data set of a chart; without x its positions are not written.
struct SerieGrafico {
    std::string leyenda{};
    std::vector<Double> x{}, y{};
};

/// Draws the sets and shows the chart. Error 5 for more sets or points than it has room for.
void GraficoDibujar(GraficoModulo& grafico, const DescripcionGrafico& descripcion,
                    const std::vector<SerieGrafico>& series);

}  // namespace cuencalia
