#include "modules/evapotranspiracion/frmThornthwaite.h"

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoTM{.rotuloCrear = "Temperaturas mensuales TM",
                                  .rotuloAccesar = "Temperaturas mensuales TM",
                                  .extension = "*.TM",
                                  .patronArchivo = "0.0#"};

}  // namespace

frmThornthwaite::frmThornthwaite(Aplicacion& app)
    : ModuloMensual(app, "frmThornthwaite",
                    {.modulo = {.titulo = "Cálculo de la evapotranspiración potencial por el método de Thornthwaite",
                                .datos = {.encabezados = {"Mes", "Temperatura (ºC)"}, .etiqueta = MesCorto},
                                .archivo = &kArchivoTM},
                     .resultados = {.filas = 13,
                                    .columnas = {{"Mes", 700},
                                                 {"T", 900},
                                                 {"Indice i", 900},
                                                 {"ETo (mm)", 900},
                                                 {"Factor f", 900},
                                                 {"ETr mensual", 900},
                                                 {"ETr diaria", 900}},
                                    .columnasFijas = 1},
                     .latitudes = kTablaF,
                     .faltanMeses = "Ingresar las temperaturas promedios mensuales, para los 12 meses",
                     .ejeY = "ETr diaria (mm)"}) {
    LeerEn({&T});
    DeclararCorrecciones({&factorF});
    DeclararBotones({{&bGraficar, "graficar"}});
    DeclararResultados({&txti, &txta});
    lbli.Nombra(txti);
    lbla.Nombra(txta);
}

bool frmThornthwaite::Calcular() {
    ElegirLatitud();
    CargarMatrices();
    anual = CalcularThornthwaite(T, factorF.Meses());
    txti.Text = Format(anual.I, "0.0###");
    txta.Text = Format(anual.a, "0.0####");
    for (int m = 1; m <= 12; ++m) {
        grddis.PonerFila(
            m, {nombreMes(m), Format(T(m), "0.0#"), Format(anual.iMes(m), "0.0##"), Format(anual.ETo(m), "0.0##"),
                Format(factorF(m), "0.0#"), Format(anual.ETrMes(m), "0.0##"), Format(anual.ETrDia(m), "0.0#")});
    }
    calculado = true;  // also when these months were refused, with those read before
    return DatosLegibles();
}

void frmThornthwaite::GenerarReporte(Reporte& reporte) {
    reporte.EscribirTabla(TablaDeTemperaturas(), datos.grdt, datos.Filas());
    reporte.Titulo("Resultado del cálculo de la evapotranspiración potencial, método de Thornthwaite:");
    reporte.ReporteLinea(" Indice térmico anual (I) = " + txti.Text());
    const std::vector<std::string> encabezados{"Mes  ",
                                               "          Temperatura   ",
                                               "          Indice   ",
                                               "          ETo   ",
                                               "          Factor f ",
                                               "          ETr mensual   ",
                                               "    ETr diaria (mm) "};
    reporte.EscribirTabla({.titulo = " Exponente (a) = " + txta.Text(),
                           .regla = kReglaResultados,
                           .encabezado = UnirEncabezados(encabezados, ""),
                           .celda = CeldaSeguidaDe("\t"),
                           .paradas = ParadasBajo(encabezados)},
                          grddis, 12);
}

Disposicion frmThornthwaite::Contenido() {
    return Columna(
        {Fila({Latitud(), Espacio(), lbli, txti, lbla, txta}), Disposicion(grddis).Estira(1), Grafico().Estira(1)});
}

}  // namespace cuencalia
