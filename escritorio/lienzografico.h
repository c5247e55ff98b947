#pragma once

#include <qcustomplot.h>

#include <array>
#include <optional>
#include <vector>

#include "frame/reportes/grafico.h"

namespace cuencalia {

/// What a chart is drawn with.
struct Tinta {
    QColor papel, texto, eje, rejilla;
    const std::array<QRgb, 6>* series;

    /// Dark on white.
    static Tinta DePapel();
    /// The colours of the screen; a grey chart has the ground of the window.
    static Tinta DePantalla(const QPalette& paleta, bool gris);
};

/// The drawing of a chart, on the screen or on paper.
class LienzoGrafico : public QCustomPlot {
  public:
    explicit LienzoGrafico(QWidget* padre = nullptr);

    void Dibujar(const GraficoModulo& grafico, const Tinta& tinta);
    void VerTodo();
    void VerComo(const LienzoGrafico& otro);
    /// Below 1 shows less of the chart, above 1 more.
    void Acercar(double factor);

    /// Tells the values of the point nearest to that place, if there is one within reach.
    void Senalar(QPointF lugar);
    /// Goes on by so many points within the set, or by so many sets, and tells the values there.
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
    void AgregarTrazo(const std::vector<QPointF>& puntos, const GraficoModulo& grafico, std::size_t conjunto,
                      const Tinta& tinta);
    void Rellenar(const std::vector<QPointF>& puntos, bool conTrama, QColor color);
    void PonerLeyenda(bool conTextos, bool sinLineas);
    int AnchoLeyenda(int columnas) const;
    void MedirDatos(bool desdeCero);
    /// Fits legend and axes to that size.
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
};

}  // namespace cuencalia
