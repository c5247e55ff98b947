#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QTest>
#include <functional>

#include "frame/controles/flexgrid.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

namespace {

/// The buttons of a module and what they answer.
class Botones : public Mesa {
  protected:
    void SetUp() override {
        Mesa::SetUp();
        AbrirModulo();
    }

    /// What the form holds is what the screen shows.
    void CompararConForma(const char* nombre) {
        const auto& grid = dynamic_cast<const FlexGrid&>(*Forma().Controls(nombre));
        ASSERT_EQ(Tabla(nombre).model()->rowCount(), grid.Rows() - 1);
        ASSERT_EQ(Tabla(nombre).model()->columnCount(), grid.Cols() - 1);
        for (int f = 1; f < grid.Rows(); ++f) {
            for (int c = 1; c < grid.Cols(); ++c) {
                EXPECT_EQ(Std(Celda(f, c, nombre)), grid.TextMatrix(f, c)) << f << ", " << c;
            }
        }
    }
};

TEST_F(Botones, CalcularAnswersToMouseAccessKeyEnterAndBlank) {
    EscribirSerie({"1", "2", "3", "4", "5"});
    QWidget& calcular = Widget("bCalcular");
    const std::vector<std::function<void()>> maneras = {
        [&] { Clic(calcular); },
        [&] { Tecla(Qt::Key_U, Qt::AltModifier); },
        [&] {
            calcular.setFocus();
            Tecla(Qt::Key_Return);
        },
        [&] {
            calcular.setFocus();
            Tecla(Qt::Key_Space);
        },
    };
    for (std::size_t i = 0; i < maneras.size(); ++i) {
        SCOPED_TRACE(i);
        maneras[i]();
        // A button that is pressed by its access key shows itself pressed for a moment before it answers.
        EXPECT_TRUE(QTest::qWaitFor([&] { return Resultados() == ParametrosDe1a5(); })) << Std(Celda(1, 1, "grdParam"));
        EXPECT_EQ(Widget<QLineEdit>("txtL1").text(), "3.0000");
        EXPECT_EQ(Widget<QLineEdit>("txtL2").text(), "1.0000");
        EXPECT_EQ(Celda(3, 0, "grdParam"), "Desviación Estándar:");
        CompararConForma("grdParam");
        CompararConForma("grdt");
        Tecla(Qt::Key_L, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([&] { return Tabla().model()->rowCount() == 1; }));
        EXPECT_EQ(Resultados()[0], QStringList({"", "", ""}));
        EXPECT_EQ(Widget<QLineEdit>("txtL1").text(), "");
        EscribirSerie({"5", "1", "4", "2", "3"});
    }
    EXPECT_TRUE(vigia_->mensajes.empty());
}

TEST_F(Botones, OrdenarShowsTheSortedSeries) {
    EscribirSerie({"10.5", "-2", "7"});
    EXPECT_FALSE(Tabla("grdorden").isVisible());
    Clic(Widget("bOrdenar"));
    ASSERT_TRUE(Tabla("grdorden").isVisible());
    EXPECT_TRUE(Widget("lblOrdenado").isVisible());
    ASSERT_EQ(Tabla("grdorden").model()->rowCount(), 3);
    EXPECT_EQ(Celda(1, 1, "grdorden"), "-2.0");
    EXPECT_EQ(Celda(2, 1, "grdorden"), "7.0");
    EXPECT_EQ(Celda(3, 1, "grdorden"), "10.5");
    EXPECT_EQ(Celda(3, 0, "grdorden"), "3");
    Clic(Widget("bLimpiar"));
    EXPECT_FALSE(Tabla("grdorden").isVisible());
    EXPECT_FALSE(Widget("lblOrdenado").isVisible());
}

TEST_F(Botones, TooFewDataAreRefusedWithAMessage) {
    EscribirSerie({"10"});
    Clic(Widget("bCalcular"));
    ASSERT_EQ(vigia_->mensajes.size(), 1u);
    EXPECT_EQ(vigia_->mensajes[0].texto, "Para el cálculo de los parámetros se requieren por lo menos dos datos");
    EXPECT_EQ(vigia_->mensajes[0].titulo, "Error");
    EXPECT_EQ(vigia_->mensajes[0].icono, QMessageBox::Critical);
    EXPECT_EQ(Resultados()[0], QStringList({"", "", ""}));
    // The user can go on typing at once.
    Traer("frmParamEsta");
    EXPECT_EQ(QApplication::focusWidget(), &Tabla());
    EXPECT_EQ(FilaActual(), 2);
    EscribirSerie({"20"});
    EXPECT_EQ(Celda(2), "20.0");
}

TEST_F(Botones, ARunTimeErrorIsToldAndEveryTypedValueStays) {
    // With three values the divisor n - 3 of the sample kurtosis is 0.
    EscribirSerie({"1", "2", "4"});
    Clic(Widget("bCalcular"));
    ASSERT_EQ(vigia_->mensajes.size(), 1u);
    EXPECT_TRUE(vigia_->mensajes[0].texto.contains("11"));
    EXPECT_TRUE(vigia_->mensajes[0].texto.contains("División por cero"));
    EXPECT_EQ(vigia_->mensajes[0].icono, QMessageBox::Critical);
    EXPECT_EQ(Resultados()[0], QStringList({"", "", ""}));
    EXPECT_EQ(Celda(1), "1.0");
    EXPECT_EQ(Celda(2), "2.0");
    EXPECT_EQ(Celda(3), "4.0");
    Traer("frmParamEsta");
    ClicEnCelda(4);
    EscribirSerie({"3", "5"});
    Clic(Widget("bCalcular"));
    EXPECT_EQ(Resultados(), ParametrosDe1a5());
    EXPECT_EQ(vigia_->mensajes.size(), 1u);
}

TEST_F(Botones, ResultsAreCopiedAsATable) {
    EscribirSerie({"1", "2", "3", "4", "5"});
    Clic(Widget("bCalcular"));
    ClicEnCelda(1, 1, "grdParam");
    Tecla(Qt::Key_Down, Qt::ShiftModifier);
    Tecla(Qt::Key_Right, Qt::ShiftModifier);
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "3.0000\t3.0000\n2.5\t2.0");
    Escribir("9");
    Tecla(Qt::Key_Delete);
    EXPECT_EQ(Resultados(), ParametrosDe1a5());
}

TEST_F(Botones, PrintingWithoutAPrinterIsToldAndDoesNoHarm) {
    if (!QPrinterInfo::defaultPrinter().isNull()) {
        GTEST_SKIP() << "this machine has a printer: the test would use its paper";
    }
    EscribirSerie({"1"});
    Clic(Widget("bImprimir"));
    ASSERT_EQ(vigia_->mensajes.size(), 1u);
    EXPECT_TRUE(vigia_->mensajes[0].texto.contains("impresora"));
    EXPECT_EQ(vigia_->mensajes[0].icono, QMessageBox::Information);
    EXPECT_EQ(Celda(1), "1.0");
}

TEST_F(Mesa, EachIconOfAMessageHasItsPicture) {
    const std::pair<Icono, QMessageBox::Icon> iconos[] = {{kSinIcono, QMessageBox::NoIcon},
                                                          {kIconoError, QMessageBox::Critical},
                                                          {kIconoPregunta, QMessageBox::Question},
                                                          {kIconoAdvertencia, QMessageBox::Warning},
                                                          {kIconoInformacion, QMessageBox::Information}};
    for (const auto& [modelo, pantalla] : iconos) {
        vigia_->mensajes.clear();
        escritorio_->MsgBox("a < b & <b>c</b>", modelo, "");
        ASSERT_EQ(vigia_->mensajes.size(), 1u);
        EXPECT_EQ(vigia_->mensajes[0].icono, pantalla);
        EXPECT_EQ(vigia_->mensajes[0].texto, "a < b & <b>c</b>");
        EXPECT_EQ(vigia_->mensajes[0].titulo, "Cuencalia");
    }
}

TEST_F(Mesa, ACancelledFileDialogLeavesTheNameAsItWas) {
    std::string nombre = "/no/hay/serie.x";
    escritorio_->ElegirArchivo(ModoArchivo::Abrir, "Abrir serie", "Valores X|*.X|Todos|*.*", nombre);
    EXPECT_EQ(vigia_->otrosDialogos, QStringList("Abrir serie"));
    EXPECT_EQ(nombre, "/no/hay/serie.x");
}

TEST_F(Mesa, SettingsAndClipboardKeepWhatTheyAreGiven) {
    escritorio_->GuardarAjuste("Ancho", "");
    EXPECT_EQ(escritorio_->LeerAjuste("Ancho", "si falta"), "");
    escritorio_->GuardarAjuste("Ancho", "1024 ñ");
    EXPECT_EQ(escritorio_->LeerAjuste("Ancho", ""), "1024 ñ");
    EXPECT_EQ(escritorio_->LeerAjuste("NoHayTalAjuste", "9"), "9");
    escritorio_->PonerEnPortapapeles("1\t2\n°ñ");
    EXPECT_EQ(escritorio_->TextoDelPortapapeles(), "1\t2\n°ñ");
}

}  // namespace

}  // namespace cuencalia::pruebas
