#include "modules/regresion/frmRegMul2Var.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoXYZ{
    .valores = 3, .rotuloCrear = "Trio valores X,Y,Z", .rotuloAccesar = "Trio valores X,Y,Z", .extension = "*.XYZ"};

}  // namespace

frmRegMul2Var::frmRegMul2Var(Aplicacion& app)
    : MarcoRegMultiple(
          app, "frmRegMul2Var",
          {.modulo = {.titulo = "Cálculos con ecuaciones de Regresión Múltiple, con 2 variables independientes",
                      .datos = {.encabezados = {"Trío", "X1", "X2", "Y"},
                                .patronEdicion = kPatronEdicionB,
                                .titulo = "Ingreso de los tríos de datos:"},
                      .archivo = &kArchivoXYZ},
           .regresion = {.k = 2,
                         .rechazo = "Para el ajuste a la ecuación se requiere por lo menos cuatro puntos",
                         .filas = {"Lineal Múltiple", "Potencial Múltiple"},
                         .anchos = {1750, 3500, 1050, 1050, 1050},
                         .reglaEcuaciones = 140},
           .faltaX = "Ingresar un valor adecuado para X1 y X2",
           .fallo = "Ingresó valores para X1, X2 ó Y iguales a 0 ó negativos. Estos valores no permiten la correlación "
                    "potencial. ¡Hacer la corrección correspondiente!",
           .ecuacionLineal = {"Y = ", " ", " *X1 ", " *X2"},
           .ecuacionPotencial = {"Y= ", "*X1^(", ") *X2^(", ")"},
           .signoPotencial = Signo::SoloMenos,
           .reporteDatos = {"Trios de valores X1, X2 e Y:", {" Trío", " X1", " X2", " Y"}},
           .reglaDatos = 85,
           .tituloY = "Cálculo de Y para un valor de X1 y X2:"}) {}

}  // namespace cuencalia
