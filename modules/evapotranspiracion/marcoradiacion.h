#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/modulo/campos.h"
#include "frame/modulo/marcomodulo.h"

namespace cuencalia {

/// Refuses an empty box: "Ingresar un valor adecuado " and what is missing ("para la latitud").
Aviso Ingresar(const std::string& que);

/// A window of boxes that calculates the evapotranspiration of one month at one latitude. It has no grid and no files.
class MarcoRadiacion : public MarcoModulo {
  public:
    MarcoRadiacion(Aplicacion& app, std::string nombre, const std::string& titulo);

    Frame fraDatos{*this, "fraDatos", "Datos:"};
    Label lblLatitud{*this, "lblLatitud", "Latitud:"}, lblGrados{*this, "lblGrados", "º"};
    Label lblMes{*this, "lblMes", "Mes:"};
    TextBox txtLatitud{*this, "txtLatitud", "Latitud en grados"};
    ComboBox cobNS{*this, "cobNS", {"N", "S"}, "Hemisferio"};
    ComboBox cobMes;

    /// Prints nothing: the window is reported instead.
    void bImprimir_Click() override;

  protected:
    /// A remark on the last calculation goes when the next command begins.
    void AntesDeOrden() override;
    /// Latitude of the boxes in radians, negative in the south. Nothing, after the user was told, when it is empty.
    std::optional<Double> LeerLatitud();
    /// Month of the combo box, 1 to 12.
    int Mes() const { return cobMes.ListIndex() + 1; }
    /// What the status bar says where the sun does not rise or set in that month; empty where it does.
    std::string ConsejoDelSol(Double lat) const;
    void Avisar(const std::string& aviso) { StatusBar1.PonerPanel(kPanelAvisos, aviso); }

    /// The place and the month, then the other boxes: caption, box and unit of all in one table.
    Disposicion TablaDeDatos(Campos& otros);

    std::string RenglonLatitud() const;
    std::string RenglonMes() const;
};

}  // namespace cuencalia
