#include <QBoxLayout>
#include <QLabel>

#include "escritorio/vistas/estilo.h"
#include "escritorio/vistas/vistas.h"
#include "frame/controles/controles.h"

namespace cuencalia {

namespace {

class VistaEtiqueta : public Vista {
  public:
    VistaEtiqueta(Anfitrion& anfitrion, Label& etiqueta, QLabel* texto)
        : Vista(anfitrion, etiqueta, texto), etiqueta_(etiqueta), texto_(texto) {
        static constexpr const char* kPapeles[] = {"texto", "encabezado", "nota",     "titulo",
                                                   "lema",  "pantalla",   "resultado"};
        texto_->setProperty("papel", QLatin1String(kPapeles[static_cast<int>(etiqueta.SuPapel())]));
        const bool variasLineas = etiqueta.SuPapel() == Papel::Nota || etiqueta.SuPapel() == Papel::Resultado;
        texto_->setWordWrap(variasLineas);
        texto_->setTextFormat(Qt::PlainText);
        if (variasLineas) {
            texto_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        }
    }

  protected:
    void Mostrar() override {
        texto_->setText(Q(etiqueta_.Caption));
        if (texto_->buddy() == nullptr && etiqueta_.Nombrado() != nullptr) {
            if (auto* vista = static_cast<Vista*>(etiqueta_.Nombrado()->Vista())) {
                texto_->setBuddy(vista->Widget());
                vista->Widget()->setAccessibleName(Q(etiqueta_.Caption));
            }
        }
    }

  private:
    Label& etiqueta_;
    QLabel* texto_;
};

class VistaEstado : public Vista {
  public:
    VistaEstado(Anfitrion& anfitrion, StatusBar& barra, QLabel* texto)
        : Vista(anfitrion, barra, texto), barra_(barra), texto_(texto) {
        texto_->setProperty("papel", QStringLiteral("estado"));
        // The first panel is at the left end, the others at the right end.
        auto* fila = new QHBoxLayout(texto_);
        fila->setContentsMargins(0, 0, 0, 0);
        fila->setSpacing(estilo::kMargen);
        for (int i = 1; i <= barra.Paneles(); ++i) {
            auto* panel = new QLabel(texto_);
            panel->setProperty("papel", QStringLiteral("nota"));
            panel->setTextFormat(Qt::PlainText);
            // What happened may take a long sentence: it has the room that the others leave.
            const bool intermedio = i > 1 && i < barra.Paneles();
            if (intermedio) {
                panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
                panel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
            fila->addWidget(panel, intermedio || barra.Paneles() == 1 ? 1 : 0);
            paneles_.push_back(panel);
        }
        texto_->setMinimumHeight(texto_->fontMetrics().height() + estilo::kSeparacion);
    }

  protected:
    void Mostrar() override {
        for (int i = 1; i <= barra_.Paneles(); ++i) {
            QLabel& panel = *paneles_[static_cast<std::size_t>(i) - 1];
            const QString texto = Q(barra_.Panel(i));
            panel.setText(texto);
            panel.setToolTip(texto);
        }
    }

  private:
    StatusBar& barra_;
    QLabel* texto_;
    std::vector<QLabel*> paneles_;
};

}  // namespace

Vista* NuevaVista(Anfitrion& anfitrion, Label& etiqueta, QWidget* padre) {
    return new VistaEtiqueta(anfitrion, etiqueta, new QLabel(padre));
}

Vista* NuevaVista(Anfitrion& anfitrion, StatusBar& barra, QWidget* padre) {
    return new VistaEstado(anfitrion, barra, new QLabel(padre));
}

}  // namespace cuencalia
