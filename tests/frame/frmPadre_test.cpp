#include "frame/reportes/frmPadre.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "frame/reportes/reporte.h"
#include "frame/reportes/rtf.h"
#include "guion/plataformaguion.h"

namespace cuencalia {
namespace {

namespace fs = std::filesystem;

using Textos = std::vector<std::string>;

/// Writes down what the printer and the file dialogs were asked besides.
class Sistema : public PlataformaGuion {
  public:
    void ImprimirDocumento(Formulario& documento, bool soloSeleccion, const std::string& titulo) override {
        if (sinImpresora) {
            throw ErrorEjecucion(kArgumentoNoValido);
        }
        PlataformaGuion::ImprimirDocumento(documento, soloSeleccion, titulo);
        impresion = titulo + (soloSeleccion ? ": selección de " : ": todo ") + documento.Caption();
    }
    void ElegirArchivo(ModoArchivo modo, const std::string& titulo, const std::string& filtro,
                       std::string& nombre) override {
        ++dialogos;
        guardar = modo == ModoArchivo::Guardar;
        PlataformaGuion::ElegirArchivo(modo, titulo, filtro, nombre);
    }

    std::string impresion;
    int dialogos = 0;
    bool guardar = false;
    bool sinImpresora = false;
};

class FrmPadre : public testing::Test {
  protected:
    FrmPadre() {
        fs::create_directories(carpeta_);
        Abrir();
    }
    ~FrmPadre() override { fs::remove_all(carpeta_); }

    void Abrir() {
        app.Despachar([&] { app.ModuloAbrir("frmPadre"); });
    }
    frmPadre& Padre() { return dynamic_cast<frmPadre&>(*app.Cargada("frmPadre")); }
    frmDocumento* Activo() { return Padre().ActiveForm(); }
    EditorTextoRico& Texto() { return Activo()->rtfText.Editor(); }
    void Elegir(Menu& entrada) {
        app.Despachar([&] { entrada.Elegir(); });
    }
    void ElegirCon(Menu& entrada, const std::string& archivo) {
        sistema.archivo = archivo;
        Elegir(entrada);
    }
    void CerrarTodos() {
        while (Activo() != nullptr) {
            app.CerrarVentana(*Activo());
        }
    }
    std::string Ruta(const std::string& nombre) const { return (carpeta_ / nombre).string(); }
    static std::string TextoGuardado(const std::string& ruta) {
        EditorTextoRico editor;
        editor.LoadFile(ruta);
        return editor.Text();
    }
    std::vector<int> Errores() const {
        std::vector<int> numeros;
        for (const ErrorEjecucion& error : sistema.errores) {
            numeros.push_back(error.Numero());
        }
        return numeros;
    }

    fs::path carpeta_ = fs::path(testing::TempDir()) / ("cuencalia_padre_" + std::to_string(getpid()));
    Sistema sistema;
    Aplicacion app{sistema, {{"frmPadre", [](Aplicacion& a) { return std::make_unique<frmPadre>(a); }}}};
};

TEST_F(FrmPadre, MenusAlPieDeLaLetra) {
    const frmPadre& padre = Padre();
    EXPECT_EQ(padre.Caption(), "Guardar datos");
    EXPECT_EQ(padre.sbStatusBar.Panel(1), "Estado");
    const auto entradas = [](const Menu& menu) {
        Textos textos{menu.Caption()};
        for (const Menu* entrada : menu.Entradas()) {
            textos.push_back(entrada->Nombre() + " " + entrada->Caption());
        }
        return textos;
    };
    ASSERT_EQ(padre.Barra().size(), 2u);
    EXPECT_EQ(entradas(*padre.Barra()[0]),
              (Textos{"&Archivo", "mnuFileNew &Nuevo", "mnuFileOpen A&brir...", "mnuFileBar0 -", "mnuFileSave &Guardar",
                      "mnuFileSaveAs Guardar &como ...", "mnuFileBar1 -", "mnuFilePrint I&mprimir...", "mnuFileBar4 -",
                      "mnuFileExit &Salir"}));
    EXPECT_EQ(entradas(*padre.Barra()[1]),
              (Textos{"&Edición", "mnuEditCut Cor&tar", "mnuEditCopy &Copiar", "mnuEditPaste &Pegar"}));
}

TEST_F(FrmPadre, LosDocumentosSeNumeranMientrasVivaElPrograma) {
    EXPECT_EQ(Activo()->Caption(), "Documento 1");
    Elegir(Padre().mnuFileNew);
    EXPECT_EQ(Activo()->Caption(), "Documento 2");
    app.CerrarVentana(*Activo());
    EXPECT_EQ(Activo()->Caption(), "Documento 1") << "the one that was active before";
    Elegir(Padre().mnuFileNew);
    EXPECT_EQ(Activo()->Caption(), "Documento 3");
    Elegir(Padre().mnuFileExit);
    EXPECT_EQ(app.Cargada("frmPadre"), nullptr);
    EXPECT_FALSE(sistema.terminado);
    Abrir();
    EXPECT_EQ(Activo()->Caption(), "Documento 4");
    EXPECT_EQ(Activo()->rtfText.Leer().Text(), "");
    app.Despachar([&] { Texto().SelText("sin guardar"); });
    app.CerrarVentana(Padre());
    EXPECT_EQ(app.Cargada("frmPadre"), nullptr);
    EXPECT_TRUE(sistema.mensajes.empty()) << "nobody asks about what was not saved";
}

TEST_F(FrmPadre, MostrarlaOtraVezConservaLosDocumentos) {
    Texto().SelText("a");
    Abrir();
    EXPECT_EQ(Activo()->Caption(), "Documento 1");
    EXPECT_EQ(Activo()->rtfText.Leer().Text(), "a");
}

TEST_F(FrmPadre, LosReportesSeAcumulanEnElDocumentoActivo) {
    const auto informar = [&](const std::string& titulo) {
        app.Despachar([&] {
            app.ModuloAbrir("frmPadre");
            Reporte(Texto()).Cabecera(titulo);
        });
    };
    const Textos cabeza{"Resultados", "", "Uno", "", "", ""};
    informar("Uno");
    EXPECT_EQ(Activo()->rtfText.Leer().Lineas(), cabeza);
    informar("Dos");
    EXPECT_EQ(Activo()->rtfText.Leer().Text(), "Resultados\n\nUno\n\n\nResultados\n\nDos\n\n\n");
    Elegir(Padre().mnuFileNew);
    informar("Uno");
    EXPECT_EQ(Activo()->Caption(), "Documento 2");
    EXPECT_EQ(Activo()->rtfText.Leer().Lineas(), cabeza);
    Texto().SelStart(0);
    informar("Tres");
    EXPECT_EQ(Activo()->rtfText.Leer().Text(), "Resultados\n\nTres\n\n\nResultados\n\nUno\n\n\n")
        << "where the user left the cursor";
}

TEST_F(FrmPadre, GuardarPreguntaMientrasElTituloSeaDeDocumento) {
    Texto().SelText("Año 1998");
    for (const std::string archivo : {"uno.rtf", "dos.rtf"}) {
        ElegirCon(Padre().mnuFileSave, Ruta(archivo));
        EXPECT_EQ(sistema.tituloDialogo, "Guardar");
        EXPECT_EQ(sistema.filtroDialogo, "Archivos (*.RTF)|*.RTF");
        EXPECT_TRUE(sistema.guardar);
        EXPECT_EQ(TextoGuardado(Ruta(archivo)), "Año 1998");
        EXPECT_EQ(Activo()->Caption(), "Documento 1");
    }
    Elegir(Padre().mnuFileSave);  // cancelled
    EXPECT_EQ(sistema.dialogos, 3);
    EXPECT_EQ(std::distance(fs::directory_iterator(carpeta_), {}), 2);

    // The first 8 characters alone tell, so a file called like that is asked for again.
    Activo()->Caption = "Documents/serie.rtf";
    Elegir(Padre().mnuFileSave);
    EXPECT_EQ(sistema.dialogos, 4);
    EXPECT_TRUE(sistema.errores.empty());
}

TEST_F(FrmPadre, GuardarComoCambiaElTitulo) {
    Texto().SelText("a");
    Elegir(Padre().mnuFileSaveAs);
    EXPECT_EQ(sistema.tituloDialogo, "Guardar como");
    EXPECT_EQ(sistema.filtroDialogo, "Archivos RTF(*.RTF)|*.RTF");
    EXPECT_EQ(Activo()->Caption(), "Documento 1") << "cancelled";
    ElegirCon(Padre().mnuFileSaveAs, Ruta("uno.rtf"));
    EXPECT_EQ(Activo()->Caption(), Ruta("uno.rtf"));
    EXPECT_EQ(TextoGuardado(Ruta("uno.rtf")), "a");
    Texto().SelText("b");
    sistema.dialogos = 0;
    Elegir(Padre().mnuFileSave);
    EXPECT_EQ(sistema.dialogos, 0) << "its name is known now";
    EXPECT_EQ(TextoGuardado(Ruta("uno.rtf")), "ab");
}

TEST_F(FrmPadre, AbrirReemplazaElTexto) {
    std::ofstream(Ruta("serie.rtf")) << R"({\rtf1\pard\qc a\'f1o\par})";
    Texto().SelText("lo de antes");
    Elegir(Padre().mnuFileOpen);
    EXPECT_EQ(sistema.tituloDialogo, "Abrir");
    EXPECT_EQ(sistema.filtroDialogo, "Archivos (*.RTF)|*.RTF");
    EXPECT_FALSE(sistema.guardar);
    EXPECT_EQ(Activo()->rtfText.Leer().Text(), "lo de antes") << "cancelled";
    ElegirCon(Padre().mnuFileOpen, Ruta("serie.rtf"));
    EXPECT_EQ(Activo()->rtfText.Leer().Text(), "año");
    EXPECT_EQ(Activo()->rtfText.Leer().SelAlignment(), 2);
    EXPECT_EQ(Activo()->Caption(), Ruta("serie.rtf"));
    EXPECT_TRUE(sistema.mensajes.empty());

    CerrarTodos();
    ElegirCon(Padre().mnuFileOpen, Ruta("serie.rtf"));
    EXPECT_EQ(Activo()->rtfText.Leer().Text(), "año") << "a document is made first";
    CerrarTodos();
    Elegir(Padre().mnuFileOpen);
    EXPECT_EQ(Activo()->Caption(), "Documento 3") << "also when the dialog is cancelled then";
}

TEST_F(FrmPadre, LosErroresDeArchivoSeVenYElDocumentoQueda) {
    Texto().SelText("a");
    ElegirCon(Padre().mnuFileOpen, Ruta("no hay.rtf"));
    EXPECT_EQ(Activo()->Caption(), "Documento 1");
    ElegirCon(Padre().mnuFileSave, Ruta("no/hay.rtf"));
    fs::create_directory(Ruta("carpeta.rtf"));
    ElegirCon(Padre().mnuFileSave, Ruta("carpeta.rtf"));
    EXPECT_EQ(Errores(), (std::vector<int>{kArchivoNoEncontrado, kRutaNoEncontrada, kAccesoRuta}));
    // The title is set before the file is written.
    ElegirCon(Padre().mnuFileSaveAs, Ruta("no/hay.rtf"));
    EXPECT_EQ(Activo()->Caption(), Ruta("no/hay.rtf"));
    EXPECT_EQ(Errores().back(), kRutaNoEncontrada);
    EXPECT_EQ(Activo()->rtfText.Leer().Text(), "a");
    CerrarTodos();
    Elegir(Padre().mnuFileSave);
    EXPECT_EQ(Errores().back(), kObjetoNoEstablecido);
}

TEST_F(FrmPadre, ElPortapapelesLlevaRtf) {
    Texto().SelRTF(R"({\rtf1\pard\qc uno\par\pard\b dos\b0  tres})");
    const TextoRico antes = Texto().Documento();
    Texto().SelStart(4);
    Texto().SelLength(5);
    Elegir(Padre().mnuEditCopy);
    ASSERT_TRUE(EsRtf(sistema.portapapeles));
    EXPECT_EQ(LeerRtf(sistema.portapapeles, ClaseRtf::kFragmento).Texto(), "dos t");
    EXPECT_EQ(Texto().SelLength(), 5);
    sistema.portapapeles.clear();
    Elegir(Padre().mnuEditCut);
    ASSERT_TRUE(EsRtf(sistema.portapapeles));
    EXPECT_EQ(Texto().Text(), "uno\nres");
    Elegir(Padre().mnuEditPaste);
    EXPECT_EQ(Texto().Documento(), antes);
    EXPECT_EQ(Texto().SelStart(), 9);
    sistema.portapapeles = "ñ\n";
    Elegir(Padre().mnuEditPaste);
    EXPECT_EQ(Texto().Text(), "uno\ndos tñ\nres");
}

TEST_F(FrmPadre, Imprimir) {
    Texto().SelText("abc");
    Elegir(Padre().mnuFilePrint);
    EXPECT_EQ(sistema.impresion, "Imprimir: todo Documento 1");
    Texto().SelStart(1);
    Texto().SelLength(1);
    Elegir(Padre().mnuFilePrint);
    EXPECT_EQ(sistema.impresion, "Imprimir: selección de Documento 1");
    sistema.sinImpresora = true;
    Elegir(Padre().mnuFilePrint);
    EXPECT_TRUE(sistema.errores.empty());
}

TEST_F(FrmPadre, SinDocumentosNoSeHaceNada) {
    CerrarTodos();
    sistema.portapapeles = "x";
    for (Menu* entrada : {&Padre().mnuFileSaveAs, &Padre().mnuFilePrint, &Padre().mnuEditCut, &Padre().mnuEditCopy,
                          &Padre().mnuEditPaste}) {
        Elegir(*entrada);
    }
    EXPECT_EQ(sistema.dialogos, 0);
    EXPECT_TRUE(sistema.impresas.empty());
    EXPECT_EQ(sistema.portapapeles, "x");
    EXPECT_TRUE(sistema.errores.empty());
    EXPECT_EQ(Activo(), nullptr);
}

TEST_F(FrmPadre, ElLugarDeLaVentanaSeGuarda) {
    const auto lugar = [&] { return std::vector<double>{Padre().Left, Padre().Top, Padre().Width, Padre().Height}; };
    EXPECT_EQ(lugar(), (std::vector<double>{1000, 1000, 6500, 6500}));
    EXPECT_TRUE(sistema.ajustes.empty());
    Padre().Left = -150.5;
    Padre().Top = 300;
    Padre().Width = 12000;
    Padre().Height = 9000;
    Elegir(Padre().mnuFileExit);
    const std::map<std::string, std::string> guardado{
        {"MainLeft", "-150.5"}, {"MainTop", "300"}, {"MainWidth", "12000"}, {"MainHeight", "9000"}};
    EXPECT_EQ(sistema.ajustes, guardado);
    Abrir();
    EXPECT_EQ(lugar(), (std::vector<double>{-150.5, 300, 12000, 9000}));
    Padre().Minimizada = true;
    Padre().Left = -30000;
    app.CerrarVentana(Padre());
    EXPECT_EQ(sistema.ajustes, guardado) << "a minimised window leaves them as they were";
}

}  // namespace
}  // namespace cuencalia
