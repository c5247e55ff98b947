#include "frame/modulo/campos.h"

namespace cuencalia {

Campo::Campo(Formulario& forma, const DescripcionCampo& d)
    : descripcion(d),
      rotulo(forma, std::string("lbl") + d.nombre, d.rotulo),
      caja(forma, d.nombre),
      unidad(forma, std::string("lblUnidad") + d.nombre, d.unidad) {
    rotulo.Nombra(caja);
}

std::string Campo::Renglon() const {
    const std::string u = descripcion.unidadEnReporte != nullptr ? descripcion.unidadEnReporte : descripcion.unidad;
    return descripcion.enReporte + caja.Text() + (u.empty() ? "" : " " + u);
}

Campos::Campos(Formulario& forma, const std::vector<DescripcionCampo>& tabla) {
    for (const DescripcionCampo& descripcion : tabla) {
        campos_.emplace_back(forma, descripcion);
    }
}

const Campo* Campos::Hallar(const std::string& nombre) const {
    for (const Campo& campo : campos_) {
        if (nombre == campo.descripcion.nombre) {
            return &campo;
        }
    }
    return nullptr;
}

std::vector<TextBox*> Campos::Cajas() {
    std::vector<TextBox*> cajas;
    for (Campo& campo : campos_) {
        cajas.push_back(&campo.caja);
    }
    return cajas;
}

void Campos::AgregarA(std::vector<Disposicion>& celdas, int vacias) {
    for (Campo& campo : campos_) {
        celdas.insert(celdas.end(), {campo.rotulo, campo.caja, campo.unidad});
        celdas.resize(celdas.size() + static_cast<std::size_t>(vacias));
    }
}

Disposicion Campos::Tabla(int columnas) {
    std::vector<Disposicion> celdas;
    if (columnas == 2) {
        for (Campo& campo : campos_) {
            celdas.insert(celdas.end(), {campo.rotulo, campo.caja});
        }
    } else {
        AgregarA(celdas);
    }
    return Pares(columnas, std::move(celdas));
}

void Campos::Reportar(Reporte& reporte) const {
    for (const Campo& campo : campos_) {
        reporte.ReporteLinea(campo.Renglon());
    }
}

}  // namespace cuencalia
