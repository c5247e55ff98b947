#include "modules/precipitacion/frmThiessen.h"

#include "modules/precipitacion/lluviamedia.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoPA{
    .valores = 2, .rotuloCrear = "Pares valores P, A", .rotuloAccesar = "Pares valores P, A", .extension = "*.PA"};

}  // namespace

frmThiessen::frmThiessen(Aplicacion& app)
    : MarcoLluviaMedia(app, "frmThiessen",
                       {.metodo = "de Thiessen",
                        .datos = {.encabezados = {"Estación", "Precipitación (mm)", "Área"},
                                  .patronEdicion = kPatronEdicionB,
                                  .titulo = "Ingreso de los pares de datos de las estaciones:"},
                        .archivo = &kArchivoPA,
                        .marcoResultado = "Resultado método de Thiessen:",
                        .avisoVacio = "Ingresar datos antes de realizar los cálculos",
                        .tituloDatos = "Pares de datos Precipitación, Área:",
                        .encabezadosReporte = {" Estación", " Precipitación", " Área"},
                        .tituloResultado = "Resultado del método de Thiessen:"}) {
    LeerEn({&P, &A});
}

Double frmThiessen::Promediar() { return PromedioPorAreas(P, A, n); }

}  // namespace cuencalia
