#include <algorithm>
#include <map>
#include <set>

#include "frame/base/json.h"
#include "frame/base/textos.h"
#include "frame/modulo/modulocalculo.h"
#include "frame/modulo/recibeserie.h"
#include "tests/forma_en_uso.h"

namespace cuencalia::pruebas {
namespace {

/// What an emptied window keeps of its use, with the reason in a word.
struct Queda {
    const char *formas, *controles, *porque;
};
constexpr Queda kQuedan[] = {
    {"frmThornthwaite frmBalanceHidro", "cobLatitud cobLatitudNS", "lugar"},
    {"frmPenman frmHargreaves frmBlaneyCriddle", "txtLatitud cobLatitud cobLatitudNS", "vacío"},
    {"frmQmaxRacional frmQmaxRacDyckPeschke frmQmaxMacMath frmQmaxMacMathDyckPeschke",
     "cboCobertura cboTextura cboZUrbana", "suelo"},
    {"frmQmaxGumbel frmQmaxNash", "txtanno", "fecha"},
    {"frmRegMul2Var frmRegMul3Var frmRegPoli2Gra frmRegPoli3Gra", "lblCalculoY", "rótulo"},
    {"frmDistriFre", "fraTipoGrafico optDensidad optAcumulada", "elección"},
    {"frmComparacion", "cmbOrden cmbPapel cmbPosicion txtSemilla", "elección"}};

bool SeQueda(const std::string& forma, const std::string& control) {
    return std::any_of(std::begin(kQuedan), std::end(kQuedan), [&](const Queda& q) {
        const auto esta = [](const std::string& lista, const std::string& nombre) {
            return (" " + lista + " ").find(" " + nombre + " ") != std::string::npos;
        };
        return esta(q.formas, forma) && esta(q.controles, control);
    });
}

/// A window in use, by the names of its controls.
class Uso {
  public:
    explicit Uso(const std::string& nombre) {
        app_.Despachar([&] { forma_ = dynamic_cast<MarcoModulo*>(&app_.ModuloAbrir(nombre)); });
    }
    bool EsModulo() const { return forma_ != nullptr; }

    /// Two series generated at one time of the clock differ: the second goes on where the first ended.
    void Llenar(double hora) {
        sistema_.reloj = hora;
        static constexpr double kValores[] = {12, 15.5, 17, 18.2, 21, 23.5, 26, 31, 38, 47, 62, 95};
        app_.Despachar([this] {
            if (auto* receptor = dynamic_cast<RecibeSerie*>(forma_)) {
                receptor->RecibirSerie("Prueba", {std::begin(kValores), std::end(kValores)});
            }
        });
        ParaCada<ComboBox>([this](ComboBox& lista) {
            if (lista.List().size() > 1) {
                app_.Despachar([&] { lista.Elegir(1); });
            }
        });
        if (auto* modulo = dynamic_cast<ModuloCalculo*>(forma_)) {
            // Two years of months, where there is room for them.
            const int filas = std::min(2 * static_cast<int>(std::size(kValores)), modulo->FilasMax());
            for (int i = 0; i < filas; ++i) {
                app_.Despachar([&] {
                    modulo->datos.grdt.TraerAlFrente();
                    modulo->datos.grdt.Presionar(kBotonIzquierdo, modulo->datos.grdt.Rows() - 1, 1);
                });
                for (int c = 1; c <= modulo->datos.UltimaColumna(); ++c) {
                    // Each column in another order, so that none depends on the others.
                    static constexpr int kPasos[] = {1, 5, 7, 11};
                    Teclear(Format(kValores[i * kPasos[c - 1] % 12] + i / 12, "0.0"));
                    app_.PulsarTecla(kTeclaEnter, kTeclaEnter);
                }
            }
        }
        int cifra = 15;
        ParaCada<TextBox>([&](TextBox& caja) {
            if (!caja.Locked && caja.Sobre() == nullptr) {
                app_.Despachar([&] {
                    caja.SetFocus();
                    app_.DoEvents();
                    caja.Seleccionar(0, Len(caja.Text()));
                });
                Teclear(std::to_string(cifra++));
            }
        });
        app_.Pulsar(forma_->bCalcular);
    }

    /// Presses whatever draws, evaluates or chooses.
    void Usar() {
        const std::set<const Control*> otros{&forma_->bLimpiar, &forma_->bImprimir, &forma_->bMenu, &forma_->bReporte,
                                             &forma_->bCalculadora};
        static const std::set<std::string> kArchivos{"bCrear", "bAccesar", "bCargarExcel", "bCrearExcel", "bComparar"};
        ParaCada<CommandButton>([&](CommandButton& boton) {
            if (!otros.contains(&boton) && !kArchivos.contains(boton.Nombre()) && boton.EsHabilitado()) {
                app_.Pulsar(boton);
            }
        });
    }

    /// On each page: where a window has steps, each page empties its own.
    void Limpiar() {
        SSTab* fichas = nullptr;
        ParaCada<SSTab>([&](SSTab& hallada) { fichas = &hallada; });
        const int paginas = fichas == nullptr ? 1 : static_cast<int>(fichas->Titulos().size());
        for (int pagina = paginas; --pagina >= 0;) {
            app_.Despachar([&] {
                if (fichas != nullptr) {
                    fichas->Tab = pagina;
                }
            });
            app_.Pulsar(forma_->bLimpiar);
        }
    }

    /// What the controls that can be seen show.
    std::map<std::string, std::string> Vista() {
        std::map<std::string, std::string> vista;
        ParaCada<Control>([&](Control& control) {
            EscritorJson json;
            const bool texto = control.Describir(json.Abrir('{'));
            json.Clave("habilitado").Logico(control.EsHabilitado());
            if (const auto* opcion = dynamic_cast<OptionButton*>(&control)) {
                json.Clave("valor").Logico(opcion->Value());
            }
            if (texto) {
                vista[control.Nombre()] = json.Cerrar('}').Tomar();
            }
        });
        for (const Mensaje& mensaje : sistema_.mensajes) {
            vista["mensajes"] += mensaje.texto + "\n";
        }
        for (const ErrorEjecucion& error : sistema_.errores) {
            vista["errores"] += error.Texto() + "\n";
        }
        sinQuejas_ = sistema_.mensajes.empty() && sistema_.errores.empty();
        sistema_.mensajes.clear();
        sistema_.errores.clear();
        return vista;
    }
    void OlvidarMensajes() { Vista(); }
    bool SinQuejas() const { return sinQuejas_; }

  private:
    template <typename T, typename Accion>
    void ParaCada(Accion accion) {
        for (Control* control : forma_->Controles()) {
            if (auto* hallado = dynamic_cast<T*>(control); hallado != nullptr && control->EsMostrable()) {
                accion(*hallado);
            }
        }
    }
    void Teclear(const std::string& cifras) {
        for (const char c : cifras) {
            app_.PulsarTecla(c, c);
        }
    }

    PlataformaGuion sistema_;
    Aplicacion app_{sistema_, FormasDelPrograma()};
    MarcoModulo* forma_ = nullptr;
    bool sinQuejas_ = true;  ///< At the last look.
};

void EsperarIguales(const std::string& forma, Uso& usada, Uso& nueva, const char* cuando) {
    const auto vista = usada.Vista(), espera = nueva.Vista();
    for (const auto& [nombre, texto] : espera) {
        if (!SeQueda(forma, nombre)) {
            const auto hallada = vista.find(nombre);
            EXPECT_EQ(hallada == vista.end() ? "no se ve" : hallada->second, texto)
                << forma << ": " << nombre << ", " << cuando;
        }
    }
    for (const auto& [nombre, texto] : vista) {
        EXPECT_TRUE(espera.contains(nombre) || SeQueda(forma, nombre))
            << forma << ": " << nombre << " se ve, " << cuando;
    }
}

// Every window, filled, calculated, drawn and emptied, looks like a new one, and calculates like a new one.
TEST(LimpiarTest, UnaVentanaLimpiaEsUnaNueva) {
    int ventanas = 0;
    for (const auto& [nombre, hacer] : FormasDelPrograma()) {
        Uso usada(nombre), nueva(nombre);
        if (!usada.EsModulo()) {
            continue;
        }
        usada.Llenar(1);
        usada.Usar();
        usada.Limpiar();
        usada.OlvidarMensajes();
        EsperarIguales(nombre, usada, nueva, "limpia");
        usada.Llenar(2);
        nueva.Llenar(2);
        EsperarIguales(nombre, usada, nueva, "calculada otra vez");
        EXPECT_TRUE(nueva.SinQuejas()) << nombre;
        ++ventanas;
    }
    EXPECT_GE(ventanas, 41);
}

}  // namespace
}  // namespace cuencalia::pruebas
