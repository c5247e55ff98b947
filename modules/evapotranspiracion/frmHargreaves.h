#pragma once

#include <string>

#include "modules/evapotranspiracion/hargreaves.h"
#include "modules/evapotranspiracion/marcoradiacion.h"

namespace cuencalia {

/// What the window of Hargreaves' method shows, mm/day.
struct ResultadoHargreaves {
    Double Ra, ETo, ETc;
};

/// Evapotranspiration of a crop by Hargreaves' method, from the temperatures and the crop's coefficient, which is
/// chosen from a list by its stage or typed.
class frmHargreaves : public MarcoRadiacion {
  public:
    explicit frmHargreaves(Aplicacion& app);

    Campos temperaturas;
    Frame fraKc{*this, "fraKc", "Datos Kc cultivo:"};
    OptionButton optKcEstimado{*this, "optKcEstimado", "Estimado"}, optKcTabla{*this, "optKcTabla", "Tabla"};
    Frame fraEtapaCul{*this, "fraEtapaCul", "Etapa del cultivo:"};
    OptionButton OptInicio{*this, "OptInicio", "Fase inicial"};
    OptionButton OptMediano{*this, "OptMediano", "Mediados de temporada"};
    OptionButton OptFin{*this, "OptFin", "Fin de temporada"};
    Frame fraKcEstimado{*this, "fraKcEstimado"};
    Label lblMensajeKC{*this, "lblMensajeKC"};
    ComboBox cobKcIni{*this, "cobKcIni", CultivosConKc(EtapaCultivo::Inicial), "Cultivo, fase inicial"};
    ComboBox cobKcMed{*this, "cobKcMed", CultivosConKc(EtapaCultivo::Mediados), "Cultivo, mediados de temporada"};
    ComboBox cobKcFin{*this, "cobKcFin", CultivosConKc(EtapaCultivo::Final), "Cultivo, fin de temporada"};
    Frame fraKcTabla{*this, "fraKcTabla"};
    Label lblKcTabla{*this, "lblKcTabla", "Kc:"};
    TextBox txtKcTabla{*this, "txtKcTabla"};
    Frame fraResultado{*this, "fraResultado", "Resultados:"};
    CamposDe<ResultadoHargreaves> resultados;

    Single Kc;  ///< Coefficient of the last calculation; one that was not given anew stays.

    void Form_Load() override;
    void InicializarDatosKc();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    std::string Consejo(const ErrorEjecucion& error) const override;
    Disposicion Cuerpo() override;

  private:
    /// A stage of the crop: its option and its list.
    struct Etapa {
        EtapaCultivo etapa;
        OptionButton& opcion;
        ComboBox& lista;
    };

    void MostrarFuenteKc(bool estimado);
    void MostrarEtapa(const Etapa& elegida);
    const Etapa& EtapaElegida() const;
    /// Takes Kc from the list or from its box; false, after the user was told, when the box is empty.
    bool LeerKc();

    const Etapa etapas_[3]{{EtapaCultivo::Inicial, OptInicio, cobKcIni},
                           {EtapaCultivo::Mediados, OptMediano, cobKcMed},
                           {EtapaCultivo::Final, OptFin, cobKcFin}};
    Double lat_;  ///< Radians.
};

}  // namespace cuencalia
