#include "frame/modulo/tabla.h"

#include <utility>

namespace cuencalia {

Tabla::Tabla(Formulario& forma, std::string nombre, std::string nombreAccesible, DescripcionTabla descripcion)
    : FlexGrid(forma, std::move(nombre), std::move(nombreAccesible)), descripcion_(std::move(descripcion)) {}

void Tabla::Iniciar(int filas) {
    const DescripcionTabla& d = descripcion_;
    Clear();
    PonerRows(filas);
    PonerCols(static_cast<int>(d.columnas.size()));
    PonerFixedRows(d.unidades.empty() ? 1 : 2);
    PonerFixedCols(d.columnasFijas);
    for (int c = 0; c < Cols(); ++c) {
        const ColumnaTabla& columna = d.columnas[static_cast<std::size_t>(c)];
        PonerColWidth(c, columna.ancho);
        PonerColAlignment(c, kAlinearCentro);
        PonerTextMatrix(0, c, columna.encabezado);
    }
    if (!d.unidades.empty()) {
        PonerFila(1, d.unidades);
    }
    PonerColumna(0, d.rotulos);
    PonerRowHeight(0, d.altoEncabezado);
    BorderStyle = d.borde;
}

void Tabla::PonerFila(int fila, const std::vector<std::string>& textos, int columna) {
    for (const std::string& texto : textos) {
        PonerTextMatrix(fila, columna++, texto);
    }
}

void Tabla::PonerColumna(int columna, const std::vector<std::string>& textos) {
    int fila = 1;
    for (const std::string& texto : textos) {
        PonerTextMatrix(fila++, columna, texto);
    }
}

void Tabla::VaciarDesde(int fila) {
    for (int f = fila; f < Rows() && !TextMatrix(f, 0).empty(); ++f) {
        PonerFila(f, std::vector<std::string>(static_cast<std::size_t>(Cols())));
    }
}

}  // namespace cuencalia
