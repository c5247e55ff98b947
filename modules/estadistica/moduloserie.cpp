#include "modules/estadistica/moduloserie.h"

#include "modules/estadistica/orden.h"

namespace cuencalia {

ModuloSerie::ModuloSerie(Aplicacion& app, std::string nombre, std::string titulo)
    : ModuloCalculo(app, std::move(nombre),
                    {.titulo = std::move(titulo), .datos = {.encabezados = {"N°", "X"}}, .archivo = &kArchivoX}) {
    LeerEn({&x});
    DeclararInicio({&orden.grdorden, &orden.lblOrdenado});
    orden.bOrdenar.Click.Conectar([this] { bOrdenar_Click(); });
}

void ModuloSerie::OrdenarCopia() {
    xo = x;
    OrdenarSerie(xo, n);
}

void ModuloSerie::bOrdenar_Click() {
    orden.MostrarGrid();
    CargarMatrices();
    OrdenarCopia();
    orden.Llenar(xo, n);
}

}  // namespace cuencalia
