#pragma once

#include <memory>
#include <vector>

#include "frame/modulo/marcomodulo.h"
#include "modules/caudales/campo.h"
#include "modules/caudales/cuenca.h"
#include "modules/caudales/fichaq.h"

namespace cuencalia {

/// The tab page of the runoff coefficient: groups of land use, each with the coefficient of its table, and their mean
/// weighted by area, which goes to the page of the formula.
class FichaC {
  public:
    FichaC(MarcoModulo& modulo, const TablasDeC& tablas, FichaQ& destino);
    FichaC(const FichaC&) = delete;
    FichaC& operator=(const FichaC&) = delete;

    Frame fraDatosC;
    Campo grupo, area, pendiente;
    struct Lista {
        Lista(Formulario& forma, const ListaSuelo& descripcion);

        Label rotulo;
        ComboBox combo;
    };
    std::vector<std::unique_ptr<Lista>> listas;
    CommandButton bAgregar;
    Tabla grdC;
    Frame fraResultadosC;
    CommandButton bCponderado;
    Campo ponderado, total;

    void bAgregar_Click();
    void bCponderado_Click();
    /// Starts with no groups.
    void ReiniciarC();
    void Limpiar();
    void Reportar(Reporte& reporte);
    Disposicion Zona();

  private:
    void Avisar(const std::string& aviso) { modulo_.StatusBar1.PonerPanel(kPanelAvisos, aviso); }

    MarcoModulo& modulo_;
    TablasDeC tablas_;
    FichaQ& destino_;
    ArregloBase<GrupoSuelo> grupos_;
    int ngrupos_ = 0;  ///< Groups begun: one whose area or place in the arrays failed counts too.
};

}  // namespace cuencalia
