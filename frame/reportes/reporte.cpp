#include "frame/reportes/reporte.h"

#include "frame/base/textos.h"

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

void Reporte::TablaDeSerie(std::string_view titulo, const std::vector<std::string>& encabezados, FlexGrid& grid,
                           int hasta, int guiones) {
    Titulo(titulo);
    LineaDeGuiones(guiones);
    for (const std::string& encabezado : encabezados) {
        ReporteTexto(encabezado + "\t\t");
    }
    ReporteBlanco();
    LineaDeGuiones(guiones);
    for (int fila = 1; fila <= hasta; ++fila) {
        for (int c = 0; c < grid.Cols(); ++c) {
            grid.PonerCelda(fila, c);
            ReporteTexto(grid.Text() + "\t\t");
        }
        ReporteBlanco();
    }
    LineaDeGuiones(guiones);
    ReporteBlanco();
}

void Reporte::CeldaCentrada(std::string_view texto, int ancho, int extra) {
    const std::string relleno = Relleno(texto, ancho);
    ReporteTexto(Space(extra) + relleno + std::string(texto) + relleno);
}

std::string Relleno(std::string_view texto, int ancho) { return Space(CInt(Double(ancho - Len(texto)) / 2).valor()); }

}  // namespace cuencalia
