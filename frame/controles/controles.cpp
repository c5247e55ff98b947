#include "frame/controles/controles.h"

#include <algorithm>

#include "frame/base/bloque.h"
#include "frame/base/json.h"
#include "frame/base/textos.h"
#include "frame/controles/aplicacion.h"
#include "frame/controles/formulario.h"

namespace cuencalia {

TextBox::TextBox(Formulario& forma, std::string nombre, std::string nombreAccesible)
    : Control(forma, std::move(nombre)) {
    NombreAccesible = std::move(nombreAccesible);
}

void TextBox::AlCambiarTexto() {
    if (!trasEscribir_) {
        antes_.clear();
        despues_.clear();
    }
    const int longitud = Len(Text());
    const int inicio = trasEscribir_ ? trasEscribir_->inicio : SelStart();
    const int marcados = trasEscribir_ ? trasEscribir_->longitud : SelLength();
    trasEscribir_.reset();
    SelStart = std::min(inicio, longitud);
    SelLength = std::min(marcados, longitud - SelStart());
    Change();
}

void TextBox::Seleccionar(int inicio, int longitud) {
    SelStart = inicio;
    SelLength = longitud;
}

void TextBox::EscritoPorUsuario(const std::string& texto, int selStart, int selLength) {
    if (texto == Text()) {
        Seleccionar(selStart, selLength);
        return;
    }
    antes_.push_back({Text, {SelStart, SelLength}});
    despues_.clear();
    trasEscribir_ = {selStart, selLength};
    Text = texto;
}

void TextBox::Volver(std::vector<Estado>& de, std::vector<Estado>& a) {
    if (de.empty()) {
        return;
    }
    a.push_back({Text, {SelStart, SelLength}});
    const Estado estado = std::move(de.back());
    de.pop_back();
    trasEscribir_ = estado.marca;
    Text = estado.texto;
}

void TextBox::Reemplazar(int inicio, int cuantos, const std::string& nuevo) {
    const std::string anterior = Text;
    const int resto = inicio + cuantos;
    EscritoPorUsuario(Subtexto(anterior, 0, inicio) + nuevo + Subtexto(anterior, resto, Len(anterior) - resto),
                      inicio + Len(nuevo), 0);
}

void TextBox::Borrar(int desplazamiento) {
    if (SelLength > 0) {
        Reemplazar(SelStart, SelLength, "");
    } else if (const int victima = SelStart + desplazamiento; victima >= 0 && victima < Len(Text())) {
        Reemplazar(victima, 1, "");
    }
}

void TextBox::Pegar(const std::string& texto) {
    const Bloque bloque = SepararBloque(texto);
    const std::string primera = bloque.empty() ? std::string() : bloque.front().front();
    const LecturaBloque lectura = LeerBloque({{primera}});
    Reemplazar(SelStart, SelLength, lectura.signo ? LeerNumero(primera, *lectura.signo).value_or(primera) : primera);
}

void TextBox::TeclaPorDefecto(int codigo, int caracter) {
    const int longitud = Len(Text());
    if (App().ConControl() && (codigo == 'C' || codigo == 'X')) {
        App().Sistema().PonerEnPortapapeles(Subtexto(Text(), SelStart, SelLength));
        if (codigo == 'X' && !Locked && SelLength > 0) {
            Borrar(0);
        }
    } else if (App().ConControl() && codigo == 'V') {
        if (!Locked) {
            Pegar(App().Sistema().TextoDelPortapapeles());
        }
    } else if (App().ConControl() && (codigo == 'Z' || codigo == 'Y')) {
        codigo == 'Z' ? Volver(antes_, despues_) : Volver(despues_, antes_);
    } else if (App().ConControl() && codigo == 'A') {
        Seleccionar(0, longitud);
    } else if (!Locked && caracter == kTeclaRetroceso) {
        Borrar(-1);
    } else if (!Locked && caracter >= kTeclaEspacio) {
        Reemplazar(SelStart, SelLength, Chr(caracter));
    } else if (!Locked && codigo == kTeclaSuprimir) {
        Borrar(0);
    } else if (codigo == kTeclaIzquierda) {
        Seleccionar(SelLength > 0 ? SelStart() : std::max(0, SelStart - 1), 0);
    } else if (codigo == kTeclaDerecha) {
        Seleccionar(SelLength > 0 ? SelStart + SelLength : std::min(longitud, SelStart + 1), 0);
    } else if (codigo == kTeclaInicio) {
        Seleccionar(0, 0);
    } else if (codigo == kTeclaFin) {
        Seleccionar(longitud, 0);
    }
}

Label::Label(Formulario& forma, std::string nombre, std::string caption, Papel papel)
    : Control(forma, std::move(nombre)), papel_(papel) {
    Caption = std::move(caption);
}

CommandButton::CommandButton(Formulario& forma, std::string nombre, std::string caption, std::string toolTip)
    : Control(forma, std::move(nombre)) {
    Caption = std::move(caption);
    ToolTipText = std::move(toolTip);
}

void CommandButton::TeclaPorDefecto(int, int caracter) {
    if (caracter == kTeclaEnter || caracter == kTeclaEspacio) {
        Click();
    }
}

OptionButton::OptionButton(Formulario& forma, std::string nombre, std::string caption, bool encendida)
    : Control(forma, std::move(nombre)), Value(*this, encendida, [this] { AlCambiarValor(); }) {
    Caption = std::move(caption);
}

void OptionButton::AlCambiarValor() {
    if (!Value) {
        return;
    }
    for (Control* otro : Forma().Controles()) {
        auto* opcion = dynamic_cast<OptionButton*>(otro);
        if (opcion != nullptr && opcion != this && opcion->Contenedor() == Contenedor() &&
            opcion->Pagina() == Pagina()) {
            opcion->Value = false;
        }
    }
    Click();
}

void OptionButton::TeclaPorDefecto(int, int caracter) {
    if (caracter == kTeclaEspacio || caracter == kTeclaEnter) {
        Value = true;
    }
}

void OptionButton::DescribirEstado(EscritorJson& json) {
    json.Clave("valor").Logico(Value);
    Control::DescribirEstado(json);
}

ComboBox::ComboBox(Formulario& forma, std::string nombre, std::vector<std::string> entradas,
                   std::string nombreAccesible)
    : Control(forma, std::move(nombre)) {
    List = std::move(entradas);
    NombreAccesible = std::move(nombreAccesible);
}

int ComboBox::ListIndex() const {
    const auto& entradas = List();
    const auto hallada = std::find(entradas.begin(), entradas.end(), Text());
    return hallada == entradas.end() ? -1 : static_cast<int>(hallada - entradas.begin());
}

void ComboBox::Elegir(int indice) {
    if (indice < 0 || indice >= static_cast<int>(List().size())) {
        throw ErrorEjecucion(kSubindiceFuera);
    }
    Text = List()[static_cast<std::size_t>(indice)];
    Click();
}

void ComboBox::TeclaPorDefecto(int codigo, int caracter) {
    const int ultimo = static_cast<int>(List().size()) - 1;
    if (codigo == kTeclaAbajo && ListIndex() < ultimo) {
        Elegir(ListIndex() + 1);
    } else if (codigo == kTeclaArriba && ListIndex() > 0) {
        Elegir(ListIndex() - 1);
    } else if (Editable && caracter == kTeclaRetroceso) {
        Text = Subtexto(Text(), 0, Len(Text()) - 1);
    } else if (Editable && caracter >= kTeclaEspacio) {
        Text = Text() + Chr(caracter);
    }
}

Frame::Frame(Formulario& forma, std::string nombre, std::string caption) : Control(forma, std::move(nombre)) {
    Caption = std::move(caption);
}

SSTab::SSTab(Formulario& forma, std::string nombre, std::vector<std::string> titulos)
    : Control(forma, std::move(nombre)), titulos_(std::move(titulos)) {
    std::string paginas;
    for (const std::string& titulo : titulos_) {
        paginas += (paginas.empty() ? "" : ", ") + titulo;
    }
    NombreAccesible = paginas;
}

/// A control on a page that is no longer in front loses the focus, so that typing does not go to a hidden control.
void SSTab::AlCambiarFicha() {
    const Control* foco = App().Foco();
    if (foco != nullptr && &foco->Forma() == &Forma() && !foco->EsVisible() && PuedeRecibirFoco()) {
        App().PedirFoco(*this);
    }
    Click();
}

void SSTab::TeclaPorDefecto(int codigo, int) {
    if (codigo == kTeclaDerecha && Tab + 1 < static_cast<int>(titulos_.size())) {
        Tab = Tab + 1;
    } else if (codigo == kTeclaIzquierda && Tab > 0) {
        Tab = Tab - 1;
    }
}

StatusBar::StatusBar(Formulario& forma, std::string nombre, int paneles)
    : Control(forma, std::move(nombre)), textos_(static_cast<std::size_t>(paneles)) {}

const std::string& StatusBar::Panel(int numero) const {
    if (numero < 1 || numero > Paneles()) {
        throw ErrorEjecucion(kSubindiceFuera);
    }
    return textos_[static_cast<std::size_t>(numero - 1)];
}

bool StatusBar::Describir(EscritorJson& json) {
    if (conHora_) {
        return DescribirTexto(json, Panel(1));
    }
    json.Clave("paneles").Abrir('[');
    for (const std::string& texto : textos_) {
        json.Texto(texto);
    }
    json.Cerrar(']');
    return true;
}

void StatusBar::PonerPanel(int numero, const std::string& texto) {
    if (Panel(numero) != texto) {
        textos_[static_cast<std::size_t>(numero - 1)] = texto;
        Notificar();
    }
}

ImageList::ImageList(Formulario& forma, std::string nombre) : Control(forma, std::move(nombre)) { Visible = false; }

int ImageList::AgregarPar(const std::string& imagen) {
    imagenes_.push_back(imagen);
    imagenes_.push_back(imagen + "_luz");
    return static_cast<int>(imagenes_.size()) - 1;
}

const std::string& ImageList::Imagen(int numero) const {
    if (numero < 1 || numero > static_cast<int>(imagenes_.size())) {
        throw ErrorEjecucion(kSubindiceFuera);
    }
    return imagenes_[static_cast<std::size_t>(numero - 1)];
}

PictureBox::PictureBox(Formulario& forma, std::string nombre, std::string imagen, bool deFondo)
    : Control(forma, std::move(nombre)), deFondo_(deFondo) {
    Picture = std::move(imagen);
}

Menu::Menu(Formulario& forma, std::string nombre, std::string caption, bool enBarra)
    : Control(forma, std::move(nombre)) {
    Caption = std::move(caption);
    if (enBarra) {
        forma.AgregarABarra(*this);
    }
}

Menu::Menu(Menu& padre, std::string nombre, std::string caption) : Control(padre.Forma(), std::move(nombre)) {
    Caption = std::move(caption);
    padre.entradas_.push_back(this);
}

bool Menu::Elegir() {
    if (!Enabled || !Visible || EsSeparador()) {
        return false;
    }
    Click();
    return true;
}

}  // namespace cuencalia
