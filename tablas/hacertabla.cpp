// Makes the file of a table from its published values: hacertabla TABLE.csv FOLDER/FILE. The name of the file says
// which of the tables it is. A row that does not stand where its latitude is looked for is refused.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "frame/base/archivoserie.h"
#include "frame/base/textos.h"
#include "modules/evapotranspiracion/latitudes.h"

namespace cuencalia {

namespace {

const TablaDeLatitudes& TablaDelArchivo(const std::string& ruta) {
    for (const TablaDeLatitudes* tabla : {&kTablaF, &kTablaP, &kTablaN}) {
        if (std::filesystem::path(ruta).filename() == tabla->archivo) {
            return *tabla;
        }
    }
    throw std::runtime_error("no table has the file " + ruta);
}

void Escribir(std::istream& csv, const std::string& ruta) {
    const TablaDeLatitudes& tabla = TablaDelArchivo(ruta);
    std::filesystem::remove(ruta);
    EscritorSerie archivo(ruta, 1);
    std::string linea;
    std::getline(csv, linea);
    int valores = 0;
    while (std::getline(csv, linea)) {
        std::istringstream campos(linea);
        std::string campo;
        std::getline(campos, campo, ',');
        if (DesplazamientoDe(tabla, campo) != valores) {
            throw std::runtime_error("row out of place: " + campo);
        }
        for (; std::getline(campos, campo, ','); ++valores) {
            archivo.Escribir({CSng(Val(campo))});
        }
    }
    if (valores != tabla.Valores()) {
        throw std::runtime_error("the table has " + std::to_string(valores) + " values");
    }
    archivo.Publicar();
}

}  // namespace

}  // namespace cuencalia

int main(int argc, char** argv) {
    try {
        std::ifstream csv(argc == 3 ? argv[1] : "");
        if (!csv) {
            throw std::runtime_error("usage: hacertabla TABLE.csv FOLDER/FILE");
        }
        cuencalia::Escribir(csv, argv[2]);
    } catch (const std::exception& error) {
        std::cerr << "hacertabla: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
