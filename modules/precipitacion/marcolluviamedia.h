#pragma once

#include <string>
#include <vector>

#include "frame/modulo/modulocalculo.h"

namespace cuencalia {

/// The properties in which the windows of mean rain differ.
struct DescripcionLluviaMedia {
    std::string metodo;  ///< As the window's title names it.
    DescripcionGrid datos;
    const FormatoSerie* archivo;
    const char* marcoResultado;  ///< Title of the frame around the result.
    const char* avisoVacio;      ///< Message for a grid without data.
    const char* tituloDatos;     ///< Title of the data in the report.
    std::vector<std::string> encabezadosReporte;
    const char* tituloResultado;  ///< Title of the result in the report.
};

/// Mean rain of a basin (mm) from the data in the grid. Each derived class adds how they are averaged.
class MarcoLluviaMedia : public ModuloCalculo {
  public:
    MarcoLluviaMedia(Aplicacion& app, std::string nombre, DescripcionLluviaMedia descripcion);

    Frame fraResultado;
    Label lblPprom{*this, "lblPprom", "Precipitación promedio: "}, lblUnidad{*this, "lblUnidad", "mm"};
    TextBox txtPprom{*this, "txtPprom"};

    void GenerarReporte(Reporte& reporte) override;

  protected:
    /// The mean of the n rows that CargarMatrices has read.
    virtual Double Promediar() = 0;

    bool Calcular() override;
    Disposicion Contenido() override;

  private:
    DescripcionLluviaMedia descripcion_;
};

}  // namespace cuencalia
