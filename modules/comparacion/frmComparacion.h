#pragma once

#include <memory>

#include "frame/modulo/marcomodulo.h"
#include "frame/modulo/recibeserie.h"
#include "frame/reportes/grafico.h"
#include "modules/comparacion/comparar.h"
#include "modules/comparacion/remuestreo.h"

namespace cuencalia {

/// Comparison of the fits of one series: tests of the series, all candidates with their measures, design discharges
/// with confidence limits, probability paper and diagram of L-moment ratios. The windows of the distributions open it
/// with their series.
class frmComparacion : public MarcoModulo, public RecibeSerie {
  public:
    explicit frmComparacion(Aplicacion& app);
    ~frmComparacion() override;

    SSTab SSTab1{
        *this, "SSTab1", {"Serie", "Candidatos", "Caudales de diseño", "Papel de probabilidad", "Momentos lineales"}};
    Label lblSerie{*this, "lblSerie", "Serie:", Papel::Nota};
    Tabla grdSerie{
        *this, "grdSerie", "Serie", {.filas = 2, .columnas = {{"N°", 700}, {"X", 1200}, {"Ordenada", 1200}}}};
    Tabla grdPruebas{
        *this,
        "grdPruebas",
        "Pruebas de la serie",
        {.filas = 6, .columnas = {{"Prueba", 2800}, {"Estadístico", 1200}, {"p", 900}, {"Resultado", 6500}}}};
    Label lblOrden{*this, "lblOrden", "Ordenar por:"};
    ComboBox cmbOrden;
    Label lblCautela{*this, "lblCautela", {}, Papel::Nota};
    Tabla grdCandidatos;
    Frame fraRemuestreo{*this, "fraRemuestreo", "Límites de confianza y significación:"};
    Label lblNivel{*this, "lblNivel", "Nivel de confianza (%):"}, lblSemilla{*this, "lblSemilla", "Semilla:"};
    ComboBox cmbNivel{*this, "cmbNivel", {"80", "90", "95", "99"}};
    TextBox txtSemilla{*this, "txtSemilla"};
    CommandButton bRemuestrear{*this, "bRemuestrear", "Re&muestrear",
                               "Límites de confianza por remuestreo paramétrico (1000 muestras)"};
    CommandButton bCancelar{*this, "bCancelar", "&Cancelar", "Terminar el remuestreo"};
    Label lblAvance{*this, "lblAvance", {}, Papel::Nota};
    Tabla grdDiseno;
    Label lblPapel{*this, "lblPapel", "Papel:"}, lblPosicion{*this, "lblPosicion", "Posición gráfica:"};
    Label lblCurva{*this, "lblCurva", "Ajuste:"}, lblCurva2{*this, "lblCurva2", "Otro ajuste:"};
    ComboBox cmbPapel{*this, "cmbPapel", {"Gumbel", "Normal", "Log-normal"}};
    ComboBox cmbPosicion, cmbCurva, cmbCurva2;
    Label lblEjeY{*this, "lblEjeY", "Q (m3/s)"}, lblEjeX{*this, "lblEjeX"};
    GraficoModulo Graph1{*this, "Graph1", "Papel de probabilidad"};
    Label lblTau4{*this, "lblTau4", "Curtosis lineal tau4 = L4/L2"},
        lblTau3{*this, "lblTau3", "Asimetría lineal tau3 = L3/L2"};
    GraficoModulo Graph2{*this, "Graph2", "Diagrama de momentos lineales"};
    CommandButton bCrearExcel{*this, "bCrearExcel", "Crear Excel", "Pasar las tablas a una hoja de cálculo"};
    CommandButton bCopiar{*this, "bCopiar", "C&opiar tablas", "Copiar todas las tablas al portapapeles"};

    void RecibirSerie(const std::string& origen, std::vector<double> serie) override;
    void bRemuestrear_Click();
    void bCancelar_Click();
    void bCrearExcel_Click();
    void bCopiar_Click();
    void GenerarReporte(Reporte& reporte) override;

  protected:
    void Calcular() override;
    void LimpiarOtros() override;
    Disposicion Cuerpo() override;

  private:
    /// What the thread of a resampling and the window share.
    struct Encargo;

    const PosicionGrafica& Posicion() const;
    /// The rows in the order that the user chose.
    void Ordenar();
    void MostrarSerie();
    void MostrarCandidatos();
    void MostrarDiseno();
    void DibujarPapel();
    void DibujarMomentos();
    void Entregar(const Encargo& encargo);
    /// Index in comparados_ of a fit by its name in a list; nothing for the empty name.
    std::optional<std::size_t> Elegido(const ComboBox& lista) const;

    std::string origen_;
    std::vector<double> serie_, ordenada_;
    std::vector<Comparado> comparados_;
    std::vector<std::size_t> orden_;      ///< Of the rows: indices in comparados_.
    std::vector<Remuestreo> remuestreo_;  ///< Of comparados_; empty before the resampling.
    std::string nivelMostrado_;           ///< Of its limits, and the seed.
    std::shared_ptr<Encargo> encargo_;
};

}  // namespace cuencalia
