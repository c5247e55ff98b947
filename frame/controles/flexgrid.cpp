#include "frame/controles/flexgrid.h"

#include <algorithm>

#include "frame/base/errores.h"
#include "frame/base/json.h"
#include "frame/base/textos.h"
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

void FlexGrid::HacerVisible(int fila) {
    if (fila < filaSuperior_) {
        PonerTopRow(fila);
    } else if (fila >= filaSuperior_ + filasVisibles_) {
        PonerTopRow(fila - filasVisibles_ + 1);
    }
}

std::pair<int, int> FlexGrid::FinDeDatos(int fila, int columna, int pasoFila, int pasoColumna) const {
    const auto dentro = [this](int f, int c) {
        return f >= filasFijas_ && f < filas_ && c >= columnasFijas_ && c < columnas_;
    };
    const auto lleno = [&](int f, int c) { return dentro(f, c) && !TextMatrix(f, c).empty(); };
    const auto avanzar = [&] {
        fila += pasoFila;
        columna += pasoColumna;
    };
    if (!dentro(fila + pasoFila, columna + pasoColumna)) {
        return {fila, columna};
    }
    const bool enDatos = lleno(fila, columna) && lleno(fila + pasoFila, columna + pasoColumna);
    do {
        avanzar();
    } while (dentro(fila + pasoFila, columna + pasoColumna) &&
             (enDatos ? lleno(fila + pasoFila, columna + pasoColumna) : !lleno(fila, columna)));
    return {fila, columna};
}

std::pair<int, int> FlexGrid::Destino(int codigo, int fila, int columna) const {
    const bool control = App().ConControl();
    const int ultimaFila = filas_ - 1, ultimaColumna = columnas_ - 1, pagina = filasVisibles_ - 1;
    switch (codigo) {
        case kTeclaArriba:
            return control ? FinDeDatos(fila, columna, -1, 0) : std::pair(fila - 1, columna);
        case kTeclaAbajo:
            return control ? FinDeDatos(fila, columna, 1, 0) : std::pair(fila + 1, columna);
        case kTeclaIzquierda:
            return control ? FinDeDatos(fila, columna, 0, -1) : std::pair(fila, columna - 1);
        case kTeclaDerecha:
            return control ? FinDeDatos(fila, columna, 0, 1) : std::pair(fila, columna + 1);
        case kTeclaRePag:
            return {fila - pagina, columna};
        case kTeclaAvPag:
            return {fila + pagina, columna};
        case kTeclaInicio:
            return {control ? filasFijas_ : fila, columnasFijas_};
        case kTeclaFin:
            return {control ? ultimaFila : fila, ultimaColumna};
        default:
            return {-1, -1};
    }
}

void FlexGrid::SeleccionarTodo() {
    const int ultimaFila = filas_ - 1;
    // From the last row upwards where the cursor is there: a row half typed is not to be left for it.
    const bool alReves = fila_ == ultimaFila;
    PonerCelda(alReves ? ultimaFila : filasFijas_, columnasFijas_);
    Seleccionar(alReves ? filasFijas_ : ultimaFila, columnas_ - 1);
}

void FlexGrid::TeclaPorDefecto(int codigo, int) {
    if (filas_ <= filasFijas_ || columnas_ <= columnasFijas_) {
        return;
    }
    if (App().ConControl() && codigo == 'A') {
        SeleccionarTodo();
    } else if (App().ConControl() && codigo == 'C') {
        App().Sistema().PonerEnPortapapeles(TextoSeleccionado());
    }
    const bool extender = App().ConMayusculas();
    auto [fila, columna] = extender ? Destino(codigo, filaSel_, columnaSel_) : Destino(codigo, fila_, columna_);
    if (fila == -1 && columna == -1) {
        return;
    }
    fila = std::clamp(fila, filasFijas_, filas_ - 1);
    columna = std::clamp(columna, columnasFijas_, columnas_ - 1);
    if (extender) {
        Seleccionar(fila, columna);
    } else {
        PonerCelda(fila, columna);
    }
    HacerVisible(fila);
}

Bloque FlexGrid::Celdas(int fila0, int columna0, int fila1, int columna1, bool conEncabezados) const {
    Bloque bloque;
    const auto agregar = [&](int fila) {
        std::vector<std::string>& textos = bloque.emplace_back();
        for (int c = 0; c < (conEncabezados ? columnasFijas_ : 0); ++c) {
            textos.push_back(Trim(TextMatrix(fila, c)));
        }
        for (int c = columna0; c <= columna1; ++c) {
            textos.push_back(TextMatrix(fila, c));
        }
    };
    for (int f = 0; f < (conEncabezados ? filasFijas_ : 0); ++f) {
        agregar(f);
    }
    for (int f = fila0; f <= fila1; ++f) {
        agregar(f);
    }
    return bloque;
}

std::string FlexGrid::TextoSeleccionado(bool conEncabezados) const {
    return UnirBloque(Celdas(std::min(fila_, filaSel_), std::min(columna_, columnaSel_), std::max(fila_, filaSel_),
                             std::max(columna_, columnaSel_), conEncabezados));
}

std::string FlexGrid::TextoCompleto(bool conEncabezados) const {
    return UnirBloque(Celdas(filasFijas_, columnasFijas_, filas_ - 1, columnas_ - 1, conEncabezados));
}

bool FlexGrid::EstaMarcada(int fila, int columna) const {
    return marcar_ && fila >= filasFijas_ && columna >= columnasFijas_ && marcar_(TextMatrix(fila, columna));
}

int FlexGrid::Marcadas() const {
    int cuantas = 0;
    for (int f = filasFijas_; marcar_ && f < filas_; ++f) {
        for (int c = columnasFijas_; c < columnas_; ++c) {
            cuantas += EstaMarcada(f, c) ? 1 : 0;
        }
    }
    return cuantas;
}

bool FlexGrid::Describir(EscritorJson& json) {
    json.Clave("filas").Abrir('[');
    for (int f = 0; f < filas_; ++f) {
        json.Abrir('[');
        for (int c = 0; c < columnas_; ++c) {
            json.Texto(TextMatrix(f, c));
        }
        json.Cerrar(']');
    }
    json.Cerrar(']');
    return true;
}

void FlexGrid::DescribirEstado(EscritorJson& json) {
    Control::DescribirEstado(json);
    json.Clave("Row").Entero(fila_).Clave("Col").Entero(columna_).Clave("TopRow").Entero(filaSuperior_);
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
    if (fila < filasFijas_ && boton == kBotonIzquierdo) {
        PulsarEncabezado(columna);
    }
}

}  // namespace cuencalia
