#include "escritorio/vistas/exportargrafico.h"

#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include "escritorio/vistas/lienzografico.h"

namespace cuencalia {

namespace {

constexpr QSize kPapelMinimo(640, 440);
constexpr double kEscalaImagen = 2;  ///< Pixels of the picture for each pixel of the screen.

void PonerEnPapel(LienzoGrafico& papel, const GraficoModulo& grafico, const LienzoGrafico& pantalla) {
    papel.resize(pantalla.size().expandedTo(kPapelMinimo));
    papel.Dibujar(grafico, Tinta::DePapel());
    papel.Rotular(grafico);
    papel.VerComo(pantalla);
}

QPixmap Foto(LienzoGrafico& papel) { return papel.toPixmap(papel.width(), papel.height(), kEscalaImagen); }

/// Draws the chart as vectors, so that it stays sharp at any size; the size of `dispositivo` must be set before.
bool Trazar(LienzoGrafico& papel, QPaintDevice& dispositivo) {
    QCPPainter pintor;
    if (!pintor.begin(&dispositivo)) {
        return false;
    }
    pintor.setMode(QCPPainter::pmVectorized);
    pintor.setWindow(papel.rect());
    papel.toPainter(&pintor, papel.width(), papel.height());
    return pintor.end();
}

bool EscribirPdf(LienzoGrafico& papel, QIODevice& salida, const QString& titulo) {
    constexpr double kPuntosPorPixel = 72.0 / 96;
    QPdfWriter hoja(&salida);
    hoja.setTitle(titulo);
    hoja.setPageSize(
        QPageSize(QSizeF(papel.size()) * kPuntosPorPixel, QPageSize::Point, titulo, QPageSize::ExactMatch));
    hoja.setPageMargins(QMarginsF());
    return Trazar(papel, hoja);
}

bool EscribirSvg(LienzoGrafico& papel, QIODevice& salida, const QString& titulo) {
    QSvgGenerator dibujo;
    dibujo.setOutputDevice(&salida);
    dibujo.setTitle(titulo);
    dibujo.setSize(papel.size());
    dibujo.setViewBox(papel.rect());
    return Trazar(papel, dibujo);
}

bool Escribir(LienzoGrafico& papel, QIODevice& salida, const QString& titulo, FormatoGrafico formato) {
    switch (formato) {
        case FormatoGrafico::Png:
            return Foto(papel).save(&salida, "PNG");
        case FormatoGrafico::Pdf:
            return EscribirPdf(papel, salida, titulo);
        case FormatoGrafico::Svg:
            return EscribirSvg(papel, salida, titulo);
    }
    return false;
}

}  // namespace

QPixmap FotoDeGrafico(const GraficoModulo& grafico, const LienzoGrafico& pantalla) {
    LienzoGrafico papel;
    PonerEnPapel(papel, grafico, pantalla);
    return Foto(papel);
}

QString GuardarGrafico(const GraficoModulo& grafico, const LienzoGrafico& pantalla, const QString& archivo,
                       FormatoGrafico formato) {
    LienzoGrafico papel;
    PonerEnPapel(papel, grafico, pantalla);
    QSaveFile salida(archivo);
    if (salida.open(QIODevice::WriteOnly) && Escribir(papel, salida, pantalla.window()->windowTitle(), formato) &&
        salida.commit()) {
        return {};
    }
    salida.cancelWriting();
    return salida.errorString();
}

}  // namespace cuencalia
