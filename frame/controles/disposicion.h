#pragma once

#include <string>
#include <utility>
#include <vector>

#include "frame/controles/controles.h"

namespace cuencalia {

/// Where the controls of a form stand: a tree of rows, columns, framed groups and tab pages. It is data; the screen
/// makes its own layout of it, and takes the frame of each control from it.
struct Disposicion {
    enum class Clase {
        Control,   ///< one control
        Fila,      ///< children side by side
        Columna,   ///< children one below the other
        Grupo,     ///< a Frame around a column of children
        Fichas,    ///< an SSTab, a child for each page
        Pares,     ///< children in rows of `columnas` cells, labels beside their fields
        Espacio,   ///< room that gives way
    };

    Clase clase = Clase::Espacio;
    Control* control = nullptr;  ///< The control, frame or tab control itself.
    std::vector<Disposicion> hijos;
    int estira = 0;    ///< Share of the spare room along its parent; 0 keeps the natural size.
    int columnas = 0;  ///< Of Pares.

    Disposicion() = default;
    Disposicion(Control& c) : clase(Clase::Control), control(&c) {}

    /// The same with a share of the spare room.
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

/// Puts every control of the tree into the frame or tab page around it.
void Colocar(const Disposicion& disposicion, Control* contenedor = nullptr, int pagina = -1);

/// Every control of the tree, in reading order; a frame or tab control stands before what is in it.
std::vector<Control*> EnOrden(const Disposicion& disposicion);

}  // namespace cuencalia
