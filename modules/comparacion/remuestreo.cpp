#include "modules/comparacion/remuestreo.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <future>
#include <limits>
#include <random>

#include "modules/comparacion/posiciones.h"

namespace cuencalia {

namespace {

constexpr int kMuestrasPorTarea = 50;
constexpr double kNada = std::numeric_limits<double>::quiet_NaN();

/// Sorted uniform probabilities, n for each sample: a quantile function keeps their order, so no sample need be sorted.
std::vector<double> Probabilidades(int muestras, std::size_t n, std::uint64_t semilla) {
    std::mt19937_64 azar(semilla);
    std::vector<double> p(static_cast<std::size_t>(muestras) * n);
    for (double& pi : p) {
        // 53 bits, and half of the last one: neither 0 nor 1. A standard distribution may differ from one library to
        // another.
        pi = (static_cast<double>(azar() >> 11U) + 0.5) * 0x1p-53;
    }
    for (auto inicio = p.begin(); inicio != p.end(); inicio += static_cast<std::ptrdiff_t>(n)) {
        std::sort(inicio, inicio + static_cast<std::ptrdiff_t>(n));
    }
    return p;
}

/// What each sample of a fit gives; NaN for one that could not be fitted.
struct Resultados {
    std::vector<Bondad> bondad;
    std::vector<double> caudales;  // of sample s, period t at [t·muestras + s]
};

class Trabajo {
  public:
    Trabajo(const std::vector<Ajuste>& ajustes, std::span<const double> ordenada, std::span<const double> periodos,
            const OpcionesRemuestreo& opciones)
        : ajustes_(ajustes),
          n_(ordenada.size()),
          periodos_(periodos),
          opciones_(opciones),
          posiciones_(PosicionGrafica{"", opciones.posicion}.Todas(static_cast<int>(n_))),
          azar_(Probabilidades(opciones.muestras, n_, opciones.semilla)),
          tablas_(ajustes.size()),
          tareasPorAjuste_((opciones.muestras + kMuestrasPorTarea - 1) / kMuestrasPorTarea) {
        for (std::size_t a = 0; a < ajustes.size(); ++a) {
            if (ajustes[a].distribucion) {
                const auto muestras = static_cast<std::size_t>(opciones.muestras);
                tablas_[a].bondad.resize(muestras, {kNada, kNada, kNada, kNada});
                tablas_[a].caudales.resize(muestras * periodos.size(), kNada);
            }
        }
    }

    /// Does tasks until there are none; with `progreso`, tells after each how far all of them are.
    void Trabajar(const std::function<bool(double)>& progreso) {
        const int tareas = tareasPorAjuste_ * static_cast<int>(ajustes_.size());
        Serie serie(n_);
        for (int tarea = siguiente_++; tarea < tareas && !cancelado_; tarea = siguiente_++) {
            const int primera = tarea % tareasPorAjuste_ * kMuestrasPorTarea;
            const int ultima = std::min(primera + kMuestrasPorTarea, opciones_.muestras);
            for (int s = primera; s < ultima; ++s) {
                Muestrear(static_cast<std::size_t>(tarea / tareasPorAjuste_), static_cast<std::size_t>(s), serie);
            }
            if (progreso && !progreso(static_cast<double>(std::min<int>(siguiente_, tareas)) / tareas)) {
                cancelado_ = true;
            }
        }
    }

    bool Cancelado() const { return cancelado_; }

    Remuestreo Resumir(std::size_t a, std::span<const double> ordenada) {
        Remuestreo r{};
        if (!ajustes_[a].distribucion) {
            return r;
        }
        const Distribucion& d = *ajustes_[a].distribucion;
        std::vector<double> v(ordenada.begin(), ordenada.end());
        std::transform(v.begin(), v.end(), v.begin(), [&d](double x) { return d.Variable(x); });
        const Bondad b = MedirBondad(d, v, ordenada, posiciones_);
        int peores[4] = {};
        for (const Bondad& s : tablas_[a].bondad) {
            if (std::isnan(s.delta)) {
                continue;
            }
            ++r.validas;
            peores[0] += s.delta >= b.delta;
            peores[1] += s.andersonDarling >= b.andersonDarling;
            peores[2] += s.correlacion <= b.correlacion;
            peores[3] += s.error >= b.error;
        }
        // The series counts as one of the samples.
        const auto p = [&](int i) { return (peores[i] + 1.0) / (r.validas + 1.0); };
        r.pDelta = p(0);
        r.pAndersonDarling = p(1);
        r.pCorrelacion = p(2);
        r.pError = p(3);
        for (std::size_t t = 0; t < periodos_.size(); ++t) {
            r.limites.push_back(LimitesDe(a, t));
        }
        return r;
    }

  private:
    struct Serie {
        explicit Serie(std::size_t n) : v(n), x(n) {}
        std::vector<double> v, x;
    };

    void Muestrear(std::size_t a, std::size_t s, Serie& serie) {
        if (!ajustes_[a].distribucion) {
            return;
        }
        const Distribucion& madre = *ajustes_[a].distribucion;
        for (std::size_t i = 0; i < n_; ++i) {
            serie.v[i] = madre.Cuantil(azar_[s * n_ + i]);
        }
        const Ajuste ajuste = AjustarVariable(ajustes_[a].candidato, serie.v);
        if (!ajuste.distribucion) {
            return;
        }
        const Distribucion& d = *ajuste.distribucion;
        const bool logaritmos = DeLogaritmos(d.DeFamilia());
        if (logaritmos) {
            std::transform(serie.v.begin(), serie.v.end(), serie.x.begin(), [](double v) { return std::exp(v); });
        }
        tablas_[a].bondad[s] = MedirBondad(d, serie.v, logaritmos ? serie.x : serie.v, posiciones_);
        for (std::size_t t = 0; t < periodos_.size(); ++t) {
            tablas_[a].caudales[t * static_cast<std::size_t>(opciones_.muestras) + s] = d.Caudal(periodos_[t]);
        }
    }

    Remuestreo::Limites LimitesDe(std::size_t a, std::size_t t) {
        const auto muestras = static_cast<std::ptrdiff_t>(opciones_.muestras);
        const auto inicio = tablas_[a].caudales.begin() + static_cast<std::ptrdiff_t>(t) * muestras;
        const auto fin = std::remove_if(inicio, inicio + muestras, [](double Q) { return std::isnan(Q); });
        std::sort(inicio, fin);
        const auto validas = static_cast<double>(fin - inicio);
        const auto cuantil = [&](double p) {
            const double lugar = p * (validas + 1) - 1;
            if (!(lugar >= 0 && lugar <= validas - 1)) {
                return kNada;
            }
            const auto k = static_cast<std::ptrdiff_t>(lugar);
            const double siguiente = inicio[std::min(k + 1, fin - inicio - 1)];
            return inicio[k] + (lugar - static_cast<double>(k)) * (siguiente - inicio[k]);
        };
        return {cuantil((1 - opciones_.nivel) / 2), cuantil((1 + opciones_.nivel) / 2)};
    }

    const std::vector<Ajuste>& ajustes_;
    std::size_t n_;
    std::span<const double> periodos_;
    const OpcionesRemuestreo& opciones_;
    std::vector<double> posiciones_, azar_;
    std::vector<Resultados> tablas_;
    int tareasPorAjuste_;
    std::atomic<int> siguiente_ = 0;
    std::atomic<bool> cancelado_ = false;
};

}  // namespace

std::optional<std::vector<Remuestreo>> Remuestrear(const std::vector<Ajuste>& ajustes, std::span<const double> ordenada,
                                                   std::span<const double> periodos,
                                                   const OpcionesRemuestreo& opciones) {
    Trabajo trabajo(ajustes, ordenada, periodos, opciones);
    {
        // A failure in one of them is that of the calling thread, which waits for all.
        std::vector<std::future<void>> otros;
        for (int h = 1; h < opciones.hilos; ++h) {
            otros.push_back(std::async(std::launch::async, [&trabajo] { trabajo.Trabajar({}); }));
        }
        trabajo.Trabajar(opciones.progreso);
        for (std::future<void>& otro : otros) {
            otro.get();
        }
    }
    if (trabajo.Cancelado()) {
        return std::nullopt;
    }
    std::vector<Remuestreo> resultados;
    for (std::size_t a = 0; a < ajustes.size(); ++a) {
        resultados.push_back(trabajo.Resumir(a, ordenada));
    }
    return resultados;
}

}  // namespace cuencalia
