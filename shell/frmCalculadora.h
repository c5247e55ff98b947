#pragma once

#include <deque>
#include <vector>

#include "frame/controles/aplicacion.h"
#include "shell/bbcalc.h"

namespace cuencalia {

/// The pocket calculator: each key calls a method of the engine. All modules share this window.
class frmCalculadora : public Formulario {
  public:
    explicit frmCalculadora(Aplicacion& app);

    BBCalc BBCalc1{*this, "BBCalc1"};
    OptionButton OptDegree{*this, "OptDegree", "deg", true};
    OptionButton OptRadian{*this, "OptRadian", "rad"};
    Label Image1{*this, "Image1", "M", Papel::Encabezado};  ///< Shown while the memory holds a number.
    CommandButton cmdDecimal{*this, "cmdDecimal", ".", "Punto decimal"};
    CommandButton cmdValue{*this, "cmdValue", "±", "Convertir positivo/negativo"};
    CommandButton cmdEquals{*this, "cmdEquals", "="};
    CommandButton cmdBackSpace{*this, "cmdBackSpace", "←", "Backspace"};
    Menu mnuEditbase{*this, "mnuEditbase", "&Edit"};
    Menu mnuEditCopy{mnuEditbase, "mnuEdit(0)", "&Copy"};
    Menu mnuEditPaste{mnuEditbase, "mnuEdit(1)", "&Paste"};
    /// Control arrays; the number in an element's name is the code that its key passes to the engine: "cmdOp(4)".
    std::deque<CommandButton> cmdNum, cmdClear, cmdOp, cmdSci, cmdMem;

    void Form_Load() override;

  protected:
    Disposicion Disponer() override;

  private:
    struct Tecla {
        int codigo;
        const char* caption;
        const char* toolTip;
    };
    using Accion = void (BBCalc::*)(int);

    void HacerTeclas(std::deque<CommandButton>& arreglo, const std::string& nombre, const std::vector<Tecla>& teclas,
                     Accion accion);
    void ElegirModo();
    void BBCalc1_Change();
    void mnuEditbase_Click();
};

}  // namespace cuencalia
