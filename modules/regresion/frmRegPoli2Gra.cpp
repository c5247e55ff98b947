#include "modules/regresion/frmRegPoli2Gra.h"

namespace cuencalia {

frmRegPoli2Gra::frmRegPoli2Gra(Aplicacion& app)
    : MarcoRegPolinomial(
          app, "frmRegPoli2Gra",
          {.titulo = "Cálculos con ecuaciones de regresión polinomial de 2° grado",
           .regresion = {.k = 2,
                         .rechazo = "Para calcular el valor de Se, se requiere por lo menos cuatro puntos",
                         .filas = {"Polinomio 2° grado"},
                         .anchos = {1750, 3500, 1050, 1050, 1050},
                         .reglaEcuaciones = 140},
           .ecuacion = {"Y = ", " ", " * X ", " * X ^2"}}) {}

}  // namespace cuencalia
