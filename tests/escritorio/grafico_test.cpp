#include "frame/reportes/grafico.h"

#include <QSvgRenderer>

#include "escritorio/vistas/estilo.h"
#include "escritorio/vistas/lienzografico.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

using Pares = std::vector<std::pair<double, double>>;

class Grafico : public Mesa {
  protected:
    Grafico() { Ventana()->resize(1500, 700); }

    GraficoModulo& Modelo() { return F().Graph1; }
    QCustomPlot& Lienzo() { return Widget<QCustomPlot>(Modelo()); }
    QCPCurve& Curva(int n) { return *static_cast<QCPCurve*>(Lienzo().plottable(n)); }
    QCPRange X() { return Lienzo().xAxis->range(); }
    QCPRange Y() { return Lienzo().yAxis->range(); }

    void Dibujar(const std::vector<SerieGrafico>& series, const DescripcionGrafico& descripcion = {}) {
        Hacer([&] {
            F().SSTab1.Tab = 1;
            GraficoDibujar(Modelo(), descripcion, series);
        });
        QTest::qWait(20);
    }
    void DibujarTres() {
        Dibujar({{"Exp", {0, 50, 100}, {0.1, 0.4, 0.9}}, {"Ord", {}, {0.2, 0.5, 0.8}}, {"ML", {}, {0.3, 0.6, 0.7}}});
    }
    Pares Puntos(int curva) {
        Pares puntos;
        for (const QCPCurveData& punto : *Curva(curva).data()) {
            puntos.emplace_back(punto.key, punto.value);
        }
        return puntos;
    }
    QPoint Pixel(double x, double y) {
        return QPointF(Lienzo().xAxis->coordToPixel(x), Lienzo().yAxis->coordToPixel(y)).toPoint();
    }
    QColor Color(QPoint lugar) { return Lienzo().grab().toImage().pixelColor(lugar); }
    /// The values that stand beside a point, or an empty text.
    QString Senalado() {
        const auto* texto = static_cast<QCPItemText*>(Lienzo().item(1));
        return texto->visible() ? texto->text() : QString();
    }
};

TEST_F(Grafico, UnConjuntoEsUnaLineaPorSusPuntosEnElOrdenEscrito) {
    Dibujar({{"Exp", {0, 30, 10, 25}, {-2, 5, 7, 18}}, {"", {}, {1, 2, 1e300, 4}}}, {.titulo = "Curva"});
    EXPECT_TRUE(Lienzo().isVisible());
    EXPECT_EQ(Puntos(0), (Pares{{0, -2}, {30, 5}, {10, 7}, {25, 18}}));
    EXPECT_EQ(Puntos(1), (Pares{{0, 1}, {30, 2}, {25, 4}})) << "without x at those of the first, no axis reaches 1e300";
    EXPECT_EQ(Curva(0).lineStyle(), QCPCurve::lsLine);
    EXPECT_EQ(Lienzo().xAxis->label(), "Curva");
    EXPECT_TRUE(X().contains(30));
    for (const double y : {-2.0, 18.0}) {
        EXPECT_TRUE(Y().contains(y) && Y().size() < 20 / 0.9) << "all of the data and little more";
    }
    EXPECT_EQ(Lienzo().accessibleDescription(), "Gráfico de líneas: 2 conjuntos (Exp, Conjunto 2), 7 puntos");

    Dibujar({{.y = {5, 6}}}, {.estilo = kSimbolosSueltos, .puntos = 9, .conjuntos = 2});
    ASSERT_EQ(Lienzo().plottableCount(), 1) << "a set without values is not drawn";
    EXPECT_EQ(Puntos(0), (Pares{{1, 5}, {2, 6}}));
    EXPECT_EQ(Curva(0).lineStyle(), QCPCurve::lsNone);
    Dibujar({{.y = {1234.5}}});
    EXPECT_TRUE(X().contains(1) && Y().contains(1234.5) && Y().size() > 0) << "a lone point has a range around it";
    Hacer([this] { Modelo().LimpiarGrafico(); });
    EXPECT_FALSE(Lienzo().isVisible());
    EXPECT_EQ(Lienzo().plottableCount(), 0) << "what it showed does not come back";
    EXPECT_TRUE(Lienzo().sizePolicy().retainSizeWhenHidden()) << "what stands beside it stays as it is";
}

TEST_F(Grafico, DosGraficosDeUnaEscalaAbarcanLosValoresDeAmbos) {
    Abrir("frmAutoregresivo");
    auto& graph1 = dynamic_cast<GraficoModulo&>(*Forma("frmAutoregresivo").Controls("Graph1"));
    auto& graph2 = dynamic_cast<GraficoModulo&>(*Forma("frmAutoregresivo").Controls("Graph2"));
    const auto y = [](GraficoModulo& grafico) { return Widget<QCustomPlot>(grafico).yAxis->range(); };
    Hacer([&] {
        GraficoDibujar(graph1, {}, {{.y = {50, 60}}});
        GraficoDibujar(graph2, {}, {{.y = {10, 55, 20}}});
    });
    EXPECT_EQ(y(graph1), y(graph2));
    EXPECT_TRUE(y(graph1).contains(10) && y(graph1).contains(60) && y(graph1).size() < 60);
}

TEST_F(Grafico, SeisConjuntosSeDistinguenYSuLeyendaNoTapaNada) {
    Dibujar(std::vector<SerieGrafico>(6, {"un nombre que no cabe en un renglón", {}, {1, 2}}), {.fondo = kFondoGris});
    EXPECT_EQ(Color({5, 5}), Lienzo().palette().color(QPalette::Window));
    std::set<std::pair<QRgb, int>> colores;
    for (int i = 0; i < 6; ++i) {
        colores.emplace(Curva(i).pen().color().rgb(), Curva(i).scatterStyle().shape());
        const auto* entrada = Lienzo().legend->itemWithPlottable(&Curva(i));
        EXPECT_TRUE(entrada != nullptr && Lienzo().rect().contains(entrada->outerRect()) &&
                    !entrada->outerRect().intersects(Lienzo().axisRect()->rect()));
    }
    EXPECT_EQ(colores.size(), 6U);
    const SerieGrafico larga{.y = std::vector<Double>(60, 1)};
    for (const bool sola : {true, false}) {
        Dibujar(sola ? std::vector{larga} : std::vector{larga, larga});
        EXPECT_EQ(Curva(0).scatterStyle().isNone(), sola) << "symbols at some points tell a line from others";
    }
    Dibujar({{"P", {}, {1}}});
    EXPECT_TRUE(Lienzo().legend->visible()) << "a lone set has one where it has a name";
}

// The intensities 6, 0 and 9 of three intervals that end at 10, 20 and 40, as rectangles.
TEST_F(Grafico, LosRectangulosEstanUnoJuntoAOtroSobreCero) {
    Dibujar({{"", {0, 0, 10, 10, 10, 10, 20, 20, 20, 20, 40, 40}, {0, 6, 6, 0, 0, 0, 0, 0, 0, 9, 9, 0}}},
            {.tipo = kGraficoAreas, .autoInc = 0, .puntos = 16, .conjuntos = 2});
    EXPECT_EQ(Y().lower, 0);
    EXPECT_FALSE(Lienzo().legend->visible());
    const QColor relleno = Color(Pixel(4.1, 2.3)), papel = Color(Pixel(14.1, 2.3));
    EXPECT_NE(relleno, papel);
    EXPECT_EQ(Color(Pixel(4.1, 0.3)), relleno);
    EXPECT_EQ(Color(Pixel(4.1, 6.6)), papel);
    EXPECT_EQ(Color(Pixel(24.1, 8.3)), relleno);
    for (const double lado : {0.0, 10.0, 20.0, 40.0}) {
        EXPECT_LT(Color(Pixel(lado, 3.3)).lightness(), relleno.lightness() - 40) << "an outline at " << lado;
    }
    Dibujar({{.y = {5, 6, 5}}}, {.tipo = kGraficoAreas});
    EXPECT_EQ(Color(Pixel(1.3, 1.3)), relleno) << "down to zero, where the line itself does not go";
}

// Banks at 0 and 10, the deepest place at 4.
TEST_F(Grafico, UnCauceTieneAguaHastaSuSuperficie) {
    Dibujar({{"", {0, 4, 10}, {0, -2, 0}}}, {.cauce = true});
    const QColor agua = Color(Pixel(4.3, -0.9)), papel = Color(Pixel(0.7, -1.3));
    EXPECT_NE(agua, papel);
    EXPECT_EQ(Color(Pixel(7.3, -1.3)), papel) << "below the bed";
    EXPECT_LT(Color(Pixel(5.3, 0)).lightness(), agua.lightness() - 40) << "the surface";
    EXPECT_LT(Color(Pixel(7, -1)).lightness(), Color(Pixel(5.3, 0)).lightness()) << "the bed";
    EXPECT_EQ(Puntos(2), (Pares{{0, 0}, {4, -2}, {10, 0}}));
}

TEST_F(Grafico, LosEjesTienenPuntoYLosDecimalesQueNecesitan) {
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    Cerrar(F());
    Abrir("frmPrueba");
    const std::pair<double, const char*> casos[] = {{10000, "10000"}, {4, "0.5"}, {5e7, "2e+07"}, {5e-7, "2e-07"}};
    for (const auto& [mayor, numero] : casos) {
        Dibujar({{.y = {0, mayor}}});
        EXPECT_TRUE(Lienzo().yAxis->tickVectorLabels().contains(numero)) << numero;
    }
    QLocale::setDefault(QLocale::c());
}

TEST_F(Grafico, LosPuntosTienenSuNombreEnElEjeSiCaben) {
    Dibujar({{.y = {3, 1, 2, 5}}}, {.nombres = {"Ene", "Feb", "Mar", "Abr"}});
    EXPECT_EQ(Lienzo().xAxis->tickVectorLabels().join(' '), "Ene Feb Mar Abr");
}

TEST_F(Grafico, ElPunteroYLasFlechasDicenLosValoresDeUnPunto) {
    DibujarTres();
    Clic(Lienzo(), Pixel(25, 0.8));
    const std::pair<Qt::Key, QString> pasos[] = {
        {Qt::Key_Right, "Exp\nx = 0, y = 0.1"}, {Qt::Key_Right, "Exp\nx = 50, y = 0.4"},
        {Qt::Key_Down, "Ord\nx = 50, y = 0.5"}, {Qt::Key_Left, "Ord\nx = 0, y = 0.2"},
        {Qt::Key_Left, "Ord\nx = 0, y = 0.2"},  {Qt::Key_Up, "Exp\nx = 0, y = 0.1"}};
    for (const auto& [tecla, esperado] : pasos) {
        Tecla(tecla);
        EXPECT_EQ(Senalado(), esperado);
    }
    for (int i = 0; i < 10; ++i) {
        Tecla(Qt::Key_Plus);
    }
    EXPECT_FALSE(X().contains(0));
    Tecla(Qt::Key_Left);
    EXPECT_TRUE(X().contains(0)) << "a point outside of the part shown comes into it";
    Tecla(Qt::Key_Home);
    Apuntar(Lienzo(), Pixel(50, 0.5) + QPoint(6, 4));
    EXPECT_EQ(Senalado(), "Ord\nx = 50, y = 0.5");
    Apuntar(Lienzo(), Pixel(25, 0.8));
    EXPECT_EQ(Senalado(), "");
}

TEST_F(Grafico, ElUsuarioAmpliaMueveYVuelve) {
    DibujarTres();
    const QCPRange todoX = X(), todoY = Y();
    const QPoint centro = Lienzo().rect().center();
    const double x = Lienzo().xAxis->pixelToCoord(centro.x());
    Rodar(Lienzo(), -1);
    EXPECT_LT(X().size(), todoX.size());
    EXPECT_NEAR(Lienzo().xAxis->pixelToCoord(centro.x()), x, 1e-6) << "the place below the pointer stays";
    const double izquierda = X().lower;
    QTest::mousePress(&Lienzo(), Qt::LeftButton, Qt::NoModifier, centro);
    QTest::mouseMove(&Lienzo(), centro + QPoint(60, 0));
    QTest::mouseRelease(&Lienzo(), Qt::LeftButton, Qt::NoModifier, centro + QPoint(60, 0));
    EXPECT_LT(X().lower, izquierda);
    const QCPRange elegido = X();
    Widget(F().btn1).setFocus();
    Hacer([this] { Modelo().SetFocus(); });
    EXPECT_EQ(X(), elegido) << "the part chosen stays when the focus moves";
    QTest::mouseDClick(&Lienzo(), Qt::LeftButton, Qt::NoModifier, centro);
    EXPECT_TRUE(X() == todoX && Y() == todoY);
    // Neither end of the zoom leads where the axes have no numbers: a step is a fifth.
    for (const auto& [tecla, menor, mayor] : {std::tuple{Qt::Key_Plus, 1e-7, 1e-5}, {Qt::Key_Minus, 1e2, 1e4}}) {
        for (int i = 0; i < 200; ++i) {
            Tecla(tecla);
        }
        EXPECT_TRUE(X().size() > menor * todoX.size() && X().size() < mayor * todoX.size());
        Tecla(Qt::Key_0);
        EXPECT_TRUE(X() == todoX && Y() == todoY);
    }
}

TEST_F(Grafico, SeCopiaYSeGuardaComoSeVeEnOscuroSobreBlanco) {
    estilo::Aplicar(*qApp, estilo::Esquema::Oscuro);
    DibujarTres();
    EXPECT_LT(Color({5, 5}).lightness(), 128);
    const QTemporaryDir carpeta;
    const auto elegir = [&](int accion, const char* nombre) {
        vigia_.elegir = [&](QFileDialog&) { return carpeta.filePath(nombre); };
        Lienzo().actions()[accion]->trigger();
        return carpeta.filePath(nombre);
    };
    elegir(1, "");
    const QImage copia = QGuiApplication::clipboard()->image(), png(elegir(2, "g.png"));
    QFile pdf(elegir(3, "g.pdf"));
    EXPECT_TRUE(pdf.open(QIODevice::ReadOnly) && pdf.readAll().count("/Type /Page\n") == 1);
    EXPECT_TRUE(QSvgRenderer(elegir(4, "año.svg")).isValid());
    const auto rotulos = [&](const char* nombre) {
        QFile svg(elegir(4, nombre));
        return svg.open(QIODevice::ReadOnly) ? svg.readAll().count("Texto:") : -1;
    };
    Modelo().NombrarEjes("Texto: x", "Texto: y");
    Dibujar({{.y = {1, 2}}});
    EXPECT_EQ(Lienzo().yAxis->label(), "Texto: y") << "there are no labels in the window";
    Hacer([this] { Modelo().RotularEjes(F().lbl1, F().lbl1); });
    EXPECT_EQ(rotulos("con.svg"), 2) << "the names of the axes, which stand beside it on the screen";
    Hacer([this] { F().lbl1.Visible = false; });
    EXPECT_EQ(rotulos("sin.svg"), 0);
    EXPECT_TRUE(vigia_.mensajes.empty());
    elegir(2, "no existe/g.png");
    EXPECT_TRUE(vigia_.mensajes.size() == 1 && vigia_.mensajes[0].icono == QMessageBox::Critical &&
                vigia_.mensajes[0].texto.contains("no existe/g.png"));
    for (const QImage& cada : {png, copia}) {
        EXPECT_EQ(cada.pixelColor(2, 2), QColor(Qt::white));
        QImage vacia = cada;
        vacia.fill(Qt::white);
        EXPECT_NE(cada, vacia);
    }
    elegir(1, "");
    const QImage todo = QGuiApplication::clipboard()->image();
    Rodar(Lienzo(), -1);
    elegir(1, "");
    EXPECT_NE(QGuiApplication::clipboard()->image(), todo) << "the part that is shown";
    estilo::Aplicar(*qApp, estilo::Esquema::Claro);
}

}  // namespace cuencalia::pruebas
