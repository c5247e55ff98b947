#include "modules/caudales/marcomaximas.h"

#include <utility>

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoQ{.rotuloCrear = "Valores de Q",
                                 .rotuloAccesar = "Valores Q",
                                 .extension = "*.Q",
                                 .registrosDeCola = 1,
                                 .conHoja = false};
constexpr const char* kPatron = "#####0.0###";

DescripcionTabla Resultados(const std::vector<ColumnaTabla>& parametros) {
    DescripcionTabla tabla{.filas = 2, .columnas = {{"N° años disponibles", 1650}}};
    tabla.columnas.insert(tabla.columnas.end(), parametros.begin(), parametros.end());
    tabla.columnas.insert(tabla.columnas.end(),
                          {{"Qmáx", 1050}, {"DeltaQ", 950}, {"IntervaloQ", 1650}, {"Qdiseño", 1050}});
    return tabla;
}

std::string Extremo(Double Q) { return CStr(Fix(Q)) + Trim(Format(Q - Fix(Q), "#.0#")); }

}  // namespace

std::string TextoIntervalo(Double Qinf, Double Qsup) { return Extremo(Qinf) + " - " + Extremo(Qsup); }

MarcoMaximas::MarcoMaximas(Aplicacion& app, std::string nombre, DescripcionMaximas descripcion)
    : ModuloCalculo(app, std::move(nombre),
                    {.titulo = descripcion.titulo,
                     .datos = {.encabezados = {"N°", "X"},
                               .etiqueta = [this](int fila) { return Str(Double(annoInicio) + fila - 1); }},
                     .archivo = &kArchivoQ}),
      grddis(*this, "grddis", "Resultados", Resultados(descripcion.parametros)),
      descripcion_(std::move(descripcion)) {
    LeerEn({&x});
    DeclararBotones({});
    DeclararTablas({&grddis});
    DeclararInicio({&lblIntervalo});
    DeclararEntradas({&txtTdato});
    AvisarFallos(kDatosInadecuados);
    SoloNumero(txtanno, Cifras::Enteras);
    SoloNumero(txtTdato);
    EncadenarEnter({&txtanno}, datos.grdt);
    EncadenarEnter({&txtTdato}, bCalcular);
    txtanno.LostFocus.Conectar([this] { CargarannoInicio(); });
    lblanno.Nombra(txtanno);
    lblTdato.Nombra(txtTdato);
}

void MarcoMaximas::CargarannoInicio() {
    try {
        annoInicio = CInt(Val(txtanno.Text()));
    } catch (const ErrorEjecucion&) {
        StatusBar1.PonerPanel(kPanelAvisos, "El año de inicio no puede pasar de 32767");
        throw;
    }
    datos.RenumerarGrid();
}

void MarcoMaximas::LeerCola(const std::vector<Registro>& registros) {
    annoInicio = CInt(registros[0][0]);
    txtanno.Text = CStr(annoInicio);
    datos.RenumerarGrid();
}

bool MarcoMaximas::Calcular() {
    if (!Exigir(txtTdato, {"Ingresar el valor correspondiente del período de retorno", kIconoInformacion,
                           "Error por no ingresar T"})) {
        return false;
    }
    CargarMatrices();
    const Estimacion estimacion = Estimar(Val(txtTdato.Text()));
    const Double Qinf = estimacion.Qmax - estimacion.DeltaQ, Qsup = estimacion.Qmax + estimacion.DeltaQ;
    std::vector<std::string> fila{CStr(n)};
    for (const Double valor : estimacion.parametros) {
        fila.push_back(Format(valor, kPatron));
    }
    const std::string intervalo = TextoIntervalo(Qinf, Qsup);
    fila.insert(fila.end(), {Format(estimacion.Qmax, kPatron), Format(estimacion.DeltaQ, kPatron), intervalo,
                             Format(Qsup, kPatron)});
    grddis.PonerFila(1, fila);
    // Ends whose parts do not read as a number are told as numbers beside the table.
    const std::string desde = Format(Qinf, "0.0#"), hasta = Format(Qsup, "0.0#");
    lblIntervalo.Caption =
        intervalo == desde + " - " + hasta ? "" : "El intervalo va de " + desde + " a " + hasta + " m3/s";
    return true;
}

std::string MarcoMaximas::Consejo(const ErrorEjecucion& error) const {
    if (datos.Filas() < descripcion_.annosMinimos) {
        return "Se requieren por lo menos " + std::to_string(descripcion_.annosMinimos) + " años";
    }
    if (Val(txtTdato.Text()) <= descripcion_.TMinimo) {
        return "El período de retorno debe ser mayor que " + std::to_string(descripcion_.TMinimo);
    }
    return ModuloCalculo::Consejo(error);
}

void MarcoMaximas::GenerarReporte(Reporte& reporte) {
    constexpr int kReglaResultados = 100;
    reporte.EscribirTabla(TablaDeSerie("Serie de datos Q:", {" Año", " Q"}, 40), datos.grdt, datos.Filas());
    reporte.Titulo("Resultados de los cálculos:");
    reporte.LineaDeGuiones(kReglaResultados);
    int columna = 0;
    for (const RenglonMaximas& renglon : descripcion_.reporte) {
        reporte.ReporteLinea(Space(renglon.blancos) + renglon.rotulo + grddis.TextMatrix(1, columna++));
    }
    reporte.ReporteLinea(descripcion_.conclusion + txtTdato.Text() +
                         " años es: " + grddis.TextMatrix(1, grddis.Cols() - 1) + " m3/s");
    reporte.LineaDeGuiones(kReglaResultados);
    reporte.ReporteBlanco();
}

std::vector<Disposicion> MarcoMaximas::ZonaResultados() { return {bReporte, archivos.bCrear, archivos.bAccesar}; }

Disposicion MarcoMaximas::Cuerpo() {
    Disposicion contenido = Columna({Fila({lblTdato, txtTdato, lblUnidadT, Espacio()}), grddis, lblIntervalo});
    for (Disposicion& detalle : Detalles()) {
        contenido.hijos.push_back(std::move(detalle));
    }
    contenido.hijos.push_back(Espacio(0));
    return Fila(
        {Columna({Fila({lblanno, txtanno, Espacio()}), datos.Zona().Estira(1)}), std::move(contenido).Estira(1)});
}

}  // namespace cuencalia
