#include "frame/controles/flexgrid.h"

#include <algorithm>

#include "frame/base/errores.h"
#include "frame/controles/aplicacion.h"

namespace cuencalia {

namespace {

constexpr int kAltoFila = 300;  // twips: a line of 9-point text with some room above and below

std::size_t S(int n) { return static_cast<std::size_t>(n); }

}  // namespace

FlexGrid::FlexGrid(Formulario& forma, std::string nombre, std::string nombreAccesible)
    : Control(forma, std::move(nombre)),
      textos_(S(filas_ * columnas_)),
      altos_(S(filas_), kAltoFila),
      datosColumna_(S(columnas_)) {
    NombreAccesible = std::move(nombreAccesible);
}

void FlexGrid::ValidarFila(int fila) const {
    if (fila < 0 || fila >= filas_) {
        throw ErrorEjecucion(kSubindiceFuera);
    }
}

void FlexGrid::ValidarColumna(int columna) const {
    if (columna < 0 || columna >= columnas_) {
        throw ErrorEjecucion(kSubindiceFuera);
    }
}

std::size_t FlexGrid::Celda(int fila, int columna) const {
    ValidarFila(fila);
    ValidarColumna(columna);
    return S(fila) * S(columnas_) + S(columna);
}

void FlexGrid::PonerRows(int filas) {
    if (filas < 0) {
        throw ErrorEjecucion(kSubindiceFuera);
    }
    filas_ = filas;
    textos_.resize(S(filas) * S(columnas_));
    altos_.resize(S(filas), kAltoFila);
    Notificar();
    Recolocar();
}

void FlexGrid::PonerCols(int columnas) {
    if (columnas < 0) {
        throw ErrorEjecucion(kSubindiceFuera);
    }
    if (columnas != columnas_) {
        std::vector<std::string> textos(S(filas_) * S(columnas));
        for (int f = 0; f < filas_; ++f) {
            for (int c = 0; c < std::min(columnas, columnas_); ++c) {
                textos[S(f) * S(columnas) + S(c)] = std::move(textos_[S(f) * S(columnas_) + S(c)]);
            }
        }
        textos_ = std::move(textos);
        columnas_ = columnas;
        datosColumna_.resize(S(columnas));
    }
    Notificar();
    Recolocar();
}

void FlexGrid::PonerFixedRows(int filas) {
    filasFijas_ = std::clamp(filas, 0, filas_);
    filaSuperior_ = std::max(filaSuperior_, filasFijas_);
    Notificar();
}

void FlexGrid::PonerFixedCols(int columnas) {
    columnasFijas_ = std::clamp(columnas, 0, columnas_);
    Notificar();
}

void FlexGrid::Recolocar() {
    const int fila = std::clamp(fila_, 0, std::max(0, filas_ - 1));
    const int columna = std::clamp(columna_, 0, std::max(0, columnas_ - 1));
    filaSuperior_ = std::clamp(filaSuperior_, std::min(filasFijas_, filas_), std::max(filasFijas_, filas_ - 1));
    filaSel_ = std::clamp(filaSel_, 0, std::max(0, filas_ - 1));
    columnaSel_ = std::clamp(columnaSel_, 0, std::max(0, columnas_ - 1));
    Mover(fila, columna);
}

void FlexGrid::Mover(int fila, int columna) {
    if (fila == fila_ && columna == columna_) {
        return;
    }
    LeaveCell();
    fila_ = filaSel_ = fila;
    columna_ = columnaSel_ = columna;
    Notificar();
    RowColChange();
}

void FlexGrid::PonerRow(int fila) { PonerCelda(fila, columna_); }

void FlexGrid::PonerCol(int columna) { PonerCelda(fila_, columna); }

void FlexGrid::PonerCelda(int fila, int columna) {
    ValidarFila(fila);
    ValidarColumna(columna);
    Mover(fila, columna);
    Seleccionar(fila_, columna_);
}

void FlexGrid::Seleccionar(int filaSel, int columnaSel) {
    filaSel_ = std::clamp(filaSel, 0, filas_ - 1);
    columnaSel_ = std::clamp(columnaSel, 0, columnas_ - 1);
    Notificar();
}

void FlexGrid::PonerTopRow(int fila) {
    const int nueva = std::clamp(fila, std::min(filasFijas_, filas_ - 1), filas_ - 1);
    if (nueva != filaSuperior_) {
        filaSuperior_ = nueva;
        Notificar();
        Scroll();
    }
}

const std::string& FlexGrid::TextMatrix(int fila, int columna) const { return textos_[Celda(fila, columna)]; }

void FlexGrid::PonerTextMatrix(int fila, int columna, const std::string& texto) {
    std::string& celda = textos_[Celda(fila, columna)];
    if (celda != texto) {
        celda = texto;
        Notificar();
    }
}

int FlexGrid::ColWidth(int columna) const {
    ValidarColumna(columna);
    return datosColumna_[S(columna)].ancho;
}

void FlexGrid::PonerColWidth(int columna, int twips) {
    ValidarColumna(columna);
    datosColumna_[S(columna)].ancho = twips;
    Notificar();
}

int FlexGrid::ColAlignment(int columna) const {
    ValidarColumna(columna);
    return datosColumna_[S(columna)].alineacion;
}

void FlexGrid::PonerColAlignment(int columna, int alineacion) {
    ValidarColumna(columna);
    datosColumna_[S(columna)].alineacion = alineacion;
    Notificar();
}

int FlexGrid::RowHeight(int fila) const {
    ValidarFila(fila);
    return altos_[S(fila)];
}

void FlexGrid::PonerRowHeight(int fila, int twips) {
    ValidarFila(fila);
    altos_[S(fila)] = twips;
    Notificar();
}

void FlexGrid::Clear() {
    std::fill(textos_.begin(), textos_.end(), std::string());
    Notificar();
}

void FlexGrid::AddItem(const std::string& texto) {
    PonerRows(filas_ + 1);
    PonerTextMatrix(filas_ - 1, 0, texto);
}

void FlexGrid::RemoveItem(int fila) {
    ValidarFila(fila);
    const auto primera = textos_.begin() + static_cast<std::ptrdiff_t>(S(fila) * S(columnas_));
    textos_.erase(primera, primera + columnas_);
    altos_.erase(altos_.begin() + fila);
    PonerRows(filas_ - 1);
}

void FlexGrid::PonerEncabezados(const std::vector<std::string>& encabezados) {
    for (std::size_t c = 0; c < encabezados.size(); ++c) {
        PonerTextMatrix(0, static_cast<int>(c), encabezados[c]);
    }
}

void FlexGrid::HacerVisible() {
    if (fila_ < filaSuperior_) {
        PonerTopRow(fila_);
    } else if (fila_ >= filaSuperior_ + filasVisibles_) {
        PonerTopRow(fila_ - filasVisibles_ + 1);
    }
}

void FlexGrid::TeclaPorDefecto(int codigo, int) {
    int fila = fila_;
    int columna = columna_;
    switch (codigo) {
        case kTeclaArriba:
            --fila;
            break;
        case kTeclaAbajo:
            ++fila;
            break;
        case kTeclaIzquierda:
            --columna;
            break;
        case kTeclaDerecha:
            ++columna;
            break;
        case kTeclaRePag:
            fila -= filasVisibles_ - 1;
            break;
        case kTeclaAvPag:
            fila += filasVisibles_ - 1;
            break;
        case kTeclaInicio:
            fila = filasFijas_;
            break;
        case kTeclaFin:
            fila = filas_ - 1;
            break;
        default:
            return;
    }
    if (filas_ <= filasFijas_ || columnas_ <= columnasFijas_) {
        return;
    }
    PonerCelda(std::clamp(fila, filasFijas_, filas_ - 1), std::clamp(columna, columnasFijas_, columnas_ - 1));
    HacerVisible();
}

void FlexGrid::Presionar(BotonRaton boton, int fila, int columna) {
    ValidarFila(fila);
    ValidarColumna(columna);
    if (PuedeRecibirFoco()) {
        SetFocus();
        App().DoEvents();
    }
    if (fila >= filasFijas_) {
        PonerCelda(fila, columna >= columnasFijas_ ? columna : columna_);
    }
    MouseDown(boton);
}

}  // namespace cuencalia
