#include "frame/reportes/reporte.h"

#include <algorithm>
#include <utility>

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

constexpr int kIzquierda = 0;
constexpr int kCentro = 2;
constexpr int kAnchoCaracter = 118;  // twips; 120 on paper, 117 on a screen whose font has whole pixels

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

void Reporte::PonerParadas(const std::vector<int>& caracteres) {
    std::vector<int> twips;
    twips.reserve(caracteres.size());
    for (const int caracter : caracteres) {
        twips.push_back(kMargenReporte + caracter * kAnchoCaracter);
    }
    documento_.SelTabs(twips);
}

void Reporte::EscribirTabla(const Tabla& tabla, FlexGrid& grid, int hasta) {
    Titulo(tabla.titulo);
    LineaDeGuiones(tabla.regla);
    ReporteLinea(tabla.encabezado);
    LineaDeGuiones(tabla.regla);
    const int fin = tabla.columnas > 0 ? tabla.primeraColumna + tabla.columnas : grid.Cols();
    std::string linea;
    if (!tabla.paradas.empty()) {
        PonerParadas(tabla.paradas);
    }
    for (int fila = tabla.primeraFila; fila <= hasta; ++fila) {
        linea.clear();
        for (int c = tabla.primeraColumna; c < fin; ++c) {
            if (tabla.conCursor) {
                grid.PonerCelda(fila, c);
            }
            linea += tabla.celda(grid.TextMatrix(fila, c), fila, c);
        }
        ReporteTexto(linea += '\n');
    }
    if (!tabla.paradas.empty()) {
        PonerParadas({});
    }
    LineaDeGuiones(tabla.reglaFinal > 0 ? tabla.reglaFinal : tabla.regla);
    ReporteBlanco();
}

Reporte::Tabla TablaDeSerie(std::string titulo, const std::vector<std::string>& encabezados, int regla) {
    constexpr const char* kDosTabuladores = "\t\t";
    return {.titulo = std::move(titulo),
            .regla = regla,
            .encabezado = UnirEncabezados(encabezados, kDosTabuladores),
            .celda = CeldaSeguidaDe(kDosTabuladores),
            .conCursor = true};
}

std::string UnirEncabezados(const std::vector<std::string>& encabezados, std::string_view tras) {
    std::string linea;
    for (const std::string& encabezado : encabezados) {
        linea.append(encabezado).append(tras);
    }
    return linea;
}

std::vector<int> ParadasBajo(const std::vector<std::string>& encabezados) {
    std::vector<int> paradas;
    int lugar = 0;
    for (const std::string& encabezado : encabezados) {
        if (lugar > 0) {
            paradas.push_back(lugar + static_cast<int>(encabezado.find_first_not_of(' ')));
        }
        lugar += Len(encabezado);
    }
    return paradas;
}

Reporte::Celda CeldaSeguidaDe(std::string tras) {
    return [tras = std::move(tras)](const std::string& texto, int, int) { return texto + tras; };
}

Reporte::Celda CeldaCentrada(int ancho, std::function<int(int, int)> extra) {
    return [ancho, extra = std::move(extra)](const std::string& texto, int fila, int columna) {
        const std::string relleno = Relleno(texto, ancho);
        return Space(extra ? extra(fila, columna) : 0) + relleno + texto + relleno;
    };
}

Reporte::Celda CeldaBajo(std::vector<std::string> encabezados) {
    return [encabezados = std::move(encabezados)](const std::string& texto, int, int columna) {
        const std::string& encabezado = encabezados.at(static_cast<std::size_t>(columna));
        const int ancho = Len(encabezado);
        const int primera = static_cast<int>(encabezado.find_first_not_of(' '));
        const int centrado = (2 * primera + Len(Trim(encabezado)) - Len(texto)) / 2;
        // A text that is too long stays apart from the one before it.
        const int izquierda = std::max(1, std::min(centrado, ancho - Len(texto)));
        return Space(izquierda) + texto + Space(std::max(0, ancho - izquierda - Len(texto)));
    };
}

std::string Relleno(std::string_view texto, int ancho) { return Space(CInt(Double(ancho - Len(texto)) / 2).valor()); }

}  // namespace cuencalia
