#include "modules/regresion/frmRegMul3Var.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoXSY{.valores = 4,
                                   .rotuloCrear = "Cuartetos valores XS,Y",
                                   .rotuloAccesar = "Cuartetos valores XS,Y",
                                   .extension = "*.XSY"};

}  // namespace

frmRegMul3Var::frmRegMul3Var(Aplicacion& app)
    : MarcoRegMultiple(
          app, "frmRegMul3Var",
          {.modulo = {.titulo = "Cálculos con ecuaciones de regresión múltiple, con 3 variables independientes",
                      .datos = {.encabezados = {"Cuarteto", "X1", "X2", "X3", "Y"},
                                .patronEdicion = kPatronEdicionB,
                                .titulo = "Ingreso de los cuartetos de datos:"},
                      .archivo = &kArchivoXSY},
           .regresion = {.k = 3,
                         .rechazo = "Para calcular el valor de Se, se requiere por lo menos cinco cuartetos de datos",
                         .filas = {"Lineal", "Potencial"},
                         .anchos = {1750, 5000, 1050, 1050, 1050},
                         .reglaEcuaciones = 152},
           .faltaX = "Ingresar un valor adecuado para X1 , X2 y X3",
           .fallo = "Ingresó valores para X1, X2, X3 ó Y iguales a 0 ó negativos. Estos valores no permiten la "
                    "correlación potencial. ¡Hacer la corrección correspondiente!",
           .ecuacionLineal = {"Y = ", " ", " * X1 ", " * X2", " * X3        "},
           .ecuacionPotencial = {"Y = ", " *X1^(", ") *X2^(", ")* X3^(", ")"},
           .signoPotencial = Signo::Siempre,
           .reporteDatos = {"Cuarteto de valores X1, X2, X3 e Y:", {" Cuar", " X1", " X2", " X3", " Y"}},
           .reglaDatos = 102,
           .tituloY = "Cálculo de Y para un valor de X1, X2 y X3:"}) {}

}  // namespace cuencalia
