#pragma once

#include <string>
#include <utility>
#include <vector>

#include "frame/controles/controles.h"

namespace cuencalia {

/// Layout of the controls of a form: a tree of rows, columns, framed groups and tab pages. It is only data: the screen
/// builds its own layout from it, and Colocar finds in it the frame or tab page that contains each control.
struct Disposicion {
    enum class Clase {
        Control,  ///< one control
        Fila,     ///< children side by side
        Columna,  ///< children one below the other
        Grupo,    ///< a Frame around a column of children
        Fichas,   ///< an SSTab, a child for each page
        Pares,    ///< children in rows of `columnas` cells, labels beside their fields
        Espacio,  ///< empty room, which takes the spare space
    };

    Clase clase = Clase::Espacio;
    Control* control = nullptr;  ///< The control, frame or tab control itself.
    std::vector<Disposicion> hijos;
    int estira = 0;    ///< Share of the parent's spare room that this node takes; 0: it keeps its natural size.
    int columnas = 0;  ///< For Pares: cells in a row.

    Disposicion() = default;
    Disposicion(Control& c) : clase(Clase::Control), control(&c) {}

    /// The same node with a share of the spare room.
    Disposicion Estira(int partes) && {
        estira = partes;
        return std::move(*this);
    }
};

Disposicion Fila(std::vector<Disposicion> hijos);
Disposicion Columna(std::vector<Disposicion> hijos);
Disposicion Grupo(Frame& marco, std::vector<Disposicion> hijos);
Disposicion Fichas(SSTab& fichas, std::vector<Disposicion> paginas);
/// Labels and fields in a table of that many columns.
Disposicion Pares(int columnas, std::vector<Disposicion> celdas);
Disposicion Espacio(int partes = 1);

/// Tells every control of the tree which frame or tab page contains it.
void Colocar(const Disposicion& disposicion, Control* contenedor = nullptr, int pagina = -1);

/// Every control of the tree, in reading order; a frame or tab control comes before its contents.
std::vector<Control*> EnOrden(const Disposicion& disposicion);

}  // namespace cuencalia
