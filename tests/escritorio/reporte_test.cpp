#include "frame/reportes/reporte.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMenuBar>
#include <QMimeData>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QScreen>
#include <QSettings>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QWindow>
#include <random>

#include "escritorio/impresion.h"
#include "escritorio/ventanapadre.h"
#include "escritorio/vistatextorico.h"
#include "frame/reportes/frmPadre.h"
#include "frame/reportes/rtf.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

namespace {

using Textos = std::vector<std::string>;
using Enteros = std::vector<int>;

/// Something of everything that a text can have.
const char* const kVariado =
    R"({\rtf1{\fonttbl{\f0 Courier New;}{\f1 Arial;}}{\colortbl;\red0\green0\blue0;\red255\green255\blue0;}\f0\fs20)"
    R"(\pard\qc\sb200\sa120\f1\fs25\b T\'edtulo\b0\f0\fs20\par)"
    R"(\pard\li700\ri300\fi-250\tx1500\tx3100 H{\sub 2}O\tab m{\super 3}\tab \u-10179?\u-8704?\par\par)"
    R"(\pard\qj{\i cursiva}{\ul sub}{\strike no}{\cf1 negro}{\highlight2 luz}\par\pard\qr fin})";

enum class Modo { SinVista, ConVista, ConUsuario };

/// The same box of text three times: alone, shown by a widget, and shown while a user types and takes back what he
/// typed between one step of the program and the next. The program sees no difference.
class CajaDeTexto : public testing::TestWithParam<Modo> {
  protected:
    CajaDeTexto() {
        app_.Despachar([this] { app_.ModuloAbrir("frmPadre"); });
        QCoreApplication::processEvents();
    }
    ~CajaDeTexto() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    RichTextBox& Caja() {
        return GetParam() == Modo::SinVista ? suelta_.rtfText
                                            : dynamic_cast<frmPadre&>(*app_.Cargada("frmPadre")).ActiveForm()->rtfText;
    }
    const EditorTextoRico& Texto() {
        if (GetParam() == Modo::ConUsuario) {
            auto* widget = static_cast<QTextEdit*>(static_cast<Vista*>(Caja().Vista())->Widget());
            const QTextCursor cursor = widget->textCursor();
            QTextCursor otro(widget->document());
            otro.insertText(QStringLiteral("x"));
            otro.deletePreviousChar();
            widget->setTextCursor(cursor);
        }
        return Caja().Leer();
    }
    template <typename Paso>
    void Hacer(Paso paso) {
        Texto();
        app_.Despachar([&] { paso(Caja().Editor()); });
    }
    void Elegir(int inicio, int largo) {
        Hacer([&](EditorTextoRico& e) {
            e.SelStart(inicio);
            e.SelLength(largo);
        });
    }

    Escritorio escritorio_{{{"frmPadre", [](Aplicacion& a) { return std::make_unique<frmPadre>(a); }}}};
    Aplicacion& app_ = escritorio_.App();
    frmDocumento suelta_{app_, "suelta"};
};

TEST_P(CajaDeTexto, AReportAndItsFormats) {
    Hacer([](EditorTextoRico& e) { e.SelText("del usuario\n"); });
    const auto informar = [this] {
        Hacer([](EditorTextoRico& e) { Reporte(e).Cabecera("Parámetros"); });
        Hacer([](EditorTextoRico& e) { Reporte(e).ReporteTexto("Número\t\tDato\t\t"); });
        Hacer([](EditorTextoRico& e) { Reporte(e).ReporteBlanco(); });
        Hacer([](EditorTextoRico& e) { Reporte(e).LineaDeGuiones(5); });
    };
    informar();
    const Textos uno{"Resultados", "", "Parámetros", "", "", "Número\t\tDato\t\t", "-----"};
    Textos esperado{"del usuario"};
    esperado.insert(esperado.end(), uno.begin(), uno.end());
    esperado.push_back("");
    EXPECT_EQ(Texto().Lineas(), esperado);
    EXPECT_EQ(Texto().Alineaciones(), (Enteros{0, 2, 2, 2, 2, 0, 0, 0, 0}));
    for (std::size_t i = 0; i < esperado.size(); ++i) {
        const FormatoParrafo& formato = Texto().Documento().parrafos[i].formato;
        EXPECT_EQ(formato.sangriaIzquierda, i == 0 ? 0 : 200) << i;
        EXPECT_EQ(formato.sangriaDerecha, i == 0 ? 0 : 200) << i;
    }
    informar();
    esperado.pop_back();
    esperado.insert(esperado.end(), uno.begin(), uno.end());
    EXPECT_EQ(Texto().Text(), [&] {
        std::string texto;
        for (const std::string& linea : esperado) {
            texto += linea + "\n";
        }
        return texto;
    }());
    EXPECT_EQ(Texto().SelStart(), Texto().Longitud());
    EXPECT_EQ(Texto().Alineaciones()[8], 2);
}

TEST_P(CajaDeTexto, SelectionCountsCharacters) {
    Hacer([](EditorTextoRico& e) { e.SelText("añ😀b\nc€d"); });
    Elegir(2, 3);
    EXPECT_EQ(Texto().SelText(), "😀b\n");
    EXPECT_EQ(Texto().SelStart(), 2);
    EXPECT_EQ(Texto().SelLength(), 3);
    Hacer([](EditorTextoRico& e) { e.SelText("😀😀"); });
    EXPECT_EQ(Texto().Text(), "añ😀😀c€d");
    EXPECT_EQ(Texto().SelStart(), 4);
    Elegir(5, 1);
    Hacer([](EditorTextoRico& e) { e.SelAlignment(1); });
    EXPECT_EQ(Texto().SelText(), "€");
    EXPECT_EQ(Texto().SelAlignment(), 1);
}

TEST_P(CajaDeTexto, RtfComesBackAsItWas) {
    const TextoRico documento = LeerRtf(kVariado, ClaseRtf::kFragmento);
    ASSERT_EQ(documento.parrafos.size(), 5u);
    Hacer([](EditorTextoRico& e) { e.SelRTF(kVariado); });
    EXPECT_EQ(Texto().Documento(), documento);
    Elegir(0, 1000);
    EXPECT_EQ(LeerRtf(Texto().SelRTF(), ClaseRtf::kFragmento), documento);
    Elegir(4, 12);
    const std::string cortado = Texto().SelRTF();
    Hacer([](EditorTextoRico& e) { e.SelText(""); });
    EXPECT_EQ(Texto().Longitud(), 6 + 8 + 0 + 20 + 3 + 4 - 12) << "five lines, four line ends";
    Hacer([&](EditorTextoRico& e) { e.SelRTF(cortado); });
    EXPECT_EQ(Texto().Documento(), documento);

    const QTemporaryDir carpeta;
    const std::string ruta = Std(carpeta.filePath(QStringLiteral("año.rtf")));
    Texto().SaveFile(ruta);
    Hacer([](EditorTextoRico& e) { e.SelText("otra cosa"); });
    Hacer([&](EditorTextoRico& e) { e.LoadFile(ruta); });
    EXPECT_EQ(Texto().Documento(), documento);
    EXPECT_EQ(Texto().SelStart(), 0);
}

// Any order of insertions and deletions, against an editor that no widget has ever shown.
TEST_P(CajaDeTexto, LikeATextThatNobodySees) {
    const std::vector<std::string> trozos{"a", "\n", "ñ😀", "uno\ndos\n", "", kVariado};
    std::mt19937 azar(1998);
    const auto hasta = [&azar](int maximo) { return std::uniform_int_distribution<int>(0, maximo)(azar); };
    EditorTextoRico esperado;
    for (int paso = 0; paso < 300; ++paso) {
        const int inicio = hasta(esperado.Longitud());
        const int largo = hasta(2) == 0 ? hasta(60) : 0;
        const std::string& trozo = trozos[static_cast<std::size_t>(hasta(static_cast<int>(trozos.size()) - 1))];
        const int alineacion = hasta(3);
        const auto cambiar = [&](EditorTextoRico& e) {
            e.SelStart(inicio);
            e.SelLength(largo);
            e.SelRTF(trozo);
            e.SelAlignment(alineacion);
        };
        cambiar(esperado);
        Hacer(cambiar);
        ASSERT_EQ(Texto().Documento(), esperado.Documento()) << paso;
        ASSERT_EQ(Texto().SelStart(), esperado.SelStart()) << paso;
    }
}

INSTANTIATE_TEST_SUITE_P(Modos, CajaDeTexto, testing::Values(Modo::SinVista, Modo::ConVista, Modo::ConUsuario),
                         [](const testing::TestParamInfo<Modo>& info) {
                             return info.param == Modo::SinVista   ? "NoView"
                                    : info.param == Modo::ConVista ? "View"
                                                                   : "ViewAndUser";
                         });

/// A user with the window of the documents before him.
class Reportes : public Mesa {
  protected:
    void SetUp() override {
        for (const char* clave : {"MainLeft", "MainTop", "MainWidth", "MainHeight"}) {
            QSettings().remove(QStringLiteral("Settings/") + clave);
        }
        Mesa::SetUp();
        Abrir();
    }

    void Abrir() {
        escritorio_->App().Despachar([this] { escritorio_->App().ModuloAbrir("frmPadre"); });
        ASSERT_TRUE(QTest::qWaitForWindowActive(Ventana("frmPadre")));
    }
    frmPadre& Padre() { return dynamic_cast<frmPadre&>(Forma("frmPadre")); }
    RichTextBox& Caja() { return Padre().ActiveForm()->rtfText; }
    std::string Texto() { return Caja().Leer().Text(); }
    QTextEdit& Widget() { return *static_cast<QTextEdit*>(static_cast<Vista*>(Caja().Vista())->Widget()); }
    void Informar() {
        escritorio_->App().Despachar([this] { Caja().Editor().SelRTF("<reporte>"); });
    }
    void Elegir(const char* menu, const char* entrada) {
        ElegirEnBarra("frmPadre", QString::fromUtf8(menu), QString::fromUtf8(entrada));
        if (QMainWindow* ventana = Ventana("frmPadre")) {
            // Without a window manager nobody gives the keyboard back to the window when its menu closes.
            ventana->windowHandle()->requestActivate();
            ASSERT_TRUE(QTest::qWaitForWindowActive(ventana));
        }
    }
    QTabBar& Fichas() { return *Ventana("frmPadre")->findChild<QTabBar*>(); }
    QStringList Titulos() {
        QStringList titulos;
        for (int i = 0; i < Fichas().count(); ++i) {
            titulos << Fichas().tabText(i);
        }
        return titulos;
    }
};

TEST_F(Reportes, WhatTheUserTypesReachesTheProgram) {
    ASSERT_EQ(QApplication::focusWidget(), &Widget());
    Escribir("ab");
    EXPECT_EQ(Texto(), "ab");
    Tecla(Qt::Key_Left);
    Informar();
    EXPECT_EQ(Texto(), "a<reporte>b") << "where the user left the cursor";
    EXPECT_EQ(Widget().toPlainText(), "a<reporte>b");
    EXPECT_EQ(Widget().textCursor().position(), 10);
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_B, Qt::ControlModifier);
    Escribir("c");
    Tecla(Qt::Key_B, Qt::ControlModifier);
    Tecla(Qt::Key_I, Qt::ControlModifier);
    Tecla(Qt::Key_U, Qt::ControlModifier);
    Escribir("d");
    Tecla(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Caja().Leer().Lineas(), (Textos{"a<reporte>", "cd", "b"}));
    const std::vector<Tramo> tramos = Caja().Leer().Documento().parrafos[1].tramos;
    ASSERT_EQ(tramos.size(), 2u);
    EXPECT_TRUE(tramos[0].formato.negrita && !tramos[0].formato.cursiva && !tramos[0].formato.subrayado);
    EXPECT_TRUE(!tramos[1].formato.negrita && tramos[1].formato.cursiva && tramos[1].formato.subrayado);
    EXPECT_EQ(tramos[0].formato.fuente, kFuenteReporte);
}

TEST_F(Reportes, UndoGoesBackThroughUserAndProgram) {
    Escribir("a");
    Informar();
    Escribir("b");
    EXPECT_EQ(Texto(), "a<reporte>b");
    for (const char* texto : {"a<reporte>", "a", ""}) {
        Tecla(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Texto(), texto);
    }
    for (int i = 0; i < 3; ++i) {
        Widget().redo();
    }
    EXPECT_EQ(Texto(), "a<reporte>b");
}

TEST_F(Reportes, ALongReportIsShownAtItsEnd) {
    escritorio_->App().Despachar([this] {
        Reporte reporte(Caja().Editor());
        for (int i = 0; i < 2000; ++i) {
            reporte.ReporteLinea("1998\t\t12.5\t\t");
        }
    });
    EXPECT_EQ(Widget().document()->blockCount(), 2001);
    EXPECT_TRUE(Widget().viewport()->rect().contains(Widget().cursorRect().center()));
}

TEST_F(Reportes, TheTablesLineUp) {
    Caja().Editor().SelRTF("iiii.--- \nMWMW1234X");
    escritorio_->Pintar();
    const QTextBlock primero = Widget().document()->begin();
    EXPECT_DOUBLE_EQ(primero.layout()->lineAt(0).cursorToX(9), primero.next().layout()->lineAt(0).cursorToX(9));
}

TEST_F(Reportes, TheMenuCopiesRtfSourceAndTheKeysCopyText) {
    Caja().Editor().SelRTF(R"({\rtf1\pard uno \b dos\b0})");
    escritorio_->Pintar();
    const TextoRico antes = Caja().Leer().Documento();
    QClipboard& portapapeles = *QApplication::clipboard();
    const auto pegarAlFinal = [&](const auto& pegar) {
        Tecla(Qt::Key_End, Qt::ControlModifier);
        pegar();
        EXPECT_EQ(Texto(), "uno dosuno dos");
        EXPECT_TRUE(Caja().Leer().Documento().parrafos[0].tramos.back().formato.negrita);
        Tecla(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Caja().Leer().Documento(), antes);
    };
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Elegir("&Edición", "&Copiar");
    EXPECT_TRUE(EsRtf(Std(portapapeles.text())));
    pegarAlFinal([] { Tecla(Qt::Key_V, Qt::ControlModifier); });
    pegarAlFinal([this] { Elegir("&Edición", "&Pegar"); });

    Tecla(Qt::Key_A, Qt::ControlModifier);
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(portapapeles.text(), "uno dos");
    EXPECT_EQ(LeerRtf(portapapeles.mimeData()->data("text/rtf").toStdString(), ClaseRtf::kFragmento), antes);
    pegarAlFinal([] { Tecla(Qt::Key_V, Qt::ControlModifier); });

    Tecla(Qt::Key_A, Qt::ControlModifier);
    Elegir("&Edición", "Cor&tar");
    EXPECT_EQ(Widget().toPlainText(), "");
    EXPECT_EQ(Texto(), "");
}

TEST_F(Reportes, EachDocumentHasATabWithItsTitle) {
    EXPECT_EQ(Ventana("frmPadre")->windowTitle(), "Guardar datos");
    Escribir("uno");
    Tecla(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Titulos(), QStringList({"Documento 1", "Documento 2"}));
    EXPECT_EQ(QApplication::focusWidget(), &Widget());
    Escribir("dos");
    EXPECT_EQ(Texto(), "dos");
    Clic(Fichas(), Fichas().tabRect(0).center());
    EXPECT_EQ(Padre().ActiveForm()->Caption(), "Documento 1");
    EXPECT_EQ(Texto(), "uno");
    EXPECT_EQ(QApplication::focusWidget(), &Widget());
    escritorio_->App().Despachar([this] { Padre().ActiveForm()->Caption = "/año/serie.rtf"; });
    EXPECT_EQ(Titulos()[0], "/año/serie.rtf");

    Fichas().tabCloseRequested(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(Titulos(), QStringList("/año/serie.rtf"));
    EXPECT_EQ(Texto(), "uno");
    Tecla(Qt::Key_W, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(Padre().ActiveForm(), nullptr);
    EXPECT_EQ(Titulos(), QStringList());
    Elegir("&Archivo", "&Guardar");
    ASSERT_EQ(vigia_->mensajes.size(), 1u);
    EXPECT_TRUE(vigia_->mensajes[0].texto.contains("91"));
    Elegir("&Archivo", "A&brir...");
    EXPECT_EQ(vigia_->otrosDialogos, QStringList("Abrir"));
    EXPECT_EQ(Titulos(), QStringList("Documento 3"));
}

TEST_F(Reportes, TheWindowClosesWithoutAQuestion) {
    for (const bool conMenu : {true, false}) {
        Escribir("sin guardar");
        Tecla(Qt::Key_N, Qt::ControlModifier);
        Escribir("tampoco");
        if (conMenu) {
            Elegir("&Archivo", "&Salir");
        } else {
            Ventana("frmPadre")->close();
        }
        EXPECT_EQ(Ventana("frmPadre"), nullptr);
        EXPECT_EQ(escritorio_->App().Cargada("frmPadre"), nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Abrir();
        EXPECT_EQ(Texto(), "");
    }
    EXPECT_EQ(Titulos(), QStringList("Documento 5"));
    EXPECT_TRUE(vigia_->mensajes.empty());
    EXPECT_TRUE(vigia_->otrosDialogos.isEmpty());
}

// 15 twips make a pixel: 1000 are 66, 6500 are 433.
TEST_F(Reportes, TheWindowComesBackWhereItWas) {
    EXPECT_EQ(Ventana("frmPadre")->pos(), QPoint(66, 66));
    EXPECT_EQ(Ventana("frmPadre")->size(), QSize(433, 433));
    Elegir("&Archivo", "&Salir");
    EXPECT_EQ(escritorio_->LeerAjuste("MainLeft", ""), "1000") << "opening and closing does not wear it off";
    Abrir();
    Ventana("frmPadre")->move(200, 100);
    Ventana("frmPadre")->resize(640, 480);
    QCoreApplication::processEvents();
    Elegir("&Archivo", "&Salir");
    EXPECT_EQ(escritorio_->LeerAjuste("MainLeft", ""), "3000");
    EXPECT_EQ(escritorio_->LeerAjuste("MainHeight", ""), "7200");
    Abrir();
    EXPECT_EQ(Ventana("frmPadre")->pos(), QPoint(200, 100));
    EXPECT_EQ(Ventana("frmPadre")->size(), QSize(640, 480));
    Ventana("frmPadre")->showMinimized();
    EXPECT_TRUE(Padre().Minimizada);
    Abrir();
    EXPECT_FALSE(Padre().Minimizada);
}

TEST_F(Reportes, AWindowThatWouldNotBeSeenIsBroughtIn) {
    const QRect pantalla = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize minimo(300, 200);
    const double lejos = 15.0 * (pantalla.right() + 5000);
    for (const QRect& lugar :
         {LugarVisible(lejos, lejos, 6000, 6000, minimo), LugarVisible(-1e300, 0, 6000, 6000, minimo),
          LugarVisible(0, 0, 1e300, 1e300, minimo), LugarVisible(1000, 1000, -5, 0, minimo)}) {
        EXPECT_TRUE(pantalla.contains(lugar));
        EXPECT_GE(lugar.width(), minimo.width());
        EXPECT_GE(lugar.height(), minimo.height());
    }
    EXPECT_EQ(LugarVisible(1500, 3000, 6000, 4500, minimo), QRect(100, 200, 400, 300));
}

TEST_F(Reportes, TheStatusBarTellsDateAndTime) {
    const QDateTime antes = QDateTime::currentDateTime();
    const std::string panel = Padre().sbStatusBar.Panel(2) + " " + Padre().sbStatusBar.Panel(3);
    const QDateTime dicho = QDateTime::fromString(Q(panel), QStringLiteral("dd/MM/yyyy HH:mm"));
    EXPECT_EQ(Padre().sbStatusBar.Panel(1), "Estado");
    EXPECT_LT(qAbs(dicho.secsTo(antes)), 120);
}

TEST_F(Reportes, PrintingAsksAndCancelPrintsNothing) {
    Escribir("uno dos");
    Tecla(Qt::Key_P, Qt::ControlModifier);
    Widget().selectAll();
    Elegir("&Archivo", "I&mprimir...");
    EXPECT_EQ(vigia_->otrosDialogos, QStringList({"Imprimir", "Imprimir"}));
    EXPECT_TRUE(vigia_->mensajes.empty());
    EXPECT_EQ(Texto(), "uno dos");
}

/// Lines of paper that a paragraph takes.
std::vector<int> Renglones(const QTextDocument& documento) {
    std::vector<int> renglones;
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        renglones.push_back(bloque.layout()->lineCount());
    }
    return renglones;
}

// A4 less 20 mm on each side is 170 by 257 mm. Letters of 10 points in that font are 1/12 inch wide, so 80 go into a
// line of an upright sheet and 121 into one of a sheet lying down; on the screen they are 13 pixels high, not 13 1/3.
TEST_F(Reportes, TablesAreNotBrokenOnPaper) {
    struct Caso {
        int guiones;
        bool apaisado;
        double escala;
    };
    const std::string prosa(300, 'x');
    for (const Caso& caso :
         {Caso{45, false, 1}, Caso{79, false, 1}, Caso{100, true, 1}, Caso{145, true, 121.0 / 145}}) {
        QTemporaryDir carpeta;
        const QString ruta = carpeta.filePath(QStringLiteral("reporte.pdf"));
        QPdfWriter hoja(ruta);
        hoja.setPageSize(QPageSize(QPageSize::A4));
        hoja.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
        const auto documento =
            DocumentoParaPapel(DeTextoPlano(std::string(static_cast<std::size_t>(caso.guiones), '-') + "\n" + prosa));
        EXPECT_EQ(PideApaisado(*documento, hoja), caso.apaisado) << caso.guiones;
        if (caso.apaisado) {
            hoja.setPageOrientation(QPageLayout::Landscape);
        }
        ImprimirAjustado(*documento, hoja);
        EXPECT_EQ(Renglones(*documento)[0], 1) << caso.guiones;
        EXPECT_GT(Renglones(*documento)[1], 1) << "prose goes on in the next line";
        const double util = hoja.pageLayout().paintRect(QPageLayout::Inch).width() * 96;
        EXPECT_NEAR(util / documento->pageSize().width(), caso.escala, 0.026) << caso.guiones;
        QFile archivo(ruta);
        ASSERT_TRUE(archivo.open(QIODevice::ReadOnly));
        EXPECT_TRUE(archivo.read(5) == "%PDF-");
    }
}

TEST_F(Reportes, PaperAndDarkScreensShowTheColoursOfTheFile) {
    const TextoRico texto = LeerRtf(R"({\rtf1{\colortbl;\red0\green0\blue0;\red0\green0\blue96;}{\cf1 a}{\cf2 b}c})");
    const auto color = [](const QTextDocument& documento, int caracter) {
        QTextCursor cursor(const_cast<QTextDocument*>(&documento));
        cursor.setPosition(caracter + 1);
        return cursor.charFormat().foreground().color();
    };
    QPalette oscura = Widget().palette();
    oscura.setColor(QPalette::Base, Qt::black);
    Widget().setPalette(oscura);
    escritorio_->App().Despachar([&] { Caja().Editor().Insertar(texto); });
    EXPECT_GT(color(*Widget().document(), 0).lightness(), 150);
    EXPECT_GT(color(*Widget().document(), 1).lightness(), 150);
    EXPECT_EQ(color(*Widget().document(), 1).hue(), 240) << "still blue";
    Escribir("d");
    EXPECT_EQ(Caja().Leer().Documento().parrafos[0].tramos[1].formato.color, 0x60u) << "the file keeps its own";
    EXPECT_EQ(color(*DocumentoParaPapel(texto), 1), QColor(0, 0, 96));
}

}  // namespace

}  // namespace cuencalia::pruebas
