#pragma once

#include <string>
#include <vector>

#include "frame/modulo/meses.h"
#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"
#include "modules/evapotranspiracion/thornthwaite.h"
#include "modules/evapotranspiracion/valoresporlatitud.h"

namespace cuencalia {

/// What the windows differ in that calculate with the twelve months of a year at a latitude.
struct DescripcionMensual {
    DescripcionModulo modulo;
    DescripcionTabla resultados;
    const TablaDeLatitudes& latitudes;  ///< The table whose latitudes the list has.
    std::string faltanMeses;            ///< Message for fewer than twelve rows.
    std::string ejeY;                   ///< Name of the y axis of the chart.
    int fondo = kFondoPapel;
};

/// A window that calculates with the mean temperatures of the twelve months and with tables by latitude.
class ModuloMensual : public ModuloCalculo {
  public:
    ModuloMensual(Aplicacion& app, std::string nombre, DescripcionMensual descripcion);

    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Frame fraLatitud{*this, "fraLatitud", "Ingresar dato de latitud:"};
    ComboBox cobLatitud, cobLatitudNS;
    Tabla grddis;
    Label lblEjeY, lblEjeX{*this, "lblEjeX", "Mes"};
    GraficoModulo Graph1{*this, "Graph1"};

    Arreglo<std::string, 1, 12> nombreMes;  ///< As the grid labels the months.
    DoceSingle T;                           ///< ºC

    void Form_Load() override;
    /// Reads the grid; fewer than twelve rows are refused with a message, and the months read before stay.
    void CargarMatrices() override;
    bool DatosLegibles() const override { return datos.Filas() >= 12; }
    void bGraficar_Click();

  protected:
    /// Declares the tables of which a calculation takes the months of the latitude.
    void DeclararCorrecciones(std::vector<ValoresPorLatitud*> tablas) { correcciones_ = std::move(tablas); }
    /// Takes those months. A latitude that is not in the tables leaves the months of the last one.
    void ElegirLatitud();
    /// The sets of the chart, twelve values each.
    virtual std::vector<SerieGrafico> Curvas() const = 0;
    /// What stands at the chart's axis for a month from 1 to 12.
    virtual std::string RotuloDeMes(int mes) const;

    /// Layout of the latitude, and of the chart with the names of its axes.
    Disposicion Latitud();
    Disposicion Grafico();

    std::string Consejo(const ErrorEjecucion& error) const override;

  private:
    std::string FaltaEnTablas() const;
    /// Says in the status bar what the results depend on besides the data; nothing takes the last word back.
    void Advertir(const std::string& advertencia);

    std::string faltanMeses_;
    int fondo_;
    std::vector<ValoresPorLatitud*> correcciones_;
    std::string advertencia_;
};

/// The values of the twelve months as a set of a chart.
template <typename Numero>
SerieGrafico CurvaMensual(const ArregloBase<Numero>& valores, std::string leyenda = {}) {
    SerieGrafico curva{.leyenda = std::move(leyenda)};
    for (int m = 1; m <= 12; ++m) {
        curva.y.push_back(valores(m));
    }
    return curva;
}

inline constexpr int kReglaResultados = 155;  ///< Dashes below and above the report's table of results.

/// Description of a report's table of the data grid, a tab after each cell, and that of temperatures alone.
Reporte::Tabla TablaDeMeses(std::string titulo, const std::vector<std::string>& encabezados, int regla);
Reporte::Tabla TablaDeTemperaturas();

}  // namespace cuencalia
