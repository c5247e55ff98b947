#include "modules/precipitacion/frmPromArit.h"

#include "modules/estadistica/momentos.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoP{
    .rotuloCrear = "Valores de precipitación P", .rotuloAccesar = "Valores de precipitación P", .extension = "*.P"};

}  // namespace

frmPromArit::frmPromArit(Aplicacion& app)
    : MarcoLluviaMedia(app, "frmPromArit",
                       {.metodo = "del promedio aritmético",
                        .datos = {.encabezados = {"Estación", "Precipitación (mm)"},
                                  .patronEdicion = kPatronEdicionB,
                                  .columnaSelEntrada = 2,
                                  .titulo = "Ingreso de los pares de datos de las estaciones:"},
                        .archivo = &kArchivoP,
                        .marcoResultado = "Resultado método del promedio aritmético:",
                        .avisoVacio = "Antes de realizar cálculos, ingresar datos",
                        .tituloDatos = "Datos de precipitación:",
                        .encabezadosReporte = {" Estación", " Precipitación (mm)"},
                        .tituloResultado = "Resultado del método del promedio aritmético:"}) {
    LeerEn({&P});
}

Double frmPromArit::Promediar() { return Media(P, n); }

}  // namespace cuencalia
