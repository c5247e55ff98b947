#pragma once

#include <functional>
#include <string>
#include <utility>

#include "frame/base/evento.h"

namespace cuencalia {

class Aplicacion;
class Control;
class EscritorJson;
class Formulario;

/// What shows a control on a screen. It is told that its control changed, but not what changed: it reads the whole
/// control again when it next paints.
class VistaControl {
  public:
    virtual ~VistaControl() = default;
    virtual void ModeloCambio() = 0;
};

/// A value of a control. Assigning a different value notifies the control's view and runs the hook, if there is one.
template <typename T>
class Propiedad {
  public:
    explicit Propiedad(Control& dueno, T inicial = T{}, std::function<void()> alCambiar = {})
        : dueno_(dueno), valor_(std::move(inicial)), alCambiar_(std::move(alCambiar)) {}
    Propiedad(const Propiedad&) = delete;
    Propiedad& operator=(const Propiedad&) = delete;

    operator const T&() const { return valor_; }
    const T& operator()() const { return valor_; }
    Propiedad& operator=(T nuevo);

  private:
    Control& dueno_;
    T valor_;
    std::function<void()> alCambiar_;
};

/// Key codes passed to KeyDown handlers.
enum CodigoTecla : int {
    kTeclaRetroceso = 8,
    kTeclaTab = 9,
    kTeclaEnter = 13,
    kTeclaEscape = 27,
    kTeclaEspacio = 32,
    kTeclaRePag = 33,
    kTeclaAvPag = 34,
    kTeclaFin = 35,
    kTeclaInicio = 36,
    kTeclaIzquierda = 37,
    kTeclaArriba = 38,
    kTeclaDerecha = 39,
    kTeclaAbajo = 40,
    kTeclaSuprimir = 46,
    kTeclaF1 = 112,
    kTeclaF2 = 113,
    kTeclaIgual = 187,
};

/// Keys held down while another key is pressed.
enum Modificador : int { kSinModificador = 0, kMayusculas = 1, kControl = 2 };

/// Mouse buttons, as passed to MouseDown.
enum BotonRaton : int { kBotonIzquierdo = 1, kBotonDerecho = 2 };

/// An element of a form: its state and its events, independent of any screen. A control is a member of its form and is
/// found by its name.
class Control {
  public:
    Control(Formulario& forma, std::string nombre);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Nombre() const { return nombre_; }
    Formulario& Forma() const { return *forma_; }
    Aplicacion& App() const;

    Propiedad<bool> Visible{*this, true};
    Propiedad<bool> Enabled{*this, true};
    Propiedad<std::string> ToolTipText{*this};
    /// Name that a screen reader announces, where the control's own texts do not say what it is.
    Propiedad<std::string> NombreAccesible{*this};
    /// A text that the form stores with the control; it is not shown.
    Propiedad<std::string> Tag{*this};

    Evento<> Click;
    Evento<> GotFocus;
    Evento<> LostFocus;
    Evento<int> KeyDown;    ///< CodigoTecla.
    Evento<int&> KeyPress;  ///< Code of the character; a handler sets it to 0 to drop it.
    Evento<> MouseMove;
    Evento<int> MouseDown;  ///< BotonRaton.

    /// Asks for the focus; the control gets it at the next DoEvents or when the running handler ends. The tab page that
    /// contains the control comes to the front. Error 5 when the control is hidden or disabled.
    void SetFocus();
    bool TieneFoco() const;

    /// True when the control and everything that contains it are shown, tab pages included.
    bool EsVisible() const;
    /// As EsVisible, but taking every tab page as if it were in front.
    bool EsMostrable() const;
    /// Brings the tab page that contains the control to the front, in every tab control around it.
    void TraerAlFrente();
    /// True when the control and everything that contains it are enabled.
    bool EsHabilitado() const;
    /// Whether this kind of control takes the keyboard.
    virtual bool AceptaFoco() const { return false; }
    bool PuedeRecibirFoco() const { return AceptaFoco() && EsVisible() && EsHabilitado(); }

    /// The control's own response to a key, after its handlers; `caracter` is 0 for a key without a character.
    virtual void TeclaPorDefecto(int codigo, int caracter);

    /// The frame or tab control that contains this control, or null; the layout of the form sets it.
    Control* Contenedor() const { return contenedor_; }
    /// Page (from 0) of the tab control that contains this control, -1 when none does.
    int Pagina() const { return pagina_; }
    void PonerEn(Control* contenedor, int pagina = -1);
    /// For tab controls: whether that page is in front, and bringing it to the front.
    virtual bool MuestraPagina(int /*pagina*/) const { return true; }
    virtual void MostrarPagina(int /*pagina*/) {}

    /// Writes what the control shows as members of a JSON object (docs/guion.md tells them all); false: it shows
    /// nothing that could be told.
    virtual bool Describir(EscritorJson& /*json*/) { return false; }
    /// The same of its state: whether it has the focus, and what its kind adds.
    virtual void DescribirEstado(EscritorJson& json);
    /// What puts the control back to how it stands now: whether it is shown, and the text or the choice that it holds.
    virtual std::function<void()> Recordar();

    void PonerVista(VistaControl* vista) { vista_ = vista; }
    VistaControl* Vista() const { return vista_; }
    /// Tells the view that the control changed.
    void Notificar() const;

  protected:
    /// Describir for a control that shows one text.
    static bool DescribirTexto(EscritorJson& json, const std::string& texto);
    /// Recordar for a control that holds a value besides.
    template <typename T>
    std::function<void()> RecordarCon(Propiedad<T>& propiedad) {
        return [base = Control::Recordar(), &propiedad, valor = propiedad()] {
            base();
            propiedad = valor;
        };
    }
    /// For the form itself, which no control contains.
    Control(Formulario* propia, std::string nombre) : forma_(propia), nombre_(std::move(nombre)) {}

  private:
    Formulario* forma_;
    std::string nombre_;
    Control* contenedor_ = nullptr;
    int pagina_ = -1;
    VistaControl* vista_ = nullptr;
};

template <typename T>
Propiedad<T>& Propiedad<T>::operator=(T nuevo) {
    if (nuevo == valor_) {
        return *this;
    }
    valor_ = std::move(nuevo);
    dueno_.Notificar();
    if (alCambiar_) {
        alCambiar_();
    }
    return *this;
}

}  // namespace cuencalia
