#pragma once

#include "frame/modulo/marcomodulo.h"
#include "frame/reportes/grafico.h"
#include "modules/precipitacion/tablaecuacion.h"

namespace cuencalia {

/// What differs between the windows with a design intensity.
struct DescripcionIntensidad {
    BusquedaPivote busqueda = BusquedaPivote::EnColumna;
    const char* patron = "0.##00";  ///< Of the equation, R, R² and Se.
    int altoEcuacion = 250;         ///< Twips of the heading of the equation.
    int altoImaxTD = 300;           ///< Twips of the heading of the intensity table.
    const char* rotuloImaxTD = "Valores de Imax, para diferentes D en min, y para T = 5, 10, 20 y 50 años";
    int reglaImaxTD = 110;  ///< Dashes of a rule of that table in the report.
};

/// An intensity equation in use: the row that shows it, the intensity for a period and a duration, the intensities for
/// 10 to 120 minutes and 5, 10, 20 and 50 years, and their chart. The window fits the equation to its points.
class IntensidadDiseno {
  public:
    IntensidadDiseno(MarcoModulo& modulo, const DescripcionIntensidad& descripcion);
    IntensidadDiseno(const IntensidadDiseno&) = delete;
    IntensidadDiseno& operator=(const IntensidadDiseno&) = delete;

    TablaEcuacion grdecua;
    Frame Frame4;
    Label Label6, Label4, Label3, Label5, Label8;
    TextBox txtvT, txtvD, txtvI;
    CommandButton bImax;
    Label lblEcuacion;  ///< The equation again, on the page where it is applied.
    CommandButton bCalPreviosIDT, bGraficar;
    Label Label7;
    Tabla grdImaxTD;
    Label lblEjeY, lblEjeX;
    GraficoModulo Graph1;

    EcuacionIntensidad ecuacion;  ///< That of the last fit; of intensity 0 when there was none.
    bool previos = false;         ///< Whether grdImaxTD is filled.

    /// Fits the equation, shows it and sets `calculado` of the window. False when the points do not determine it, which
    /// the user is told.
    bool Ajustar(const PuntosIDT& puntos);
    void bImax_Click();
    void bCalPreviosIDT_Click();
    void bGraficar_Click();
    /// Clears what the window does not clear with its tables and boxes.
    void Limpiar();

    /// The block of the report with the intensity table.
    void ReportarImaxTD(Reporte& reporte);

    /// The last blocks of a report: the equation, the design intensity and that table.
    void ReportarResultados(Reporte& reporte);

    /// Layout of all but the equation.
    Disposicion Zona();

  private:
    bool Exigir(bool hecho, const Aviso& aviso);

    MarcoModulo& modulo_;
    DescripcionIntensidad descripcion_;
};

}  // namespace cuencalia
