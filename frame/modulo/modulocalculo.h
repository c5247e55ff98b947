#pragma once

#include <limits>
#include <string>
#include <variant>
#include <vector>

#include "frame/base/numeros.h"
#include "frame/modulo/comandosarchivo.h"
#include "frame/modulo/griddatos.h"
#include "frame/modulo/marcomodulo.h"

namespace cuencalia {

/// The properties in which the calculation modules differ.
struct DescripcionModulo {
    std::string titulo;
    DescripcionGrid datos;
    const FormatoSerie* archivo = nullptr;  ///< Format of the series files; null for a module without files.
    /// Rows that the module can calculate, where that is fewer than its arrays hold.
    int filasMax = std::numeric_limits<int>::max();
};

/// A module whose data are typed into a grid, as in nearly all calculation windows. The module copies the grid into its
/// arrays by CargarMatrices before each use.
class ModuloCalculo : public MarcoModulo {
  public:
    ModuloCalculo(Aplicacion& app, std::string nombre, DescripcionModulo descripcion);

    GridDatos datos;
    ComandosArchivo archivos;

    /// Number of data rows at the last CargarMatrices; not updated when the grid is edited.
    int n = 0;

    void Form_Load() override;

    /// Reads the grid into the module's arrays and sets `n`. Error 9 when the rows exceed an array.
    virtual void CargarMatrices();
    void LimpiarModulo() override;
    void AntesDeOrden() override;
    void DespuesDeEvento() override;
    /// Whether there are data that were neither loaded nor stored as they stand.
    bool ConTrabajo() override;
    /// The data, as they stand when the current event has ended, are those of a file.
    void AnotarGuardado() { guardando_ = true; }

    /// Whether CargarMatrices reads the data as they stand; a module that refuses them keeps what it read before.
    virtual bool DatosLegibles() const { return true; }

    /// Record i of a series file, from the arrays. Error 6 for a value beyond the range of a Single.
    Registro RegistroDe(int i) const;
    /// Greatest number of rows that the arrays can hold.
    int FilasMax() const;
    /// Reads what the records after those of the data rows will hold. An error leaves the old file as it was.
    virtual void CargarCola() {}
    /// The records that a file of this module has after those of the data rows, and their use when a file is loaded.
    virtual std::vector<Registro> RegistrosDeCola() { return {}; }
    virtual void LeerCola(const std::vector<Registro>& /*registros*/) {}
    /// Uses the rows of a loaded sheet that come before the data rows.
    virtual void LeerCabeza(const Hoja& /*hoja*/) {}

  protected:
    /// The arrays that CargarMatrices fills, one for each data column.
    using Matriz = std::variant<ArregloBase<Double>*, ArregloBase<Single>*>;
    void LeerEn(std::vector<Matriz> columnas) { columnas_ = std::move(columnas); }

    void AlCalcular() override { calculadaCon_ = datos.Version(); }
    std::string Consejo(const ErrorEjecucion& error) const override;
    std::vector<BotonConImagen> BotonesResultados() override;
    std::vector<Disposicion> ZonaResultados() override;

    /// Layout of what the module shows beside the data grid.
    virtual Disposicion Contenido() { return Espacio(); }
    /// Layout with the data grid at the left of Contenido. A module with the grid elsewhere overrides this.
    Disposicion Cuerpo() override;

  private:
    int filasMax_;
    std::vector<Matriz> columnas_;
    std::optional<int> calculadaCon_;  ///< Version of the data that gave the results shown.
    std::optional<int> guardada_;      ///< Version of the data that a file has.
    bool guardando_ = false;
};

}  // namespace cuencalia
