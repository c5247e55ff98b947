#include <fstream>
#include <iostream>
#include <string>

#include "guion/guion.h"
#include "shell/formas.h"

int main(int argc, char** argv) {
    std::ifstream archivo;
    if (argc > 1) {
        archivo.open(argv[1]);
        if (!archivo) {
            std::cerr << "No se puede leer el guion: " << argv[1] << '\n';
            return 2;
        }
    }
    std::istream& entrada = argc > 1 ? archivo : std::cin;
    cuencalia::Guion guion(cuencalia::FormasDelPrograma(), std::cout);
    std::string linea;
    while (std::getline(entrada, linea)) {
        guion.Ejecutar(linea);
    }
    return guion.HuboRechazo() ? 1 : 0;
}
