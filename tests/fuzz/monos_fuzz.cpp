// A monkey before the program: bytes choose one act of a user after another, on all forms. Whatever it does, the
// program goes on, and what undo took back redo brings again.

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <sstream>
#include <string>

#include "frame/controles/flexgrid.h"
#include "guion/guion.h"
#include "shell/formas.h"

using namespace cuencalia;

namespace {

class Mono {
  public:
    Mono(const std::uint8_t* datos, std::size_t largo) : bytes_(datos), fin_(datos + largo) {}

    void Jugar() {
        while (bytes_ < fin_ && !guion_.Sistema().terminado) {
            Actuar();
        }
    }

  private:
    // Equal bytes, of which the fuzzer likes long rows, choose different acts.
    int Menor(int cuantos) { return bytes_ < fin_ ? static_cast<int>((*bytes_++ + azar_() / 7) % 251) % cuantos : 0; }

    template <std::size_t n>
    std::string Uno(const char* const (&de)[n]) {
        return de[Menor(static_cast<int>(n))];
    }

    void Hacer(const std::string& orden) {
        if (std::getenv("MONO") != nullptr) {
            std::cerr << orden << '\n';
        }
        guion_.Ejecutar(orden);
    }

    std::string Texto() {
        constexpr const char* kTextos[] = {
            "1",         "2.5",         "-3",    "0",      "1e30",   "1e-30",  "1e308", "12,5",
            "&H7F",      "abc",         "ñ€𝛼",   "3.5E2",  "999999", ".5",     "- 4",   "1\\t2\\n3\\t4",
            "1,5\\n2,5", "1.234,5\\n7", "X\\n4", "\\n\\n", "",       "0.0001", "50",    "10"};
        return '"' + Uno(kTextos) + '"';
    }

    Formulario* Forma() {
        const auto formas = guion_.App().Cargadas();
        return formas.empty() ? nullptr : formas[static_cast<std::size_t>(Menor(static_cast<int>(formas.size())))];
    }

    void Actuar() {
        static const TablaFormas todas = FormasDelPrograma();
        constexpr const char* kTeclas[] = {"{ENTER}", "{ESC}", "{UP}", "{DOWN}", "{BACK}", " ", "7", "-", ".", ","};
        constexpr const char* kMenus[] = {"mnuEditInsertar", "mnuEditEliminar"};
        constexpr const char* kArchivos[] = {"ejemplos/caudales.X", "salida.X", "nada/falta", "-"};
        switch (Menor(14)) {
            case 0: {
                auto forma = todas.begin();
                std::advance(forma, Menor(static_cast<int>(todas.size())));
                guion_.App().Despachar([&] { guion_.App().ModuloAbrir(forma->first); });
                Hacer("forma " + forma->first);
                break;
            }
            case 1:
            case 2:
            case 3:
                Hacer("fila " + Texto() + " " + Texto() + " " + Texto());
                break;
            case 4:
                Hacer("teclas " + Uno(kTeclas) + Uno(kTeclas));
                break;
            case 5:
                Hacer("menufila " + Uno(kMenus) + " " + std::to_string(Menor(6)));
                break;
            case 6:
                Hacer("archivo " + Uno(kArchivos));
                break;
            case 7:
                Hacer("pegar " + Texto());
                break;
            case 8:
                DeshacerYRehacer();
                break;
            case 9:
                Hacer("rehacer");
                break;
            case 10:
                if (Formulario* forma = Forma()) {
                    Hacer(Menor(4) == 0 ? "cerrar " + forma->Nombre() : "forma " + forma->Nombre());
                }
                break;
            default:
                Operar();
        }
    }

    void Operar() {
        Formulario* forma = Forma();
        if (forma == nullptr || forma->Controles().empty()) {
            return;
        }
        const auto cuantos = static_cast<int>(forma->Controles().size());
        const std::string nombre = forma->Controles()[static_cast<std::size_t>(Menor(cuantos))]->Nombre();
        Hacer("forma " + forma->Nombre());
        switch (Menor(8)) {
            case 0:
                return Hacer("poner " + nombre + " " + Texto());
            case 1:
                return Hacer("opcion " + nombre);
            case 2:
                return Hacer("elegir " + nombre + " " + Texto());
            case 3:
                return Hacer("celda " + nombre + " " + std::to_string(Menor(5)) + " " + std::to_string(Menor(4)));
            case 4:
                return Hacer("ficha " + nombre + " " + std::to_string(Menor(4)));
            case 5:
                return Hacer("ver " + nombre);
            default:
                return Hacer("click " + nombre);
        }
    }

    std::string Datos() {
        std::string datos;
        for (Formulario* forma : guion_.App().Cargadas()) {
            if (const auto* grid = dynamic_cast<FlexGrid*>(forma->Controls("grdt"))) {
                for (int fila = 1; fila < grid->Rows(); ++fila) {
                    for (int columna = 1; columna < grid->Cols(); ++columna) {
                        datos += grid->TextMatrix(fila, columna) + '\t';
                    }
                }
            }
        }
        return datos;
    }

    void DeshacerYRehacer() {
        const std::string antes = Datos();
        Hacer("deshacer");
        if (Datos() == antes) {
            return;
        }
        Hacer("rehacer");
        if (Datos() != antes) {
            std::cerr << "redo does not give back:\n" << antes << "\nbut\n" << Datos() << '\n';
            std::abort();
        }
        Hacer("deshacer");
    }

    const std::uint8_t* bytes_;
    const std::uint8_t* fin_;
    std::minstd_rand azar_;
    std::ostringstream salida_;
    Guion guion_{FormasDelPrograma(), salida_};
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    const std::filesystem::path carpeta = "/dev/shm/monos-" + std::to_string(::getpid());
    std::filesystem::create_directories(carpeta);
    std::filesystem::copy(CUENCALIA_EJEMPLOS, carpeta / "ejemplos");
    std::filesystem::current_path(carpeta);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    Mono(datos, largo).Jugar();
    return 0;
}
