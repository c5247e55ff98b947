#include "escritorio/programa/traduccion.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace cuencalia {

namespace {

struct Texto {
    const char *contexto, *ingles, *espanol;
};

constexpr Texto kTextos[] = {{"QAbstractFileIconProvider", "Folder", "Carpeta"},
                             {"QAbstractFileIconProvider", "File Folder", "Carpeta"},
                             {"QAbstractFileIconProvider", "File", "Archivo"},
                             {"QAbstractFileIconProvider", "%1 File", "Archivo %1"},
                             {"QAbstractFileIconProvider", "Drive", "Unidad"},
                             {"QAbstractFileIconProvider", "Shortcut", "Acceso directo"},
                             {"QPrintSettingsOutput", "Double Sided Printing", "Impresión a doble cara"},
                             {"QPrintSettingsOutput", "Off", "No"},
                             {"QPrintSettingsOutput", "Long side binding", "Por el borde largo"},
                             {"QPrintSettingsOutput", "Short side binding", "Por el borde corto"},
                             {"QPrintSettingsOutput", "Pages", "Páginas"}};

}  // namespace

QString TraduccionRestante::translate(const char* contexto, const char* texto, const char* /*distincion*/,
                                      int /*n*/) const {
    const auto* hallado = std::find_if(std::begin(kTextos), std::end(kTextos), [&](const Texto& t) {
        return std::strcmp(t.contexto, contexto) == 0 && std::strcmp(t.ingles, texto) == 0;
    });
    return hallado == std::end(kTextos) ? QString() : QString::fromUtf8(hallado->espanol);
}

}  // namespace cuencalia
