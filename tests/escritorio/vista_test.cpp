#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <cmath>

#include "escritorio/estilo.h"
#include "frame/controles/controles.h"
#include "frame/controles/flexgrid.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

namespace {

class Aspecto : public Mesa {
  protected:
    void TearDown() override {
        Mesa::TearDown();
        QApplication::setFont(letra_);
        estilo::Aplicar(*qApp, estilo::Esquema::Claro);
    }

    /// Every control shown stands whole inside what holds it, on no other one, and has room for its text.
    static void EsperarNadaCortado(const char* forma);

    const QFont letra_ = QApplication::font();
};

void Aspecto::EsperarNadaCortado(const char* forma) {
    ASSERT_NE(Ventana(forma), nullptr) << forma;
    const QWidget* dentro = Ventana(forma)->centralWidget();
    std::vector<const QWidget*> controles;
    for (const QWidget* w : dentro->findChildren<QWidget*>()) {
        const bool deTabla = qobject_cast<const QTableView*>(w->parentWidget()) != nullptr ||
                             qobject_cast<const QHeaderView*>(w->parentWidget()) != nullptr;
        if (w->isVisible() && !deTabla && !w->objectName().isEmpty() && !w->objectName().startsWith("qt_")) {
            controles.push_back(w);
        }
    }
    ASSERT_FALSE(controles.empty());
    for (const QWidget* w : controles) {
        SCOPED_TRACE(Std(w->objectName()));
        EXPECT_TRUE(w->parentWidget()->rect().contains(w->geometry()));
        const auto* etiqueta = qobject_cast<const QLabel*>(w);
        if (qobject_cast<const QAbstractButton*>(w) != nullptr || (etiqueta != nullptr && !etiqueta->wordWrap())) {
            EXPECT_GE(w->width(), w->sizeHint().width());
            EXPECT_GE(w->height(), w->sizeHint().height());
        } else if (etiqueta != nullptr) {
            EXPECT_GE(w->height(), w->heightForWidth(w->width()));
        } else {
            EXPECT_GE(w->width(), w->minimumSizeHint().width());
            EXPECT_GE(w->height(), w->minimumSizeHint().height());
        }
        for (const QWidget* otro : controles) {
            if (otro != w && otro->parentWidget() == w->parentWidget()) {
                EXPECT_FALSE(w->geometry().intersects(otro->geometry())) << Std(otro->objectName());
            }
        }
    }
}

/// Contrast ratio of two colours, 1 to 21 (Web Content Accessibility Guidelines 2.1, "relative luminance").
double Contraste(const QColor& a, const QColor& b) {
    const auto luminancia = [](const QColor& color) {
        const auto lineal = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
        return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) + 0.0722 * lineal(color.blueF());
    };
    const double la = luminancia(a);
    const double lb = luminancia(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QImage Dibujo(const QAbstractButton& boton) { return boton.icon().pixmap(boton.iconSize()).toImage(); }

/// A place of the widget where none of its children stands.
QPoint Despejado(const QWidget& widget) {
    for (int y = 1; y < widget.height(); ++y) {
        for (int x = 1; x < widget.width(); ++x) {
            if (widget.childAt(x, y) == nullptr) {
                return {x, y};
            }
        }
    }
    return {};
}

TEST_F(Aspecto, APointedButtonIsLitAndGoesDarkWhenLeft) {
    AbrirModulo();
    auto& calcular = Widget<QAbstractButton>("bCalcular");
    auto& menu = Widget<QAbstractButton>("bMenu");
    Apuntar(Widget("Frame6"), Despejado(Widget("Frame6")));
    const QImage reposo = Dibujo(calcular);
    ASSERT_FALSE(reposo.isNull());

    Apuntar(calcular, calcular.rect().center());
    EXPECT_NE(Dibujo(calcular), reposo);
    EXPECT_EQ(Dibujo(calcular), estilo::Icono("calcular_luz").pixmap(calcular.iconSize()).toImage());
    Apuntar(Widget("Frame6"), Despejado(Widget("Frame6")));
    EXPECT_EQ(Dibujo(calcular), reposo);

    // The frame of the other group leaves these alone, the bare window darkens all.
    const QImage menuEnReposo = Dibujo(menu);
    Apuntar(menu, menu.rect().center());
    EXPECT_NE(Dibujo(menu), menuEnReposo);
    Apuntar(Widget("Frame7"), Despejado(Widget("Frame7")));
    EXPECT_NE(Dibujo(menu), menuEnReposo);
    QWidget& lienzo = *Ventana("frmParamEsta")->centralWidget();
    Apuntar(lienzo, Despejado(lienzo));
    EXPECT_EQ(Dibujo(menu), menuEnReposo);
}

TEST_F(Aspecto, NothingIsCutAtTheSmallestScreen) {
    AbrirModulo();
    Clic(Widget("bOrdenar"));
    QMainWindow* ventana = Ventana("frmParamEsta");
    ventana->resize(1024, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(ventana->size(), QSize(1024, 700));
    EsperarNadaCortado("frmParamEsta");
    // The results are read without scrolling.
    EXPECT_EQ(Tabla("grdParam").horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(Tabla("grdParam").verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(Tabla().horizontalScrollBar()->maximum(), 0);
}

TEST_F(Aspecto, AFitShowsAllOfItselfAtOnce) {
    for (const auto& [entrada, forma] :
         {std::pair{"&Normal", "frmDisNormal"}, std::pair{"LogNormal 3 parámetros", "frmDisLogNormal3"},
          std::pair{"LogPearson tipo III", "frmDisLogPearson3"}}) {
        SCOPED_TRACE(forma);
        ElegirEnBarra("frmCuencalia", "&Distribuciones", entrada);
        escritorio_->App().Despachar([&] {
            auto& grid = dynamic_cast<FlexGrid&>(*Forma(forma).Controls("grdt"));
            grid.PonerRows(13);
            int i = 0;
            for (const char* valor : {"2.0", "3.0", "4.0", "2.4", "5.5", "1.2", "5.4", "2.2", "7.1", "1.3", "1.5"}) {
                grid.PonerTextMatrix(++i, 1, valor);
            }
        });
        Clic(Widget("bCalcular", forma));
        Clic(Widget("bGraficar", forma));
        QMainWindow* ventana = Ventana(forma);
        ventana->resize(1280, 740);
        QCoreApplication::processEvents();
        EXPECT_EQ(ventana->size(), QSize(1280, 740));
        EXPECT_EQ(Widget<QTableView>("grddis", forma).horizontalScrollBar()->maximum(), 0);
        EXPECT_TRUE(Widget("Graph1", forma).isVisible());
        EXPECT_GE(Widget("Graph1", forma).height(), 200);
        EXPECT_FALSE(Widget<QLabel>("lblmensaje", forma).text().isEmpty());
        EsperarNadaCortado(forma);
    }
    EXPECT_TRUE(vigia_->mensajes.empty());
}

TEST_F(Aspecto, NothingIsCutWithLargeLetters) {
    for (const double escala : {1.5, 2.0}) {
        SCOPED_TRACE(escala);
        QFont grande = letra_;
        grande.setPointSizeF(letra_.pointSizeF() * escala);
        QApplication::setFont(grande);
        AbrirModulo();
        Clic(Widget("bOrdenar"));
        EscribirSerie({"1234.5678"});
        QCoreApplication::processEvents();
        EsperarNadaCortado("frmParamEsta");
        Clic(Widget("bMenu"));
        EsperarNadaCortado("frmCuencalia");
        ElegirEnBarra("frmCuencalia", "Ayuda", "Acerca de Cuencalia 2");
        EsperarNadaCortado("frmacerc");
        Clic(Widget("bsalir", "frmacerc"));
    }
}

TEST_F(Aspecto, TheMenuAndTheAboutBoxAreWhole) {
    EsperarNadaCortado("frmCuencalia");
    ElegirEnBarra("frmCuencalia", "Ayuda", "Acerca de Cuencalia 2");
    EsperarNadaCortado("frmacerc");
}

TEST_F(Aspecto, EveryControlThatTakesTheKeyboardHasAName) {
    AbrirModulo();
    Clic(Widget("bOrdenar"));
    Escribir("1");
    for (const char* forma : {"frmParamEsta", "frmCuencalia"}) {
        for (QWidget* widget : Enfocables(forma)) {
            QAccessibleInterface* lector = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(lector, nullptr);
            EXPECT_FALSE(lector->text(QAccessible::Name).trimmed().isEmpty()) << Std(widget->objectName());
        }
    }
}

TEST_F(Aspecto, TextIsLegibleInBothSchemes) {
    constexpr double kMinimo = 4.5;
    for (const auto esquema : {estilo::Esquema::Claro, estilo::Esquema::Oscuro}) {
        SCOPED_TRACE(esquema == estilo::Esquema::Oscuro ? "dark" : "light");
        estilo::Aplicar(*qApp, esquema);
        const QPalette p = QApplication::palette();
        EXPECT_EQ(p.color(QPalette::Window).lightness() < 128, esquema == estilo::Esquema::Oscuro);
        EXPECT_GE(Contraste(p.color(QPalette::WindowText), p.color(QPalette::Window)), kMinimo);
        EXPECT_GE(Contraste(p.color(QPalette::Text), p.color(QPalette::Base)), kMinimo);
        EXPECT_GE(Contraste(p.color(QPalette::Text), p.color(QPalette::AlternateBase)), kMinimo);
        EXPECT_GE(Contraste(p.color(QPalette::ButtonText), p.color(QPalette::Button)), kMinimo);
        EXPECT_GE(Contraste(p.color(QPalette::HighlightedText), p.color(QPalette::Highlight)), kMinimo);
        EXPECT_GE(Contraste(p.color(QPalette::ToolTipText), p.color(QPalette::ToolTipBase)), kMinimo);
        EXPECT_GE(Contraste(estilo::TextoTenue(), p.color(QPalette::Window)), kMinimo);
        EXPECT_GE(Contraste(estilo::TextoTenue(), p.color(QPalette::Base)), kMinimo);
    }
}

TEST_F(Aspecto, TheSchemeReachesWhatIsPainted) {
    AbrirModulo();
    const auto claridad = [this] {
        const QTableView& tabla = Tabla();
        const QImage foto = tabla.viewport()->grab().toImage();
        return foto.pixelColor(foto.width() / 2, foto.height() - 3).lightness();
    };
    EXPECT_GT(claridad(), 200);
    estilo::Aplicar(*qApp, estilo::Esquema::Oscuro);
    QCoreApplication::processEvents();
    EXPECT_LT(claridad(), 60);
}

TEST_F(Aspecto, SalirHasItsColour) {
    auto& salir = Widget<QAbstractButton>("bsalir", "frmCuencalia");
    salir.clearFocus();
    const QImage foto = salir.grab().toImage();
    EXPECT_EQ(foto.pixelColor(7, foto.height() / 2), QColor(75, 115, 166));
    EXPECT_FALSE(salir.icon().isNull());
}

TEST_F(Aspecto, AMissingPictureDoesNoHarm) {
    EXPECT_TRUE(estilo::Icono("nope").isNull());
    EXPECT_TRUE(estilo::Icono("").isNull());
    EXPECT_FALSE(estilo::Icono("calcular").isNull());

    QImage lienzo(40, 40, QImage::Format_RGB32);
    lienzo.fill(Qt::magenta);
    const QImage antes = lienzo;
    QPainter pintor(&lienzo);
    estilo::PintarFondo(pintor, lienzo.rect(), "nope");
    pintor.end();
    EXPECT_EQ(lienzo, antes);

    AbrirModulo();
    auto& modelo = dynamic_cast<CommandButton&>(*Forma().Controls("bCalcular"));
    escritorio_->App().Despachar([&] { modelo.Picture = "nope"; });
    auto& boton = Widget<QAbstractButton>("bCalcular");
    EXPECT_TRUE(boton.icon().isNull());
    EXPECT_FALSE(boton.grab().isNull());
    EscribirSerie({"1", "2", "3", "4", "5"});
    Clic(boton);
    EXPECT_EQ(Resultados(), ParametrosDe1a5());
}

TEST_F(Aspecto, EveryButtonOfAModuleHasItsTwoPicturesAndATip) {
    AbrirModulo();
    for (Control* control : Forma().Controles()) {
        const auto* modelo = dynamic_cast<CommandButton*>(control);
        if (modelo == nullptr) {
            continue;
        }
        SCOPED_TRACE(modelo->Nombre());
        EXPECT_FALSE(estilo::Icono(Q(modelo->Picture)).isNull());
        EXPECT_FALSE(estilo::Icono(Q(modelo->Picture) + "_luz").isNull());
        EXPECT_FALSE(Widget(modelo->Nombre().c_str()).toolTip().isEmpty());
    }
    EXPECT_EQ(Widget("bCalcular").toolTip(), "Efectuar cálculos");
    EXPECT_EQ(Widget("bOrdenar").toolTip(), "Mostrar serie ordenada");
}

TEST_F(Aspecto, AWindowGoneLeavesTheFormToItsEnd) {
    AbrirModulo();
    Formulario& forma = Forma();
    QMainWindow* ventana = Ventana("frmParamEsta");
    auto& caja = dynamic_cast<TextBox&>(*forma.Controls("txtL1"));
    escritorio_->App().Despachar([&] {
        escritorio_->App().Unload(forma);
        caja.Text = "9";
    });
    EXPECT_FALSE(ventana->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Ventana("frmParamEsta"), nullptr);
}

}  // namespace

}  // namespace cuencalia::pruebas
