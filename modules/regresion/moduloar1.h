#pragma once

#include <array>
#include <optional>
#include <string>

#include "frame/modulo/campos.h"
#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"
#include "modules/estadistica/momentos.h"
#include "modules/regresion/ar1.h"

namespace cuencalia {

/// The boxes of the six sample parameters of one series.
class CamposParametros : public CamposDe<ParametrosEstadisticos> {
  public:
    /// `nombres` are those of the boxes.
    CamposParametros(Formulario& forma, const std::array<const char*, 6>& nombres, const char* rotuloDesviacion);
    /// `textoMedia` is the mean of `p` as it is shown: that of a series of Singles is a Single with its own digits.
    void Mostrar(const std::string& textoMedia, const ParametrosEstadisticos& p);
};

/// Stochastic generation: fits a first-order autoregressive model to an annual series and generates a synthetic series
/// of as many years as asked for. The derived classes differ in the transformation alone.
class ModuloAR1 : public ModuloCalculo {
  public:
    ModuloAR1(Aplicacion& app, std::string nombre, const std::string& titulo, const TransformacionAR1& transformacion);

    SSTab SSTab1{*this, "SSTab1", {"Generar serie sintética", "Graficar series"}};
    Frame Frame4{*this, "Frame4", "Ingreso de datos:"};
    Label Label3{*this, "Label3", "Ingresar número de datos a generar:"};
    TextBox txtNgen{*this, "txtNgen"};
    Frame Frame2{*this, "Frame2", "Parámetros muestrales:"};
    CamposParametros historica{*this,
                               {"txtMedia", "txtVarianza", "txtDesviacion", "txtCVar", "txtSesgo", "txtCurtosis"},
                               "Desviación Estandar:"};
    Frame Frame8{*this, "Frame8", "Parámetros para el modelo AR(1):"};
    CamposDe<ModeloAR1> modelo{*this,
                               {{{"txtc0", "c0:", "", "c0 = "}, &ModeloAR1::c0},
                                {{"txtc1", "c1:", "", "c1 = "}, &ModeloAR1::c1},
                                {{"txtro1", "ro1:", "", "ro1 = "}, &ModeloAR1::ro1},
                                {{"txts2e", "Se:", "", "Se = "}, &ModeloAR1::Se}}};
    Frame Frame1{*this, "Frame1", "Generación de serie sintética con modelo AR(1):"};
    Label Label23{*this, "Label23", "Serie generada:", Papel::Encabezado};
    Tabla grdGenerada{*this,
                      "grdGenerada",
                      "Serie generada",
                      {.filas = 3001, .columnas = {{"N°", 700}, {"X", 1600}}, .columnasFijas = 1}};
    Frame Frame3{*this, "Frame3", "Parámetros de la serie generada:"};
    CamposParametros generada{*this,
                              {"txtMediag", "txtVarianzag", "txtDesviaciong", "txtCvarg", "txtSesgog", "txtCurtosisg"},
                              "Desviación Estándar:"};
    Frame Frame5{*this, "Frame5"};
    CommandButton bCrearExcel{*this, "bCrearExcel", "Crear Excel", "Pasar la serie generada a una hoja de cálculo"};
    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar serie ordenada"};
    Label lblHistorica{*this, "lblHistorica", "Serie de datos históricos:", Papel::Encabezado};
    Label lblGenerada{*this, "lblGenerada", "Serie de datos generados:", Papel::Encabezado};
    GraficoModulo Graph1{*this, "Graph1", "Gráfico de la serie histórica"};
    GraficoModulo Graph2{*this, "Graph2", "Gráfico de la serie generada"};

    Arreglo<Single, 1, 3000> X;     ///< Historical series, one value a year.
    Arreglo<Double, 1, 3000> Xgen;  ///< Generated series.
    int Ngen = 0;                   ///< Number of values in Xgen. It outlives the results shown.

    /// Stops at a value that is not greater than 0 and tells the user. A file is stored all the same, with all rows.
    void CargarMatrices() override { LeerSerie(); }
    void bGraficar_Click();
    void bCrearExcel_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    std::string Consejo(const ErrorEjecucion& error) const override;
    Disposicion Cuerpo() override;

  private:
    /// Reads the grid up to its end or to the first value that is not greater than 0, and returns whether there was
    /// none; when there was, tells the user, and X holds from that row on what it held before. `n` is the number of
    /// rows in either case.
    bool LeerSerie();
    void Avisar(const std::string& aviso) { StatusBar1.PonerPanel(kPanelAvisos, aviso); }
    /// Seeds the generator by the clock.
    void Sembrar();
    /// Generates `cuantos` values into Xgen. Error 9 for more than 2950, with the warm-up 3000.
    void Generar(const ModeloAR1& ajustado, Integer cuantos);

    const TransformacionAR1& transformacion_;
    std::optional<Single> semilla_;
};

}  // namespace cuencalia
