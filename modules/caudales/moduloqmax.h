#pragma once

#include <memory>
#include <string>

#include "frame/modulo/modulocalculo.h"
#include "modules/caudales/fichac.h"
#include "modules/caudales/fichai.h"
#include "modules/caudales/fichaq.h"

namespace cuencalia {

/// Peak discharge of a basin in three steps, a tab page each: a runoff coefficient from the land use, an intensity from
/// the rain, and a formula that takes both. A window is composed of a formula and a source of the intensity.
class ModuloQmax : public ModuloCalculo {
  public:
    ModuloQmax(Aplicacion& app, std::string nombre, const std::string& titulo, const FormulaCaudal& formula,
               const FuenteIntensidad& fuente);

    Label lblResumen{*this, "lblResumen", {}, Papel::Resultado};  ///< What each page has given, on view from all.
    SSTab SSTab1{*this, "SSTab1", {"Cálculo de Q", "Cálculo de C", "Cálculo de I"}};
    FichaQ fichaQ;
    FichaC fichaC;
    std::unique_ptr<FichaI> fichaI;

    void Form_Load() override;
    void LimpiarModulo() override;
    void LimpiarResultados() override;
    void DespuesDeEvento() override;
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override { return fichaQ.Calcular(); }
    void AlCalcular() override {}  // the discharge does not come from the grid by itself
    std::string Consejo(const ErrorEjecucion& /*error*/) const override { return {}; }
    Disposicion Cuerpo() override;

  private:
    void SSTab1_Click();
};

}  // namespace cuencalia
