#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

class Grid : public Mesa {
  protected:
    FlexGrid& G() { return F().grd1; }
    QTableView& Tabla() { return Widget<QTableView>(G()); }
    QString Encabezado(int n, Qt::Orientation lado) { return Tabla().model()->headerData(n, lado).toString(); }
    QString Texto(int fila, int columna) { return Tabla().model()->index(fila, columna).data().toString(); }
    /// Place of a cell in the table's viewport, rows and columns numbered as the form does.
    QRect Celda(int fila, int columna) {
        return Tabla().visualRect(Tabla().model()->index(fila - G().FixedRows(), columna - G().FixedCols()));
    }
    bool ActualALaVista() { return Tabla().viewport()->rect().contains(Celda(G().Row(), G().Col())); }
    std::vector<int> Elegido() { return {G().Row(), G().Col(), G().RowSel(), G().ColSel()}; }
    auto Marcadas() { return Tabla().selectionModel()->selectedIndexes().size(); }
};

TEST_F(Grid, LoFijoEsEncabezadoYElRestoCeldas) {
    EXPECT_EQ(Texto(38, 2), "39,3");
    EXPECT_EQ(Encabezado(2, Qt::Horizontal), "0,3");
    EXPECT_EQ(Tabla().findChild<QAbstractButton*>()->findChild<QLabel*>()->text(), "0,0");
    Hacer([this] {
        G().RemoveItem(2);
        G().PonerTextMatrix(2, 0, " 2");
        G().PonerFixedRows(2);
    });
    EXPECT_EQ(Tabla().model()->rowCount(), 37);
    EXPECT_EQ(Texto(0, 0), "3,1");
    EXPECT_EQ(Encabezado(0, Qt::Vertical), "2");
    EXPECT_EQ(Encabezado(0, Qt::Horizontal), "0,1\n1,1") << "every fixed row";
    Hacer([this] { G().PonerFixedCols(0); });
    EXPECT_EQ(Texto(0, 0), " 2");
}

TEST_F(Grid, UnaColumnaTieneElAnchoQueDiceOElDeSuEncabezado) {
    const char* const largo = "Un encabezado bastante largo";
    const int alineaciones[] = {kAlinearCentro, kAlinearDerecha, kAlinearIzquierda};
    const Qt::Alignment esperado[] = {Qt::AlignHCenter, Qt::AlignRight, Qt::AlignLeft};
    for (int c = 0; c < 3; ++c) {
        Hacer([&] { G().PonerColAlignment(c + 1, alineaciones[c]); });
        const auto alineacion = Tabla().model()->index(0, c).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
        EXPECT_EQ(alineacion & Qt::AlignHorizontal_Mask, esperado[c]);
    }
    Hacer([&] {
        G().PonerColWidth(1, 3000);
        G().PonerColWidth(2, 150);
        G().PonerTextMatrix(0, 2, largo);
    });
    Tabla().window()->resize(1400, 600);
    QCoreApplication::processEvents();
    EXPECT_GE(Tabla().columnWidth(0), 200);  // 3000 twips of 15 to a pixel
    EXPECT_GT(Tabla().columnWidth(1), Tabla().fontMetrics().horizontalAdvance(largo));
    EXPECT_EQ(Tabla().horizontalHeader()->length(), Tabla().viewport()->width()) << "no empty strip";
}

TEST_F(Grid, LasFilasALaVistaVanEnAmbosSentidos) {
    int ruedas = 0;
    G().Scroll.Conectar([&] { ++ruedas; });
    Hacer([this] { G().PonerTopRow(10); });
    EXPECT_EQ(Tabla().rowAt(0), 9) << "the widget leaves the heading out of account";
    Rodar(*Tabla().viewport(), 1);
    EXPECT_EQ(G().TopRow(), 13) << "three rows";
    EXPECT_EQ(G().TopRow(), Tabla().rowAt(0) + 1);
    EXPECT_EQ(ruedas, 2) << "one by the program, one by the user";
    for (const int fila : {39, 1}) {
        Hacer([&] {
            G().PonerTopRow(40 - fila);
            G().PonerRow(fila);
        });
        EXPECT_TRUE(ActualALaVista()) << fila;
    }
    int enteras = 0;
    for (int f = 1; f < 40; ++f) {
        enteras += Tabla().viewport()->rect().contains(Celda(f, 1)) ? 1 : 0;
    }
    EXPECT_EQ(G().FilasVisibles(), enteras);
}

TEST_F(Grid, ElRatonVaALaCeldaQueTieneDebajo) {
    QWidget& tabla = *Tabla().viewport();
    Clic(tabla, Celda(4, 2).center());
    EXPECT_EQ(Sucesos(), (Textos{"txt1 sale", "grd1 entra", "grd1 botón 1"}));
    EXPECT_EQ(Elegido(), (std::vector{4, 2, 4, 2}));
    EXPECT_EQ(Tabla().currentIndex(), Tabla().model()->index(3, 1));
    for (int i = 0; i < 2; ++i) {
        Clic(*Tabla().verticalHeader()->viewport(), QPoint(5, Celda(6, 1).center().y()));
        EXPECT_EQ(Elegido(), (std::vector{6, 2, 6, 2})) << "a label stands for its row";
        EXPECT_EQ(Marcadas(), 1);
    }
    Sucesos();
    Clic(*Tabla().horizontalHeader()->viewport(), QPoint(Celda(1, 2).center().x(), 5));
    Clic(*Tabla().findChild<QAbstractButton*>());
    EXPECT_EQ(Sucesos(), (Textos{"grd1 botón 1", "grd1 encabezado 2", "grd1 botón 1", "grd1 encabezado 0"}));
    EXPECT_EQ(Elegido(), (std::vector{6, 2, 6, 2})) << "a heading is no cell";
    QTest::mousePress(&tabla, Qt::LeftButton, Qt::NoModifier, Celda(2, 1).center());
    QTest::mouseMove(&tabla, Celda(3, 3).center());
    QTest::mouseRelease(&tabla, Qt::LeftButton, Qt::NoModifier, Celda(3, 3).center());
    EXPECT_EQ(Elegido(), (std::vector{2, 1, 3, 3}));
    EXPECT_EQ(Marcadas(), 6);
    Sucesos();
    Clic(tabla, Celda(5, 1).center(), Qt::RightButton);
    EXPECT_EQ(Sucesos(), (Textos{"grd1 botón 2", "mnuBorrar clic"}));
    QContextMenuEvent tecla(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&Tabla(), &tecla);
    EXPECT_EQ(Sucesos(), (Textos{"grd1 botón 2", "mnuBorrar clic"}));
}

TEST_F(Grid, LasTeclasConMayusculasYControlLlegan) {
    Clic(*Tabla().viewport(), Celda(2, 2).center());
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, std::vector<int>> casos[] = {
        {Qt::Key_Down, Qt::ShiftModifier, {2, 2, 3, 2}},
        {Qt::Key_Right, Qt::ShiftModifier, {2, 2, 3, 3}},
        {Qt::Key_C, Qt::ControlModifier, {2, 2, 3, 3}},
        {Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier, {2, 2, 39, 3}},
        {Qt::Key_Home, Qt::ControlModifier, {1, 1, 1, 1}},
        {Qt::Key_Down, Qt::ControlModifier, {39, 1, 39, 1}},
        {Qt::Key_A, Qt::ControlModifier, {39, 1, 1, 3}}};
    for (const auto& [tecla, con, elegido] : casos) {
        Tecla(tecla, con);
        EXPECT_EQ(Elegido(), elegido) << tecla;
        EXPECT_EQ(Marcadas(), (std::abs(elegido[2] - elegido[0]) + 1) * (std::abs(elegido[3] - elegido[1]) + 1));
    }
    EXPECT_EQ(QApplication::clipboard()->text(), "2,2\t2,3\n3,2\t3,3\n");
}

TEST_F(Grid, UnaTablaSeCopiaPorSuMenuYElDobleClicEdita) {
    Abrir("frmParamEsta");
    Formulario& forma = Forma("frmParamEsta");
    auto& resultados = dynamic_cast<FlexGrid&>(*forma.Controls("grdParam"));
    auto& tabla = Widget<QTableView>(resultados);
    Hacer([&] {
        resultados.PonerTextMatrix(2, 1, "5");
        resultados.PonerTextMatrix(2, 2, "7");
        resultados.PonerCelda(2, 1);
        resultados.Seleccionar(2, 2);
    });
    QApplication::clipboard()->clear();
    Clic(*tabla.viewport(), tabla.visualRect(tabla.model()->index(1, 1)).center(), Qt::RightButton);
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::clipboard()->text() == "5\t7\n"; }));
    const Control& caja = *forma.Controls("txtt");
    auto& datos = Widget<QTableView>(*forma.Controls("grdt"));
    Clic(*datos.viewport(), QPoint(20, 8));
    EXPECT_FALSE(caja.Visible);
    QTest::mouseDClick(datos.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 8));
    EXPECT_TRUE(caja.Visible);
    for (const auto& [texto, marcada] : {std::pair{"7.5", false}, std::pair{"7,5", true}}) {
        Hacer([&, t = texto] { dynamic_cast<FlexGrid&>(*forma.Controls("grdt")).PonerTextMatrix(1, 1, t); });
        const QVariant fondo = datos.model()->index(0, 0).data(Qt::BackgroundRole);
        EXPECT_EQ(fondo.isValid() && fondo.value<QColor>().lightness() > 128, marcada) << texto;
    }
}

TEST_F(Grid, LaCajaEstaSobreLaCeldaActual) {
    auto& caja = Widget<QLineEdit>(F().txtt);
    for (const auto& [fila, columna] : {std::pair{3, 2}, std::pair{30, 3}}) {
        Hacer([&, f = fila, c = columna] {
            G().PonerCelda(f, c);
            F().txtt.Text = "12";
            F().txtt.Seleccionar(0, 2);
            F().txtt.Visible = true;
            F().txtt.SetFocus();
        });
        EXPECT_TRUE(ActualALaVista());
        EXPECT_EQ(caja.parentWidget(), Tabla().viewport());
        EXPECT_EQ(caja.geometry(), Celda(fila, columna));
        EXPECT_TRUE(caja.hasFocus());
        EXPECT_EQ(caja.selectedText(), "12");
        Hacer([this] { F().txtt.Visible = false; });
    }
}

}  // namespace cuencalia::pruebas
