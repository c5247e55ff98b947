#pragma once

#include "frame/controles/aplicacion.h"
#include "frame/controles/dialogo.h"
#include "frame/reportes/richtextbox.h"

namespace cuencalia {

/// A report document. Its Caption reads "Documento" and a number until it is opened from a file or saved under a new
/// name; then it is the file name.
class frmDocumento : public Formulario {
  public:
    frmDocumento(Aplicacion& app, const std::string& caption);

    RichTextBox rtfText{*this, "rtfText"};

    bool EsNuevo() const;
    /// The text is now that of a file.
    void AnotarGuardado();
    /// Whether the text is not that of a file.
    bool ConTrabajo() override;

  protected:
    Disposicion Disponer() override { return Columna({Disposicion(rtfText).Estira(1)}); }

  private:
    std::string guardado_;  ///< The text as RTF when it was that of a file.
};

/// The parent window of the report documents, a small word processor.
class frmPadre : public Formulario {
  public:
    explicit frmPadre(Aplicacion& app);

    /// Width and height, in twips, of the window of a user who has chosen none.
    static constexpr double kLargoPorOmision = 6500;

    CommonDialog dlgCommonDialog{*this, "dlgCommonDialog"};
    StatusBar sbStatusBar{*this, "sbStatusBar", 3};
    Menu mnuFile{*this, "mnuFile", "&Archivo"};
    Menu mnuFileNew{mnuFile, "mnuFileNew", "&Nuevo"};
    Menu mnuFileOpen{mnuFile, "mnuFileOpen", "A&brir..."};
    Menu mnuFileBar0{mnuFile, "mnuFileBar0", "-"};
    Menu mnuFileSave{mnuFile, "mnuFileSave", "&Guardar"};
    Menu mnuFileSaveAs{mnuFile, "mnuFileSaveAs", "Guardar &como ..."};
    Menu mnuFileBar1{mnuFile, "mnuFileBar1", "-"};
    Menu mnuFilePrint{mnuFile, "mnuFilePrint", "I&mprimir..."};
    Menu mnuFileBar4{mnuFile, "mnuFileBar4", "-"};
    Menu mnuFileExit{mnuFile, "mnuFileExit", "&Salir"};
    Menu mnuEdit{*this, "mnuEdit", "&Edición"};
    Menu mnuEditCut{mnuEdit, "mnuEditCut", "Cor&tar"};
    Menu mnuEditCopy{mnuEdit, "mnuEditCopy", "&Copiar"};
    Menu mnuEditPaste{mnuEdit, "mnuEditPaste", "&Pegar"};

    /// Position and size of the window in twips, kept in the user's settings.
    Propiedad<double> Left{*this}, Top{*this}, Width{*this}, Height{*this};
    Propiedad<bool> Minimizada{*this};

    void Form_Load() override;
    void Form_Unload() override;

    /// Opens a new empty document.
    void nuevodoc();
    /// The active document, or null when all were closed.
    frmDocumento* ActiveForm() const;

    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFilePrint_Click();
    void mnuEditCut_Click();
    void mnuEditCopy_Click();
    void mnuEditPaste_Click();

  protected:
    Disposicion Disponer() override { return Columna({sbStatusBar}); }
};

}  // namespace cuencalia
