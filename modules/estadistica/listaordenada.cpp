#include "modules/estadistica/listaordenada.h"

#include "frame/base/textos.h"

namespace cuencalia {

ListaOrdenada::ListaOrdenada(Formulario& forma)
    : bOrdenar(forma, "bOrdenar", "&Ordenar", "Mostrar serie ordenada"),
      lblOrdenado(forma, "lblOrdenado", "Datos ordenados:", Papel::Encabezado),
      grdorden(forma, "grdorden", "Datos ordenados") {
    OcultarGrid();
}

void ListaOrdenada::PonerVisible(bool visible) {
    grdorden.Visible = visible;
    lblOrdenado.Visible = visible;
}

void ListaOrdenada::Llenar(const ArregloBase<Double>& ordenada, int n) {
    grdorden.Clear();
    grdorden.PonerRows(n + 1);
    grdorden.PonerCols(2);
    grdorden.PonerColWidth(0, 700);
    grdorden.PonerColWidth(1, 1800);
    grdorden.PonerColAlignment(0, kAlinearCentro);
    grdorden.PonerColAlignment(1, kAlinearCentro);
    grdorden.PonerRowHeight(0, 340);
    grdorden.PonerEncabezados({"N°", "X"});
    grdorden.BorderStyle = 1;
    grdorden.Width = grdorden.ColWidth(0) + grdorden.ColWidth(1) + 300;
    const int altoFila = n > 0 ? grdorden.RowHeight(1) : grdorden.RowHeight(0);
    grdorden.Height = 14 * altoFila + grdorden.RowHeight(0);
    for (int i = 1; i <= n; ++i) {
        grdorden.PonerTextMatrix(i, 0, Str(i));
        grdorden.PonerTextMatrix(i, 1, Format(ordenada(i), "#0.0#######"));
    }
}

Disposicion ListaOrdenada::Zona() { return Columna({lblOrdenado, Disposicion(grdorden).Estira(1)}); }

}  // namespace cuencalia
