#include "frame/controles/anchogrid.h"

#include <algorithm>

#include "frame/base/twips.h"

namespace cuencalia {

namespace {

constexpr int kAire = 18, kAireMinimo = 10;  // pixels left and right of a text
constexpr char kDato[] = "00000.000";        // a column of data shows that much of a number
constexpr int kFilasMedidas = 40;            // rows whose labels are measured; labels beyond them are only numbers
constexpr int kFilasDeTexto = 10;  // a grid of no more rows may hold texts, such as equations, that need their width

}  // namespace

bool EsDeLectura(const FlexGrid& grid) { return !grid.KeyPress.Atendido(); }

std::vector<AnchoColumna> MedirColumnas(const FlexGrid& grid,
                                        const std::function<int(const std::string&)>& anchoDeTexto) {
    const bool lectura = EsDeLectura(grid), corta = grid.Rows() <= kFilasDeTexto;
    const auto textos = [&](int columna, int desde, int hasta) {
        // Numbers of as many characters are as wide, but for a few pixels: of a long column only those are measured
        // that have more of them.
        const bool todos = hasta - desde <= kFilasMedidas;
        std::size_t largo = 0;
        int ancho = 0;
        for (int f = desde; f < hasta; ++f) {
            const std::string& celda = grid.TextMatrix(f, columna);
            if (todos || celda.size() > largo) {
                largo = celda.size();
                ancho = std::max(ancho, anchoDeTexto(celda));
            }
        }
        return ancho;
    };
    std::vector<AnchoColumna> columnas;
    for (int c = 0; c < grid.Cols(); ++c) {
        const bool fija = c < grid.FixedCols();
        const int celdas = fija || (!lectura && !corta) ? 0 : textos(c, grid.FixedRows(), grid.Rows());
        int preciso = textos(c, 0, fija ? std::min(grid.Rows(), kFilasMedidas) : grid.FixedRows());
        // A column of results is at least as wide as they are.
        preciso = lectura ? std::max(preciso, celdas) : preciso;
        const int ancho = std::max(static_cast<int>(grid.ColWidth(c) / kTwipsPorPixel), preciso + kAire);
        preciso = lectura ? preciso : std::max(preciso, anchoDeTexto(kDato));
        columnas.push_back(
            {ancho, fija ? ancho : std::min(preciso + kAireMinimo, ancho), std::max(0, celdas + kAire - ancho)});
    }
    return columnas;
}

std::vector<int> RepartirAncho(const std::vector<AnchoColumna>& columnas, int disponible) {
    int natural = 0, cede = 0, falta = 0;
    for (const AnchoColumna& c : columnas) {
        natural += c.ancho;
        cede += c.ancho - c.minimo;
        falta += c.falta;
    }
    const int sobra = std::max(disponible - natural, -cede);
    const int resto = std::max(0, sobra - falta);
    const int cuantas = static_cast<int>(columnas.size());
    std::vector<int> anchos;
    int cedido = 0;
    for (int i = 0; i < cuantas; ++i) {
        const AnchoColumna& c = columnas[static_cast<std::size_t>(i)];
        const int antes = cedido;
        cedido += c.ancho - c.minimo;
        const int propia = falta > sobra && sobra >= 0 ? c.falta * sobra / falta : c.falta;
        const int parte = sobra >= 0 ? propia + resto * (i + 1) / cuantas - resto * i / cuantas
                                     : sobra * cedido / cede - sobra * antes / cede;
        anchos.push_back(c.ancho + parte);
    }
    return anchos;
}

}  // namespace cuencalia
