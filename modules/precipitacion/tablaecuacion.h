#pragma once

#include <functional>

#include "frame/controles/controles.h"
#include "frame/modulo/tabla.h"
#include "frame/reportes/reporte.h"
#include "modules/precipitacion/grobe.h"

namespace cuencalia {

/// The row in which a window shows a fitted intensity equation with its R, R² and Se.
class TablaEcuacion : public Tabla {
  public:
    /// `patron` is that of the coefficients, R, R² and Se.
    explicit TablaEcuacion(Formulario& forma, const char* patron = "0.##00", int altoEncabezado = 250);

    /// Error 6 or 11 when all intensities are equal; 5 when rounding leaves an R² below 0.
    void PonerAjuste(const AjusteIntensidad& ajuste, const PuntosIDT& puntos);
    std::string TextoDe(const EcuacionIntensidad& ecuacion) const { return ecuacion.Texto(patron_); }

  private:
    const char* patron_;
};

/// The block of a report with the equation that the table shows.
void ReportarEcuacion(Reporte& reporte, const TablaEcuacion& grdecua);
/// The block with an intensity for a period and a duration, each as a box shows it.
void ReportarIntensidad(Reporte& reporte, std::string_view titulo, const TextBox& T, const TextBox& D,
                        const TextBox& Imax);
/// A table with a column for each duration in minutes, of that many rows besides the headings.
DescripcionTabla TablaDeDuraciones(const char* primera, const std::vector<int>& duraciones, int filas = 0);
/// Gives it n rows: the text of the row, and the values of its columns, rains or intensities.
void LlenarDuraciones(Tabla& tabla, int n, const std::function<std::string(int)>& primera,
                      const ColumnasDuracion& columnas);
/// Its block of a report: the title, the line "Duración", the headings, the rows.
void ReportarDuraciones(Reporte& reporte, std::string_view titulo, const std::vector<std::string>& encabezados,
                        Tabla& tabla);

}  // namespace cuencalia
