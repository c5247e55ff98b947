#include "guion/guion.h"

#include <algorithm>
#include <charconv>
#include <ostream>
#include <stdexcept>

#include "frame/base/json.h"
#include "frame/base/textos.h"
#include "frame/controles/controles.h"
#include "frame/controles/flexgrid.h"

namespace cuencalia {

namespace {

/// Thrown for a command that cannot be carried out; the text is the reason.
struct Rechazo : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Splits a line into words separated by blanks. A word with blanks is written in double quotes, where \" \\ and \n
/// stand for a quote, a backslash and a line end.
std::vector<std::string> Separar(const std::string& linea) {
    std::vector<std::string> palabras;
    std::size_t i = 0;
    while (true) {
        while (i < linea.size() && (linea[i] == ' ' || linea[i] == '\t')) {
            ++i;
        }
        if (i >= linea.size()) {
            return palabras;
        }
        std::string palabra;
        if (linea[i] != '"') {
            while (i < linea.size() && linea[i] != ' ' && linea[i] != '\t') {
                palabra += linea[i++];
            }
            palabras.push_back(palabra);
            continue;
        }
        for (++i; i < linea.size() && linea[i] != '"'; ++i) {
            if (linea[i] == '\\' && i + 1 < linea.size()) {
                ++i;
                palabra += linea[i] == 'n' ? '\n' : linea[i] == 't' ? '\t' : linea[i];
            } else {
                palabra += linea[i];
            }
        }
        if (i >= linea.size()) {
            throw Rechazo("falta la comilla que cierra");
        }
        ++i;
        palabras.push_back(palabra);
    }
}

int Numero(const std::string& texto) {
    int valor = 0;
    const char* fin = texto.data() + texto.size();
    const auto [resto, error] = std::from_chars(texto.data(), fin, valor);
    if (error != std::errc() || resto != fin) {
        throw Rechazo("no es un número entero: " + texto);
    }
    return valor;
}

/// The KeyDown code of the key for a character: letters and digits have the code of the capital letter or digit, the
/// signs below their own, all others 0.
int CodigoDeTecla(int caracter) {
    if (caracter >= 'a' && caracter <= 'z') {
        return caracter - 'a' + 'A';
    }
    const bool letraODigito = (caracter >= 'A' && caracter <= 'Z') || (caracter >= '0' && caracter <= '9');
    const bool control =
        caracter == kTeclaEnter || caracter == kTeclaEscape || caracter == kTeclaRetroceso || caracter == kTeclaEspacio;
    // Codes of the signs on the numeric pad, and of the point.
    static constexpr std::pair<char, int> kSignos[] = {{'*', 106}, {'+', 107}, {'-', 109}, {'/', 111}, {'.', 190}};
    for (const auto& [signo, codigo] : kSignos) {
        if (caracter == signo) {
            return codigo;
        }
    }
    return letraODigito || control ? caracter : 0;
}

}  // namespace

struct Guion::Orden {
    const char* nombre;
    int minimoPalabras;
    void (Guion::*metodo)(const Palabras&);
};

Guion::Guion(TablaFormas formas, std::ostream& salida) : formas_(std::move(formas)), salida_(salida) { Nuevo(); }

Guion::~Guion() = default;

void Guion::Nuevo() {
    app_.reset();
    plataforma_ = std::make_unique<PlataformaGuion>();
    app_ = std::make_unique<Aplicacion>(*plataforma_, formas_);
    formaActual_ = "frmCuencalia";
    app_->Despachar([this] { app_->ModuloAbrir(formaActual_); });
}

void Guion::Ejecutar(const std::string& linea) {
    static constexpr Orden kOrdenes[] = {
        {"nuevo", 1, &Guion::OrdenNuevo},     {"menu", 2, &Guion::OrdenMenu},
        {"forma", 2, &Guion::OrdenForma},     {"fila", 1, &Guion::OrdenFila},
        {"celda", 4, &Guion::OrdenCelda},     {"menufila", 3, &Guion::OrdenMenuFila},
        {"teclas", 2, &Guion::OrdenTeclas},   {"click", 2, &Guion::OrdenClick},
        {"opcion", 2, &Guion::OrdenOpcion},   {"poner", 3, &Guion::OrdenPoner},
        {"elegir", 3, &Guion::OrdenElegir},   {"ficha", 3, &Guion::OrdenFicha},
        {"cerrar", 2, &Guion::OrdenCerrar},   {"ver", 2, &Guion::OrdenVer},
        {"estado", 2, &Guion::OrdenEstado},   {"mensajes", 1, &Guion::OrdenMensajes},
        {"archivo", 2, &Guion::OrdenArchivo}, {"deshacer", 1, &Guion::OrdenDeshacer},
        {"rehacer", 1, &Guion::OrdenRehacer}, {"pegar", 2, &Guion::OrdenPegar},
        {"reloj", 2, &Guion::OrdenReloj},
    };
    ++linea_;
    std::string limpia = linea;
    if (!limpia.empty() && limpia.back() == '\r') {
        limpia.pop_back();
    }
    if (limpia.empty() || limpia[0] == '#') {
        return;
    }
    try {
        const Palabras palabras = Separar(limpia);
        if (palabras.empty()) {
            return;
        }
        for (const Orden& orden : kOrdenes) {
            if (palabras[0] == orden.nombre) {
                if (static_cast<int>(palabras.size()) < orden.minimoPalabras) {
                    throw Rechazo("faltan datos de la orden: " + palabras[0]);
                }
                if (plataforma_->terminado && palabras[0] != "nuevo" && palabras[0] != "mensajes") {
                    throw Rechazo("el programa terminó");
                }
                (this->*orden.metodo)(palabras);
                MostrarErrores();
                return;
            }
        }
        throw Rechazo("orden desconocida: " + palabras[0]);
    } catch (const Rechazo& rechazo) {
        MostrarErrores();
        Rechazar(rechazo.what());
    }
}

void Guion::Rechazar(const std::string& motivo) {
    huboRechazo_ = true;
    EscritorJson json;
    json.Abrir('{').Clave("rechazo").Texto(motivo).Clave("linea").Entero(linea_);
    salida_ << json.Cerrar('}').Tomar() << '\n';
}

void Guion::MostrarErrores() {
    for (const ErrorEjecucion& error : plataforma_->errores) {
        EscritorJson json;
        json.Abrir('{').Clave("error").Entero(error.Numero()).Clave("texto").Texto(error.Texto());
        salida_ << json.Cerrar('}').Tomar() << '\n';
    }
    plataforma_->errores.clear();
}

Formulario& Guion::FormaActual() {
    Formulario* forma = app_->Cargada(formaActual_);
    if (forma == nullptr) {
        throw Rechazo("la forma no está abierta: " + formaActual_);
    }
    return *forma;
}

Control& Guion::Buscar(const std::string& nombre) {
    Formulario& forma = FormaActual();
    Control* control = forma.Controls(nombre);
    Formulario* dentro = app_->HijaActiva(forma);
    if (control == nullptr && dentro != nullptr) {
        control = dentro->Controls(nombre);
    }
    if (control == nullptr) {
        throw Rechazo("no hay tal control: " + nombre);
    }
    return *control;
}

template <typename T>
T& Guion::Usable(const std::string& nombre, const char* clase) {
    auto* control = dynamic_cast<T*>(&Buscar(nombre));
    if (control == nullptr) {
        throw Rechazo("no es " + std::string(clase) + ": " + nombre);
    }
    if (!control->EsMostrable()) {
        throw Rechazo("está oculto: " + nombre);
    }
    if (!control->EsHabilitado()) {
        throw Rechazo("está inhabilitado: " + nombre);
    }
    app_->Despachar([&] { control->TraerAlFrente(); });
    return *control;
}

void Guion::OrdenNuevo(const Palabras&) { Nuevo(); }

void Guion::OrdenMenu(const Palabras& p) {
    const std::string anterior = formaActual_;
    formaActual_ = "frmCuencalia";
    Menu* entrada = nullptr;
    try {
        entrada = &Usable<Menu>(p[1], "una entrada del menú");
    } catch (const Rechazo&) {
        formaActual_ = anterior;
        throw;
    }
    plataforma_->alFrente = nullptr;
    app_->Elegir(*entrada);
    if (plataforma_->alFrente != nullptr) {
        formaActual_ = plataforma_->alFrente->Nombre();
    }
}

void Guion::OrdenForma(const Palabras& p) {
    if (app_->Cargada(p[1]) == nullptr) {
        throw Rechazo("la forma no está abierta: " + p[1]);
    }
    formaActual_ = p[1];
    app_->Despachar([this] { app_->Activar(FormaActual()); });
}

void Guion::TeclearCaracter(int codigoCaracter) {
    if (app_->Foco() == nullptr) {
        throw Rechazo("ningún control tiene el foco");
    }
    app_->PulsarTecla(CodigoDeTecla(codigoCaracter), codigoCaracter);
}

void Guion::Teclear(const std::string& texto) {
    const int longitud = Len(texto);
    for (int i = 0; i < longitud; ++i) {
        TeclearCaracter(Asc(Subtexto(texto, i, 1)));
    }
}

void Guion::OrdenFila(const Palabras& p) {
    auto& grid = Usable<FlexGrid>("grdt", "una cuadrícula");
    app_->Despachar([&] { grid.Presionar(kBotonIzquierdo, grid.Rows() - 1, 1); });
    for (std::size_t i = 1; i < p.size(); ++i) {
        Teclear(p[i]);
        TeclearCaracter(kTeclaEnter);
    }
}

void Guion::OrdenCelda(const Palabras& p) {
    auto& grid = Usable<FlexGrid>(p[1], "una cuadrícula");
    const int fila = Numero(p[2]);
    const int columna = Numero(p[3]);
    if (fila < 0 || fila >= grid.Rows() || columna < 0 || columna >= grid.Cols()) {
        throw Rechazo("no hay tal celda: " + p[2] + ", " + p[3]);
    }
    app_->Despachar([&] { grid.Presionar(kBotonIzquierdo, fila, columna); });
}

void Guion::OrdenMenuFila(const Palabras& p) {
    auto& grid = Usable<FlexGrid>("grdt", "una cuadrícula");
    const int fila = Numero(p[2]);
    if (fila < 0 || fila >= grid.Rows()) {
        throw Rechazo("no hay tal fila: " + p[2]);
    }
    plataforma_->entradaEmergente = p[1];
    plataforma_->entradaElegida = false;
    app_->Despachar([&] { grid.Presionar(kBotonDerecho, fila, 1); });
    plataforma_->entradaEmergente.reset();
    if (!plataforma_->entradaElegida) {
        throw Rechazo("no se puede elegir: " + p[1]);
    }
}

void Guion::OrdenTeclas(const Palabras& p) {
    struct Tecla {
        const char* nombre;
        int codigo;
        int caracter;
    };
    static constexpr Tecla kTeclas[] = {{"{ENTER}", kTeclaEnter, kTeclaEnter},
                                        {"{ESC}", kTeclaEscape, kTeclaEscape},
                                        {"{UP}", kTeclaArriba, 0},
                                        {"{DOWN}", kTeclaAbajo, 0},
                                        {"{BACK}", kTeclaRetroceso, kTeclaRetroceso}};
    const std::string& texto = p[1];
    std::size_t i = 0;
    while (i < texto.size()) {
        const Tecla* especial = nullptr;
        for (const Tecla& tecla : kTeclas) {
            if (texto.compare(i, std::char_traits<char>::length(tecla.nombre), tecla.nombre) == 0) {
                especial = &tecla;
            }
        }
        if (especial == nullptr) {
            const std::string caracter = Subtexto(std::string_view(texto).substr(i), 0, 1);
            Teclear(caracter);
            i += caracter.size();
            continue;
        }
        if (app_->Foco() == nullptr) {
            throw Rechazo("ningún control tiene el foco");
        }
        app_->PulsarTecla(especial->codigo, especial->caracter);
        i += std::char_traits<char>::length(especial->nombre);
    }
}

void Guion::OrdenClick(const Palabras& p) {
    auto& control = Usable<Control>(p[1], "un control");
    if (auto* entrada = dynamic_cast<Menu*>(&control)) {
        app_->Elegir(*entrada);
    } else if (dynamic_cast<CommandButton*>(&control) != nullptr) {
        app_->Pulsar(control);
    } else {
        throw Rechazo("no es un botón ni una entrada de menú: " + p[1]);
    }
    if (app_->Cargada(formaActual_) == nullptr) {
        formaActual_ = "frmCuencalia";
    }
}

void Guion::OrdenOpcion(const Palabras& p) { app_->Pulsar(Usable<OptionButton>(p[1], "un botón de opción")); }

void Guion::OrdenPoner(const Palabras& p) {
    auto& caja = Usable<TextBox>(p[1], "una caja de texto");
    if (caja.Locked) {
        throw Rechazo("no se puede escribir en: " + p[1]);
    }
    app_->Despachar([&] {
        caja.SetFocus();
        app_->DoEvents();
        caja.Seleccionar(0, Len(caja.Text()));
    });
    app_->PulsarTecla(kTeclaSuprimir, 0);
    Teclear(p[2]);
}

void Guion::OrdenElegir(const Palabras& p) {
    auto& combo = Usable<ComboBox>(p[1], "un cuadro combinado");
    const auto& entradas = combo.List();
    const auto entrada = std::find(entradas.begin(), entradas.end(), p[2]);
    if (entrada == entradas.end() && !combo.Editable) {
        throw Rechazo("no hay tal entrada: " + p[2]);
    }
    app_->Despachar([&] {
        combo.SetFocus();
        app_->DoEvents();
        if (entrada != entradas.end()) {
            combo.Elegir(static_cast<int>(entrada - entradas.begin()));
        } else {
            combo.Text = "";
        }
    });
    if (entrada == entradas.end()) {
        Teclear(p[2]);
    }
}

void Guion::OrdenFicha(const Palabras& p) {
    auto& fichas = Usable<SSTab>(p[1], "un control de fichas");
    const int pagina = Numero(p[2]);
    if (pagina < 0 || pagina >= static_cast<int>(fichas.Titulos().size())) {
        throw Rechazo("no hay tal ficha: " + p[2]);
    }
    app_->Despachar([&] { fichas.Tab = pagina; });
}

void Guion::OrdenCerrar(const Palabras& p) {
    Formulario* forma = app_->Cargada(p[1]);
    if (forma == nullptr && app_->Cargada("frmPadre") != nullptr) {
        Formulario* documento = app_->HijaActiva(*app_->Cargada("frmPadre"));
        forma = documento != nullptr && documento->Nombre() == p[1] ? documento : nullptr;
    }
    if (forma == nullptr) {
        throw Rechazo("la forma no está abierta: " + p[1]);
    }
    app_->CerrarVentana(*forma);
    if (app_->Cargada(formaActual_) == nullptr) {
        formaActual_ = "frmCuencalia";
    }
}

/// A key with Control in the data grid of the current form, or in the control that has the focus.
void Guion::PulsarConControl(int codigo, bool enDatos) {
    if (enDatos) {
        auto& grid = Usable<FlexGrid>("grdt", "una cuadrícula");
        app_->Despachar([&] { grid.SetFocus(); });
    } else if (app_->Foco() == nullptr) {
        throw Rechazo("ningún control tiene el foco");
    }
    app_->PulsarTecla(codigo, 0, kControl);
}

void Guion::OrdenDeshacer(const Palabras&) { PulsarConControl('Z', true); }

void Guion::OrdenRehacer(const Palabras&) { PulsarConControl('Y', true); }

void Guion::OrdenPegar(const Palabras& p) {
    plataforma_->portapapeles = p[1];
    PulsarConControl('V', false);
}

void Guion::OrdenArchivo(const Palabras& p) { plataforma_->archivo = p[1] == "-" ? std::nullopt : std::optional(p[1]); }

void Guion::OrdenReloj(const Palabras& p) { plataforma_->reloj = Val(p[1]); }

void Guion::OrdenVer(const Palabras& p) {
    for (std::size_t i = 1; i < p.size(); ++i) {
        EscritorJson json;
        json.Abrir('{').Clave("control").Texto(p[i]);
        if (!Buscar(p[i]).Describir(json)) {
            throw Rechazo("no tiene texto: " + p[i]);
        }
        salida_ << json.Cerrar('}').Tomar() << '\n';
    }
}

void Guion::OrdenEstado(const Palabras& p) {
    for (std::size_t i = 1; i < p.size(); ++i) {
        Control& control = Buscar(p[i]);
        EscritorJson json;
        json.Abrir('{').Clave("control").Texto(p[i]);
        json.Clave("visible").Logico(control.EsVisible()).Clave("habilitado").Logico(control.EsHabilitado());
        control.DescribirEstado(json);
        salida_ << json.Cerrar('}').Tomar() << '\n';
    }
}

void Guion::OrdenMensajes(const Palabras&) {
    EscritorJson json;
    json.Abrir('{').Clave("mensajes").Abrir('[');
    for (const Mensaje& mensaje : plataforma_->mensajes) {
        json.Abrir('{').Clave("texto").Texto(mensaje.texto).Clave("icono").Entero(mensaje.icono);
        json.Clave("titulo").Texto(mensaje.titulo).Cerrar('}');
    }
    salida_ << json.Cerrar(']').Cerrar('}').Tomar() << '\n';
    plataforma_->mensajes.clear();
}

}  // namespace cuencalia
