#include "frame/base/textos.h"
#include "modules/caudales/fichai.h"
#include "modules/precipitacion/tablaecuacion.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoXMaximas{
    .rotuloCrear = "Valores de X", .rotuloAccesar = "Valores de X", .extension = "*.X"};
const std::vector<int> kDuraciones{15, 30, 60, 120, 180, 240};  // minutes

/// An equation fitted to the intensities of short durations of a series of daily maxima.
class FichaIGrobe : public FichaI {
  public:
    FichaIGrobe(ModuloCalculo& modulo, FichaQ& destino);

    Label lblImaxOrdT;
    Tabla grdImaxOrdT;
    TablaEcuacion grdecua;

    std::vector<ArregloBase<Double>*> Columnas() override { return {&P24}; }
    std::vector<Tabla*> Tablas() override { return {&grdImaxOrdT, &grdecua}; }
    void Reportar(Reporte& reporte) override;
    const char* TituloResultados() const override { return "Resultados finales de los cálculos:"; }
    Disposicion Zona() override;

  protected:
    bool Calcular(Single periodo, Double duracion) override;
    void Fallar() override { modulo_.App().MsgBox(kDatosInadecuados); }

  private:
    Serie P24;  ///< Greatest rain of a day, mm, of each year.
};

FichaIGrobe::FichaIGrobe(ModuloCalculo& modulo, FichaQ& destino)
    : FichaI(modulo, destino),
      lblImaxOrdT(modulo, "lblImaxOrdT", "T, D e Imax generados con Dyck y Peschke:", Papel::Encabezado),
      grdImaxOrdT(modulo, "grdImaxOrdT", "Intensidades por período de retorno y duración",
                  TablaDeDuraciones("T año", kDuraciones)),
      grdecua(modulo) {
    modulo.datos.Label1.Caption = "Una vez que digite el dato de Pmax, presionar ENTER";
}

bool FichaIGrobe::Calcular(Single periodo, Double duracion) {
    MostrarDuracion(duracion);
    modulo_.CargarMatrices();
    const int n = modulo_.n;
    const IntensidadesGrobe grobe = CalcularGrobe(P24, n, kDuraciones);
    LlenarDuraciones(
        grdImaxOrdT, n, [n](int r) { return Format(PeriodoDeRango(n, r), "0.#0"); }, grobe.Iord);
    const auto ajuste = AjustarIntensidad(grobe.puntos, BusquedaPivote::EnColumna);
    if (!ajuste) {
        modulo_.App().MsgBox(kInfinitasSoluciones);
        return false;
    }
    MostrarIntensidad(ajuste->ecuacion.Evaluar(periodo, duracion));
    grdecua.PonerAjuste(*ajuste, grobe.puntos);
    return true;
}

void FichaIGrobe::Reportar(Reporte& reporte) {
    reporte.Titulo("Cálculo del I máxima:");
    reporte.EscribirTabla(TablaDeSerie("Serie de datos Pmax diarios:", {" N°", " Pmax (mm)"}, 45), modulo_.datos.grdt,
                          modulo_.datos.Filas());
    ReportarDuraciones(reporte, "Intensidades máximas para diferentes duraciones y periodos de retorno:",
                       {"    T (años)  ", "      15 min  ", "    30 min ", "    60 min ", "      120 min ",
                        "    180 min ", "    240 min "},
                       grdImaxOrdT);
    ReportarEcuacion(reporte, grdecua);
    ReportarIntensidad(reporte, "Imax de diseño para los valores de T y D :", T.caja, tc.caja, Imax.caja);
}

Disposicion FichaIGrobe::Zona() {
    Disposicion ajuste = Columna({lblImaxOrdT, Disposicion(grdImaxOrdT).Estira(1), grdecua});
    return Columna({Pasos(), Fila({modulo_.datos.Zona(), std::move(ajuste).Estira(1)}).Estira(1)});
}

}  // namespace

FuenteIntensidad FuenteGrobe() {
    return {.datos = {.encabezados = {"N°", "P max (mm)"},
                      .patronEdicion = kPatronEdicionB,
                      .titulo = "Ingreso de los datos de Pmáx diaria:"},
            .archivo = &kArchivoXMaximas,
            .hacerFicha = [](ModuloCalculo& modulo, FichaQ& destino) -> std::unique_ptr<FichaI> {
                return std::make_unique<FichaIGrobe>(modulo, destino);
            }};
}

}  // namespace cuencalia
