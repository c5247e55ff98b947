#include "modules/evapotranspiracion/frmBalanceHidro.h"

#include "frame/base/textos.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoTP{.valores = 2,
                                  .rotuloCrear = "Temperaturas y precipitación TP",
                                  .rotuloAccesar = "Temperaturas y precipitación TP",
                                  .extension = "*.TP"};
constexpr int kFilas = 7;  // of results; the table has room for more
constexpr int kColumnaAno = 13;
constexpr int kReglaDatos = 65, kReglaBalance = 165;  // dashes

DescripcionTabla TablaDelBalance() {
    DescripcionTabla tabla{.filas = 15,
                           .columnas = {{"", 900}},
                           .columnasFijas = 1,
                           .rotulos = {"T (ºC)", "i", "ETosc(mm)", "facCorrec", "ETo (mm)", "P (mm)", "P-e (mm)"}};
    for (int m = 1; m <= 12; ++m) {
        tabla.columnas.push_back({MesCorto(m), 800});
    }
    tabla.columnas.push_back({"Año", 700});
    return tabla;
}

/// The first month with more rain than evapotranspiration. Without one it is December, as if that were the first.
int MesDeInicio(const DoceSingle& PmenosE) {
    int mes = 1;
    while (mes < 12 && PmenosE(mes) <= 0) {
        ++mes;
    }
    return mes;
}

}  // namespace

frmBalanceHidro::frmBalanceHidro(Aplicacion& app)
    : ModuloMensual(
          app, "frmBalanceHidro",
          {.modulo = {.titulo = "Cálculo del balance hídrico por el método de Thornthwaite",
                      .datos = {.encabezados = {"Mes", "Temperatura (ºC)", "Precipitación (mm)"},
                                .etiqueta = MesCorto,
                                .titulo = "Ingreso de datos de temperaturas y precipitación:"},
                      .archivo = &kArchivoTP},
           .resultados = TablaDelBalance(),
           .latitudes = kTablaF,
           .faltanMeses = "Ingresar las temperaturas y precipitaciones promedios mensuales, para los 12 meses",
           .ejeY = "mm",
           .fondo = kFondoGris}) {
    LeerEn({&T, &P});
    DeclararCorrecciones({&factorF});
    DeclararBotones({{&bGraficar, "graficar"}});
    DeclararResultados({&txta, &txtMesIni});
    DeclararInicio(T);
    DeclararInicio(P);
    lbla.Nombra(txta);
    lblMesIni.Nombra(txtMesIni);
}

bool frmBalanceHidro::Calcular() {
    ElegirLatitud();
    CargarMatrices();
    anual = CalcularThornthwaite(T, factorF.Meses());
    for (int m = 1; m <= 12; ++m) {
        PmenosE(m) = CSng(P(m) - anual.ETrMes(m));
    }
    txtMesIni.Text = NombreMes(MesDeInicio(PmenosE));
    txta.Text = Format(anual.a, "0.0####");
    grddis.PonerTextMatrix(2, kColumnaAno, Format(anual.I, "0.0#"));
    for (int m = 1; m <= 12; ++m) {
        grddis.PonerColumna(m, {Format(T(m), "0.0#"), Format(anual.iMes(m), "0.0##"), Format(anual.ETo(m), "0.0##"),
                                Format(factorF(m), "0.0#"), Format(anual.ETrMes(m), "0.0##"), Format(P(m), "0.0#"),
                                Format(PmenosE(m), "0.0#")});
    }
    calculado = true;  // also when these months were refused, with those read before
    return DatosLegibles();
}

std::vector<SerieGrafico> frmBalanceHidro::Curvas() const {
    return {CurvaMensual(anual.ETrMes, "ETo"), CurvaMensual(P, "P")};
}

void frmBalanceHidro::GenerarReporte(Reporte& reporte) {
    reporte.EscribirTabla(TablaDeMeses("Serie de datos de temperaturas y precipitaciones mensuales",
                                       {" Mes", "       Temperatura", "Precipitación"}, kReglaDatos),
                          datos.grdt, datos.Filas());
    reporte.Titulo("Resultado del cálculo del balance hídrico, método de Thornthwaite:");
    reporte.ReporteLinea(" Exponente (a) = " + txta.Text());
    std::vector<std::string> meses{Space(13)};
    for (int m = 1; m <= 12; ++m) {
        meses.push_back(Space(7) + MesCorto(m));
    }
    reporte.EscribirTabla({.titulo = " Indice de calor anual (I) = " + grddis.TextMatrix(2, kColumnaAno),
                           .regla = kReglaBalance,
                           .encabezado = UnirEncabezados(meses, ""),
                           .celda = CeldaSeguidaDe("\t"),
                           .columnas = kColumnaAno,
                           .paradas = ParadasBajo(meses)},
                          grddis, kFilas);
}

Disposicion frmBalanceHidro::Contenido() {
    return Columna({Fila({Latitud(), Espacio(), lbla, txta, lblMesIni, txtMesIni}), Disposicion(grddis).Estira(2),
                    Grafico().Estira(3)});
}

}  // namespace cuencalia
