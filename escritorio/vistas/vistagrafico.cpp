#include "escritorio/vistas/vistagrafico.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>

#include "escritorio/vistas/lienzografico.h"

namespace cuencalia {

namespace {

constexpr double kPaso = 0.8;  ///< Factor of a zoom by key.

}  // namespace

VistaGrafico::VistaGrafico(Anfitrion& anfitrion, GraficoModulo& grafico, QWidget* padre)
    : Vista(anfitrion, grafico, new LienzoGrafico(padre)),
      grafico_(grafico),
      lienzo_(static_cast<LienzoGrafico*>(Widget())) {
    lienzo_->setFocusPolicy(Qt::StrongFocus);
    connect(lienzo_, &QCustomPlot::mouseMove, this, [this](const QMouseEvent* evento) {
        if (evento->buttons() == Qt::NoButton) {
            lienzo_->Senalar(evento->position());
        }
    });
    connect(lienzo_, &QCustomPlot::mouseDoubleClick, this, [this] {
        lienzo_->VerTodo();
        lienzo_->replot();
    });
    HacerMenu();
}

void VistaGrafico::HacerMenu() {
    const auto agregar = [this](const QString& texto, auto hacer) {
        auto* accion = new QAction(texto, lienzo_);
        accion->setShortcutContext(Qt::WidgetShortcut);
        connect(accion, &QAction::triggered, this, hacer);
        lienzo_->addAction(accion);
        return accion;
    };
    agregar(QStringLiteral("Ver todo"), [this] {
        lienzo_->VerTodo();
        lienzo_->replot();
    })->setShortcuts({QKeySequence(Qt::Key_Home), QKeySequence(Qt::Key_0)});
    agregar(QStringLiteral("Copiar"), [this] {
        QGuiApplication::clipboard()->setPixmap(FotoDeGrafico(grafico_, *lienzo_));
    })->setShortcut(QKeySequence::Copy);
    agregar(QStringLiteral("Guardar como PNG…"), [this] { Guardar("Imagen PNG|*.png", FormatoGrafico::Png); });
    agregar(QStringLiteral("Guardar como PDF…"), [this] { Guardar("Documento PDF|*.pdf", FormatoGrafico::Pdf); });
    agregar(QStringLiteral("Guardar como SVG…"), [this] { Guardar("Dibujo SVG|*.svg", FormatoGrafico::Svg); });
    lienzo_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

VistaGrafico::Dibujo VistaGrafico::Actual() const {
    return {grafico_.Conjuntos(), grafico_.GraphType, grafico_.GraphStyle,  grafico_.Background, grafico_.BorderStyle,
            grafico_.PatternData, grafico_.DrawMode,  grafico_.BottomTitle, lienzo_->palette()};
}

void VistaGrafico::Mostrar() {
    // A view is also updated when the focus moves: the part of the chart that the user has chosen stays then.
    Dibujo actual = Actual();
    if (actual == dibujado_) {
        return;
    }
    dibujado_ = std::move(actual);
    lienzo_->Dibujar(grafico_, Tinta::DePantalla(lienzo_->palette(), grafico_.Background == kFondoGris));
    lienzo_->setAccessibleDescription(Descripcion());
    lienzo_->replot();
}

QString VistaGrafico::Descripcion() const {
    if (lienzo_->Trazos() == 0) {
        return QStringLiteral("Gráfico vacío");
    }
    const QString clase = grafico_.GraphType == kGraficoAreas       ? QStringLiteral("Gráfico de áreas")
                          : grafico_.GraphStyle == kSimbolosSueltos ? QStringLiteral("Gráfico de puntos")
                                                                    : QStringLiteral("Gráfico de líneas");
    const QString conjuntos =
        lienzo_->Trazos() == 1 ? QStringLiteral("1 conjunto") : QStringLiteral("%1 conjuntos").arg(lienzo_->Trazos());
    const QString puntos =
        lienzo_->Puntos() == 1 ? QStringLiteral("1 punto") : QStringLiteral("%1 puntos").arg(lienzo_->Puntos());
    const QString leyendas =
        lienzo_->ConLeyenda() ? QStringLiteral(" (%1)").arg(lienzo_->Nombres().join(QStringLiteral(", "))) : QString();
    return QStringLiteral("%1: %2%3, %4").arg(clase, conjuntos, leyendas, puntos);
}

bool VistaGrafico::Tecla(QKeyEvent& evento) {
    if (EsOrden(evento)) {
        return false;
    }
    switch (evento.key()) {
        case Qt::Key_Plus:
            lienzo_->Acercar(kPaso);
            return true;
        case Qt::Key_Minus:
            lienzo_->Acercar(1 / kPaso);
            return true;
        case Qt::Key_Left:
            lienzo_->Recorrer(-1, 0);
            return true;
        case Qt::Key_Right:
            lienzo_->Recorrer(1, 0);
            return true;
        case Qt::Key_Up:
            lienzo_->Recorrer(0, -1);
            return true;
        case Qt::Key_Down:
            lienzo_->Recorrer(0, 1);
            return true;
        default:
            return false;
    }
}

bool VistaGrafico::eventFilter(QObject* objeto, QEvent* evento) {
    // Mouse moves are also passed to the chart, which follows the pointer itself and does not pass them on to the
    // surrounding frame.
    return Vista::eventFilter(objeto, evento) && evento->type() != QEvent::MouseMove;
}

void VistaGrafico::Guardar(const char* filtro, FormatoGrafico formato) {
    std::string nombre;
    anfitrion_.App().Sistema().ElegirArchivo(ModoArchivo::Guardar, "Guardar el gráfico", filtro, nombre);
    const QString fallo = nombre.empty() ? QString() : GuardarGrafico(grafico_, *lienzo_, Q(nombre), formato);
    if (!fallo.isEmpty()) {
        anfitrion_.App().MsgBox(
            Std(QStringLiteral("No se pudo guardar el gráfico en\n%1\n\n%2\n\nElija otra carpeta u otro nombre. "
                               "Si el archivo ya existía, sigue como estaba.")
                    .arg(QDir::toNativeSeparators(Q(nombre)), fallo)),
            kIconoError, "Guardar el gráfico");
    }
}

}  // namespace cuencalia
