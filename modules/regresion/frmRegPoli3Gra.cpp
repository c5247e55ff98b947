#include "modules/regresion/frmRegPoli3Gra.h"

namespace cuencalia {

frmRegPoli3Gra::frmRegPoli3Gra(Aplicacion& app)
    : MarcoRegPolinomial(
          app, "frmRegPoli3Gra",
          {.titulo = "Cálculos con ecuaciones de regresión polinomial de 3er grado",
           .regresion = {.k = 3,
                         .rechazo = "Para calcular el valor de Se, se requiere por lo menos cinco pares de datos",
                         .filas = {"Polinomio 3er grado"},
                         .anchos = {1500, 4600, 700, 700, 800},
                         .reglaEcuaciones = 150},
           .ecuacion = {"Y = ", " ", " * X ", " * X ^2", " * X ^3"}}) {}

}  // namespace cuencalia
