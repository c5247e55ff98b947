#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "frame/modulo/modulocalculo.h"
#include "modules/caudales/campo.h"
#include "modules/caudales/fichaq.h"

namespace cuencalia {

/// The tab page of the intensity: the time of concentration or a known duration, the return period, and the intensity
/// that they have, which goes to the page of the formula. Where it comes from is told by the derived classes, which use
/// the data grid of the module.
class FichaI {
  public:
    FichaI(ModuloCalculo& modulo, FichaQ& destino);
    virtual ~FichaI() = default;
    FichaI(const FichaI&) = delete;
    FichaI& operator=(const FichaI&) = delete;

    Frame fraDatosI;
    Campo L, H, T;
    Frame fraDuracion;
    OptionButton optDuracionAdiSi, optDuracionAdiNo;
    TextBox txtDuracionAdi;
    Label lblDuracionAdi;
    CommandButton bcalcularI;
    Frame fraResultadosI;
    Campo tc, Imax;

    /// Returns whether there is an intensity.
    bool bcalcularI_Click();
    /// The page comes to the front.
    void Entrar();
    void Limpiar();
    /// Shows the data grid, as a file is to be loaded into it.
    virtual void MostrarDatos() {}
    /// Clears what the page has besides tables and boxes.
    /// The arrays of the data columns.
    virtual std::vector<ArregloBase<Double>*> Columnas() = 0;
    virtual std::vector<Tabla*> Tablas() { return {}; }
    virtual void Reportar(Reporte& reporte) = 0;
    virtual const char* TituloResultados() const = 0;
    virtual Disposicion Zona() = 0;

  protected:
    /// Finds the intensity for a return period in years and a duration in minutes, shows it, and returns whether there
    /// is one.
    virtual bool Calcular(Single periodo, Double duracion) = 0;
    /// Tells a run-time error of Calcular.
    virtual void Fallar() = 0;
    void MostrarDuracion(Double duracion);
    void MostrarIntensidad(Double intensidad);
    void Avisar(const std::string& aviso) { modulo_.StatusBar1.PonerPanel(kPanelAvisos, aviso); }
    /// Layout of the boxes, the button and the results, side by side.
    Disposicion Pasos();

    ModuloCalculo& modulo_;

  private:
    /// The known duration or the time of concentration in minutes; 0 when that cannot be calculated, and nothing when
    /// the known one is missing, both told to the user.
    std::optional<Double> Duracion();
    Double CalcularTc();
    Single CapturarT();

    FichaQ& destino_;
};

/// A source of the intensity as a window needs it: what its data grid and files hold, and its page.
struct FuenteIntensidad {
    DescripcionGrid datos;
    const FormatoSerie* archivo;
    std::unique_ptr<FichaI> (*hacerFicha)(ModuloCalculo& modulo, FichaQ& destino);
};

/// The regional equations, or an equation fitted to trios of return period, duration and intensity.
FuenteIntensidad FuenteRegional();
/// An equation fitted to the intensities that a series of daily maxima has after Grobe.
FuenteIntensidad FuenteGrobe();

}  // namespace cuencalia
