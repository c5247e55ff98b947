#pragma once

#include <string>
#include <vector>

#include "frame/modulo/modulocalculo.h"

namespace cuencalia {

/// A result in the report: the blanks before its label, and the label.
struct RenglonMaximas {
    int blancos;
    const char* rotulo;
};

/// The properties in which the windows of design discharge from annual maxima differ.
struct DescripcionMaximas {
    std::string titulo;
    std::vector<ColumnaTabla> parametros;  ///< The method's own results.
    std::vector<RenglonMaximas> reporte;   ///< The results up to the interval.
    const char* conclusion;                ///< The report's last sentence up to the return period.
    int TMinimo;                           ///< The return period must be greater than this, in years.
    int annosMinimos;                      ///< Years that the method needs.
};

/// The interval of a discharge as the tables show it: the whole part and the fraction of each end, joined as they are
/// written. A fraction of 0.995 or more reads "1.0", and a negative end has two signs ("-5-.25").
std::string TextoIntervalo(Double Qinf, Double Qsup);

/// Design discharge (m3/s) for a return period from a series of annual maxima. The rows of the grid are consecutive
/// years, and a file of the series has the first of them in a record of its own behind the discharges. Each derived
/// class adds its method.
class MarcoMaximas : public ModuloCalculo {
  public:
    MarcoMaximas(Aplicacion& app, std::string nombre, DescripcionMaximas descripcion);

    Label lblanno{*this, "lblanno", "Año de inicio:"};
    TextBox txtanno{*this, "txtanno"};
    Label lblTdato{*this, "lblTdato", "Período de retorno de cálculo del caudal de diseño (T):"};
    Label lblUnidadT{*this, "lblUnidadT", "años"};
    TextBox txtTdato{*this, "txtTdato"};
    Tabla grddis;
    Label lblIntervalo{*this, "lblIntervalo", {}, Papel::Nota};

    Serie x;             ///< m3/s
    Integer annoInicio;  ///< First year of the series.

    /// Takes the first year from its box and numbers the rows by it. Error 6 for a year that is no 16-bit number.
    void CargarannoInicio();
    void CargarCola() override { CargarannoInicio(); }
    std::vector<Registro> RegistrosDeCola() override { return {{CSng(annoInicio)}}; }
    void LeerCola(const std::vector<Registro>& registros) override;
    void GenerarReporte(Reporte& reporte) override;

  protected:
    struct Estimacion {
        std::vector<Double> parametros;  ///< As the headings name them.
        Double Qmax, DeltaQ;
    };

    /// The discharge of T years by the n values that CargarMatrices has read.
    virtual Estimacion Estimar(Double T) = 0;

    bool Calcular() override;
    std::string Consejo(const ErrorEjecucion& error) const override;
    std::vector<Disposicion> ZonaResultados() override;
    Disposicion Cuerpo() override;
    /// Layout of the method's own results beside the data.
    virtual std::vector<Disposicion> Detalles() { return {}; }

  private:
    DescripcionMaximas descripcion_;
};

}  // namespace cuencalia
