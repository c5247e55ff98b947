#include "frame/modulo/modulocalculo.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "frame/base/textos.h"

namespace cuencalia {

ModuloCalculo::ModuloCalculo(Aplicacion& app, std::string nombre, DescripcionModulo descripcion)
    : MarcoModulo(app, std::move(nombre), descripcion.titulo),
      datos(*this, StatusBar1, std::move(descripcion.datos)),
      archivos(*this, descripcion.archivo),
      filasMax_(descripcion.filasMax) {
    DeclararInicio(calculadaCon_);
}

void ModuloCalculo::Form_Load() {
    datos.IniciarGrid();
    MarcoModulo::Form_Load();
}

void ModuloCalculo::CargarMatrices() {
    n = datos.Filas();
    for (int i = 1; i <= n; ++i) {
        for (std::size_t c = 0; c < columnas_.size(); ++c) {
            const Double valor = Val(datos.grdt.TextMatrix(i, static_cast<int>(c) + 1));
            if (auto* dobles = std::get_if<ArregloBase<Double>*>(&columnas_[c])) {
                (**dobles)(i) = valor;
            } else {
                (*std::get<ArregloBase<Single>*>(columnas_[c]))(i) = CSng(valor);
            }
        }
    }
}

Registro ModuloCalculo::RegistroDe(int i) const {
    Registro registro;
    for (std::size_t c = 0; c < columnas_.size(); ++c) {
        registro[c] = std::visit([i](const auto* matriz) { return CSng((*matriz)(i)); }, columnas_[c]);
    }
    return registro;
}

int ModuloCalculo::FilasMax() const {
    int filas = std::numeric_limits<std::int16_t>::max();
    for (const Matriz& columna : columnas_) {
        filas = std::min(filas, std::visit([](const auto* matriz) { return matriz->UBound(); }, columna));
    }
    return filas;
}

void ModuloCalculo::AntesDeOrden() {
    MarcoModulo::AntesDeOrden();
    datos.GuardarEdicion();
}

bool ModuloCalculo::ConTrabajo() {
    return datos.EntradaAMedias() || (datos.Filas() > 0 && guardada_ != datos.Version());
}

void ModuloCalculo::DespuesDeEvento() {
    datos.Anotar();
    if (std::exchange(guardando_, false)) {
        guardada_ = datos.Version();
    }
    const bool anteriores = calculadaCon_ && *calculadaCon_ != datos.Version();
    StatusBar1.PonerPanel(kPanelDatos, "n = " + std::to_string(datos.Filas()) +
                                           (anteriores ? " · los resultados son anteriores a los datos" : ""));
}

std::string ModuloCalculo::Consejo(const ErrorEjecucion& error) const {
    switch (error.Numero()) {
        case kSubindiceFuera: {
            const int admite = std::min(FilasMax(), filasMax_);
            return datos.Filas() > admite ? "El módulo admite hasta " + std::to_string(admite) + " datos" : "";
        }
        case kDivisionPorCero:
        case kDesbordamiento:
        case kArgumentoNoValido:
            if (datos.Filas() == 0) {
                return "No hay datos: digitarlos, pegarlos o cargar un archivo";
            }
            return "El cálculo no es posible con estos " + std::to_string(datos.Filas()) +
                   " datos: revisar que no sean muy pocos o iguales entre sí" + datos.DatoDudoso();
        default:
            return "";
    }
}

void ModuloCalculo::LimpiarModulo() {
    datos.IniciarGrid();
    MarcoModulo::LimpiarModulo();
}

std::vector<BotonConImagen> ModuloCalculo::BotonesResultados() {
    std::vector<BotonConImagen> botones{{&archivos.bCrear, "crear"}, {&archivos.bAccesar, "accesar"}};
    for (const BotonConImagen& boton : MarcoModulo::BotonesResultados()) {
        botones.push_back(boton);
    }
    botones.push_back({&archivos.bCargarExcel, "excel"});
    return botones;
}

std::vector<Disposicion> ModuloCalculo::ZonaResultados() {
    return {archivos.bCargarExcel, bReporte, archivos.bCrear, archivos.bAccesar};
}

Disposicion ModuloCalculo::Cuerpo() { return Fila({datos.Zona(), Contenido().Estira(1)}); }

}  // namespace cuencalia
