#pragma once

#include "frame/modulo/modulocalculo.h"
#include "frame/reportes/grafico.h"
#include "modules/aforo/aforo.h"

namespace cuencalia {

/// Discharge of a stream section gauged by current meter: its tramos with depth and velocity at their far ends, those
/// of the starting margin apart.
class frmAforoCorren : public ModuloCalculo {
  public:
    explicit frmAforoCorren(Aplicacion& app);

    CommandButton bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Frame Frame2{*this, "Frame2", "Valores iniciales:"};
    Label lblho{*this, "lblho", "Profundidad en el margen (ho):"}, uho{*this, "uho", "m"};
    Label lblvo{*this, "lblvo", "Velocidad en el margen (vo):"}, uvo{*this, "uvo", "m/s"};
    TextBox txtho{*this, "txtho"}, txtvo{*this, "txtvo"};
    Label lblEsquema{*this, "lblEsquema", "Esquema de ingreso de datos:", Papel::Encabezado};
    PictureBox Picture1{*this, "Picture1", "aforo"};
    Frame Frame1{*this, "Frame1", "¿Calcular velocidad?"};
    OptionButton optNo{*this, "optNo", "No", true}, optSi{*this, "optSi", "Si"};
    Label lblEcuacion{*this, "lblEcuacion", "v = a n + b"}, lblDonde{*this, "lblDonde", "donde: n = NR/ t"};
    Frame fraVelocidad{*this, "fraVelocidad", "Datos para velocidad:"};
    Label lblNR{*this, "lblNR", "Nº revoluciones (NR):"}, lblTiempo{*this, "lblTiempo", "Tiempo (t):"};
    Label lbla{*this, "lbla", "a:"}, lblB{*this, "lblB", "b: "}, uV{*this, "uV", "m/s"};
    TextBox txtNR{*this, "txtNR"}, txtTiempo{*this, "txtTiempo"}, txta{*this, "txta"}, txtB{*this, "txtB"};
    CommandButton bVelocidad{*this, "bVelocidad", "Valor de v", "Calcular la velocidad"};
    TextBox txtV{*this, "txtV"};
    Label lblQ{*this, "lblQ", "Caudal total (Q):"}, uQ{*this, "uQ", "m3/s"};
    TextBox txtQ{*this, "txtQ"};
    Tabla grdavq{*this,
                 "grdavq",
                 "Resultados de los tramos",
                 {.filas = 50,
                  .columnas = {{"Tramo", 700}, {"Area (m2)", 1300}, {"Velocidad (m/s)", 1300}, {"Caudal (m3/s)", 1300}},
                  .columnasFijas = 1}};
    Label lblEjeY{*this, "lblEjeY", "Profundidad (m)"}, lblEjeX{*this, "lblEjeX", "Distancia desde el margen (m)"};
    GraficoModulo Graph1{*this, "Graph1", "Perfil de la sección"};

    Serie L;                     ///< Lengths of the tramos, m.
    Arreglo<Double, 0, 1500> h;  ///< Depths at their far ends, m; h(0) is that of the starting margin.
    Arreglo<Double, 0, 1500> v;  ///< Mean velocities there, m/s.
    Arreglo<AforoTramo, 1, 1500> tramos;
    Double Qtotal;  ///< m³/s

    void Form_Load() override;
    /// Reads the grid, and the values of the margin into the row after the last, where a series file has them.
    void CargarMatrices() override;
    std::vector<Registro> RegistrosDeCola() override;
    void LeerCola(const std::vector<Registro>& registros) override;
    void LeerCabeza(const Hoja& hoja) override;
    void bGraficar_Click();
    void bVelocidad_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Cuerpo() override;

  private:
    void CalcularPromAltyVel();
};

}  // namespace cuencalia
