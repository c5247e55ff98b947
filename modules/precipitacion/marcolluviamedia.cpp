#include "modules/precipitacion/marcolluviamedia.h"

#include <utility>

#include "frame/base/textos.h"

namespace cuencalia {

MarcoLluviaMedia::MarcoLluviaMedia(Aplicacion& app, std::string nombre, DescripcionLluviaMedia descripcion)
    : ModuloCalculo(app, std::move(nombre),
                    {.titulo = "Cálculo de la precipitación promedio por el método " + descripcion.metodo,
                     .datos = descripcion.datos,
                     .archivo = descripcion.archivo}),
      fraResultado(*this, "fraResultado", descripcion.marcoResultado),
      descripcion_(std::move(descripcion)) {
    DeclararBotones({});
    DeclararResultados({&txtPprom});
    lblPprom.Nombra(txtPprom);
}

bool MarcoLluviaMedia::Calcular() {
    CargarMatrices();
    if (n == 0) {
        App().MsgBox({descripcion_.avisoVacio, kIconoInformacion, "Mensaje de error"});
        datos.grdt.SetFocus();
        return false;
    }
    txtPprom.Text = Format(Promediar(), "#0.0##");
    return true;
}

void MarcoLluviaMedia::GenerarReporte(Reporte& reporte) {
    constexpr int kReglaResultado = 60;
    std::string encabezado;
    for (const std::string& texto : descripcion_.encabezadosReporte) {
        encabezado += (encabezado.empty() ? "" : "\t") + texto;
    }
    reporte.EscribirTabla(
        {.titulo = descripcion_.tituloDatos,
         .regla = 65,
         .encabezado = encabezado,
         .celda = [](const std::string& texto, int, int columna) { return (columna > 0 ? "\t" : "") + texto; }},
        datos.grdt, datos.Filas());
    reporte.Titulo(descripcion_.tituloResultado);
    reporte.LineaDeGuiones(kReglaResultado);
    reporte.ReporteLinea(" Precipitación promedio =  " + txtPprom.Text() + " mm");
    reporte.LineaDeGuiones(kReglaResultado);
    reporte.ReporteBlanco();
}

Disposicion MarcoLluviaMedia::Contenido() {
    return Columna({Grupo(fraResultado, {Fila({lblPprom, txtPprom, lblUnidad, Espacio()})}), Espacio()});
}

}  // namespace cuencalia
