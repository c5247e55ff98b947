#include "modules/comparacion/textos.h"

#include <algorithm>
#include <cmath>

#include "frame/base/textos.h"

namespace cuencalia {

std::string Numero(double valor, const char* patron) {
    return std::isnan(valor) ? "" : std::isinf(valor) ? (valor < 0 ? "-∞" : "∞") : Format(valor, patron);
}

std::string NombreDe(const Ajuste& a) {
    return std::string(NombreFamilia(a.candidato.familia)) + ", " + NombreMetodo(a.candidato.metodo);
}

std::string TextoParametros(const Distribucion& d) {
    std::string texto;
    for (const ParametroMostrado& p : d.Parametros()) {
        texto += (texto.empty() ? "" : "; ") + std::string(p.nombre) + " = " + Numero(p.valor, "0.0###");
    }
    return texto;
}

bool EsNumero(const std::string& texto) {
    return !texto.empty() && texto.find_first_not_of("0123456789.- ") == std::string::npos;
}

Bloque Columnas(const FlexGrid& grid, int desde, int hasta) {
    Bloque filas(static_cast<std::size_t>(grid.Rows()));
    for (std::size_t f = 0; f < filas.size(); ++f) {
        for (int c = desde; c < hasta; ++c) {
            filas[f].push_back(grid.TextMatrix(static_cast<int>(f), c));
        }
    }
    return filas;
}

void ReportarFilas(Reporte& reporte, const char* titulo, const Bloque& filas) {
    std::vector<std::string> lineas(filas.size());
    int regla = -2;
    for (std::size_t c = 0; c < filas[0].size(); ++c) {
        int ancho = 0;
        bool numeros = false;
        for (const auto& fila : filas) {
            ancho = std::max(ancho, Len(fila[c]));
            numeros = numeros || EsNumero(fila[c]);
        }
        regla += ancho + 2;
        for (std::size_t f = 0; f < filas.size(); ++f) {
            const std::string relleno = Space(ancho - Len(filas[f][c]));
            lineas[f] += (c == 0 ? "" : "  ") + (numeros ? relleno + filas[f][c] : filas[f][c] + relleno);
        }
    }
    reporte.Titulo(titulo);
    reporte.LineaDeGuiones(regla);
    reporte.ReporteLinea(lineas[0]);
    reporte.LineaDeGuiones(regla);
    for (std::size_t f = 1; f < lineas.size(); ++f) {
        reporte.ReporteLinea(lineas[f]);
    }
    reporte.LineaDeGuiones(regla);
    reporte.ReporteBlanco();
}

}  // namespace cuencalia
