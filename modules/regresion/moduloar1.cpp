#include "modules/regresion/moduloar1.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "frame/modulo/entregarlibro.h"

namespace cuencalia {

namespace {

constexpr const char* kPatronMedia = "0.##00";
constexpr int kMenosGenerados = 4;   // fewer have no kurtosis
constexpr int kMasGenerados = 2950;  // with the warm-up 3000, for which there is room

void ReportarCampos(Reporte& reporte, const char* titulo, int regla, const Campos& campos) {
    reporte.Titulo(titulo);
    reporte.LineaDeGuiones(regla);
    campos.Reportar(reporte);
    reporte.ReporteBlanco();
}

template <typename Serie>
SerieGrafico EnOrdenDeAnos(const Serie& serie, int n) {
    SerieGrafico puntos;
    for (int i = 1; i <= n; ++i) {
        puntos.x.push_back(i);
        puntos.y.push_back(serie(i));
    }
    return puntos;
}

}  // namespace

CamposParametros::CamposParametros(Formulario& forma, const std::array<const char*, 6>& nombres,
                                   const char* rotuloDesviacion)
    : CamposDe(
          forma,
          {{{nombres[0], "Media:", "", "Media =  "}, &ParametrosEstadisticos::media, kPatronMedia},
           {{nombres[1], "Varianza:", "", "Varianza = "}, &ParametrosEstadisticos::varianza, "0.0###"},
           {{nombres[2], rotuloDesviacion, "", "Desviación estandar =  "}, &ParametrosEstadisticos::desviacion},
           {{nombres[3], "Coeficiente Variación:", "", "Coeficiente de variación =  "}, &ParametrosEstadisticos::Cv},
           {{nombres[4], "Sesgo:", "", "Sesgo =  "}, &ParametrosEstadisticos::Cs},
           {{nombres[5], "Curtosis:", "", "Curtosis =  "}, &ParametrosEstadisticos::Ck}}) {}

void CamposParametros::Mostrar(const std::string& textoMedia, const ParametrosEstadisticos& p) {
    CamposDe::Mostrar(p, "0.##00");
    Caja(0).Text = textoMedia;
}

ModuloAR1::ModuloAR1(Aplicacion& app, std::string nombre, const std::string& titulo,
                     const TransformacionAR1& transformacion)
    : ModuloCalculo(
          app, std::move(nombre),
          {.titulo = titulo, .datos = {.encabezados = {"N°", "X"}, .anchos = {700, 1600}}, .archivo = &kArchivoX}),
      transformacion_(transformacion) {
    LeerEn({&X});
    datos.lbl1.Visible = false;  // the frame around the grid says the same
    DeclararBotones({{&bGraficar, "graficar"}}, {{&bCrearExcel, "crear_excel"}});
    DeclararTablas({&grdGenerada});
    DeclararGraficos({&Graph1, &Graph2});
    for (const auto& cajas : {historica.Cajas(), modelo.Cajas(), generada.Cajas()}) {
        DeclararResultados(cajas);
    }
    DeclararEntradas({&txtNgen});
    Label3.Nombra(txtNgen);
    SoloNumero(txtNgen);
    AlPulsarEnter(txtNgen, [this] {
        if (Exigir(txtNgen,
                   {"Ingresar el número de datos a generar", kIconoInformacion, "Error de ingreso de datos"})) {
            bCalcular.SetFocus();
        }
    });
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    bCrearExcel.Click.Conectar([this] { bCrearExcel_Click(); });
    Graph1.CompartirEscala(Graph2);
    Graph1.NombrarEjes("Año", "X");
    Graph2.NombrarEjes("Año", "X");
    SSTab1.NombreAccesible = "Series y gráficos";
}

bool ModuloAR1::LeerSerie() {
    n = datos.Filas();
    for (int i = 1; i <= n; ++i) {
        const Single valor = CSng(Val(datos.grdt.TextMatrix(i, 1)));
        if (valor <= 0) {
            Avisar("El valor de la fila " + std::to_string(i) + " no es mayor que 0");
            App().MsgBox("Revisar que los valores ingresados deben ser mayores que 0");
            return false;
        }
        X(i) = valor;
    }
    return true;
}

bool ModuloAR1::Calcular() {
    Avisar("");
    if (!Exigir(txtNgen, {"Para generar la serie sintética debe ingresar el número de años a generar",
                          kIconoInformacion, "Error de datos faltantes"})) {
        return false;
    }
    const bool completa = LeerSerie();
    if (n <= 3) {
        App().MsgBox("Para el cálculo de los parámetros se requieren por lo menos cuatro datos", kIconoError,
                     "Error en número de datos");
        datos.MenorQue4Celdas();
        return false;
    }
    if (!completa) {
        return false;
    }
    const ParametrosEstadisticos muestrales = ParametrosMuestrales(X, n);
    historica.Mostrar(Format(CSng(muestrales.media), kPatronMedia), muestrales);
    const ModeloAR1 ajustado = transformacion_.ajustar(X, n);
    modelo.Mostrar(ajustado, "0.###0");
    Generar(ajustado, CInt(Val(txtNgen.Text())));
    for (int i = 1; i <= Ngen; ++i) {
        grdGenerada.PonerTextMatrix(i, 0, Str(i));
        grdGenerada.PonerTextMatrix(i, 1, Format(Xgen(i), "0.###0"));
    }
    const ParametrosEstadisticos deGenerada = ParametrosMuestrales(Xgen, Ngen);
    generada.Mostrar(Format(deGenerada.media, kPatronMedia), deGenerada);
    if (!grdGenerada.TextMatrix(Ngen + 1, 0).empty()) {
        Avisar("Se generaron " + std::to_string(Ngen) + " valores: las filas que siguen son de una serie anterior");
    }
    return true;
}

std::string ModuloAR1::Consejo(const ErrorEjecucion& error) const {
    const Double pedidos = Val(txtNgen.Text());
    const bool caben = pedidos >= kMenosGenerados && pedidos <= kMasGenerados;
    return caben ? ModuloCalculo::Consejo(error)
                 : "Se generan de " + std::to_string(kMenosGenerados) + " a " + std::to_string(kMasGenerados) +
                       " valores";
}

void ModuloAR1::Sembrar() {
    // The clock moves on by steps, of 1/128 s in the afternoon. Two calculations within one step would give the same
    // series: the second goes on where the first ended.
    const Single ahora = CSng(App().Sistema().Reloj());
    if (semilla_ != ahora) {
        Randomize(ahora);
        semilla_ = ahora;
    }
}

void ModuloAR1::Generar(const ModeloAR1& ajustado, Integer cuantos) {
    const int total = (cuantos + kCalentamiento).valor();
    Arreglo<Double, 1, 3000> Z, Xtotal;
    Sembrar();
    GenerarNormalEstandar(Z, total);
    GenerarAR1(ajustado, Z, total, Xtotal);
    for (int i = 1; i <= cuantos.valor(); ++i) {
        Xtotal(i) = transformacion_.volver(Xtotal(i + kCalentamiento.valor()));
    }
    Xgen = Xtotal;
    Ngen = cuantos.valor();
}

void ModuloAR1::bGraficar_Click() {
    Graph1.LimpiarGrafico();
    Graph2.LimpiarGrafico();
    if (!ExigirCalculo()) {
        return;
    }
    LeerSerie();
    SSTab1.Tab = 1;
    GraficoDibujar(Graph1, {.conTrama = true}, {EnOrdenDeAnos(X, n)});
    GraficoDibujar(Graph2, {.conTrama = true}, {EnOrdenDeAnos(Xgen, Ngen)});
}

void ModuloAR1::bCrearExcel_Click() {
    Hoja hoja;
    for (int i = 1; i <= Ngen; ++i) {
        hoja.Poner(i, 1, grdGenerada.TextMatrix(i, 1));
    }
    EntregarLibro(App(), hoja, "La serie generada se guardó en");
}

void ModuloAR1::GenerarReporte(Reporte& reporte) {
    constexpr int kRegla = 45;
    const std::vector<std::string> encabezados{" N°", " X"};
    reporte.EscribirTabla(TablaDeSerie("Serie de datos históricos X:", encabezados, kRegla), datos.grdt, datos.Filas());
    ReportarCampos(reporte, "Parámetros estadísticos muestrales:", 55, historica);
    ReportarCampos(reporte, "Parámetros del modelo autorregresivo AR(1):", 65, modelo);
    Reporte::Tabla generados = TablaDeSerie("Serie de datos generados:", encabezados, kRegla);
    generados.reglaFinal = 50;
    reporte.EscribirTabla(generados, grdGenerada, Ngen);
    ReportarCampos(reporte, "Parámetros estadísticos serie generada:", 60, generada);
}

Disposicion ModuloAR1::Cuerpo() {
    Disposicion ingreso = Grupo(Frame4, {datos.Zona().Estira(1), Label3, txtNgen});
    Disposicion muestra = Columna({Grupo(Frame2, {historica.Tabla(2)}), Grupo(Frame8, {modelo.Tabla(2)}), Espacio()});
    Disposicion sintetica = Columna({Grupo(Frame3, {generada.Tabla(2)}), Grupo(Frame5, {bCrearExcel}), Espacio()});
    Disposicion generacion =
        Grupo(Frame1, {Fila({Columna({Label23, Disposicion(grdGenerada).Estira(1)}), std::move(sintetica)}).Estira(1)});
    return Fichas(SSTab1,
                  {Fila({std::move(ingreso).Estira(1), std::move(muestra), std::move(generacion).Estira(2)}),
                   Columna({lblHistorica, Disposicion(Graph1).Estira(1), lblGenerada, Disposicion(Graph2).Estira(1)})});
}

}  // namespace cuencalia
