#pragma once

#include <string>
#include <string_view>

namespace cuencalia {

/// Writes one JSON value without blanks between its parts, members in the order in which they are given. Texts are
/// UTF-8; quotes, backslashes and control characters are escaped.
class EscritorJson {
  public:
    EscritorJson& Abrir(char llaveOCorchete);
    EscritorJson& Cerrar(char llaveOCorchete);
    /// The name of the member whose value is written next.
    EscritorJson& Clave(std::string_view nombre);

    EscritorJson& Texto(std::string_view texto);
    EscritorJson& Entero(long long valor);
    EscritorJson& Logico(bool valor);
    /// With the fewest digits that read back as the same number.
    EscritorJson& Numero(double valor);
    EscritorJson& Nulo();

    /// What was written, which is then forgotten.
    std::string Tomar();

  private:
    void Separar();
    EscritorJson& Crudo(std::string_view valor);

    std::string json_;
};

}  // namespace cuencalia
