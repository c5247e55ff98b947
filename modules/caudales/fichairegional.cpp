#include "frame/base/textos.h"
#include "modules/caudales/fichai.h"
#include "modules/caudales/intensidadregional.h"
#include "modules/precipitacion/archivotdi.h"
#include "modules/precipitacion/ecuacionintensidad.h"

namespace cuencalia {

namespace {

constexpr int kTriosMaximos = 1500;

/// The regional equations, or an equation fitted to the trios of the grid.
class FichaIRegional : public FichaI {
  public:
    FichaIRegional(ModuloCalculo& modulo, FichaQ& destino);

    Frame fraOpciones;
    OptionButton optProvincias, optRegistros;
    Frame fraProvincias;
    struct Provincia {
        Provincia(Formulario& forma, const EcuacionRegional& regional)
            : opcion(forma, regional.opcion, regional.lugar), ecuacion(regional) {}

        OptionButton opcion;
        const EcuacionRegional& ecuacion;
    };
    std::vector<std::unique_ptr<Provincia>> provincias;
    Label lblProvincia;  ///< The equation of the chosen province.
    Label lblecuacioni;
    TextBox txtecuacioni;

    void MostrarDatos() override;
    std::vector<ArregloBase<Double>*> Columnas() override { return {&trios.T, &trios.D, &trios.I}; }
    void Reportar(Reporte& reporte) override;
    const char* TituloResultados() const override { return "Resultados de los cálculos:"; }
    Disposicion Zona() override;

  protected:
    bool Calcular(Single periodo, Double duracion) override;
    void Fallar() override;

  private:
    void optProvincias_Click();
    void optRegistros_Click();
    void MostrarEtiquetas(bool visibles);
    void MostrarEcuacion(bool visible);
    bool DeProvincia(Single periodo, Double duracion);
    bool DeRegistros(Single periodo, Double duracion);

    PuntosIDT trios{kTriosMaximos};
    Double intensidad_;  ///< The last one.
};

FichaIRegional::FichaIRegional(ModuloCalculo& modulo, FichaQ& destino)
    : FichaI(modulo, destino),
      fraOpciones(modulo, "fraOpciones", "Opciones cálculo:"),
      optProvincias(modulo, "optProvincias", "ProvinciasCosta Rica"),
      optRegistros(modulo, "optRegistros", "Registro de datos"),
      fraProvincias(modulo, "fraProvincias", "Provincias:"),
      lblProvincia(modulo, "lblProvincia", {}, Papel::Nota),
      lblecuacioni(modulo, "lblecuacioni", "Ecuación de cálculo de Imáx:"),
      txtecuacioni(modulo, "txtecuacioni") {
    for (const EcuacionRegional& ecuacion : kEcuacionesRegionales) {
        provincias.push_back(std::make_unique<Provincia>(modulo, ecuacion));
        provincias.back()->opcion.Click.Conectar([this, &ecuacion] { lblProvincia.Caption = ecuacion.Texto(); });
    }
    lblecuacioni.Nombra(txtecuacioni);
    txtecuacioni.Locked = true;
    fraProvincias.Visible = false;
    modulo.datos.grdt.Visible = false;
    MostrarEtiquetas(false);
    MostrarEcuacion(false);
    modulo.DeclararLimpieza([this] { MostrarEcuacion(false); });
    optProvincias.Click.Conectar([this] { optProvincias_Click(); });
    optRegistros.Click.Conectar([this] { optRegistros_Click(); });
}

void FichaIRegional::MostrarEtiquetas(bool visibles) {
    for (Label* etiqueta : {&modulo_.datos.lbl1, &modulo_.datos.Label1, &modulo_.datos.Label2}) {
        etiqueta->Visible = visibles;
    }
}

void FichaIRegional::MostrarEcuacion(bool visible) {
    lblecuacioni.Visible = visible;
    txtecuacioni.Visible = visible;
}

void FichaIRegional::optProvincias_Click() {
    const int filas = modulo_.datos.Filas();
    fraProvincias.Visible = true;
    MostrarEtiquetas(false);
    MostrarEcuacion(false);
    modulo_.datos.grdt.Visible = false;
    modulo_.datos.IniciarGrid();
    Avisar(filas > 0 ? "Se borraron los " + std::to_string(filas) + " tríos de datos" : "");
}

void FichaIRegional::optRegistros_Click() {
    fraProvincias.Visible = false;
    for (const auto& provincia : provincias) {
        provincia->opcion.Value = false;
    }
    lblProvincia.Caption = "";
    modulo_.datos.grdt.Visible = true;
    modulo_.datos.IniciarGrid();
    MostrarEtiquetas(true);
}

void FichaIRegional::MostrarDatos() {
    if (!optRegistros.Value) {
        optRegistros.Value = true;
    }
}

bool FichaIRegional::DeProvincia(Single periodo, Double duracion) {
    if (periodo > kTMaximoRegional) {
        modulo_.App().MsgBox("Para este método el período de retorno T no puede ser mayor de 200", kSinIcono, "Error");
        T.caja.SetFocus();
        return false;
    }
    for (const auto& provincia : provincias) {
        if (provincia->opcion.Value) {
            intensidad_ = provincia->ecuacion.Evaluar(periodo, duracion);
            return true;
        }
    }
    Avisar("No hay una provincia elegida: la intensidad es la del cálculo anterior");
    return true;
}

bool FichaIRegional::DeRegistros(Single periodo, Double duracion) {
    modulo_.CargarMatrices();
    trios.n = modulo_.n;
    if (trios.n <= 3) {
        modulo_.App().MsgBox("Para el ajuste a la ecuación se requiere por lo menos cuatro tríos de datos");
        modulo_.datos.MenorQue4Celdas();
        return false;
    }
    const auto ajuste = AjustarIntensidad(trios, BusquedaPivote::EnColumna);
    if (!ajuste) {
        modulo_.App().MsgBox(kInfinitasSoluciones);
        return false;
    }
    intensidad_ = ajuste->ecuacion.Evaluar(periodo, duracion);
    txtecuacioni.Text = ajuste->ecuacion.Texto("#####0.##00");
    MostrarEcuacion(true);
    return true;
}

bool FichaIRegional::Calcular(Single periodo, Double duracion) {
    if (optProvincias.Value) {
        if (!DeProvincia(periodo, duracion)) {
            return false;
        }
    } else if (optRegistros.Value) {
        if (!DeRegistros(periodo, duracion)) {
            return false;
        }
    } else {
        Avisar("Elegir una de las opciones de cálculo: la intensidad es la del cálculo anterior");
    }
    MostrarDuracion(duracion);
    MostrarIntensidad(intensidad_);
    return true;
}

void FichaIRegional::Fallar() {
    if (optRegistros.Value) {
        modulo_.App().MsgBox(
            "Ingresó valores para T, D ó Imáx iguales a 0 ó negativos. Estos valores no permiten la correlación "
            "potencial. ¡Hacer la corrección correspondiente!");
    } else {
        Avisar("La ecuación no da una intensidad con estos valores de L, H, duración y T");
    }
}

void FichaIRegional::Reportar(Reporte& reporte) {
    reporte.Titulo("Cálculo del I máxima:");
    if (optRegistros.Value) {
        reporte.EscribirTabla(
            TablaDeSerie("Valores de T, D y Imáx:", {" Trío", " T (años)", " Duración (min)", " I máx (mm/hr)"}, 100),
            modulo_.datos.grdt, modulo_.datos.Filas());
    }
    reporte.ReporteLinea(" La I máx para un período de retorno de " + T.caja.Text() + " años y una duración de " +
                         tc.caja.Text() + " min, es " + Imax.caja.Text() + " mm/hr");
    reporte.ReporteBlanco();
}

Disposicion FichaIRegional::Zona() {
    std::vector<Disposicion> opciones;
    for (const auto& provincia : provincias) {
        opciones.emplace_back(provincia->opcion);
    }
    Disposicion eleccion = Columna({Grupo(fraOpciones, {optProvincias, optRegistros}),
                                    Grupo(fraProvincias, {Pares(2, std::move(opciones)), lblProvincia}), Espacio()});
    Disposicion registros = Columna({modulo_.datos.Zona().Estira(1), lblecuacioni, txtecuacioni});
    return Columna({Pasos(), Fila({std::move(eleccion), std::move(registros).Estira(2), Espacio(1)}).Estira(1)});
}

}  // namespace

FuenteIntensidad FuenteRegional() {
    return {.datos = {.encabezados = {"Trío", "T (años)", "Duración (min)", "I máx (mm/hr)"},
                      .patronEdicion = kPatronEdicionB},
            .archivo = &kArchivoTDI,
            .hacerFicha = [](ModuloCalculo& modulo, FichaQ& destino) -> std::unique_ptr<FichaI> {
                return std::make_unique<FichaIRegional>(modulo, destino);
            }};
}

}  // namespace cuencalia
