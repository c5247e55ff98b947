// Reads any bytes as a series file of each record width: whatever the bytes, every record that the length promises can
// be read and its values are shown or refused with a run-time error.

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "frame/base/archivoserie.h"
#include "frame/base/textos.h"

using namespace cuencalia;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    static std::string ruta = "/dev/shm/serie-" + std::to_string(::getpid()) + ".X";
    FILE* archivo = std::fopen(ruta.c_str(), "wb");
    if (archivo == nullptr || std::fwrite(datos, 1, largo, archivo) != largo || std::fclose(archivo) != 0) {
        std::abort();
    }
    for (int valores = 1; valores <= 4; ++valores) {
        LectorSerie lector(ruta, valores);
        if (static_cast<std::size_t>(lector.Registros()) != largo / (4 * static_cast<std::size_t>(valores))) {
            std::abort();
        }
        for (int i = 0; i < lector.Registros(); ++i) {
            const Registro registro = lector.Leer();
            try {
                Format(registro[0], "#0.0#######");
            } catch (const ErrorEjecucion&) {
                // Bytes that are no number.
            }
        }
    }
    return 0;
}
