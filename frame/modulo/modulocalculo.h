#pragma once

#include <string>
#include <variant>
#include <vector>

#include "frame/base/numeros.h"
#include "frame/modulo/comandosarchivo.h"
#include "frame/modulo/griddatos.h"
#include "frame/modulo/marcomodulo.h"

namespace cuencalia {

/// What tells one calculation module from another in the frame that they share.
struct DescripcionModulo {
    std::string titulo;
    DescripcionGrid datos;
    const FormatoSerie* archivo = nullptr;  ///< Of the module's series files; null for a module without files.
};

/// A module whose data are typed into a grid: the frame of nearly all calculation windows. The module reads the grid
/// into its arrays by CargarMatrices before each use.
class ModuloCalculo : public MarcoModulo {
  public:
    ModuloCalculo(Aplicacion& app, std::string nombre, DescripcionModulo descripcion);

    GridDatos datos;
    ComandosArchivo archivos;

    /// Number of data rows at the last CargarMatrices; stale after any edit of the grid.
    int n = 0;

    void Form_Load() override;

    /// Reads the grid into the module's arrays and sets `n`. Error 9 when the rows exceed an array.
    virtual void CargarMatrices();
    void LimpiarModulo() override;

    /// Record i of the data, from the arrays. Error 6 for a value beyond a Single.
    Registro RegistroDe(int i) const;
    /// Most rows that the arrays take.
    int FilasMax() const;
    /// The records that a module's files hold behind those of the data rows, and what a load does with them.
    virtual std::vector<Registro> RegistrosDeCola() { return {}; }
    virtual void LeerCola(const std::vector<Registro>& /*registros*/) {}
    /// What a load does with the rows of a sheet that stand before those of the data.
    virtual void LeerCabeza(const Hoja& /*hoja*/) {}

  protected:
    /// The arrays that CargarMatrices fills, one for each data column.
    using Matriz = std::variant<ArregloBase<Double>*, ArregloBase<Single>*>;
    void LeerEn(std::vector<Matriz> columnas) { columnas_ = std::move(columnas); }

    std::vector<BotonConImagen> BotonesResultados() override;
    std::vector<Disposicion> ZonaResultados() override;

    /// What the module shows beside the data grid.
    virtual Disposicion Contenido() { return Espacio(); }
    /// The data grid at the left of the module's contents. A module that has it elsewhere lays itself out.
    Disposicion Cuerpo() override;

  private:
    std::vector<Matriz> columnas_;
};

}  // namespace cuencalia
