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

/// The limit that a part p of the values, in ascending order, is below: between the two of the ranks around p·(n + 1).
/// NaN beyond the least and the greatest.
double Limite(std::span<const double> ordenados, double p) {
    const auto n = static_cast<double>(ordenados.size());
    const double lugar = p * (n + 1) - 1;
    if (!(lugar >= 0 && lugar <= n - 1)) {
        return kNada;
    }
    const auto k = static_cast<std::size_t>(lugar);
    const double siguiente = ordenados[std::min(k + 1, ordenados.size() - 1)];
    return ordenados[k] + (lugar - static_cast<double>(k)) * (siguiente - ordenados[k]);
}

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
                tablas_[a].caudales.resize(periodos.size(), std::vector<double>(muestras, kNada));
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

    Remuestreo Resultado(std::size_t a, std::span<const double> ordenada) const {
        if (!ajustes_[a].distribucion) {
            return {};
        }
        const Distribucion& d = *ajustes_[a].distribucion;
        std::vector<double> v(ordenada.begin(), ordenada.end());
        std::transform(v.begin(), v.end(), v.begin(), [&d](double x) { return d.Variable(x); });
        return Resumir(tablas_[a], MedirBondad(d, v, ordenada, posiciones_), opciones_.nivel);
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
            tablas_[a].caudales[t][s] = d.Caudal(periodos_[t]);
        }
    }

    const std::vector<Ajuste>& ajustes_;
    std::size_t n_;
    std::span<const double> periodos_;
    const OpcionesRemuestreo& opciones_;
    std::vector<double> posiciones_, azar_;
    std::vector<Muestras> tablas_;
    int tareasPorAjuste_;
    std::atomic<int> siguiente_ = 0;
    std::atomic<bool> cancelado_ = false;
};

}  // namespace

Remuestreo Resumir(const Muestras& muestras, const Bondad& serie, double nivel) {
    Remuestreo r{};
    // The series counts as one of the samples.
    int peores[] = {1, 1, 1, 1};
    for (const Bondad& s : muestras.bondad) {
        if (std::isnan(s.delta)) {
            continue;
        }
        ++r.validas;
        peores[0] += s.delta >= serie.delta;
        peores[1] += s.andersonDarling >= serie.andersonDarling;
        peores[2] += s.correlacion <= serie.correlacion;
        peores[3] += s.error >= serie.error;
    }
    const double todas = r.validas + 1;
    r.pDelta = peores[0] / todas;
    r.pAndersonDarling = peores[1] / todas;
    r.pCorrelacion = peores[2] / todas;
    r.pError = peores[3] / todas;
    for (std::vector<double> Q : muestras.caudales) {
        std::erase_if(Q, [](double q) { return std::isnan(q); });
        std::sort(Q.begin(), Q.end());
        r.limites.push_back({Limite(Q, (1 - nivel) / 2), Limite(Q, (1 + nivel) / 2)});
    }
    return r;
}

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
        resultados.push_back(trabajo.Resultado(a, ordenada));
    }
    return resultados;
}

}  // namespace cuencalia
