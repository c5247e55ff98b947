#include "frame/reportes/frmPadre.h"

#include <cmath>

#include "frame/base/textos.h"
#include "frame/reportes/rtf.h"

namespace cuencalia {

namespace {

struct Ajuste {
    const char* clave;
    Propiedad<double> frmPadre::*propiedad;
    const char* porOmision;
};

const Ajuste kAjustes[] = {{"MainLeft", &frmPadre::Left, "1000"},
                           {"MainTop", &frmPadre::Top, "1000"},
                           {"MainWidth", &frmPadre::Width, "6500"},
                           {"MainHeight", &frmPadre::Height, "6500"}};

/// A setting that is no length of a screen counts as absent, and is mended.
double LeerLugar(Plataforma& sistema, const Ajuste& ajuste) {
    constexpr double kMaxTwips = 1e6;
    try {
        const double twips = CSng(Val(sistema.LeerAjuste(ajuste.clave, ajuste.porOmision))).valor();
        if (std::abs(twips) <= kMaxTwips) {
            return twips;
        }
    } catch (const ErrorEjecucion&) {
        // A number beyond a Single: mended below.
    }
    sistema.GuardarAjuste(ajuste.clave, ajuste.porOmision);
    return Val(ajuste.porOmision).valor();
}

}  // namespace

frmDocumento::frmDocumento(Aplicacion& app, const std::string& caption) : Formulario(app, "frmDocumento", caption) {}

bool frmDocumento::EsNuevo() const { return Subtexto(Caption(), 0, 8) == "Document"; }

void frmDocumento::AnotarGuardado() {
    guardado_ = EscribirRtf(rtfText.Leer().Documento(), ClaseRtf::kDocumento);
    rtfText.AnotarGuardado();
}

bool frmDocumento::ConTrabajo() {
    const EditorTextoRico& texto = rtfText.Leer();
    return texto.Longitud() > 0 && EscribirRtf(texto.Documento(), ClaseRtf::kDocumento) != guardado_;
}

frmPadre::frmPadre(Aplicacion& app) : Formulario(app, "frmPadre", "Guardar datos") {
    sbStatusBar.DeclararHora();
    sbStatusBar.PonerPanel(1, "Estado");
    mnuFileNew.Click.Conectar([this] { nuevodoc(); });
    mnuFileOpen.Click.Conectar([this] { mnuFileOpen_Click(); });
    mnuFileSave.Click.Conectar([this] { mnuFileSave_Click(); });
    mnuFileSaveAs.Click.Conectar([this] { mnuFileSaveAs_Click(); });
    mnuFilePrint.Click.Conectar([this] { mnuFilePrint_Click(); });
    mnuFileExit.Click.Conectar([this] { App().Unload(*this); });
    mnuEditCut.Click.Conectar([this] { mnuEditCut_Click(); });
    mnuEditCopy.Click.Conectar([this] { mnuEditCopy_Click(); });
    mnuEditPaste.Click.Conectar([this] { mnuEditPaste_Click(); });
}

void frmPadre::Form_Load() {
    for (const Ajuste& ajuste : kAjustes) {
        this->*ajuste.propiedad = LeerLugar(App().Sistema(), ajuste);
    }
    nuevodoc();
}

void frmPadre::Form_Unload() {
    if (Minimizada) {
        return;
    }
    for (const Ajuste& ajuste : kAjustes) {
        App().Sistema().GuardarAjuste(ajuste.clave, CStr((this->*ajuste.propiedad)()));
    }
}

void frmPadre::nuevodoc() {
    const int numero = ++App().Globales().documentos;
    App().AbrirHija(*this, std::make_unique<frmDocumento>(App(), "Documento " + CStr(numero)));
}

frmDocumento* frmPadre::ActiveForm() const { return static_cast<frmDocumento*>(App().HijaActiva(*this)); }

void frmPadre::mnuFileOpen_Click() {
    if (ActiveForm() == nullptr) {
        nuevodoc();
    }
    dlgCommonDialog.DialogTitle = "Abrir";
    dlgCommonDialog.Filter = "Archivos (*.RTF)|*.RTF";
    dlgCommonDialog.FileName.clear();
    dlgCommonDialog.ShowOpen();
    if (dlgCommonDialog.FileName.empty()) {
        return;
    }
    frmDocumento& documento = *ActiveForm();
    documento.rtfText.Editor().LoadFile(dlgCommonDialog.FileName);
    documento.Caption = dlgCommonDialog.FileName;
    documento.AnotarGuardado();
}

void frmPadre::mnuFileSave_Click() {
    frmDocumento* documento = ActiveForm();
    if (documento == nullptr) {
        throw ErrorEjecucion(kObjetoNoEstablecido);
    }
    if (!documento->EsNuevo()) {
        documento->rtfText.Leer().SaveFile(documento->Caption);
        documento->AnotarGuardado();
        return;
    }
    dlgCommonDialog.DialogTitle = "Guardar";
    dlgCommonDialog.Filter = "Archivos (*.RTF)|*.RTF";
    dlgCommonDialog.FileName.clear();
    dlgCommonDialog.ShowSave();
    if (!dlgCommonDialog.FileName.empty()) {
        documento->rtfText.Leer().SaveFile(dlgCommonDialog.FileName);
        documento->AnotarGuardado();
    }
}

void frmPadre::mnuFileSaveAs_Click() {
    frmDocumento* documento = ActiveForm();
    if (documento == nullptr) {
        return;
    }
    dlgCommonDialog.DialogTitle = "Guardar como";
    dlgCommonDialog.Filter = "Archivos RTF(*.RTF)|*.RTF";
    dlgCommonDialog.FileName.clear();
    dlgCommonDialog.ShowSave();
    if (!dlgCommonDialog.FileName.empty()) {
        documento->Caption = dlgCommonDialog.FileName;
        documento->rtfText.Leer().SaveFile(dlgCommonDialog.FileName);
        documento->AnotarGuardado();
    }
}

void frmPadre::mnuFilePrint_Click() {
    frmDocumento* documento = ActiveForm();
    if (documento == nullptr) {
        return;
    }
    try {
        App().Sistema().ImprimirDocumento(*documento, documento->rtfText.Leer().SelLength() > 0, "Imprimir");
    } catch (const ErrorEjecucion&) {
        // A failed print job is ignored here: it does not affect the document.
    }
}

void frmPadre::mnuEditCopy_Click() {
    if (frmDocumento* documento = ActiveForm()) {
        App().Sistema().PonerEnPortapapeles(documento->rtfText.Leer().SelRTF());
    }
}

void frmPadre::mnuEditCut_Click() {
    if (frmDocumento* documento = ActiveForm()) {
        mnuEditCopy_Click();
        documento->rtfText.Editor().SelText("");
    }
}

void frmPadre::mnuEditPaste_Click() {
    if (frmDocumento* documento = ActiveForm()) {
        documento->rtfText.Editor().Pegar(App().Sistema().TextoDelPortapapeles());
    }
}

}  // namespace cuencalia
