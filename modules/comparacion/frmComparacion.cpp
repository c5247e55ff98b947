#include "modules/comparacion/frmComparacion.h"

#include <algorithm>

#include "frame/base/textos.h"
#include "frame/modulo/entregarlibro.h"
#include "modules/comparacion/textos.h"

namespace cuencalia {

frmComparacion::frmComparacion(Aplicacion& app) : MarcoModulo(app, "frmComparacion", "Comparación de ajustes") {
    SSTab1.NombreAccesible = "Partes de la comparación";
    DeclararBotones({}, {{&bCrearExcel, "crear_excel"}});
    diseno.alRemuestrear = [this] {
        Ordenar();
        papel.Dibujar();
    };
    candidatos.cmbOrden.Change.Conectar([this] { Ordenar(); });
    diseno.grdDiseno.PulsarEncabezado.Conectar([this](int columna) { candidatos.OrdenarPorCaudal(columna); });
    diseno.bRemuestrear.Click.Conectar([this] { bRemuestrear_Click(); });
    papel.cmbPosicion.Change.Conectar([this] {
        if (calculado) {
            EfectuarCalculo();
        }
    });
    bCrearExcel.Click.Conectar([this] { bCrearExcel_Click(); });
    bCopiar.Click.Conectar([this] { bCopiar_Click(); });
}

void frmComparacion::RecibirSerie(const std::string& origen, std::vector<double> suya) {
    LimpiarResultados();
    comparacion_.origen = origen;
    comparacion_.serie = std::move(suya);
    EfectuarCalculo();
}

bool frmComparacion::Calcular() {
    if (comparacion_.serie.empty()) {
        App().MsgBox("No hay serie: abrir la comparación desde la ventana de un ajuste con datos", kIconoInformacion,
                     "Comparación de ajustes");
        return false;
    }
    diseno.Limpiar();
    comparacion_.ordenada = comparacion_.serie;
    std::sort(comparacion_.ordenada.begin(), comparacion_.ordenada.end());
    comparacion_.comparados = Comparar(comparacion_.ordenada, papel.Posicion());
    serie.Mostrar(comparacion_);
    calculado = true;  // the order asks for it
    Ordenar();
    papel.OfrecerAjustes();
    momentos.Dibujar(comparacion_);
    return true;
}

void frmComparacion::Ordenar() {
    if (!calculado) {
        return;
    }
    candidatos.Ordenar(comparacion_);
    candidatos.Mostrar(comparacion_);
    diseno.Mostrar();
}

void frmComparacion::bRemuestrear_Click() {
    if (ExigirCalculo({"Efectuar cálculos antes de remuestrear", kIconoError, "Mensaje de Error"})) {
        diseno.Remuestrear(papel.Posicion().a);
    }
}

std::vector<Tabla*> frmComparacion::Tablas() {
    return {&serie.grdSerie, &serie.grdPruebas, &candidatos.grdCandidatos, &diseno.grdDiseno};
}

void frmComparacion::bCrearExcel_Click() {
    if (!ExigirCalculo({"Efectuar cálculos antes de crear la hoja", kIconoError, "Mensaje de Error"})) {
        return;
    }
    // Numbers go out as numbers, for the spreadsheet to calculate with.
    const auto celda = [](const std::string& texto) -> ValorCelda {
        return EsNumero(texto) ? ValorCelda(Val(texto)) : ValorCelda(texto);
    };
    Hoja hoja;
    int fila = 0;
    for (const Tabla* tabla : Tablas()) {
        for (int f = 0; f < tabla->Rows(); ++f) {
            ++fila;
            for (int c = 0; c < tabla->Cols(); ++c) {
                if (const std::string& texto = tabla->TextMatrix(f, c); !texto.empty()) {
                    hoja.Poner(fila, c + 1, celda(texto));
                }
            }
        }
        ++fila;
    }
    EntregarLibro(App(), hoja, "Las tablas se guardaron en");
}

void frmComparacion::bCopiar_Click() {
    std::string texto;
    for (const Tabla* tabla : Tablas()) {
        texto += tabla->TextoCompleto(true) + "\n";
    }
    App().Sistema().PonerEnPortapapeles(texto);
    StatusBar1.PonerPanel(kPanelAvisos, "Las tablas están en el portapapeles");
}

void frmComparacion::GenerarReporte(Reporte& reporte) {
    serie.Reportar(reporte);
    candidatos.Reportar(reporte);
    diseno.Reportar(reporte);
}

Disposicion frmComparacion::Cuerpo() {
    return Fichas(SSTab1, {serie.Zona(), candidatos.Zona({&bCopiar, &bCrearExcel}), diseno.Zona(), papel.Zona(),
                           momentos.Zona()});
}

}  // namespace cuencalia
