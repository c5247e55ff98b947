#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "modules/estadistica/momentos.h"
#include "modules/estadistica/orden.h"

namespace cuencalia {

/// Readers of the published series and results in tests/datos/publicados. CUENCALIA_DATOS is the path of tests/datos.
/// Whatever is missing throws, so that no comparison is skipped in silence.

inline std::vector<std::string> LineasDe(const std::string& archivo) {
    std::ifstream entrada(std::string(CUENCALIA_DATOS) + "/publicados/" + archivo);
    if (!entrada) {
        throw std::runtime_error("LineasDe: cannot open " + archivo);
    }
    std::vector<std::string> lineas;
    for (std::string linea; std::getline(entrada, linea);) {
        lineas.push_back(linea);
    }
    return lineas;
}

/// Column `columna` (from 0) of the lines that are numbers; of a NIST reference set those after its last line "Data:".
inline std::vector<double> LeerColumna(const std::string& archivo, std::size_t columna = 0) {
    std::vector<double> valores;
    for (const std::string& linea : LineasDe(archivo)) {
        std::istringstream numeros(linea);
        const std::vector<double> fila{std::istream_iterator<double>(numeros), {}};
        if (linea.starts_with("Data:")) {
            valores.clear();
        } else if (columna < fila.size()) {
            valores.push_back(fila[columna]);
        }
    }
    return valores;
}

/// The fields of a line.
inline std::vector<std::string> Partir(const std::string& linea, char separador = ',') {
    std::istringstream partes(linea);
    std::vector<std::string> campos;
    for (std::string campo; std::getline(partes, campo, separador);) {
        campos.push_back(campo);
    }
    return campos;
}

/// The rows of that kind in a table of tests/datos, each without it.
inline std::vector<std::vector<std::string>> Renglones(const std::string& tabla, const std::string& clase) {
    std::vector<std::vector<std::string>> renglones;
    for (const std::string& linea : LineasDe("../" + tabla)) {
        if (linea.starts_with(clase + ";")) {
            renglones.push_back(Partir(linea.substr(clase.size() + 1), ';'));
        }
    }
    return renglones;
}

/// The field that follows the fields `clave` at the beginning of a line, as it was printed.
inline std::string Figura(const std::string& archivo, const std::string& clave) {
    for (const std::string& linea : LineasDe(archivo)) {
        if (linea.starts_with(clave + ",")) {
            return linea.substr(clave.size() + 1, linea.find(',', clave.size() + 1) - clave.size() - 1);
        }
    }
    throw std::runtime_error("Figura: no " + clave);
}

/// Certified value of a NIST reference set.
inline double CertificadoNist(const std::string& conjunto, const std::string& parametro) {
    return std::stod(Figura("nist/nist_certificados.csv", conjunto + "," + parametro));
}

/// A series with these values from x(1) on.
inline Serie EnSerie(const std::vector<double>& valores) {
    Serie x;
    for (std::size_t i = 0; i < valores.size(); ++i) {
        x(static_cast<int>(i) + 1) = valores[i];
    }
    return x;
}

/// L-moments of a published sample.
inline MomentosLineales LinealesDe(const std::string& muestra) {
    const std::vector<double> valores = LeerColumna(muestra + ".csv");
    Serie x = EnSerie(valores);
    OrdenarSerie(x, static_cast<int>(valores.size()));
    return CalcularMomentosLineales(x, static_cast<int>(valores.size()));
}

/// The figure of esperados.csv behind `clave`; the tolerance is half a unit of the last decimal that was printed.
inline void EsperarPublicado(const std::string& clave, Double obtenido) {
    const std::string impreso = Figura("esperados.csv", clave);
    const std::size_t decimales = impreso.size() - 1 - std::min(impreso.find('.'), impreso.size() - 1);
    EXPECT_NEAR(obtenido.valor(), std::stod(impreso), 0.5 / std::pow(10, decimales)) << clave;
}

inline constexpr double kRedondeo = 0x1p-53;  ///< The relative rounding of one operation.

inline void EsperarRelativo(Double obtenido, double esperado, double tolerancia) {
    EXPECT_NEAR(obtenido.valor(), esperado, tolerancia * std::fabs(esperado));
}

}  // namespace cuencalia
