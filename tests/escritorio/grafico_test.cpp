#include "frame/reportes/grafico.h"

#include <qcustomplot.h>

#include <QApplication>
#include <QClipboard>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <set>

#include "escritorio/estilo.h"
#include "escritorio/exportargrafico.h"
#include "escritorio/lienzografico.h"
#include "shell/formas.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

namespace {

class FormaConGrafico : public Formulario {
  public:
    explicit FormaConGrafico(Aplicacion& app) : Formulario(app, "frmGrafico", "Gráfico de prueba") {
        Text1.Enabled = false;
    }

    TextBox Text1{*this, "Text1"};
    GraficoModulo Graph1{*this, "Graph1", "Gráfico de la serie"};

  protected:
    Disposicion Disponer() override { return Columna({Disposicion(Text1), Disposicion(Graph1).Estira(1)}); }
};

class Grafico : public Mesa {
  protected:
    void SetUp() override {
        TablaFormas formas = FormasDelPrograma();
        formas["frmGrafico"] = [](Aplicacion& app) { return std::make_unique<FormaConGrafico>(app); };
        Empezar(std::move(formas));
        escritorio_->App().Despachar([this] { escritorio_->App().ModuloAbrir("frmGrafico"); });
        ASSERT_TRUE(QTest::qWaitForWindowActive(Ventana("frmGrafico")));
        Ventana("frmGrafico")->resize(700, 500);
    }

    GraficoModulo& Modelo() { return static_cast<FormaConGrafico&>(Forma("frmGrafico")).Graph1; }
    LienzoGrafico& Lienzo() { return *static_cast<LienzoGrafico*>(static_cast<Vista*>(Modelo().Vista())->Widget()); }
    QString Guardar(const QString& archivo, FormatoGrafico formato) {
        return GuardarGrafico(Modelo(), Lienzo(), archivo, formato);
    }
    QCPCurve& Curva(int n) { return *static_cast<QCPCurve*>(Lienzo().plottable(n)); }

    void Dibujar(const std::vector<SerieGrafico>& series, const DescripcionGrafico& descripcion = {}) {
        escritorio_->App().Despachar([&] { GraficoDibujar(Modelo(), descripcion, series); });
        QCoreApplication::processEvents();
    }
    void DibujarTres() {
        Dibujar({{"Exp", {0, 50, 100}, {0.1, 0.4, 0.9}},
                 {"Ord", {0, 50, 100}, {0.2, 0.5, 0.8}},
                 {"ML", {0, 50, 100}, {0.3, 0.6, 0.7}}});
    }

    static std::vector<std::pair<double, double>> Puntos(const QCPCurve& curva) {
        std::vector<std::pair<double, double>> puntos;
        for (const QCPCurveData& punto : *curva.data()) {
            puntos.emplace_back(punto.key, punto.value);
        }
        return puntos;
    }
    QPoint Pixel(double x, double y) {
        return QPointF(Lienzo().xAxis->coordToPixel(x), Lienzo().yAxis->coordToPixel(y)).toPoint();
    }
    /// The values that stand beside a point, or an empty text.
    QString Senalado() {
        for (int i = 0; i < Lienzo().itemCount(); ++i) {
            const auto* texto = qobject_cast<QCPItemText*>(Lienzo().item(i));
            if (texto != nullptr && texto->visible()) {
                return texto->text();
            }
        }
        return {};
    }
};

using Pares = std::vector<std::pair<double, double>>;

/// All of the data is inside, and nine tenths of the axis or more are theirs.
void Abarca(const QCPRange& rango, double minimo, double maximo) {
    EXPECT_LT(rango.lower, minimo);
    EXPECT_GT(rango.upper, maximo);
    EXPECT_GT(maximo - minimo, 0.9 * rango.size());
}

TEST_F(Grafico, EachSetIsALineThroughItsPointsInTheOrderWritten) {
    EXPECT_FALSE(Lienzo().isVisible());
    Dibujar({{"Exp", {0, 30, 10, 30}, {-2, 5, 7, 18}}, {"Ord", {0, 10, 20, 40}, {1, 2, 3, 4}}}, {.titulo = "Curva"});
    ASSERT_EQ(Lienzo().plottableCount(), 2);
    EXPECT_TRUE(Lienzo().isVisible());
    EXPECT_EQ(Puntos(Curva(0)), (Pares{{0, -2}, {30, 5}, {10, 7}, {30, 18}}));
    EXPECT_EQ(Puntos(Curva(1)), (Pares{{0, 1}, {10, 2}, {20, 3}, {40, 4}}));
    EXPECT_EQ(Curva(0).name(), "Exp");
    EXPECT_EQ(Curva(1).name(), "Ord");
    EXPECT_EQ(Curva(0).lineStyle(), QCPCurve::lsLine);
    EXPECT_EQ(Lienzo().xAxis->label(), "Curva");
    Abarca(Lienzo().xAxis->range(), 0, 40);
    Abarca(Lienzo().yAxis->range(), -2, 18);

    Dibujar({{"", {1, 2}, {3, 4}}}, {.estilo = kSimbolosSueltos});
    ASSERT_EQ(Lienzo().plottableCount(), 1);
    EXPECT_EQ(Curva(0).lineStyle(), QCPCurve::lsNone);
    EXPECT_NE(Curva(0).scatterStyle().shape(), QCPScatterStyle::ssNone);
    EXPECT_EQ(Lienzo().xAxis->label(), "");
}

TEST_F(Grafico, ALegendStandsWhereItTellsSomething) {
    DibujarTres();
    EXPECT_TRUE(Lienzo().legend->visible());
    EXPECT_EQ(Lienzo().accessibleName(), "Gráfico de la serie");
    EXPECT_EQ(Std(Lienzo().accessibleDescription()), "Gráfico de líneas: 3 conjuntos (Exp, Ord, ML), 9 puntos");
    Dibujar({{"", {1}, {2}}});
    EXPECT_FALSE(Lienzo().legend->visible());
    EXPECT_EQ(Std(Lienzo().accessibleDescription()), "Gráfico de líneas: 1 conjunto, 1 punto");
    Dibujar({{"P", {1, 2}, {2, 3}}}, {.estilo = kSimbolosSueltos});
    EXPECT_TRUE(Lienzo().legend->visible());
    EXPECT_EQ(Std(Lienzo().accessibleDescription()), "Gráfico de puntos: 1 conjunto (P), 2 puntos");
}

TEST_F(Grafico, SixSetsDifferInColourDashesAndSymbol) {
    Dibujar(std::vector<SerieGrafico>(6, {"un nombre que no cabe en un renglón", {1, 2}, {1, 2}}));
    std::set<QRgb> colores;
    std::set<QCPScatterStyle::ScatterShape> simbolos;
    std::vector<QVector<qreal>> rayas;
    std::set<int> renglones;
    for (int i = 0; i < 6; ++i) {
        colores.insert(Curva(i).pen().color().rgb());
        simbolos.insert(Curva(i).scatterStyle().shape());
        EXPECT_EQ(std::count(rayas.begin(), rayas.end(), Curva(i).pen().dashPattern()), 0);
        rayas.push_back(Curva(i).pen().dashPattern());
        const QRect entrada = Lienzo().legend->itemWithPlottable(&Curva(i))->outerRect();
        EXPECT_TRUE(Lienzo().rect().contains(entrada));
        EXPECT_FALSE(entrada.intersects(Lienzo().axisRect()->rect()));
        renglones.insert(entrada.top());
    }
    EXPECT_EQ(colores.size(), 6U);
    EXPECT_EQ(simbolos.size(), 6U);
    EXPECT_GT(renglones.size(), 1U);
}

TEST_F(Grafico, PointsWithoutAValueAreLeftOut) {
    escritorio_->App().Despachar([this] {
        GraficoModulo& g = Modelo();
        g.AutoInc = 0;
        g.PonerNumPoints(4);
        g.PonerNumSets(2);
        for (int i : {1, 2, 4}) {
            g.PonerThisPoint(i);
            g.PonerGraphData(10 * i);
        }
        for (int i : {1, 3, 4}) {
            g.PonerThisPoint(i);
            g.PonerXPosData(i);
        }
        g.Visible = true;
        g.DrawMode = kDibujarGrafico;
    });
    // The second set was never written: nothing of it is drawn, and there is no legend for its sake.
    ASSERT_EQ(Lienzo().plottableCount(), 1);
    EXPECT_EQ(Puntos(Curva(0)), (Pares{{1, 10}, {4, 40}}));
    EXPECT_FALSE(Lienzo().legend->visible());
}

TEST_F(Grafico, AnAreaIsFilledDownToZero) {
    Dibujar({{"", {0, 0, 15, 15}, {0, 6, 6, 0}}, {"", {15, 20, 25, 30}, {9, 10, 8, 10}}}, {.tipo = kGraficoAreas});
    EXPECT_EQ(Lienzo().yAxis->range().lower, 0);
    EXPECT_GT(Lienzo().yAxis->range().upper, 10);
    // The filling of the second set stands on zero at both ends.
    ASSERT_EQ(Lienzo().plottableCount(), 4);
    EXPECT_EQ(Puntos(Curva(2)), (Pares{{15, 0}, {15, 9}, {20, 10}, {25, 8}, {30, 10}, {30, 0}}));
    const QImage imagen = Lienzo().grab().toImage();
    EXPECT_NE(imagen.pixelColor(Pixel(22, 3)), imagen.pixelColor(Pixel(22, 10.3)));

    Dibujar({{"", {1, 2}, {-4, 8}}}, {.tipo = kGraficoAreas});
    EXPECT_LT(Lienzo().yAxis->range().lower, -4);
}

TEST_F(Grafico, ALonePointAndAFlatLineHaveARangeAroundThem) {
    Dibujar({{"", {5}, {1234.5}}});
    EXPECT_LT(Lienzo().xAxis->range().lower, 5);
    EXPECT_GT(Lienzo().xAxis->range().upper, 5);
    EXPECT_NEAR(Lienzo().yAxis->range().center(), 1234.5, 1e-6);
    Dibujar({{"", {1, 2, 3}, {0, 0, 0}}});
    EXPECT_LT(Lienzo().yAxis->range().lower, 0);
    EXPECT_GT(Lienzo().yAxis->range().upper, 0);
    Dibujar({{"", {1, 2}, {1e300, 4}}});
    EXPECT_EQ(Puntos(Curva(0)), (Pares{{2, 4}}));
}

TEST_F(Grafico, AxesHaveADecimalPointAndAsManyDecimalsAsTheyNeed) {
    const QLocale antes;
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    SetUp();
    Dibujar({{"", {0, 10000}, {-0.25, 1}}});
    Lienzo().replot();
    QLocale::setDefault(antes);
    EXPECT_TRUE(Lienzo().xAxis->tickVectorLabels().contains("10000"));
    const QVector<QString> y = Lienzo().yAxis->tickVectorLabels();
    EXPECT_TRUE(y.contains("0"));
    EXPECT_TRUE(y.contains("0.2") || y.contains("0.25"));
    for (const QString& numero : y) {
        EXPECT_FALSE(numero.contains(','));
        EXPECT_FALSE(numero.contains("-0") && numero.toDouble() == 0);
    }
}

TEST_F(Grafico, AClearedChartIsHiddenAndItsDataDoNotComeBack) {
    DibujarTres();
    escritorio_->App().Despachar([this] { Modelo().LimpiarGrafico(); });
    EXPECT_FALSE(Lienzo().isVisible());
    EXPECT_EQ(Lienzo().plottableCount(), 0);
    EXPECT_EQ(Lienzo().accessibleDescription(), "Gráfico vacío");
    escritorio_->App().Despachar([this] { Modelo().Visible = true; });
    EXPECT_EQ(Lienzo().plottableCount(), 0);
    Dibujar({{"", {1, 2}, {3, 4}}});
    EXPECT_EQ(Lienzo().plottableCount(), 1);
    EXPECT_FALSE(Lienzo().legend->visible());
}

TEST_F(Grafico, ItGrowsWithTheWindowAndIsNeverCramped) {
    DibujarTres();
    const QSize antes = Lienzo().size();
    Ventana("frmGrafico")->resize(900, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(Lienzo().size(), antes + QSize(200, 200));
    Ventana("frmGrafico")->resize(100, 100);
    QCoreApplication::processEvents();
    EXPECT_GE(Lienzo().width(), 320);
    EXPECT_GE(Lienzo().height(), 220);
}

TEST_F(Grafico, ThePointerTellsTheValuesOfThePointBelow) {
    DibujarTres();
    Apuntar(Lienzo(), Pixel(50, 0.5) + QPoint(6, 4));
    EXPECT_EQ(Senalado(), "Ord\nx = 50, y = 0.5");
    Apuntar(Lienzo(), Pixel(100, 0.9));
    EXPECT_EQ(Senalado(), "Exp\nx = 100, y = 0.9");
    Apuntar(Lienzo(), Pixel(25, 0.8));
    EXPECT_EQ(Senalado(), "");
    Dibujar({{"", {1, 2, 3}, {0.1, 1234.5678, 3e7}}});
    Apuntar(Lienzo(), Pixel(2, 1234.5678));
    EXPECT_EQ(Senalado(), "x = 2, y = 1234.568");
    Apuntar(Widget("Text1", "frmGrafico"), QPoint(5, 5));
    EXPECT_EQ(Senalado(), "");
}

TEST_F(Grafico, ArrowKeysGoFromPointToPoint) {
    DibujarTres();
    Clic(Lienzo(), Pixel(25, 0.8));
    ASSERT_TRUE(Lienzo().hasFocus());
    Tecla(Qt::Key_Right);
    EXPECT_EQ(Senalado(), "Exp\nx = 0, y = 0.1");
    Tecla(Qt::Key_Right);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(Senalado(), "Ord\nx = 50, y = 0.5");
    Tecla(Qt::Key_Up);
    Tecla(Qt::Key_Up);
    Tecla(Qt::Key_Left);
    Tecla(Qt::Key_Left);
    EXPECT_EQ(Senalado(), "Exp\nx = 0, y = 0.1");
    // A point outside of the part shown comes into it.
    for (int i = 0; i < 10; ++i) {
        Tecla(Qt::Key_Plus);
    }
    ASSERT_FALSE(Lienzo().xAxis->range().contains(0));
    Tecla(Qt::Key_Left);
    EXPECT_EQ(Senalado(), "Exp\nx = 0, y = 0.1");
    EXPECT_TRUE(Lienzo().xAxis->range().contains(0));
}

TEST_F(Grafico, TabLeadsFromABoxToTheChart) {
    if (!Modelo().AceptaFoco()) {
        GTEST_SKIP() << "the chart's model takes no focus, so the desktop gives it back to the box";
    }
    DibujarTres();
    auto& caja = static_cast<FormaConGrafico&>(Forma("frmGrafico")).Text1;
    escritorio_->App().Despachar([&] {
        caja.Enabled = true;
        caja.SetFocus();
    });
    Escribir("12");
    Tecla(Qt::Key_Tab);
    ASSERT_TRUE(Lienzo().hasFocus());
    Tecla(Qt::Key_Right);
    EXPECT_EQ(Senalado(), "Exp\nx = 0, y = 0.1");
    EXPECT_TRUE(Lienzo().hasFocus());
}

TEST_F(Grafico, TheUserZoomsAndMovesAndComesBack) {
    DibujarTres();
    const QCPRange todoX = Lienzo().xAxis->range(), todoY = Lienzo().yAxis->range();
    const auto esTodo = [&] { return Lienzo().xAxis->range() == todoX && Lienzo().yAxis->range() == todoY; };
    Clic(Lienzo(), Pixel(25, 0.8));

    Tecla(Qt::Key_Plus);
    EXPECT_LT(Lienzo().xAxis->range().size(), todoX.size());
    EXPECT_LT(Lienzo().yAxis->range().size(), todoY.size());
    EXPECT_NEAR(Lienzo().xAxis->range().center(), todoX.center(), 1e-9);
    Tecla(Qt::Key_Home);
    EXPECT_TRUE(esTodo());
    Tecla(Qt::Key_Minus);
    EXPECT_GT(Lienzo().xAxis->range().size(), todoX.size());
    Tecla(Qt::Key_0);
    EXPECT_TRUE(esTodo());

    // The wheel leaves the place below the pointer where it is.
    const QPoint fijo = Pixel(25, 0.8);
    const double x = Lienzo().xAxis->pixelToCoord(fijo.x());
    QWheelEvent rueda(fijo, Lienzo().mapToGlobal(fijo), {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&Lienzo(), &rueda);
    EXPECT_LT(Lienzo().xAxis->range().size(), todoX.size());
    EXPECT_NEAR(Lienzo().xAxis->pixelToCoord(fijo.x()), x, 1e-6);

    const QPoint desde = Lienzo().rect().center();
    const double izquierda = Lienzo().xAxis->range().lower;
    QTest::mousePress(&Lienzo(), Qt::LeftButton, Qt::NoModifier, desde);
    QTest::mouseMove(&Lienzo(), desde + QPoint(60, 0));
    QTest::mouseRelease(&Lienzo(), Qt::LeftButton, Qt::NoModifier, desde + QPoint(60, 0));
    EXPECT_LT(Lienzo().xAxis->range().lower, izquierda);
    QTest::mouseDClick(&Lienzo(), Qt::LeftButton, Qt::NoModifier, desde);
    EXPECT_TRUE(esTodo());

    // Neither end of the zoom leads where the axes have no numbers: a step is a fifth.
    for (int i = 0; i < 150; ++i) {
        Tecla(Qt::Key_Plus);
    }
    EXPECT_GT(Lienzo().xAxis->range().size(), 1e-6 * todoX.size());
    for (int i = 0; i < 200; ++i) {
        Tecla(Qt::Key_Minus);
    }
    EXPECT_LT(Lienzo().xAxis->range().size(), 1e4 * todoX.size());
}

TEST_F(Grafico, FilesAreWholeAndDrawnOnWhite) {
    estilo::Aplicar(*qApp, estilo::Esquema::Oscuro);
    DibujarTres();
    EXPECT_LT(Lienzo().grab().toImage().pixelColor(5, 5).lightness(), 128);
    const QTemporaryDir carpeta;
    const QString png = carpeta.filePath("g.png"), pdf = carpeta.filePath("g.pdf"), svg = carpeta.filePath("año.svg");
    EXPECT_EQ(Guardar(png, FormatoGrafico::Png), "");
    EXPECT_EQ(Guardar(pdf, FormatoGrafico::Pdf), "");
    EXPECT_EQ(Guardar(svg, FormatoGrafico::Svg), "");
    QGuiApplication::clipboard()->setPixmap(FotoDeGrafico(Modelo(), Lienzo()));
    estilo::Aplicar(*qApp, estilo::Esquema::Claro);

    const QImage imagen(png);
    const QImage copia = QGuiApplication::clipboard()->image();
    EXPECT_EQ(imagen.size(), Lienzo().size().expandedTo({640, 440}) * 2);
    EXPECT_EQ(copia.size(), imagen.size());
    QSvgRenderer dibujo(svg);
    ASSERT_TRUE(dibujo.isValid());
    QImage deSvg(dibujo.defaultSize(), QImage::Format_RGB32);
    deSvg.fill(Qt::red);
    QPainter pintor(&deSvg);
    dibujo.render(&pintor);
    pintor.end();
    for (const QImage& cada : {imagen, copia, deSvg}) {
        EXPECT_EQ(cada.pixelColor(2, 2), QColor(Qt::white));
        bool oscuro = false, azul = false;
        for (int y = 0; y < cada.height(); ++y) {
            for (int x = 0; x < cada.width(); ++x) {
                const QColor color = cada.pixelColor(x, y);
                oscuro = oscuro || color.lightness() < 60;
                azul = azul || color == QColor(0x00, 0x72, 0xb2);
            }
        }
        EXPECT_TRUE(oscuro);
        EXPECT_TRUE(azul);
    }
    QFile documento(pdf);
    ASSERT_TRUE(documento.open(QIODevice::ReadOnly));
    const QByteArray texto = documento.readAll();
    EXPECT_TRUE(texto.startsWith("%PDF-1."));
    EXPECT_TRUE(texto.trimmed().endsWith("%%EOF"));
    EXPECT_EQ(texto.count("/Type /Page\n"), 1);
}

TEST_F(Grafico, AFileThatCannotBeWrittenLeavesNothing) {
    DibujarTres();
    const QTemporaryDir carpeta;
    EXPECT_NE(Guardar(carpeta.filePath("no existe/g.png"), FormatoGrafico::Png), "");
    EXPECT_TRUE(QDir(carpeta.path()).isEmpty());
}

TEST_F(Grafico, TheContextMenuOffersWhatCanBeDone) {
    DibujarTres();
    QStringList entradas;
    for (const QAction* accion : Lienzo().actions()) {
        entradas << accion->text();
    }
    EXPECT_EQ(entradas,
              QStringList({"Ver todo", "Copiar", "Guardar como PNG…", "Guardar como PDF…", "Guardar como SVG…"}));

    Clic(Lienzo(), Pixel(25, 0.8));
    QGuiApplication::clipboard()->clear();
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(QGuiApplication::clipboard()->image().isNull());

    QStringList abiertas;
    QTimer::singleShot(50, qApp, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            for (const QAction* accion : menu->actions()) {
                abiertas << accion->text();
            }
            menu->close();
        }
    });
    const QPoint centro = Lienzo().rect().center();
    QContextMenuEvent tecla(QContextMenuEvent::Keyboard, centro, Lienzo().mapToGlobal(centro));
    QCoreApplication::sendEvent(&Lienzo(), &tecla);
    EXPECT_EQ(abiertas, entradas);

    Lienzo().actions()[2]->trigger();
    EXPECT_EQ(vigia_->otrosDialogos, QStringList("Guardar el gráfico"));
    EXPECT_TRUE(vigia_->mensajes.empty());
}

}  // namespace

}  // namespace cuencalia::pruebas
