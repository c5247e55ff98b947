#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "frame/controles/control.h"

namespace cuencalia {

class FlexGrid;

/// A colour of the screen, 0 to 255 a channel.
struct Color {
    std::uint8_t rojo = 0, verde = 0, azul = 0;
    bool operator==(const Color&) const = default;
};

/// A line of text that the user writes. Positions count characters, not bytes.
class TextBox : public Control {
  public:
    TextBox(Formulario& forma, std::string nombre, std::string nombreAccesible = {});

    Propiedad<std::string> Text{*this, {}, [this] { AlCambiarTexto(); }};
    Propiedad<int> SelStart{*this};
    Propiedad<int> SelLength{*this};
    Propiedad<bool> Locked{*this};  ///< True on boxes for results: the text can be selected and copied, not edited.

    Evento<> Change;

    /// The grid over whose current cell the box floats, or null.
    void FlotarSobre(FlexGrid& grid) { sobre_ = &grid; }
    FlexGrid* Sobre() const { return sobre_; }

    bool AceptaFoco() const override { return true; }
    /// Replaces the selection by the character, or inserts it at the insertion point; Backspace, Delete and the arrow
    /// keys edit and move as usual. Ctrl+Z and Ctrl+Y undo and redo what the user wrote since the program set the text.
    void TeclaPorDefecto(int codigo, int caracter) override;
    bool Describir(EscritorJson& json) override { return DescribirTexto(json, Text); }
    std::function<void()> Recordar() override { return RecordarCon(Text); }
    /// Replaces the selection by the first line of a copied text; a number with a decimal comma is written with a
    /// point.
    void Pegar(const std::string& texto);
    /// The user changed the text by other means than keys (paste, an input method). `selStart` and `selLength` tell
    /// where the cursor and the selection are now.
    void EscritoPorUsuario(const std::string& texto, int selStart, int selLength);
    void Seleccionar(int inicio, int longitud);

  private:
    void AlCambiarTexto();
    void Reemplazar(int inicio, int cuantos, const std::string& nuevo);
    void Borrar(int desplazamiento);

    struct Marca {
        int inicio, longitud;
    };
    struct Estado {
        std::string texto;
        Marca marca;
    };
    /// Takes the last state of `de`, and leaves the present one in `a`.
    void Volver(std::vector<Estado>& de, std::vector<Estado>& a);

    FlexGrid* sobre_ = nullptr;
    /// Cursor and selection to be set when Change fires for a text that the user wrote.
    std::optional<Marca> trasEscribir_;
    std::vector<Estado> antes_, despues_;
};

/// What a label is for; the screen chooses its appearance by it.
enum class Papel {
    Texto,
    Encabezado,  ///< Heading of a part of the window.
    Nota,        ///< Explanation; may take several lines.
    Titulo,      ///< The program's name, over its background picture.
    Lema,        ///< The line below the program's name.
    Pantalla,    ///< The number on the calculator's display, right-aligned.
    Resultado,   ///< A result in words; may take several lines.
};

/// A text that names another control or tells the user something.
class Label : public Control {
  public:
    Label(Formulario& forma, std::string nombre, std::string caption = {}, Papel papel = Papel::Texto);

    Papel SuPapel() const { return papel_; }

    Propiedad<std::string> Caption{*this};
    bool Describir(EscritorJson& json) override { return DescribirTexto(json, Caption); }
    std::function<void()> Recordar() override { return RecordarCon(Caption); }
    /// Sets the control that the label names: the label's access key moves the focus to it.
    void Nombra(Control& control) { nombrado_ = &control; }
    Control* Nombrado() const { return nombrado_; }

  private:
    Papel papel_;
    Control* nombrado_ = nullptr;
};

class CommandButton : public Control {
  public:
    CommandButton(Formulario& forma, std::string nombre, std::string caption, std::string toolTip = {});

    Propiedad<std::string> Caption{*this};  ///< `&` marks the access key.
    bool Describir(EscritorJson& json) override { return DescribirTexto(json, Caption); }
    Propiedad<std::string> Picture{*this};  ///< Name of the picture shown on the button; empty for none.
    Propiedad<Color> BackColor{*this};
    Propiedad<bool> Cancel{*this};    ///< True: Escape presses the button, wherever the focus is in its window.
    Propiedad<bool> ConColor{*this};  ///< True: BackColor is used; false: the look of the other buttons.

    bool AceptaFoco() const override { return true; }
    /// ENTER and the space bar press the button.
    void TeclaPorDefecto(int codigo, int caracter) override;
};

/// One of several choices. Turning an option on turns off the others in the same frame or tab page, and fires Click,
/// also when the program does it.
class OptionButton : public Control {
  public:
    OptionButton(Formulario& forma, std::string nombre, std::string caption, bool encendida = false);

    Propiedad<std::string> Caption{*this};
    Propiedad<bool> Value;
    bool Describir(EscritorJson& json) override { return DescribirTexto(json, Caption); }
    void DescribirEstado(EscritorJson& json) override;
    std::function<void()> Recordar() override { return RecordarCon(Value); }

    bool AceptaFoco() const override { return true; }
    void TeclaPorDefecto(int codigo, int caracter) override;

  private:
    void AlCambiarValor();
};

/// A list of entries with an editable text, which need not be one of the entries.
class ComboBox : public Control {
  public:
    ComboBox(Formulario& forma, std::string nombre, std::vector<std::string> entradas = {},
             std::string nombreAccesible = {});

    Propiedad<std::string> Text{*this, {}, [this] { Change(); }};
    Propiedad<std::vector<std::string>> List{*this};
    Propiedad<bool> Editable{*this, true};

    Evento<> Change;

    /// Position (from 0) of the entry equal to Text, or -1.
    int ListIndex() const;
    /// Picks an entry as if the user did: sets Text and fires Click.
    void Elegir(int indice);
    bool Describir(EscritorJson& json) override { return DescribirTexto(json, Text); }
    std::function<void()> Recordar() override { return RecordarCon(Text); }

    bool AceptaFoco() const override { return true; }
    void TeclaPorDefecto(int codigo, int caracter) override;
};

/// A titled group of controls.
class Frame : public Control {
  public:
    Frame(Formulario& forma, std::string nombre, std::string caption = {});

    Propiedad<std::string> Caption{*this};
    bool Describir(EscritorJson& json) override { return DescribirTexto(json, Caption); }
};

/// A tab control: pages, each with a tab.
class SSTab : public Control {
  public:
    /// Its accessible name is the titles of its pages, unless the form gives it another one.
    SSTab(Formulario& forma, std::string nombre, std::vector<std::string> titulos);

    const std::vector<std::string>& Titulos() const { return titulos_; }
    Propiedad<int> Tab{*this, 0, [this] { AlCambiarFicha(); }};  ///< The page in front, from 0.

    bool AceptaFoco() const override { return true; }
    bool MuestraPagina(int pagina) const override { return pagina == Tab; }
    void MostrarPagina(int pagina) override { Tab = pagina; }
    void TeclaPorDefecto(int codigo, int caracter) override;

  private:
    void AlCambiarFicha();

    std::vector<std::string> titulos_;
};

/// The line at the foot of a window, divided into panels.
class StatusBar : public Control {
  public:
    StatusBar(Formulario& forma, std::string nombre, int paneles = 1);

    const std::string& Panel(int numero) const;  ///< From 1. Error 9 for a panel that does not exist.
    void PonerPanel(int numero, const std::string& texto);
    int Paneles() const { return static_cast<int>(textos_.size()); }
    /// Says that the panels beside the first show date and time, which are not told.
    void DeclararHora() { conHora_ = true; }
    bool Describir(EscritorJson& json) override;

  private:
    std::vector<std::string> textos_;
    bool conHora_ = false;
};

/// The names of the pictures that a form's buttons show, numbered from 1. Each button has two: the normal picture has
/// an odd number, the lit one the next even number.
class ImageList : public Control {
  public:
    ImageList(Formulario& forma, std::string nombre);

    /// Adds the two pictures of a button and returns the number of the normal one.
    int AgregarPar(const std::string& imagen);
    const std::string& Imagen(int numero) const;  ///< Error 9 for a number that does not exist.

  private:
    std::vector<std::string> imagenes_;
};

class PictureBox : public Control {
  public:
    /// A picture among the other controls, or the background of the whole window when `deFondo`.
    PictureBox(Formulario& forma, std::string nombre, std::string imagen = {}, bool deFondo = false);

    bool EsFondo() const { return deFondo_; }

    Propiedad<std::string> Picture{*this};

  private:
    bool deFondo_;
};

/// An entry of a menu, or a whole menu when it has entries of its own. The caption "-" is a separator.
class Menu : public Control {
  public:
    /// A menu of the menu bar, or one that pops up when `enBarra` is false.
    Menu(Formulario& forma, std::string nombre, std::string caption, bool enBarra = true);
    /// An entry of `padre`.
    Menu(Menu& padre, std::string nombre, std::string caption);

    Propiedad<std::string> Caption{*this};
    bool Describir(EscritorJson& json) override { return DescribirTexto(json, Caption); }
    const std::vector<Menu*>& Entradas() const { return entradas_; }
    bool EsSeparador() const { return Caption() == "-"; }
    /// Fires Click unless the entry is greyed; returns whether it did.
    bool Elegir();

  private:
    std::vector<Menu*> entradas_;
};

}  // namespace cuencalia
