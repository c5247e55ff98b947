#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>

#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

namespace {

/// Typing data into the grid of a module.
class Entrada : public Mesa {
  protected:
    void SetUp() override {
        Mesa::SetUp();
        AbrirModulo();
    }

    /// The box stands on the current cell, has the focus and holds that text.
    void EsperarEdicion(const QString& texto) {
        ASSERT_TRUE(Caja().isVisible());
        EXPECT_EQ(QApplication::focusWidget(), &Caja());
        EXPECT_EQ(Caja().text(), texto);
        EXPECT_EQ(Caja().parentWidget(), Tabla().viewport());
        EXPECT_EQ(Caja().geometry(), Tabla().visualRect(Tabla().currentIndex()));
    }
    void EsperarGrid(int fila) {
        EXPECT_FALSE(Caja().isVisible());
        EXPECT_EQ(QApplication::focusWidget(), &Tabla());
        EXPECT_EQ(FilaActual(), fila);
        EXPECT_TRUE(ActualALaVista());
    }
    void Rodar(int pasos) {
        const QPointF donde = Tabla().viewport()->rect().center();
        QWheelEvent rueda(donde, Tabla().viewport()->mapToGlobal(donde), {}, {0, 120 * pasos}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Tabla().viewport(), &rueda);
    }
};

TEST_F(Entrada, ASeriesIsTypedDownTheColumnWithEnter) {
    EXPECT_EQ(Celda(1, 0), "[?]");
    for (int fila = 1; fila <= 40; ++fila) {
        SCOPED_TRACE(fila);
        ASSERT_NO_FATAL_FAILURE(EsperarGrid(fila));
        Escribir("1");
        ASSERT_NO_FATAL_FAILURE(EsperarEdicion("1"));
        EXPECT_EQ(Widget<QLabel>("StatusBar1").text(),
                  "Para introducir o modificar datos, digitarlos y luego presionar ENTER");
        Escribir("2.50");
        ASSERT_NO_FATAL_FAILURE(EsperarEdicion("12.50"));
        Tecla(Qt::Key_Return);
        EXPECT_EQ(Celda(fila), "12.5");
        EXPECT_EQ(Celda(fila, 0), QString::number(fila));
        EXPECT_EQ(Celda(fila + 1, 0), "[->]");
        EXPECT_EQ(Widget<QLabel>("StatusBar1").text(), "");
    }
    EXPECT_EQ(Tabla().model()->rowCount(), 41);
    EXPECT_EQ(Tabla().visualRect(Tabla().model()->index(0, 0)).intersected(Tabla().viewport()->rect()), QRect());
}

TEST_F(Entrada, EnterOnTheGridItselfMovesOnAndCommitsAnEmptyRow) {
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Celda(1), "0.0");
    EsperarGrid(2);
    Tecla(Qt::Key_Up);
    EsperarGrid(1);
    Tecla(Qt::Key_Enter, Qt::KeypadModifier);
    EsperarGrid(2);
    EXPECT_EQ(Tabla().model()->rowCount(), 2);
}

TEST_F(Entrada, EscapeUpAndDownLeaveTheBox) {
    EscribirSerie({"10", "20", "30"});
    ClicEnCelda(2);
    Escribir("7");
    Tecla(Qt::Key_Escape);
    EsperarGrid(2);
    EXPECT_EQ(Celda(2), "20.0");
    Escribir("21");
    Tecla(Qt::Key_Up);
    EsperarGrid(1);
    EXPECT_EQ(Celda(2), "21");
    Escribir("1e1");
    Tecla(Qt::Key_Down);
    EsperarGrid(2);
    EXPECT_EQ(Celda(1), "1e1");
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Down);
    EsperarGrid(4);
    EXPECT_EQ(Tabla().model()->rowCount(), 4);
}

TEST_F(Entrada, BlankAndF2OfferTheOldValueSelected) {
    EscribirSerie({"10.25"});
    for (const Qt::Key tecla : {Qt::Key_F2, Qt::Key_Space}) {
        ClicEnCelda(1);
        Tecla(tecla);
        EsperarEdicion("10.25");
        EXPECT_EQ(Caja().selectedText(), "10.25");
        Tecla(Qt::Key_Escape);
    }
    Tecla(Qt::Key_F2);
    Tecla(Qt::Key_End);
    Tecla(Qt::Key_Backspace);
    Tecla(Qt::Key_Left);
    Escribir("9");
    EsperarEdicion("10.92");
    Tecla(Qt::Key_Home);
    Tecla(Qt::Key_Delete);
    EsperarEdicion("0.92");
    Tecla(Qt::Key_F2);
    Tecla(Qt::Key_Home);
    Tecla(Qt::Key_End, Qt::ShiftModifier);
    Escribir("-3");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Celda(1), "-3.0");
}

TEST_F(Entrada, AClickOnAnotherCellStoresWhatWasTyped) {
    EscribirSerie({"10", "20"});
    ClicEnCelda(2);
    Escribir("77");
    ClicEnCelda(1);
    EsperarGrid(1);
    EXPECT_EQ(Celda(2), "77");
    EXPECT_EQ(Celda(1), "10.0");
}

TEST_F(Entrada, AnEntryRowThatIsLeftIsEmptied) {
    EscribirSerie({"10", "20"});
    Escribir("5");
    EXPECT_EQ(Celda(3, 0), "[->]");
    ClicEnCelda(1);
    EsperarGrid(1);
    EXPECT_EQ(Celda(3), "");
    EXPECT_EQ(Celda(3, 0), "[?]");
    EXPECT_EQ(Tabla().model()->rowCount(), 3);
}

TEST_F(Entrada, RowsAreInsertedAndDeletedByTheMenuOfTheRow) {
    EscribirSerie({"10", "20", "30"});
    EXPECT_TRUE(ElegirEnFila(2, "Insertar Fila"));
    EXPECT_EQ(FilaActual(), 2);
    EXPECT_EQ(Celda(1), "10.0");
    EXPECT_EQ(Celda(2), "");
    EXPECT_EQ(Celda(3), "20.0");
    EXPECT_EQ(Celda(4), "30.0");
    EXPECT_EQ(Celda(4, 0), "4");
    EXPECT_EQ(Celda(5, 0), "[?]");

    EXPECT_TRUE(ElegirEnFila(1, "Eliminar Fila"));
    EXPECT_EQ(Tabla().model()->rowCount(), 4);
    EXPECT_EQ(Celda(1), "");
    EXPECT_EQ(Celda(2), "20.0");
    EXPECT_EQ(Celda(3, 0), "3");

    EXPECT_FALSE(ElegirEnFila(4, "Insertar Fila"));
    EXPECT_EQ(Tabla().model()->rowCount(), 4);
    EXPECT_TRUE(ElegirEnFila(1, "Insertar Fila"));
    EXPECT_EQ(Tabla().model()->rowCount(), 5);

    EXPECT_TRUE(ElegirEnFila(5, "Eliminar Fila"));
    EXPECT_EQ(Tabla().model()->rowCount(), 1);
    EXPECT_EQ(Celda(1), "");
    EXPECT_EQ(Celda(1, 0), "[?]");
}

TEST_F(Entrada, TheClipboardReachesTheBoxAndTheCells) {
    EscribirSerie({"10"});
    QApplication::clipboard()->setText("123.75");
    ClicEnCelda(1);
    Tecla(Qt::Key_F2);
    Tecla(Qt::Key_V, Qt::ControlModifier);
    EsperarEdicion("123.75");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Celda(1), "123.75");

    ClicEnCelda(1);
    Tecla(Qt::Key_F2);
    Tecla(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "123.75");
    EsperarEdicion("");
    Tecla(Qt::Key_Z, Qt::ControlModifier);
    EsperarEdicion("123.75");
    Tecla(Qt::Key_Escape);
    QApplication::clipboard()->clear();
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "123.75");
    EXPECT_FALSE(Caja().isVisible());
}

TEST_F(Entrada, TurningTheWheelHidesTheBoxAndDropsItsText) {
    EscribirSerie(std::vector<const char*>(40, "5"));
    Escribir("9");
    ASSERT_TRUE(Caja().isVisible());
    const int antes = Tabla().verticalScrollBar()->value();
    Rodar(2);
    EXPECT_LT(Tabla().verticalScrollBar()->value(), antes);
    EXPECT_FALSE(Caja().isVisible());
    EXPECT_EQ(Celda(41), "");
    EXPECT_EQ(Tabla().model()->rowCount(), 41);
}

TEST_F(Entrada, TheKeysGoToTheGridAfterTheWheelHidTheBox) {
    EscribirSerie(std::vector<const char*>(40, "5"));
    ClicEnCelda(35);
    Escribir("9");
    Rodar(1);
    ASSERT_FALSE(Caja().isVisible());
    Escribir("8");
    EsperarEdicion("8");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Celda(35), "8.0");
}

}  // namespace

}  // namespace cuencalia::pruebas
