#include <QBoxLayout>
#include <QLabel>

#include "escritorio/estilo.h"
#include "escritorio/vistas.h"
#include "frame/controles/controles.h"

namespace cuencalia {

namespace {

class VistaEtiqueta : public Vista {
  public:
    VistaEtiqueta(Escritorio& escritorio, Label& etiqueta, QLabel* texto)
        : Vista(escritorio, etiqueta, texto), etiqueta_(etiqueta), texto_(texto) {
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
    VistaEstado(Escritorio& escritorio, StatusBar& barra, QLabel* texto)
        : Vista(escritorio, barra, texto), barra_(barra), texto_(texto) {
        texto_->setProperty("papel", QStringLiteral("estado"));
        if (barra.Paneles() == 1) {
            return;
        }
        // The first panel is at the left end, the others at the right end.
        auto* fila = new QHBoxLayout(texto_);
        fila->setContentsMargins(0, 0, 0, 0);
        fila->addStretch(1);
        for (int i = 2; i <= barra.Paneles(); ++i) {
            auto* panel = new QLabel(texto_);
            panel->setProperty("papel", QStringLiteral("nota"));
            fila->addSpacing(estilo::kMargen);
            fila->addWidget(panel);
            otros_.push_back(panel);
        }
    }

  protected:
    void Mostrar() override {
        texto_->setText(Q(barra_.Panel(1)));
        for (int i = 2; i <= barra_.Paneles(); ++i) {
            otros_[static_cast<std::size_t>(i) - 2]->setText(Q(barra_.Panel(i)));
        }
    }

  private:
    StatusBar& barra_;
    QLabel* texto_;
    std::vector<QLabel*> otros_;
};

}  // namespace

Vista* NuevaVista(Escritorio& escritorio, Label& etiqueta, QWidget* padre) {
    return new VistaEtiqueta(escritorio, etiqueta, new QLabel(padre));
}

Vista* NuevaVista(Escritorio& escritorio, StatusBar& barra, QWidget* padre) {
    return new VistaEstado(escritorio, barra, new QLabel(padre));
}

}  // namespace cuencalia
