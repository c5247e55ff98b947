#include "modules/regresion/marcoregresimple.h"

#include <utility>

#include "frame/base/textos.h"
#include "modules/regresion/regresionlineal.h"
#include "modules/regresion/textoecuacion.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoXY{
    .valores = 2, .rotuloCrear = "Pares valores X,Y", .rotuloAccesar = "Pares valores X,Y", .extension = "*.XY"};

}  // namespace

DescripcionModulo ModuloDePares(std::string titulo) {
    return {.titulo = std::move(titulo),
            .datos = {.encabezados = {"Par", "X", "Y"},
                      .patronEdicion = kPatronEdicionB,
                      .titulo = "Ingreso de los pares de datos:"},
            .archivo = &kArchivoXY};
}

MarcoRegreSimple::MarcoRegreSimple(Aplicacion& app, std::string nombre, const std::string& titulo, int ecuaciones,
                                   std::vector<std::string> rotulos)
    : ModuloCalculo(app, std::move(nombre), ModuloDePares(titulo)),
      grdecua(*this, "grdecua", ecuaciones == 1 ? "Ecuación de ajuste" : "Ecuaciones de ajuste",
              {.filas = ecuaciones + 1,
               .columnas = {{"Correlación", 1050}, {"Ecuación", 3000}, {"R", 1050}, {"R2", 1050}},
               .rotulos = std::move(rotulos)}) {
    LeerEn({&x, &y});
    DeclararTablas({&grdecua});
    DeclararGraficos({&Graph1});
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    Graph1.NombrarEjes("X", "Y");
}

bool MarcoRegreSimple::Calcular() {
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox("Para el ajuste a la ecuación se requiere por lo menos dos puntos", kIconoError, "Error");
        datos.MenorQue2Celdas();
    } else {
        Ajustar();
    }
    // The refused fit still sets `calculado`: the user can go on evaluating the equation of the last fit, or one with
    // coefficients 0 if there was none.
    calculado = true;
    return n > 1;
}

std::vector<std::string> MarcoRegreSimple::AjustarLinea(const char* patron) {
    const RectaRegresion recta = AjustarRecta(x, y, n);
    a = recta.a;
    b = recta.b;
    return FilaDeCurva("Lineal", TextoRecta(a, b, patron), CoeficienteCorrelacion(recta));
}

std::vector<std::string> MarcoRegreSimple::FilaDeCurva(const char* nombre, const std::string& ecuacion, Double R) {
    constexpr const char* kPatronR = "#0.0####";
    return {nombre, ecuacion, Format(R, kPatronR), Format(R * R, kPatronR)};
}

void MarcoRegreSimple::bGraficar_Click() {
    CargarMatrices();
    if (n <= 1) {
        App().MsgBox(kGraficarSinPuntos);
        datos.MenorQue2Celdas();
        return;
    }
    SerieGrafico pares;
    for (int i = 1; i <= n; ++i) {
        pares.x.push_back(x(i));
        pares.y.push_back(y(i));
    }
    GraficoDibujar(Graph1, {.estilo = kSimbolosSueltos, .autoInc = 0}, {pares});
}

void MarcoRegreSimple::GenerarReporte(Reporte& reporte) {
    reporte.EscribirTabla(TablaDeSerie("Pares de datos X,Y:", {" Par", " X", " Y"}, 75), datos.grdt, datos.Filas());
    reporte.EscribirTabla({.titulo = "Ecuaciones de ajuste de pares de datos:",
                           .regla = 109,
                           .encabezado = UnirEncabezados({" Tipo    ", " Ecuación", " R       ", " R^2     "}, "\t\t"),
                           .celda = CeldaDeEcuacion},
                          grdecua, grdecua.Rows() - 1);
    reporte.Titulo("Cálculo de Y para un valor de X:");
}

}  // namespace cuencalia
