#include "frame/controles/disposicion.h"

namespace cuencalia {

namespace {

Disposicion Compuesta(Disposicion::Clase clase, Control* control, std::vector<Disposicion> hijos) {
    Disposicion d;
    d.clase = clase;
    d.control = control;
    d.hijos = std::move(hijos);
    return d;
}

void Recoger(const Disposicion& disposicion, std::vector<Control*>& controles) {
    if (disposicion.control != nullptr) {
        controles.push_back(disposicion.control);
    }
    for (const Disposicion& hijo : disposicion.hijos) {
        Recoger(hijo, controles);
    }
}

}  // namespace

Disposicion Fila(std::vector<Disposicion> hijos) {
    return Compuesta(Disposicion::Clase::Fila, nullptr, std::move(hijos));
}

Disposicion Columna(std::vector<Disposicion> hijos) {
    return Compuesta(Disposicion::Clase::Columna, nullptr, std::move(hijos));
}

Disposicion Grupo(Frame& marco, std::vector<Disposicion> hijos) {
    return Compuesta(Disposicion::Clase::Grupo, &marco, std::move(hijos));
}

Disposicion Fichas(SSTab& fichas, std::vector<Disposicion> paginas) {
    return Compuesta(Disposicion::Clase::Fichas, &fichas, std::move(paginas));
}

Disposicion Pares(int columnas, std::vector<Disposicion> celdas) {
    Disposicion d = Compuesta(Disposicion::Clase::Pares, nullptr, std::move(celdas));
    d.columnas = columnas;
    return d;
}

Disposicion Espacio(int partes) {
    Disposicion d;
    d.estira = partes;
    return d;
}

void Colocar(const Disposicion& disposicion, Control* contenedor, int pagina) {
    if (disposicion.control != nullptr) {
        disposicion.control->PonerEn(contenedor, pagina);
    }
    const bool contiene =
        disposicion.clase == Disposicion::Clase::Grupo || disposicion.clase == Disposicion::Clase::Fichas;
    int numero = 0;
    for (const Disposicion& hijo : disposicion.hijos) {
        if (contiene) {
            const bool fichas = disposicion.clase == Disposicion::Clase::Fichas;
            Colocar(hijo, disposicion.control, fichas ? numero++ : -1);
        } else {
            Colocar(hijo, contenedor, pagina);
        }
    }
}

std::vector<Control*> EnOrden(const Disposicion& disposicion) {
    std::vector<Control*> controles;
    Recoger(disposicion, controles);
    return controles;
}

}  // namespace cuencalia
