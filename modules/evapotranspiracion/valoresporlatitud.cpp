#include "modules/evapotranspiracion/valoresporlatitud.h"

#include <filesystem>
#include <fstream>

#include "frame/base/archivoserie.h"

namespace cuencalia {

void ValoresPorLatitud::Cargar(const std::string& carpeta) {
    const std::string ruta = carpeta + "/" + tabla_.archivo;
    if (!std::filesystem::exists(ruta)) {
        if (!std::filesystem::is_directory(carpeta)) {
            throw ErrorEjecucion(kRutaNoEncontrada);
        }
        // In a folder that may not be written the table is as empty without the file.
        const std::ofstream vacio(ruta, std::ios::app);
        falta_ = "No se encontró la tabla " + ruta + ": todos sus valores son 0";
        return;
    }
    LectorSerie archivo(ruta, 1);
    for (int k = 1; k <= archivo.Registros(); ++k) {
        valores_(k) = archivo.Leer()[0];
    }
    if (archivo.Registros() < tabla_.Valores()) {
        falta_ = "La tabla " + ruta + " está incompleta: faltan " +
                 std::to_string(tabla_.Valores() - archivo.Registros()) + " valores, que son 0";
    }
}

bool ValoresPorLatitud::Elegir(const std::string& clave) {
    const std::optional<int> desplazamiento = DesplazamientoDe(tabla_, clave);
    for (int mes = 1; desplazamiento && mes <= 12; ++mes) {
        meses_(mes) = valores_(*desplazamiento + mes);
    }
    return desplazamiento.has_value();
}

}  // namespace cuencalia
