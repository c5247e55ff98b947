#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/modulo/marcomodulo.h"
#include "modules/caudales/campo.h"
#include "modules/caudales/formulacaudal.h"

namespace cuencalia {

/// The tab page of the formula: its boxes, filled by the other two pages or by hand, and the discharge.
class FichaQ {
  public:
    FichaQ(MarcoModulo& modulo, const FormulaCaudal& formula);
    FichaQ(const FichaQ&) = delete;
    FichaQ& operator=(const FichaQ&) = delete;

    Label lblFormula;
    Frame fraDatosQ;
    Campo C, A, I;
    std::optional<Campo> S;  ///< Only where the formula takes it.
    Label lblMensajeI, lblPasos;
    Frame fraResultadoQ;
    Campo Qmax;

    bool Calcular();
    void Limpiar();
    /// The three results as they stand, in one line.
    std::string Resumen() const;
    void Reportar(Reporte& reporte, const char* titulo) const;
    Disposicion Zona();

  private:
    std::vector<std::string> TextosDeDatos() const;

    FormulaCaudal formula_;
    std::vector<Campo*> datos_{&C, &A, &I};  ///< What the formula takes.
    std::vector<std::string> calculadaCon_;  ///< Their texts when Q was calculated.
};

}  // namespace cuencalia
