#pragma once

#include <qcustomplot.h>

#include <array>
#include <optional>
#include <vector>

#include "frame/reportes/grafico.h"

namespace cuencalia {

/// The colours with which a chart is drawn.
struct Tinta {
    QColor papel, texto, eje, rejilla;
    const std::array<QRgb, 6>* series;

    /// Dark on white.
    static Tinta DePapel();
    /// The colours of the screen; a chart with grey background gets that of the window.
    static Tinta DePantalla(const QPalette& paleta, bool gris);
};

/// The drawing of a chart, on the screen or on paper.
class LienzoGrafico : public QCustomPlot {
  public:
    explicit LienzoGrafico(QWidget* padre = nullptr);

    void Dibujar(const GraficoModulo& grafico, const Tinta& tinta);
    /// Writes at the axes what the window shows beside the chart.
    void Rotular(const GraficoModulo& grafico);
    void VerTodo();
    void VerComo(const LienzoGrafico& otro);
    /// Zooms: a factor below 1 shows a smaller range, above 1 a larger one.
    void Acercar(double factor);

    /// Shows the values of the point nearest to `lugar`, if one is close enough.
    void Senalar(QPointF lugar);
    /// Moves the marked point by so many points within its set, or by so many sets, and shows its values.
    void Recorrer(int puntos, int conjuntos);

    int Trazos() const { return static_cast<int>(trazos_.size()); }
    int Puntos() const;
    bool ConLeyenda() const { return legend->visible(); }
    QStringList Nombres() const;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void leaveEvent(QEvent* evento) override;

  private:
    struct Lugar {
        int trazo = 0, punto = 0;
    };

    void Entintar(const Tinta& tinta);
    void PonerRotulos(const std::string& x, const std::string& y, const std::string& titulo);
    void AgregarTrazo(const std::vector<QPointF>& puntos, const GraficoModulo& grafico, std::size_t conjunto,
                      const Tinta& tinta);
    void TrazarSuperficie(const std::vector<QPointF>& puntos, QColor color);
    /// Fills what lies between the line and zero.
    void Rellenar(const std::vector<QPointF>& puntos, const QBrush& brocha);
    void PonerLeyenda(bool conTextos, bool sinLineas);
    int AnchoLeyenda(int columnas) const;
    /// Finds the range of the data; that of y spans the values of `par`, too.
    void MedirDatos(bool desdeCero, const GraficoModulo* par);
    /// Adapts legend and axes to that size.
    void Acomodar(QSize tamano);
    void Limitar(QCPAxis& eje, const QCPRange& todo, const QCPRange& nuevo, const QCPRange& anterior);
    std::optional<Lugar> MasCercano(QPointF lugar) const;
    QPointF Pixel(const Lugar& lugar) const;
    void Senalar(const Lugar& lugar);
    void OcultarSenal();
    void DejarDeSenalar();

    std::vector<QCPCurve*> trazos_;
    QCPRange todoX_{0, 1}, todoY_{0, 1};
    QCPItemTracer* senal_;
    QCPItemText* valores_;
    Lugar senalado_;
    bool conBorde_ = false;
    int numerados_ = 0;    ///< Points at 1 to n for want of an x.
    QStringList nombres_;  ///< Names of those points.
};

}  // namespace cuencalia
