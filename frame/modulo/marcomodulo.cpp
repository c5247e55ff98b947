#include "frame/modulo/marcomodulo.h"

#include "frame/reportes/frmPadre.h"

namespace cuencalia {

namespace {

constexpr const char* kCalculadora = "frmCalculadora";
constexpr const char* kVentanaReportes = "frmPadre";

}  // namespace

MarcoModulo::MarcoModulo(Aplicacion& app, std::string nombre, const std::string& titulo)
    : Formulario(app, std::move(nombre), titulo) {
    DeclararInicio(calculado);
    bCalcular.Click.Conectar([this] { bCalcular_Click(); });
    bLimpiar.Click.Conectar([this] { bLimpiar_Click(); });
    bImprimir.Click.Conectar([this] { bImprimir_Click(); });
    bMenu.Click.Conectar([this] { bMenu_Click(); });
    bReporte.Click.Conectar([this] { bReporte_Click(); });
    if (app.Existe(kCalculadora)) {
        bCalculadora.Click.Conectar([this] { bCalculadora_Click(); });
    }
    MouseMove.Conectar([this] { ApagarBotones(nullptr); });
    for (Frame* marco : {&Frame6, &Frame7, &fraCalculadora}) {
        marco->MouseMove.Conectar([this, marco] { ApagarBotones(marco); });
    }
}

void MarcoModulo::Form_Load() {
    for (const BotonNumerado& b : botones_) {
        b.boton->Enabled = b.boton->Click.Atendido();
    }
    for (Tabla* tabla : tablas_) {
        tabla->Iniciar();
    }
    for (Control* control : Controles()) {
        auto* caja = dynamic_cast<TextBox*>(control);
        if (caja == nullptr || caja->Sobre() != nullptr) {
            continue;
        }
        caja->LostFocus.Conectar([this, caja] { DecirLectura(*caja); });
        caja->KeyDown.Conectar([this, caja](int codigo) {
            if (codigo == kTeclaEnter) {
                DecirLectura(*caja);
            } else {
                StatusBar1.PonerPanel(kPanelAvisos, "");
            }
        });
    }
}

void MarcoModulo::DecirLectura(const TextBox& caja) {
    if (const std::string aviso = caja.Locked ? "" : AvisoDeLectura(caja.Text); !aviso.empty()) {
        StatusBar1.PonerPanel(kPanelAvisos, aviso);
    }
}

void MarcoModulo::AntesDeOrden() {
    for (Control* control : Controles()) {
        if (const auto* caja = dynamic_cast<TextBox*>(control); caja != nullptr && caja->Sobre() == nullptr) {
            DecirLectura(*caja);
        }
    }
}

void MarcoModulo::bCalcular_Click() {
    try {
        EfectuarCalculo();
    } catch (const ErrorEjecucion& error) {
        if (const std::string consejo = Consejo(error); !consejo.empty()) {
            StatusBar1.PonerPanel(kPanelAvisos, consejo);
        }
        if (!fallo_) {
            throw;
        }
        AlFallar();
    }
}

void MarcoModulo::EfectuarCalculo() {
    if (Calcular()) {
        calculado = true;
        AlCalcular();
    }
}

void MarcoModulo::bImprimir_Click() { App().Sistema().ImprimirForma(*this); }

void MarcoModulo::bMenu_Click() { App().ModuloCerrar(*this); }

void MarcoModulo::bCalculadora_Click() { App().ModuloAbrir(kCalculadora); }

void MarcoModulo::bReporte_Click() {
    auto& padre = static_cast<frmPadre&>(App().ModuloAbrir(kVentanaReportes));
    try {
        frmDocumento* documento = padre.ActiveForm();
        if (documento == nullptr) {
            throw ErrorEjecucion(kObjetoNoEstablecido);
        }
        Reporte reporte(documento->rtfText.Editor());
        reporte.Cabecera(Caption());
        GenerarReporte(reporte);
    } catch (const ErrorEjecucion&) {
        App().MsgBox("No se puede editar el reporte: " + Caption(), kIconoInformacion, "Mensaje de error");
    }
}

void MarcoModulo::Vaciar(Momento momento) {
    for (const Limpieza& limpieza : limpiezas_) {
        if (limpieza.momento == Momento::Siempre || limpieza.momento == momento) {
            limpieza.accion();
        }
    }
}

void MarcoModulo::DeclararLimpieza(std::function<void()> accion, Momento momento) {
    limpiezas_.push_back({momento, std::move(accion)});
}

void MarcoModulo::DeclararTablas(const std::vector<Tabla*>& tablas) {
    for (Tabla* tabla : tablas) {
        tablas_.push_back(tabla);
        DeclararLimpieza([tabla] { tabla->Iniciar(); });
    }
}

void MarcoModulo::DeclararGraficos(const std::vector<GraficoModulo*>& graficos, int fondo) {
    for (GraficoModulo* grafico : graficos) {
        DeclararLimpieza([grafico, fondo] { grafico->LimpiarGrafico(fondo); });
    }
}

void MarcoModulo::DeclararResultados(const std::vector<TextBox*>& cajas) {
    DeclararEntradas(cajas);
    for (TextBox* caja : cajas) {
        caja->Locked = true;
    }
}

void MarcoModulo::DeclararEntradas(const std::vector<TextBox*>& cajas, Momento momento) {
    for (TextBox* caja : cajas) {
        DeclararLimpieza([caja] { caja->Text = ""; }, momento);
    }
}

void MarcoModulo::DeclararInicio(const std::vector<Control*>& controles) {
    for (Control* control : controles) {
        DeclararLimpieza(control->Recordar());
    }
}

std::vector<BotonConImagen> MarcoModulo::BotonesResultados() {
    return {{&bReporte, "reporte"}, {&bCalculadora, "calculadora"}};
}

void MarcoModulo::DeclararBotones(std::vector<BotonConImagen> accion, const std::vector<BotonConImagen>& otros) {
    accion.insert(accion.begin(), {&bCalcular, "calcular"});
    accion.insert(accion.end(), {{&bLimpiar, "limpiar"}, {&bImprimir, "imprimir"}, {&bMenu, "menu"}});
    for (const auto& lista : {accion, BotonesResultados(), otros}) {
        for (const BotonConImagen& boton : lista) {
            AgregarBoton(boton);
        }
    }
    for (const BotonConImagen& boton : accion) {
        botonesAccion_.emplace_back(*boton.boton);
    }
}

void MarcoModulo::AgregarBoton(const BotonConImagen& nuevo) {
    CommandButton& boton = *nuevo.boton;
    botones_.push_back({&boton, ImageList1.AgregarPar(nuevo.imagen)});
    boton.Picture = ImageList1.Imagen(botones_.back().reposo);
    boton.MouseMove.Conectar([this, &boton] { EfectoBoton(boton, true); });
}

void MarcoModulo::EfectoBoton(CommandButton& boton, bool encendido) {
    for (const BotonNumerado& b : botones_) {
        if (b.boton == &boton) {
            boton.Picture = ImageList1.Imagen(b.reposo + (encendido ? 1 : 0));
        }
    }
}

void MarcoModulo::ApagarBotones(const Control* contenedor) {
    for (const BotonNumerado& b : botones_) {
        if (contenedor == nullptr || b.boton->Contenedor() == contenedor) {
            EfectoBoton(*b.boton, false);
        }
    }
}

bool MarcoModulo::ExigirCalculo(const Aviso& aviso) {
    if (!calculado) {
        App().MsgBox(aviso);
    }
    return calculado;
}

Disposicion MarcoModulo::Disponer() {
    Disposicion botones = Fila({Grupo(Frame6, {Fila(botonesAccion_)}), Grupo(Frame7, {Fila(ZonaResultados())}),
                                Grupo(fraCalculadora, {bCalculadora}), Espacio()});
    return Columna({std::move(botones), Cuerpo().Estira(1), StatusBar1});
}

}  // namespace cuencalia
