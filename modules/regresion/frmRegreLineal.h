#pragma once

#include "modules/regresion/marcoregresimple.h"

namespace cuencalia {

/// Least-squares line through pairs of numbers of any sign; it gives y for an x and x for a y.
class frmRegreLineal : public MarcoRegreSimple {
  public:
    explicit frmRegreLineal(Aplicacion& app);

    Frame Frame4{*this, "Frame4", "Aplicar ecuación lineal:"};
    Label lblCalculoY{*this, "lblCalculoY", "Ingresar el valor conocido:", Papel::Encabezado};
    Label Label6{*this, "Label6", "Valor de X:"}, Label7{*this, "Label7", "Valor de Y:"};
    TextBox txtvxx{*this, "txtvxx"}, txtvyy{*this, "txtvyy"};
    CommandButton bCalY{*this, "bCalY", "Calcular &Y", "Calcular valor de Y"};
    CommandButton bCalX{*this, "bCalX", "Calcular &X", "Calcular valor de X"};

    void bCalY_Click();
    void bCalX_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    void Ajustar() override;
    Disposicion Contenido() override;

  private:
    /// Empties the result box and returns whether the known value was typed; when not, tells the user and moves the
    /// focus to its box.
    bool PrepararEvaluacion(TextBox& conocido, TextBox& resultado, const std::string& nombreConocido,
                            const std::string& nombreResultado);
};

}  // namespace cuencalia
