#include "modules/estadistica/listaordenada.h"

#include "frame/base/textos.h"

namespace cuencalia {

ListaOrdenada::ListaOrdenada(Formulario& forma)
    : bOrdenar(forma, "bOrdenar", "&Ordenar", "Mostrar serie ordenada"),
      lblOrdenado(forma, "lblOrdenado", "Datos ordenados:", Papel::Encabezado),
      grdorden(forma, "grdorden", "Datos ordenados",
               {.filas = 1, .columnas = {{"N°", 700}, {"X", 1800}}, .columnasFijas = 1}) {
    PonerVisible(false);
}

void ListaOrdenada::PonerVisible(bool visible) {
    grdorden.Visible = visible;
    lblOrdenado.Visible = visible;
}

void ListaOrdenada::Llenar(const ArregloBase<Double>& ordenada, int n) {
    grdorden.Iniciar(n + 1);
    for (int i = 1; i <= n; ++i) {
        grdorden.PonerFila(i, {Str(i), Format(ordenada(i), "#0.0#######")});
    }
}

Disposicion ListaOrdenada::Zona() { return Columna({lblOrdenado, Disposicion(grdorden).Estira(1)}); }

}  // namespace cuencalia
