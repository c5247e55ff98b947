#include "modules/precipitacion/frmIsoyeta.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "modules/precipitacion/lluviamedia.h"

namespace cuencalia {

namespace {

constexpr FormatoSerie kArchivoIA{.valores = 2,
                                  .rotuloCrear = "Pares valores I, A",
                                  .rotuloAccesar = "Pares valores I, A",
                                  .extension = "*.IA",
                                  .registrosDeCola = 1};

}  // namespace

frmIsoyeta::frmIsoyeta(Aplicacion& app)
    : MarcoLluviaMedia(app, "frmIsoyeta",
                       {.metodo = "de las isoyetas",
                        .datos = {.encabezados = {"Isoyeta", "Valor de isoyeta (mm)", "Área entre isoyetas"},
                                  .patronEdicion = kPatronEdicionB},
                        .archivo = &kArchivoIA,
                        .marcoResultado = "Resultado método de isoyetas:",
                        .avisoVacio = "Ingresar datos antes de realizar cálculos",
                        .tituloDatos = "Datos Isoyeta, Área:",
                        .encabezadosReporte = {" Isoyeta", " Valor de isoyeta (mm)", " Área entre isoyetas"},
                        .tituloResultado = "Resultado del método de isoyetas:"}) {
    LeerEn({&iso, &area});
    DeclararEntradas({&txtUltimaIsoyeta});
    lblUltimaIsoyeta.Nombra(txtUltimaIsoyeta);
    AlPulsarEnter(txtUltimaIsoyeta, [this] { bCalcular.SetFocus(); });
}

void frmIsoyeta::CargarMatrices() {
    ModuloCalculo::CargarMatrices();
    iso(n + 1) = Val(txtUltimaIsoyeta.Text());
    LluviaDeBandas(iso, n, Pm);
}

void frmIsoyeta::LeerCola(const std::vector<Registro>& registros) {
    txtUltimaIsoyeta.Text = Format(registros[0][0], kPatronEdicionA);
}

bool frmIsoyeta::Calcular() {
    return Exigir(txtUltimaIsoyeta,
                  {"Ingresar un valor adecuado para la última isoyeta", kIconoInformacion, "Mensaje de error"}) &&
           MarcoLluviaMedia::Calcular();
}

Double frmIsoyeta::Promediar() { return PromedioPorAreas(Pm, area, n); }

std::string frmIsoyeta::Consejo(const ErrorEjecucion& error) const {
    const int filas = iso.UBound() - 1;
    return error.Numero() == kSubindiceFuera && datos.Filas() > filas
               ? "El módulo admite hasta " + std::to_string(filas) + " áreas entre isoyetas"
               : MarcoLluviaMedia::Consejo(error);
}

Disposicion frmIsoyeta::Cuerpo() {
    Disposicion cuadricula =
        Fila({Disposicion(datos.grdt).Estira(1), Columna({lblSobreInicial, lblIsoyetaInicial, Espacio()})});
    Disposicion zona =
        Columna({datos.lbl1, std::move(cuadricula).Estira(1), Fila({datos.Label2, Disposicion(datos.Label1).Estira(1)}),
                 Fila({lblUltimaIsoyeta, txtUltimaIsoyeta, lblIsoyetaFinal}), datos.txtt});
    return Fila({std::move(zona), Contenido().Estira(1)});
}

}  // namespace cuencalia
