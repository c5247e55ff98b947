#include "escritorio/vistas/textoqt.h"

#include <QList>

namespace cuencalia {

int EnUtf16(const QString& texto, int caracteres) {
    int posicion = 0;
    for (; caracteres > 0 && posicion < texto.size(); --caracteres) {
        posicion += texto[posicion].isHighSurrogate() ? 2 : 1;
    }
    return posicion;
}

int EnCaracteres(const QString& texto, int posicion) { return static_cast<int>(texto.left(posicion).toUcs4().size()); }

}  // namespace cuencalia
