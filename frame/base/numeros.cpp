#include "frame/base/numeros.h"

#include <bit>
#include <chrono>
#include <ctime>
#include <random>

namespace cuencalia {

namespace {

Double EnRango(double resultado) {
    if (!std::isfinite(resultado)) {
        throw ErrorEjecucion(kDesbordamiento);
    }
    return resultado;
}

/// std::nearbyint takes a tie to the even neighbour under the default rounding mode, which the program never changes.
template <typename E, std::signed_integral I>
E AlMasCercano(Double x) {
    const double redondeado = std::nearbyint(x.valor());
    if (!(redondeado >= std::numeric_limits<I>::min() && redondeado <= std::numeric_limits<I>::max())) {
        throw ErrorEjecucion(kDesbordamiento);
    }
    return E(static_cast<I>(redondeado));
}

std::mt19937_64& Generador() {
    static std::mt19937_64 generador;
    return generador;
}

}  // namespace

Integer CInt(Double x) { return AlMasCercano<Integer, std::int16_t>(x); }
Long CLng(Double x) { return AlMasCercano<Long, std::int32_t>(x); }

Single CSng(Double x) {
    const auto redondeado = static_cast<float>(x.valor());
    if (!std::isfinite(redondeado)) {
        throw ErrorEjecucion(kDesbordamiento);
    }
    return redondeado;
}

Double Int(Double x) { return std::floor(x.valor()); }
Double Fix(Double x) { return std::trunc(x.valor()); }
Double Abs(Double x) { return std::fabs(x.valor()); }

Double Log(Double x) {
    if (!(x.valor() > 0)) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    return std::log(x.valor());
}

Double Exp(Double x) { return EnRango(std::exp(x.valor())); }

Double Sqr(Double x) {
    if (!(x.valor() >= 0)) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    return std::sqrt(x.valor());
}

Double Sin(Double x) { return std::sin(x.valor()); }
Double Cos(Double x) { return std::cos(x.valor()); }
Double Tan(Double x) { return EnRango(std::tan(x.valor())); }
Double Atn(Double x) { return std::atan(x.valor()); }

Double Elevar(Double a, Double b) {
    const bool potencia_de_negativo = a.valor() < 0 && std::trunc(b.valor()) != b.valor();
    const bool inverso_de_cero = a.valor() == 0 && b.valor() < 0;
    if (potencia_de_negativo || inverso_de_cero) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    return EnRango(std::pow(a.valor(), b.valor()));
}

Double Rnd() {
    constexpr int kBitsMantisa = std::numeric_limits<double>::digits;
    // Only the top 53 bits are used: std::generate_canonical may round up to 1, which is outside the range.
    const std::uint64_t bits = Generador()() >> (64 - kBitsMantisa);
    return std::ldexp(static_cast<double>(bits), -kBitsMantisa);
}

void Randomize(Double semilla) {
    // All bits of the seed are used, so that program runs started within the same second get different seeds. Adding 0
    // turns -0 into 0, so that both give the same sequence.
    Generador().seed(std::bit_cast<std::uint64_t>(semilla.valor() + 0.0));
}

Double Timer() {
    using namespace std::chrono;
    const auto ahora = system_clock::now();
    const auto segundo = floor<seconds>(ahora);
    const std::time_t instante = system_clock::to_time_t(segundo);
    const std::tm local = *std::localtime(&instante);
    const double fraccion = duration<double>(ahora - segundo).count();
    return (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec + fraccion;
}

}  // namespace cuencalia
