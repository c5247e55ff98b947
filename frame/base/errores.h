#pragma once

#include <stdexcept>
#include <string>

namespace cuencalia {

/// A run-time fault of a calculation or of the platform, with its number and the Spanish text shown to the user. It
/// ends the event handler at the failing statement unless the handler catches it.
class ErrorEjecucion : public std::runtime_error {
  public:
    /// Takes the text that belongs to `numero`: 5, 6, 7, 9, 11, 13, 53, 61, 75, 76 or 91. Any other number gets a
    /// general text.
    explicit ErrorEjecucion(int numero);
    ErrorEjecucion(int numero, const std::string& texto);

    int Numero() const noexcept { return numero_; }
    std::string Texto() const { return what(); }

  private:
    int numero_;
};

/// Numbers of the run-time errors that the program raises itself.
enum NumeroError : int {
    kArgumentoNoValido = 5,
    kDesbordamiento = 6,
    kMemoriaInsuficiente = 7,
    kSubindiceFuera = 9,
    kDivisionPorCero = 11,
    kTiposNoCoinciden = 13,
    kArchivoNoEncontrado = 53,
    kDiscoLleno = 61,
    kAccesoRuta = 75,
    kRutaNoEncontrada = 76,
    kObjetoNoEstablecido = 91,
};

}  // namespace cuencalia
