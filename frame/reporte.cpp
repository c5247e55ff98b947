#include "frame/reporte.h"

#include "frame/textos.h"

namespace cuencalia {

namespace {

constexpr int kMargenReporte = 200;  // twips
constexpr int kIzquierda = 0;
constexpr int kCentro = 2;

}  // namespace

void Reporte::ReporteAbrir() {
    documento_.SelIndent(kMargenReporte);
    documento_.SelRightIndent(kMargenReporte);
    documento_.SelAlignment(kCentro);
}

void Reporte::ReporteRegla(int guiones) {
    for (int i = 0; i < guiones; ++i) {
        ReporteTexto("-");
    }
}

void Reporte::LineaDeGuiones(int guiones) {
    ReporteRegla(guiones);
    ReporteBlanco();
}

void Reporte::Cabecera(std::string_view titulo) {
    ReporteAbrir();
    ReporteLinea("Resultados");
    ReporteBlanco();
    ReporteTexto(titulo);
    ReporteBlanco();
    ReporteBlanco();
    ReporteAlinear(kIzquierda);
    ReporteBlanco();
}

void Reporte::Titulo(std::string_view titulo) {
    ReporteLinea(titulo);
    ReporteBlanco();
}

void Reporte::TablaDeSerie(std::string_view titulo, FlexGrid& grid, int hasta, int guiones) {
    Titulo(titulo);
    LineaDeGuiones(guiones);
    for (int c = 0; c < grid.Cols(); ++c) {
        ReporteTexto(" " + grid.TextMatrix(0, c) + "\t\t");
    }
    ReporteBlanco();
    LineaDeGuiones(guiones);
    for (int fila = 1; fila <= hasta; ++fila) {
        for (int c = 0; c < grid.Cols(); ++c) {
            ReporteTexto(grid.TextMatrix(fila, c) + "\t\t");
        }
        ReporteBlanco();
    }
    LineaDeGuiones(guiones);
    ReporteBlanco();
}

void Reporte::FilaCentrada(const FlexGrid& grid, int fila, int ancho, int columnaExtra, int extra) {
    for (int c = 0; c < grid.Cols(); ++c) {
        const std::string& texto = grid.TextMatrix(fila, c);
        const std::string relleno = Relleno(texto, ancho);
        ReporteTexto(relleno + Space(c == columnaExtra ? extra : 0) + texto + relleno);
    }
    ReporteBlanco();
}

std::string Relleno(std::string_view texto, int ancho) {
    return Space(CInt(Double(ancho - Len(texto)) / 2).valor());
}

}  // namespace cuencalia
