#include "modules/comparacion/fichaserie.h"

#include "frame/base/textos.h"
#include "modules/comparacion/pruebasserie.h"
#include "modules/comparacion/textos.h"

namespace cuencalia {

namespace {

constexpr const char* kSinSerie = "Serie:";

}  // namespace

FichaSerie::FichaSerie(MarcoModulo& modulo, Comparacion& comparacion)
    : lblSerie(modulo, "lblSerie", kSinSerie, Papel::Nota),
      grdSerie(modulo, "grdSerie", "Serie", {.filas = 2, .columnas = {{"N°", 700}, {"X", 1200}, {"Ordenada", 1200}}}),
      grdPruebas(modulo, "grdPruebas", "Pruebas de la serie",
                 {.filas = 6, .columnas = {{"Prueba", 2800}, {"Estadístico", 1200}, {"p", 900}, {"Resultado", 6500}}}) {
    modulo.DeclararTablas({&grdSerie, &grdPruebas});
    modulo.DeclararInicio({&lblSerie});
    modulo.DeclararInicio(comparacion);
}

void FichaSerie::Mostrar(const Comparacion& c) {
    lblSerie.Caption = "Serie de " + std::to_string(c.serie.size()) + " datos de la ventana «" + c.origen + "»";
    grdSerie.Iniciar(static_cast<int>(c.serie.size()) + 1);
    for (std::size_t i = 0; i < c.serie.size(); ++i) {
        const int fila = static_cast<int>(i) + 1;
        grdSerie.PonerFila(fila, {Str(fila), Numero(c.serie[i], "0.0###"), Numero(c.ordenada[i], "0.0###")});
    }
    int fila = 0;
    for (const PruebaSerie& p : ProbarSerie(c.serie)) {
        grdPruebas.PonerFila(++fila, {p.nombre, Numero(p.estadistico, "0.0000"), Numero(p.p, "0.0000"), p.sentencia});
    }
}

void FichaSerie::Reportar(Reporte& reporte) {
    reporte.ReporteLinea(lblSerie.Caption());
    reporte.ReporteBlanco();
    ReportarFilas(reporte, "Pruebas de la serie:", Columnas(grdPruebas, 0, grdPruebas.Cols()));
}

Disposicion FichaSerie::Zona() {
    return Columna(
        {lblSerie, Fila({Columna({Disposicion(grdSerie).Estira(1)}), Disposicion(grdPruebas).Estira(1)}).Estira(1)});
}

}  // namespace cuencalia
