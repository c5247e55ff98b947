#include "escritorio/servicios/impresion.h"

#include <QApplication>
#include <QFileInfo>
#include <QMarginsF>
#include <QPageLayout>
#include <QPainter>
#include <QPixmap>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <memory>

#include "escritorio/servicios/ventanadelante.h"
#include "escritorio/vistas/documentorico.h"
#include "frame/controles/plataforma.h"
#include "frame/reportes/editortextorico.h"
#include "frame/reportes/rtf.h"

namespace cuencalia {

namespace {

constexpr qreal kMargenHoja = 20;  // mm
constexpr int kRenglonesDePie = 2;
constexpr qreal kPixelesPorPunto = 96.0 / 72;
constexpr qreal kEscalaMinima = 0.6;  // 10-point letters are then printed as 6 points; smaller ones would be illegible

/// True for a rule, and for a row with cells separated by tabs: such lines must not be broken. Prose may be.
bool EsDeTabla(const QString& linea) {
    return linea.contains(QLatin1Char('\t')) ||
           (!linea.isEmpty() && std::all_of(linea.begin(), linea.end(), [](QChar c) { return c == QLatin1Char('-'); }));
}

/// Width of the widest line of a table, in pixels of 1/96 inch.
qreal AnchoDeTablas(const QTextDocument& documento) {
    qreal ancho = 0;
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        if (!EsDeTabla(bloque.text())) {
            continue;
        }
        QTextLayout medida(bloque);
        QTextOption opcion = documento.defaultTextOption();
        opcion.setWrapMode(QTextOption::NoWrap);
        opcion.setTabs(bloque.blockFormat().tabPositions());
        medida.setTextOption(opcion);
        medida.beginLayout();
        medida.createLine().setLineWidth(1e6);
        medida.endLayout();
        const QTextBlockFormat formato = bloque.blockFormat();
        ancho = std::max(ancho, medida.lineAt(0).naturalTextWidth() + formato.leftMargin() + formato.rightMargin() +
                                    std::max(formato.textIndent(), 0.0));
    }
    return ancho;
}

QSizeF EnPixeles(const QSizeF& puntos) { return puntos * kPixelesPorPunto; }

}  // namespace

void ImprimirImagen(Plataforma& sistema, QWidget& ventana) {
    if (QPrinterInfo::defaultPrinter().isNull()) {
        sistema.MsgBox(
            "No hay ninguna impresora predeterminada. Instale una impresora y vuelva a imprimir; nada se ha perdido.",
            kIconoInformacion, "Imprimir");
        return;
    }
    QPrinter impresora(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    impresora.setPageOrientation(QPageLayout::Landscape);
    impresora.setDocName(ventana.windowTitle());
    QPainter pintor;
    if (!pintor.begin(&impresora)) {
        sistema.MsgBox("La impresora no responde. Revísela y vuelva a imprimir; nada se ha perdido.", kIconoError,
                       "Imprimir");
        return;
    }
    const QPixmap imagen = ventana.grab();
    const QRectF hoja = impresora.pageRect(QPrinter::DevicePixel);
    const QSizeF tamano = QSizeF(imagen.size()).scaled(hoja.size(), Qt::KeepAspectRatio);
    pintor.drawPixmap(QRectF(QPointF(0, 0), tamano), imagen, QRectF(imagen.rect()));
}

bool PideApaisado(const QTextDocument& documento, const QPagedPaintDevice& hoja) {
    const QSizeF util = EnPixeles(hoja.pageLayout().paintRectPoints().size());
    return AnchoDeTablas(documento) > std::min(util.width(), util.height());
}

/// The page is laid out at 96 pixels an inch, as on the screen, and scaled to the sheet. For a wide table the page is
/// made wider, so that it is printed smaller as a whole and columns of dashes, blanks and tabs stay aligned. The last
/// lines of each sheet are for the number of the page.
void ImprimirAjustado(QTextDocument& documento, QPagedPaintDevice& hoja) {
    const QSizeF util = EnPixeles(hoja.pageLayout().paintRectPoints().size());
    const qreal escala = std::clamp(util.width() / std::max(AnchoDeTablas(documento), 1.0), kEscalaMinima, 1.0);
    const QSizeF todo = util / escala;
    const QSizeF pagina = todo - QSizeF(0, kRenglonesDePie * QFontMetricsF(documento.defaultFont()).lineSpacing());
    documento.setPageSize(pagina);
    QPainter pintor;
    if (!pintor.begin(&hoja)) {
        return;
    }
    pintor.scale(hoja.width() / todo.width(), hoja.width() / todo.width());
    // Letters have the size of the layout, whatever the resolution of the sheet.
    QFont letra = documento.defaultFont();
    letra.setPixelSize(static_cast<int>(std::lround(letra.pointSizeF() * kPixelesPorPunto)));
    pintor.setFont(letra);
    const int paginas = documento.pageCount();
    for (int i = 0; i < paginas; ++i) {
        if (i > 0) {
            hoja.newPage();
        }
        pintor.save();
        pintor.translate(0, -i * pagina.height());
        documento.drawContents(&pintor, QRectF(QPointF(0, i * pagina.height()), pagina));
        pintor.restore();
        pintor.drawText(QRectF(QPointF(), todo), Qt::AlignHCenter | Qt::AlignBottom,
                        QStringLiteral("Página %1 de %2").arg(i + 1).arg(paginas));
    }
}

void ImprimirTexto(const EditorTextoRico& texto, bool soloSeleccion, const QString& titulo, const QString& nombre) {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setDocName(QFileInfo(nombre).fileName());
    impresora.setPageMargins(QMarginsF(kMargenHoja, kMargenHoja, kMargenHoja, kMargenHoja), QPageLayout::Millimeter);
    std::unique_ptr<QTextDocument> documento = DocumentoParaPapel(texto.Documento());
    if (PideApaisado(*documento, impresora)) {
        impresora.setPageOrientation(QPageLayout::Landscape);
    }
    QPrintDialog dialogo(&impresora, VentanaDelante());
    dialogo.setWindowTitle(titulo);
    dialogo.setOption(QPrintDialog::PrintPageRange, false);
    dialogo.setOption(QPrintDialog::PrintCurrentPage, false);
    dialogo.setOption(QPrintDialog::PrintSelection, soloSeleccion);
    dialogo.setPrintRange(soloSeleccion ? QPrintDialog::Selection : QPrintDialog::AllPages);
    if (dialogo.exec() != QDialog::Accepted) {
        return;
    }
    if (dialogo.printRange() == QPrintDialog::Selection) {
        documento = DocumentoParaPapel(LeerRtf(texto.SelRTF(), ClaseRtf::kFragmento));
    }
    ImprimirAjustado(*documento, impresora);
}

}  // namespace cuencalia
