#pragma once

#include <functional>
#include <memory>

#include "frame/modulo/marcomodulo.h"
#include "modules/comparacion/comparacion.h"

namespace cuencalia {

/// The page of the design discharges, with the resampling that gives their limits and the significance of the measures.
class FichaDiseno {
  public:
    FichaDiseno(MarcoModulo& modulo, Comparacion& comparacion);
    ~FichaDiseno();
    FichaDiseno(const FichaDiseno&) = delete;
    FichaDiseno& operator=(const FichaDiseno&) = delete;

    Frame fraRemuestreo;
    Label lblNivel, lblSemilla;
    ComboBox cmbNivel;
    TextBox txtSemilla;
    CommandButton bRemuestrear, bCancelar;
    Label lblAvance;
    Tabla grdDiseno;

    /// What is shown anew when a resampling has ended.
    std::function<void()> alRemuestrear;

    /// Resamples on a thread of its own, by the plotting position whose a is given.
    void Remuestrear(double posicion);
    void Cancelar();
    void Mostrar();
    /// The resampling of a former calculation goes.
    void Limpiar();
    void Reportar(Reporte& reporte);
    Disposicion Zona();

  private:
    /// What the thread of a resampling and the window share.
    struct Encargo;

    void Entregar(const Encargo& encargo);

    MarcoModulo& modulo_;
    Comparacion& comparacion_;
    std::shared_ptr<Encargo> encargo_;
};

}  // namespace cuencalia
