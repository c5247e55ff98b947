#pragma once

#include "frame/modulo/recibeserie.h"
#include "modules/comparacion/fichacandidatos.h"
#include "modules/comparacion/fichadiseno.h"
#include "modules/comparacion/fichamomentos.h"
#include "modules/comparacion/fichapapel.h"
#include "modules/comparacion/fichaserie.h"

namespace cuencalia {

/// Comparison of the fits of one series: tests of the series, all candidates with their measures, design discharges
/// with confidence limits, probability paper and diagram of L-moment ratios, a page each. The windows of the
/// distributions open it with their series.
class frmComparacion : public MarcoModulo, public RecibeSerie {
  public:
    explicit frmComparacion(Aplicacion& app);

  private:
    Comparacion comparacion_;

  public:
    SSTab SSTab1{
        *this, "SSTab1", {"Serie", "Candidatos", "Caudales de diseño", "Papel de probabilidad", "Momentos lineales"}};
    FichaSerie serie{*this, comparacion_};
    FichaCandidatos candidatos{*this};
    FichaDiseno diseno{*this, comparacion_};
    FichaPapel papel{*this, comparacion_};
    FichaMomentos momentos{*this};
    CommandButton bCrearExcel{*this, "bCrearExcel", "Crear Excel", "Pasar las tablas a una hoja de cálculo"};
    CommandButton bCopiar{*this, "bCopiar", "C&opiar tablas", "Copiar todas las tablas al portapapeles"};

    void RecibirSerie(const std::string& origen, std::vector<double> serie) override;
    void bRemuestrear_Click();
    void bCrearExcel_Click();
    void bCopiar_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    bool Calcular() override;
    Disposicion Cuerpo() override;

  private:
    /// The tables as they leave the window, in this order.
    std::vector<Tabla*> Tablas();
    /// The rows of both tables in the order that the user chose.
    void Ordenar();
};

}  // namespace cuencalia
