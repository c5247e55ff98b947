#include "modules/comparacion/fichadiseno.h"

#include <algorithm>
#include <atomic>
#include <cmath>

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "modules/comparacion/textos.h"

namespace cuencalia {

namespace {

constexpr int kPeriodosPorTabla = 7;  // of the report, for a page to hold its lines

std::vector<ColumnaTabla> ColumnasDeDiseno() {
    std::vector<ColumnaTabla> columnas{{"Ajuste", 3900}};
    for (const double T : kPeriodosDeDiseno) {
        columnas.push_back({"T = " + CStr(T), 1000});
    }
    return columnas;
}

}  // namespace

struct FichaDiseno::Encargo {
    std::vector<Ajuste> ajustes;
    std::vector<double> ordenada;
    OpcionesRemuestreo opciones;
    std::atomic<bool> cancelado = false;
    std::optional<std::vector<Remuestreo>> resultado;
};

FichaDiseno::FichaDiseno(MarcoModulo& modulo, Comparacion& comparacion)
    : fraRemuestreo(modulo, "fraRemuestreo", "Límites de confianza y significación:"),
      lblNivel(modulo, "lblNivel", "Nivel de confianza (%):"),
      lblSemilla(modulo, "lblSemilla", "Semilla:"),
      cmbNivel(modulo, "cmbNivel", {"80", "90", "95", "99"}),
      txtSemilla(modulo, "txtSemilla"),
      bRemuestrear(modulo, "bRemuestrear", "Re&muestrear",
                   "Límites de confianza por remuestreo paramétrico (1000 muestras)"),
      bCancelar(modulo, "bCancelar", "&Cancelar", "Terminar el remuestreo"),
      lblAvance(modulo, "lblAvance", {}, Papel::Nota),
      grdDiseno(modulo, "grdDiseno", "Caudales de diseño",
                {.filas = 2, .columnas = ColumnasDeDiseno(), .columnasFijas = 1}),
      modulo_(modulo),
      comparacion_(comparacion) {
    modulo.DeclararTablas({&grdDiseno});
    modulo.DeclararLimpieza([this] { Limpiar(); });
    cmbNivel.Editable = false;
    cmbNivel.Text = "90";
    txtSemilla.Text = "1";
    SoloNumero(txtSemilla, Cifras::Enteras);
    lblNivel.Nombra(cmbNivel);
    lblSemilla.Nombra(txtSemilla);
    bCancelar.Enabled = false;
    bCancelar.Click.Conectar([this] { Cancelar(); });
}

FichaDiseno::~FichaDiseno() { Cancelar(); }

void FichaDiseno::Mostrar() {
    const auto ajustados = std::count_if(comparacion_.comparados.begin(), comparacion_.comparados.end(),
                                         [](const Comparado& c) { return c.ajuste.distribucion.has_value(); });
    const int filasDeUno = comparacion_.remuestreo.empty() ? 1 : 3;
    grdDiseno.Iniciar(static_cast<int>(ajustados) * filasDeUno + 1);
    int fila = 0;
    for (const std::size_t i : comparacion_.orden) {
        const auto& d = comparacion_.comparados[i].ajuste.distribucion;
        if (!d) {
            continue;
        }
        std::vector<std::string> caudales{NombreDe(comparacion_.comparados[i].ajuste)};
        std::vector<std::string> inferiores{"   límite inferior " + comparacion_.nivel};
        std::vector<std::string> superiores{"   límite superior " + comparacion_.nivel};
        for (std::size_t t = 0; t < std::size(kPeriodosDeDiseno); ++t) {
            caudales.push_back(Numero(d->Caudal(kPeriodosDeDiseno[t]), "0.00"));
            if (!comparacion_.remuestreo.empty()) {
                inferiores.push_back(Numero(comparacion_.remuestreo[i].limites[t].inferior, "0.00"));
                superiores.push_back(Numero(comparacion_.remuestreo[i].limites[t].superior, "0.00"));
            }
        }
        grdDiseno.PonerFila(++fila, caudales);
        if (!comparacion_.remuestreo.empty()) {
            grdDiseno.PonerFila(++fila, inferiores);
            grdDiseno.PonerFila(++fila, superiores);
        }
    }
}

void FichaDiseno::Remuestrear(double posicion) {
    Cancelar();
    auto encargo = std::make_shared<Encargo>();
    for (const Comparado& c : comparacion_.comparados) {
        encargo->ajustes.push_back(c.ajuste);
    }
    encargo->ordenada = comparacion_.ordenada;
    encargo->opciones.muestras = kMuestras;
    encargo->opciones.semilla = static_cast<std::uint64_t>(std::clamp(Val(txtSemilla.Text()).valor(), 0.0, 1e15));
    encargo->opciones.nivel = Val(cmbNivel.Text()).valor() / 100;
    encargo->opciones.posicion = posicion;
    encargo_ = encargo;
    bCancelar.Enabled = true;
    bRemuestrear.Enabled = false;
    lblAvance.Caption = "Remuestreando…";
    // When the window is gone or has another task, this one is cancelled, and nothing of it comes back.
    modulo_.App().Sistema().EnSegundoPlano(
        {.trabajo =
             [encargo](const std::function<bool(double)>& avanzar) {
                 encargo->opciones.progreso = [&](double parte) { return !encargo->cancelado && avanzar(parte); };
                 encargo->resultado =
                     cuencalia::Remuestrear(encargo->ajustes, encargo->ordenada, kPeriodosDeDiseno, encargo->opciones);
             },
         .alAvanzar =
             [this, encargo](double parte) {
                 if (!encargo->cancelado) {
                     lblAvance.Caption = "Remuestreando: " + Format(100 * parte, "0") + " %";
                 }
             },
         .alTerminar =
             [this, encargo] {
                 if (!encargo->cancelado) {
                     Entregar(*encargo);
                 }
             }});
}

void FichaDiseno::Entregar(const Encargo& encargo) {
    bCancelar.Enabled = false;
    bRemuestrear.Enabled = true;
    if (!encargo.resultado) {
        lblAvance.Caption = "Remuestreo sin terminar";
        return;
    }
    comparacion_.remuestreo = *encargo.resultado;
    for (Remuestreo& r : comparacion_.remuestreo) {
        r.limites.resize(std::size(kPeriodosDeDiseno), {std::nan(""), std::nan("")});
    }
    comparacion_.nivel = Format(100 * encargo.opciones.nivel, "0") + " %";
    lblAvance.Caption = "Límites del " + comparacion_.nivel + " y significaciones por " + std::to_string(kMuestras) +
                        " muestras, semilla " + std::to_string(encargo.opciones.semilla);
    alRemuestrear();
}

void FichaDiseno::Cancelar() {
    if (encargo_ == nullptr) {
        return;
    }
    encargo_->cancelado = true;
    encargo_.reset();
    if (!bRemuestrear.Enabled) {
        lblAvance.Caption = "Remuestreo cancelado";
    }
    bCancelar.Enabled = false;
    bRemuestrear.Enabled = true;
}

void FichaDiseno::Limpiar() {
    Cancelar();
    comparacion_.remuestreo.clear();
    lblAvance.Caption = "";
}

void FichaDiseno::Reportar(Reporte& reporte) {
    for (int desde = 1; desde < grdDiseno.Cols(); desde += kPeriodosPorTabla) {
        Bloque caudales = Columnas(grdDiseno, 0, 1);
        const Bloque otros = Columnas(grdDiseno, desde, std::min(desde + kPeriodosPorTabla, grdDiseno.Cols()));
        for (std::size_t f = 0; f < caudales.size(); ++f) {
            caudales[f].insert(caudales[f].end(), otros[f].begin(), otros[f].end());
        }
        ReportarFilas(reporte,
                      desde == 1 ? "Caudales de diseño (m3/s):" : "Caudales de diseño (m3/s), continuación:", caudales);
    }
    reporte.ReporteLinea(lblAvance.Caption());
}

Disposicion FichaDiseno::Zona() {
    Disposicion remuestreo =
        Grupo(fraRemuestreo,
              {Fila({lblNivel, cmbNivel, lblSemilla, txtSemilla, bRemuestrear, bCancelar, Espacio()}), lblAvance});
    return Columna({std::move(remuestreo), Disposicion(grdDiseno).Estira(1)});
}

}  // namespace cuencalia
