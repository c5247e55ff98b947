#include "modules/estadistica/tablaparametros.h"

namespace cuencalia {

namespace {

constexpr int kAltoEncabezado = 340;

constexpr std::array<const char*, 6> kRotulos{
    "Media:                      ", "Varianza:                   ", "Desviación Estándar:        ",
    "Coeficiente Variación:      ", "Coeficiente de Sesgo:       ", "Coeficiente de Curtosis:    "};

}  // namespace

void IniciarTabla(FlexGrid& grid, int filas, const std::vector<std::string>& encabezados, int ancho) {
    grid.Clear();
    grid.PonerRows(filas);
    grid.PonerCols(static_cast<int>(encabezados.size()));
    for (int c = 0; c < grid.Cols(); ++c) {
        grid.PonerColWidth(c, ancho);
        grid.PonerColAlignment(c, kAlinearCentro);
    }
    grid.PonerRowHeight(0, kAltoEncabezado);
    grid.PonerEncabezados(encabezados);
}

void IniciarTablaParametros(FlexGrid& grid, const std::vector<std::string>& encabezados) {
    IniciarTabla(grid, 7, encabezados, 1750);
    grid.PonerFixedRows(1);
    grid.PonerFixedCols(1);
    grid.PonerColWidth(0, 2050);
    grid.BorderStyle = 0;
}

void RotularParametros(FlexGrid& grid) {
    grid.PonerColAlignment(0, kAlinearIzquierda);
    for (std::size_t i = 0; i < kRotulos.size(); ++i) {
        grid.PonerTextMatrix(static_cast<int>(i) + 1, 0, kRotulos[i]);
    }
}

void MostrarParametros(FlexGrid& grid, int columna, const ColumnaParametros& textos) {
    for (std::size_t i = 0; i < textos.size(); ++i) {
        grid.PonerTextMatrix(static_cast<int>(i) + 1, columna, textos[i]);
    }
}

}  // namespace cuencalia
