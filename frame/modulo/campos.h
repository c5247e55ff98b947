#pragma once

#include <deque>
#include <string>
#include <variant>
#include <vector>

#include "frame/base/textos.h"
#include "frame/controles/controles.h"
#include "frame/controles/disposicion.h"
#include "frame/reportes/reporte.h"

namespace cuencalia {

/// How a box is named on its window and in the report.
struct DescripcionCampo {
    const char* nombre;
    const char* rotulo;
    const char* unidad = "";                ///< Beside the box; empty for a number without unit.
    const char* enReporte = "";             ///< What stands before the number in the report; empty: it is not reported.
    const char* unidadEnReporte = nullptr;  ///< Null: as on the window.
};

/// A box between its caption and its unit.
struct Campo {
    Campo(Formulario& forma, const DescripcionCampo& descripcion);

    /// The line of the report: words, text of the box, unit.
    std::string Renglon() const;

    DescripcionCampo descripcion;
    Label rotulo;
    TextBox caja;
    Label unidad;
};

/// Boxes declared as a table, from which window, clearing and report are made.
class Campos {
  public:
    Campos(Formulario& forma, const std::vector<DescripcionCampo>& tabla);

    /// Null: no box has that name.
    const Campo* Hallar(const std::string& nombre) const;
    TextBox& Caja(std::size_t i) { return campos_[i].caja; }
    std::string Renglon(std::size_t i) const { return campos_[i].Renglon(); }
    std::vector<TextBox*> Cajas();
    /// Caption, box and unit of each, and `vacias` empty cells, behind the cells that a table has already.
    void AgregarA(std::vector<Disposicion>& celdas, int vacias = 0);
    /// Captions, boxes and units in three columns, or in a multiple of three; two columns go without units.
    Disposicion Tabla(int columnas = 3);
    /// The lines of all of them.
    void Reportar(Reporte& reporte) const;

  private:
    std::deque<Campo> campos_;  ///< A control stays where it was made.
};

/// Boxes that show the members of a struct of results.
template <typename Resultado>
class CamposDe : public Campos {
  public:
    using Miembro = std::variant<Double Resultado::*, Single Resultado::*>;
    struct Fila {
        DescripcionCampo campo;
        Miembro valor;
        const char* patron = nullptr;  ///< Null: as all the others.
    };

    CamposDe(Formulario& forma, const std::vector<Fila>& tabla) : Campos(forma, Descripciones(tabla)) {
        for (const Fila& fila : tabla) {
            valores_.push_back(fila);
        }
    }

    void Mostrar(const Resultado& resultado, const char* patron = "") {
        for (std::size_t i = 0; i < valores_.size(); ++i) {
            const Fila& fila = valores_[i];
            const char* suyo = fila.patron == nullptr ? patron : fila.patron;
            Caja(i).Text = std::visit([&](auto valor) { return Format(resultado.*valor, suyo); }, fila.valor);
        }
    }

  private:
    static std::vector<DescripcionCampo> Descripciones(const std::vector<Fila>& tabla) {
        std::vector<DescripcionCampo> descripciones;
        descripciones.reserve(tabla.size());
        for (const Fila& fila : tabla) {
            descripciones.push_back(fila.campo);
        }
        return descripciones;
    }

    std::vector<Fila> valores_;
};

}  // namespace cuencalia
