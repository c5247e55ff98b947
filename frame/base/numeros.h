#pragma once

#include <cmath>
#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>
#include <numbers>
#include <type_traits>
#include <vector>

#include "frame/base/errores.h"

namespace cuencalia {

/// An IEEE-754 number whose arithmetic never yields an infinity or a NaN: a result out of range raises error 6, a
/// division by zero error 11, 0 / 0 error 6. So a formula can be written as on paper, and every fault is raised by the
/// operation that causes it.
template <std::floating_point F>
class Real {
  public:
    constexpr Real() = default;
    constexpr Real(F valor) : v_(valor) {}
    /// Whole numbers convert implicitly: every count and index of a series is exact in a Double.
    constexpr Real(std::integral auto valor) : v_(static_cast<F>(valor)) {}
    /// A narrower real converts implicitly to a wider one; the opposite conversion is CSng.
    template <std::floating_point G>
    requires(sizeof(G) < sizeof(F)) constexpr Real(Real<G> otro) : v_(static_cast<F>(otro.valor())) {}

    constexpr F valor() const { return v_; }
    constexpr explicit operator F() const { return v_; }

    friend constexpr Real operator+(Real a, Real b) { return EnRango(a.v_ + b.v_); }
    friend constexpr Real operator-(Real a, Real b) { return EnRango(a.v_ - b.v_); }
    friend constexpr Real operator*(Real a, Real b) { return EnRango(a.v_ * b.v_); }
    friend constexpr Real operator/(Real a, Real b) {
        if (b.v_ == 0) [[unlikely]] {
            throw ErrorEjecucion(a.v_ == 0 ? kDesbordamiento : kDivisionPorCero);
        }
        return EnRango(a.v_ / b.v_);
    }
    constexpr Real operator-() const { return -v_; }
    constexpr Real operator+() const { return v_; }
    constexpr Real& operator+=(Real b) { return *this = *this + b; }
    constexpr Real& operator-=(Real b) { return *this = *this - b; }
    constexpr Real& operator*=(Real b) { return *this = *this * b; }
    constexpr Real& operator/=(Real b) { return *this = *this / b; }

    friend constexpr bool operator==(Real a, Real b) { return a.v_ == b.v_; }
    friend constexpr std::partial_ordering operator<=>(Real a, Real b) { return a.v_ <=> b.v_; }

  private:
    static constexpr Real EnRango(F resultado) {
        constexpr F maximo = std::numeric_limits<F>::max();
        if (resultado <= maximo && resultado >= -maximo) [[likely]] {
            return resultado;
        }
        throw ErrorEjecucion(kDesbordamiento);
    }

    F v_ = 0;
};

using Single = Real<float>;   ///< 32-bit real: what series files store.
using Double = Real<double>;  ///< 64-bit real: what every calculation uses.

inline constexpr Double kPi = std::numbers::pi;  ///< 4 * Atn(1), to the last bit.

/// A signed whole number of I's width whose arithmetic raises error 6 instead of wrapping around. The quotient of two
/// whole numbers is a Double.
template <std::signed_integral I>
requires(sizeof(I) < sizeof(std::int64_t))  // the products are formed in 64 bits
    class Entero {
  public:
    constexpr Entero() = default;
    constexpr Entero(std::integral auto valor) : v_(EnRango(static_cast<std::int64_t>(valor)).v_) {}

    constexpr I valor() const { return v_; }
    constexpr explicit operator I() const { return v_; }
    constexpr operator Double() const { return v_; }

    friend constexpr Entero operator+(Entero a, Entero b) { return EnRango(std::int64_t{a.v_} + b.v_); }
    friend constexpr Entero operator-(Entero a, Entero b) { return EnRango(std::int64_t{a.v_} - b.v_); }
    friend constexpr Entero operator*(Entero a, Entero b) { return EnRango(std::int64_t{a.v_} * b.v_); }
    friend constexpr Double operator/(Entero a, Entero b) { return Double(a) / Double(b); }
    /// Remainder with the sign of the dividend; by zero it is error 11.
    friend constexpr Entero Mod(Entero a, Entero b) {
        if (b.v_ == 0) {
            throw ErrorEjecucion(kDivisionPorCero);
        }
        return EnRango(std::int64_t{a.v_} % b.v_);
    }
    constexpr Entero operator-() const { return EnRango(-std::int64_t{v_}); }
    constexpr Entero& operator+=(Entero b) { return *this = *this + b; }
    constexpr Entero& operator-=(Entero b) { return *this = *this - b; }
    constexpr Entero& operator++() { return *this += Entero(1); }

    friend constexpr bool operator==(Entero a, Entero b) { return a.v_ == b.v_; }
    friend constexpr std::strong_ordering operator<=>(Entero a, Entero b) { return a.v_ <=> b.v_; }

  private:
    static constexpr Entero EnRango(std::int64_t valor) {
        if (valor < std::numeric_limits<I>::min() || valor > std::numeric_limits<I>::max()) [[unlikely]] {
            throw ErrorEjecucion(kDesbordamiento);
        }
        Entero e;
        e.v_ = static_cast<I>(valor);
        return e;
    }

    I v_ = 0;
};

using Integer = Entero<std::int16_t>;  ///< 16-bit whole number.
using Long = Entero<std::int32_t>;     ///< 32-bit whole number.

/// Nearest whole number, a value half-way between two going to the even one. Error 6 outside the type's range.
Integer CInt(Double x);
Long CLng(Double x);
/// The Single nearest to x. Error 6 when x is beyond the range of a Single.
Single CSng(Double x);

Double Int(Double x);  ///< The greatest whole number not above x.
Double Fix(Double x);  ///< x without its fraction.
Double Abs(Double x);
/// Natural logarithm. Error 5 for x <= 0.
Double Log(Double x);
/// e^x. Error 6 when it is beyond a Double.
Double Exp(Double x);
/// Square root. Error 5 for x < 0.
Double Sqr(Double x);
Double Sin(Double x);  ///< x in radians.
Double Cos(Double x);  ///< x in radians.
/// x in radians. Error 6 where the tangent is beyond a Double.
Double Tan(Double x);
Double Atn(Double x);  ///< Arc tangent in radians, -pi/2 to pi/2.
/// a to the power b. Error 5 where it has no real value (a < 0 with a fractional b, 0 to a negative power), error 6
/// when it is beyond a Double. 0 to the power 0 is 1.
Double Elevar(Double a, Double b);

/// The next number of the uniform generator, 0 <= Rnd < 1. The sequence is the same at every start of the program
/// until Randomize is called.
Double Rnd();
/// Seeds the generator; equal seeds give equal sequences, and any two different seeds different ones.
void Randomize(Double semilla);
/// Seconds since midnight, local time, with fractions.
Double Timer();

/// A one-dimensional array with any lower bound; every access checks its subscript (error 9).
template <typename T>
class ArregloBase {
  public:
    ArregloBase(int minimo, int maximo) : minimo_(minimo), datos_(static_cast<std::size_t>(maximo - minimo + 1)) {}

    T& operator()(int i) { return datos_[Posicion(i)]; }
    const T& operator()(int i) const { return datos_[Posicion(i)]; }

    int UBound() const { return minimo_ + static_cast<int>(datos_.size()) - 1; }

  private:
    std::size_t Posicion(int i) const {
        const auto posicion = static_cast<std::size_t>(static_cast<std::int64_t>(i) - minimo_);
        if (posicion >= datos_.size()) [[unlikely]] {
            throw ErrorEjecucion(kSubindiceFuera);
        }
        return posicion;
    }

    int minimo_;
    std::vector<T> datos_;
};

/// An array with the bounds Min and Max, both included, all elements at their default value.
template <typename T, int Min, int Max>
class Arreglo : public ArregloBase<T> {
    static_assert(Min <= Max);

  public:
    Arreglo() : ArregloBase<T>(Min, Max) {}
};

/// The values of one data column, numbered from 1.
using Serie = Arreglo<Double, 1, 1500>;

}  // namespace cuencalia
