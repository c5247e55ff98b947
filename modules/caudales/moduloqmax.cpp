#include "modules/caudales/moduloqmax.h"

#include <utility>

namespace cuencalia {

namespace {

enum Ficha : int { kFichaQ, kFichaC, kFichaI };

}  // namespace

ModuloQmax::ModuloQmax(Aplicacion& app, std::string nombre, const std::string& titulo, const FormulaCaudal& formula,
                       const FuenteIntensidad& fuente)
    : ModuloCalculo(app, std::move(nombre), {.titulo = titulo, .datos = fuente.datos, .archivo = fuente.archivo}),
      fichaQ(*this, formula),
      fichaC(*this, formula.tablas, fichaQ),
      fichaI(fuente.hacerFicha(*this, fichaQ)) {
    const auto columnas = fichaI->Columnas();
    LeerEn({columnas.begin(), columnas.end()});
    DeclararBotones({},
                    {{&fichaC.bAgregar, "tabla"}, {&fichaC.bCponderado, "evaluar"}, {&fichaI->bcalcularI, "evaluar"}});
    DeclararTablas(fichaI->Tablas());
    DeclararEntradas({&fichaI->L.caja, &fichaI->H.caja, &fichaI->T.caja});
    DeclararResultados({&fichaI->tc.caja, &fichaI->Imax.caja});
    fichaI->bcalcularI.Click.Conectar([this] {
        if (fichaI->bcalcularI_Click()) {
            ModuloCalculo::AlCalcular();
        }
    });
    SSTab1.NombreAccesible = "Pasos del cálculo";
    SSTab1.Click.Conectar([this] { SSTab1_Click(); });
}

void ModuloQmax::Form_Load() {
    fichaC.ReiniciarC();
    ModuloCalculo::Form_Load();
    fichaQ.C.caja.SetFocus();
}

void ModuloQmax::SSTab1_Click() {
    switch (SSTab1.Tab) {
        case kFichaQ:
            fichaQ.C.caja.SetFocus();
            break;
        case kFichaC:
            fichaC.area.caja.SetFocus();
            break;
        default:
            fichaI->Entrar();
    }
}

void ModuloQmax::LimpiarModulo() {
    switch (SSTab1.Tab) {
        case kFichaQ:
            fichaQ.Limpiar();
            break;
        case kFichaC:
            fichaC.Limpiar();
            break;
        default:
            datos.IniciarGrid();
            ModuloCalculo::LimpiarResultados();
            fichaI->Limpiar();
    }
}

void ModuloQmax::LimpiarResultados() {
    // A file is loaded into a grid that the user sees.
    SSTab1.Tab = kFichaI;
    fichaI->MostrarDatos();
    ModuloCalculo::LimpiarResultados();
}

void ModuloQmax::DespuesDeEvento() {
    ModuloCalculo::DespuesDeEvento();
    lblResumen.Caption = fichaQ.Resumen();
}

void ModuloQmax::GenerarReporte(Reporte& reporte) {
    fichaC.Reportar(reporte);
    fichaI->Reportar(reporte);
    fichaQ.Reportar(reporte, fichaI->TituloResultados());
}

Disposicion ModuloQmax::Cuerpo() {
    return Columna({lblResumen, Fichas(SSTab1, {fichaQ.Zona(), fichaC.Zona(), fichaI->Zona()}).Estira(1)});
}

}  // namespace cuencalia
