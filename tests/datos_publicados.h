#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/base/numeros.h"

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
        lineas.push_back(linea.substr(0, linea.find('\r')));
    }
    return lineas;
}

/// The rows below the heading of a comma-separated file, as texts; lines that start with # are comments.
inline std::vector<std::vector<std::string>> LeerCsv(const std::string& archivo) {
    std::vector<std::vector<std::string>> filas;
    for (const std::string& linea : LineasDe(archivo)) {
        if (linea.empty() || linea.front() == '#') {
            continue;
        }
        std::vector<std::string> campos;
        std::istringstream partes(linea);
        for (std::string campo; std::getline(partes, campo, ',');) {
            campos.push_back(campo);
        }
        filas.push_back(campos);
    }
    if (!filas.empty()) {
        filas.erase(filas.begin());
    }
    return filas;
}

/// Column `columna` (from 0) of a comma-separated file, as numbers.
inline std::vector<double> LeerColumna(const std::string& archivo, std::size_t columna = 0) {
    std::vector<double> valores;
    for (const auto& fila : LeerCsv(archivo)) {
        valores.push_back(std::stod(fila.at(columna)));
    }
    return valores;
}

/// Data rows of a NIST reference set: the lines of numbers after its last line "Data:".
inline std::vector<std::vector<double>> LeerNist(const std::string& conjunto) {
    std::vector<std::vector<double>> filas;
    for (const std::string& linea : LineasDe("nist/" + conjunto + ".dat")) {
        if (linea.starts_with("Data:")) {
            filas.clear();
            continue;
        }
        std::istringstream numeros(linea);
        std::vector<double> fila;
        for (double valor; numeros >> valor;) {
            fila.push_back(valor);
        }
        if (!fila.empty()) {
            filas.push_back(fila);
        }
    }
    return filas;
}

/// Certified value of a NIST reference set.
inline double CertificadoNist(const std::string& conjunto, const std::string& parametro) {
    for (const auto& fila : LeerCsv("nist/nist_certificados.csv")) {
        if (fila.at(0) == conjunto && fila.at(1) == parametro) {
            return std::stod(fila.at(2));
        }
    }
    throw std::runtime_error("CertificadoNist: no " + conjunto + " " + parametro);
}

/// Published figure of esperados.csv.
inline double Publicado(const std::string& conjunto, const std::string& metodo, const std::string& magnitud) {
    for (const auto& fila : LeerCsv("esperados.csv")) {
        if (fila.at(0) == conjunto && fila.at(1) == metodo && fila.at(2) == magnitud) {
            return std::stod(fila.at(3));
        }
    }
    throw std::runtime_error("Publicado: no " + conjunto + ", " + metodo + ", " + magnitud);
}

/// A series with these values from x(1) on.
inline Serie EnSerie(const std::vector<double>& valores) {
    Serie x;
    for (std::size_t i = 0; i < valores.size(); ++i) {
        x(static_cast<int>(i) + 1) = valores[i];
    }
    return x;
}

}  // namespace cuencalia
