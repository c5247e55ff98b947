#include "frame/reportes/reporte.h"

#include <QPdfWriter>
#include <random>

#include "escritorio/servicios/impresion.h"
#include "escritorio/ventanas/ventanapadre.h"
#include "escritorio/vistas/documentorico.h"
#include "frame/reportes/frmPadre.h"
#include "frame/reportes/rtf.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

/// Something of everything that a text can have.
const char* const kVariado =
    R"({\rtf1{\fonttbl{\f0 Courier New;}{\f1 Arial;}}{\colortbl;\red0\green0\blue0;\red255\green255\blue0;}\f0\fs20)"
    R"(\pard\qc\sb200\sa120\f1\fs25\b T\'edtulo\b0\f0\fs20\par)"
    R"(\pard\li700\ri300\fi-250\tx1500\tx3100 H{\sub 2}O\tab m{\super 3}\tab \u-10179?\u-8704?\par\par)"
    R"(\pard\qj{\i cursiva}{\ul sub}{\strike no}{\cf1 negro}{\highlight2 luz}\par\pard\qr fin})";

/// A user with the window of the documents before him.
class Reportes : public Mesa {
  protected:
    Reportes() {
        QSettings().remove(QStringLiteral("Settings"));
        Abrir("frmPadre");
    }

    frmPadre& Padre() { return static_cast<frmPadre&>(Forma("frmPadre")); }
    RichTextBox& Caja() { return Padre().ActiveForm()->rtfText; }
    std::string Texto() { return Caja().Leer().Text(); }
    QTextEdit& Editor() { return Widget<QTextEdit>(Caja()); }
    void Informar(const std::string& rtf = "<reporte>") {
        Hacer([&] { Caja().Editor().SelRTF(rtf); });
    }
    QTabBar& Fichas() { return *Ventana("frmPadre")->findChild<QTabBar*>(); }
};

// Any order of insertions and deletions gives what an editor that no widget has ever shown has, also when a user types
// and takes back what he typed between one step of the program and the next.
TEST_F(Reportes, ElProgramaNoVeNadaEntreElYElTexto) {
    const Textos trozos{"a", "\n", "ñ😀", "uno\ndos\n", "", kVariado};
    std::mt19937 azar(1998);
    const auto hasta = [&azar](int maximo) { return std::uniform_int_distribution<int>(0, maximo)(azar); };
    EditorTextoRico esperado;
    for (int paso = 0; paso < 300; ++paso) {
        const int inicio = hasta(esperado.Longitud());
        const int largo = hasta(2) == 0 ? hasta(60) : 0;
        const std::string& trozo = trozos[static_cast<std::size_t>(hasta(5))];
        const int alineacion = hasta(3);
        const auto cambiar = [&](EditorTextoRico& e) {
            e.SelStart(inicio);
            e.SelLength(largo);
            e.SelRTF(trozo);
            e.SelAlignment(alineacion);
            e.SelLength(largo / 2);
        };
        cambiar(esperado);
        Hacer([&] { cambiar(Caja().Editor()); });
        if (paso % 2 == 0) {
            QTextCursor otro(Editor().document());
            otro.insertText(QStringLiteral("x"));
            otro.deletePreviousChar();
        }
        ASSERT_EQ(Caja().Leer().Documento(), esperado.Documento()) << paso;
        ASSERT_EQ(Caja().Leer().SelStart(), esperado.SelStart()) << paso;
        ASSERT_EQ(Editor().textCursor().selectedText().toUcs4().size(), esperado.SelLength()) << paso;
    }
}

TEST_F(Reportes, LoQueElUsuarioEscribeLlegaYSeDeshace) {
    ASSERT_TRUE(Editor().hasFocus());
    Escribir("ab");
    EXPECT_EQ(Texto(), "ab");
    Tecla(Qt::Key_Left);
    Informar();
    EXPECT_EQ(Texto(), "a<reporte>b") << "where the user left the cursor";
    EXPECT_EQ(Editor().textCursor().position(), 10);
    Escribir("c");
    for (const char* texto : {"a<reporte>b", "ab", ""}) {
        Tecla(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Texto(), texto);
    }
    for (const Qt::Key tecla : {Qt::Key_B, Qt::Key_I, Qt::Key_U}) {
        Tecla(tecla, Qt::ControlModifier);
    }
    Escribir("d");
    Tecla(Qt::Key_B, Qt::ControlModifier);
    Escribir("e");
    Tecla(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Caja().Leer().Lineas(), (Textos{"de", ""}));
    const FormatoCaracter formato = Caja().Leer().Documento().parrafos[0].tramos[0].formato;
    EXPECT_TRUE(formato.negrita && formato.cursiva && formato.subrayado && formato.fuente == kFuenteReporte);
    EXPECT_FALSE(Caja().Leer().Documento().parrafos[0].tramos[1].formato.negrita);
}

TEST_F(Reportes, LasTablasSeAlineanEnLaPantalla) {
    Informar("iiii.--- \nMWMW1234X\n");
    const auto x = [this](int linea, int letra) {
        return Editor().document()->findBlockByNumber(linea).layout()->lineAt(0).cursorToX(letra);
    };
    EXPECT_DOUBLE_EQ(x(0, 9), x(1, 9));
    // RTF counts a tab stop from the margin: 3000 twips are 200 pixels.
    Informar(R"({\rtf1\pard\li700\tx3000\tab x})");
    EXPECT_NEAR(x(2, 1), 200, 1);
}

TEST_F(Reportes, LasTeclasCopianTextoYRtfYPeganAmbos) {
    const std::string fuente = R"({\rtf1\pard\b uno\b0  dos})";
    Informar(fuente);
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "uno dos");
    for (const std::size_t tramos : {4U, 6U}) {
        Tecla(Qt::Key_End, Qt::ControlModifier);
        Tecla(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Caja().Leer().Documento().parrafos[0].tramos.size(), tramos) << "with the formats of the copy";
        QApplication::clipboard()->setText(Q(fuente));
    }
}

TEST_F(Reportes, CadaDocumentoTieneSuFichaConSuTitulo) {
    Escribir("uno");
    Tecla(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Fichas().tabText(1), "Documento 2");
    Hacer([this] { Padre().ActiveForm()->Caption = "/año/serie[*].rtf"; });
    EXPECT_EQ(Fichas().tabText(1), "/año/serie[*].rtf");
    EXPECT_TRUE(Editor().hasFocus());
    Clic(Fichas(), Fichas().tabRect(0).center());
    EXPECT_EQ(Texto(), "uno");
    EXPECT_TRUE(Editor().hasFocus());
    const QTemporaryDir carpeta;
    vigia_.elegir = [&](QFileDialog&) { return carpeta.filePath("uno"); };
    for (const bool guardado : {false, true, false}) {
        EXPECT_EQ(Fichas().tabText(0).endsWith("*"), !guardado) << "a text that no file has is marked";
        Volver("frmPadre");
        guardado ? Escribir("x") : Tecla(Qt::Key_S, Qt::ControlModifier);
    }
    Fichas().tabCloseRequested(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(Texto(), "unox");
    Volver("frmPadre");
    Tecla(Qt::Key_W, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Padre().ActiveForm() == nullptr && Fichas().count() == 0);
    EXPECT_TRUE(vigia_.mensajes.empty()) << "text that was not saved goes without a question";
}

TEST_F(Reportes, LaBarraDaFormatoDeshaceYBusca) {
    const auto pulsar = [this](const char* boton) {
        Ventana("frmPadre")->findChild<QAction*>(boton)->trigger();
        return Caja().Leer().Documento().parrafos[0];
    };
    Informar("Media 2\nmedia 3");
    Tecla(Qt::Key_Home, Qt::ControlModifier);
    Tecla(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_TRUE(pulsar("negrita").tramos[0].formato.negrita);
    EXPECT_TRUE(pulsar("cursiva").tramos[0].formato.cursiva);
    EXPECT_TRUE(pulsar("subrayado").tramos[0].formato.subrayado);
    EXPECT_EQ(pulsar("derecha").formato.alineacion, Alineacion::kDerecha);
    EXPECT_EQ(pulsar("centro").formato.alineacion, Alineacion::kCentrada);
    EXPECT_EQ(pulsar("deshacer").formato.alineacion, Alineacion::kDerecha);
    EXPECT_EQ(pulsar("rehacer").formato.alineacion, Alineacion::kCentrada);
    Tecla(Qt::Key_F, Qt::ControlModifier);
    Escribir("media");
    for (const int donde : {8, 0, 8}) {  // from behind the first one, and round the end
        Tecla(Qt::Key_Return);
        EXPECT_EQ(Caja().Leer().SelStart(), donde);
    }
    for (const int donde : {0, 8}) {  // and back, round the start
        Tecla(Qt::Key_F3, Qt::ShiftModifier);
        EXPECT_EQ(Caja().Leer().SelStart(), donde);
    }
    Tecla(Qt::Key_Escape);
    EXPECT_TRUE(Editor().hasFocus());
}

// 15 twips make a pixel.
TEST_F(Reportes, LaVentanaVuelveADondeEstaba) {
    Informar(std::string(145, '-') + "\n");
    EXPECT_EQ(Editor().document()->begin().layout()->lineCount(), 1) << "as wide as the rules at first";
    const auto lugar = [this] { return QRect(Ventana("frmPadre")->pos(), Ventana("frmPadre")->size()); };
    for (const QRect& pedido : {lugar(), QRect(200, 100, 640, 480)}) {
        Ventana("frmPadre")->move(pedido.topLeft());
        Ventana("frmPadre")->resize(pedido.size());
        QCoreApplication::processEvents();
        AccionDe(Padre().mnuFileExit)->trigger();
        Abrir("frmPadre");
        EXPECT_EQ(lugar(), pedido);
    }
    EXPECT_EQ(escritorio_->LeerAjuste("MainLeft", ""), "3000");
    Ventana("frmPadre")->showMinimized();
    EXPECT_TRUE(Padre().Minimizada);
    const QRect pantalla = QGuiApplication::primaryScreen()->availableGeometry();
    for (const double lejos : {1e5, -1e300, 1e300}) {
        for (const double largo : {-5.0, 6000.0, 1e300}) {
            const QRect visto = LugarVisible(lejos, lejos, largo, largo, QSize(300, 200));
            EXPECT_TRUE(pantalla.contains(visto) && visto.width() >= 300 && visto.height() >= 200) << lejos;
        }
    }
}

// A4 less 20 mm on each side is 170 by 257 mm. Letters of 10 points in that font are 1/12 inch wide, so 80 go into a
// line of an upright sheet and 121 into one of a sheet lying down; on the screen they are 13 pixels high, not 13 1/3.
TEST_F(Reportes, LasTablasNoSePartenEnElPapel) {
    const std::tuple<int, bool, double> casos[] = {{79, false, 1}, {100, true, 1}, {145, true, 121.0 / 145}};
    for (const auto& [guiones, apaisado, escala] : casos) {
        QBuffer archivo;
        archivo.open(QIODevice::WriteOnly);
        QPdfWriter hoja(&archivo);
        hoja.setPageSize(QPageSize(QPageSize::A4));
        hoja.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
        const std::string tabla(static_cast<std::size_t>(guiones), '-');
        const auto documento = DocumentoParaPapel(DeTextoPlano(tabla + std::string(100, '\n') + std::string(300, 'x')));
        EXPECT_EQ(PideApaisado(*documento, hoja), apaisado) << guiones;
        hoja.setPageOrientation(apaisado ? QPageLayout::Landscape : QPageLayout::Portrait);
        ImprimirAjustado(*documento, hoja);
        EXPECT_EQ(documento->begin().layout()->lineCount(), 1) << guiones;
        EXPECT_GT(documento->lastBlock().layout()->lineCount(), 1) << "prose goes on in the next line";
        const double util = hoja.pageLayout().paintRect(QPageLayout::Inch).width() * 96;
        EXPECT_NEAR(util / documento->pageSize().width(), escala, 0.026) << guiones;
        EXPECT_EQ(archivo.data().count("/Type /Page\n"), documento->pageCount());
        EXPECT_GT(documento->pageCount(), 1);
    }
    Tecla(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(vigia_.otrosDialogos, QStringList("Imprimir"));
}

TEST_F(Reportes, PapelYPantallaOscuraTienenLosColoresDelArchivo) {
    const TextoRico texto = LeerRtf(R"({\rtf1{\colortbl;\red0\green0\blue96;}{\cf1 a}b})");
    const auto color = [](QTextDocument& documento) {
        return documento.begin().begin().fragment().charFormat().foreground().color();
    };
    QPalette oscura = Editor().palette();
    oscura.setColor(QPalette::Base, Qt::black);
    Editor().setPalette(oscura);
    Hacer([&] { Caja().Editor().Insertar(texto); });
    const QColor visto = color(*Editor().document());
    EXPECT_TRUE(visto.lightness() > 150 && visto.hue() == 240) << "light, and still blue";
    Escribir("d");
    EXPECT_EQ(Caja().Leer().Documento().parrafos[0].tramos[0].formato.color, 0x60u) << "the file keeps its own";
    EXPECT_EQ(color(*DocumentoParaPapel(texto)), QColor(0, 0, 96));
}

}  // namespace cuencalia::pruebas
