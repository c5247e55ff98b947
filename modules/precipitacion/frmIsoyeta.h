#pragma once

#include <string>
#include <vector>

#include "modules/precipitacion/marcolluviamedia.h"

namespace cuencalia {

/// Mean rain of a basin from its isohyets and the areas between them. A row holds an isohyet and the area towards the
/// next one; the last isohyet has a box of its own and, in a file, a record of its own.
class frmIsoyeta : public MarcoLluviaMedia {
  public:
    explicit frmIsoyeta(Aplicacion& app);

    Label lblIsoyetaInicial{*this, "lblIsoyetaInicial", "(isoyeta inicial)"};
    Label lblSobreInicial{*this, "lblSobreInicial"};  ///< As high as the grid's heading.
    Label lblIsoyetaFinal{*this, "lblIsoyetaFinal", "(isoyeta final)"};
    Label lblUltimaIsoyeta{*this, "lblUltimaIsoyeta", "Valor de la última isoyeta (mm):"};
    TextBox txtUltimaIsoyeta{*this, "txtUltimaIsoyeta"};

    Serie iso;   ///< mm; the last isohyet stands behind those of the n rows, so there is room for 1499 rows.
    Serie area;  ///< Any unit; area(i) is that between isohyets i and i + 1.
    Serie Pm;    ///< Mean rain of the bands, mm.

    void CargarMatrices() override;
    std::vector<Registro> RegistrosDeCola() override { return {{CSng(iso(n + 1))}}; }
    void LeerCola(const std::vector<Registro>& registros) override;

  protected:
    Double Promediar() override;
    bool Calcular() override;
    std::string Consejo(const ErrorEjecucion& error) const override;
    Disposicion Cuerpo() override;
};

}  // namespace cuencalia
