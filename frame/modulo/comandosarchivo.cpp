#include "frame/modulo/comandosarchivo.h"

#include <cmath>
#include <optional>
#include <vector>

#include "frame/base/textos.h"
#include "frame/modulo/modulocalculo.h"

namespace cuencalia {

std::string TextoDeCelda(const ValorCelda& valor, const char* patron) {
    if (const auto* numero = std::get_if<Double>(&valor)) {
        return Format(*numero, patron);
    }
    const auto* texto = std::get_if<std::string>(&valor);
    return texto == nullptr ? std::string() : *texto;
}

ComandosArchivo::ComandosArchivo(ModuloCalculo& modulo, const FormatoSerie* formato)
    : bCrear(modulo, "bCrear", "&Crear", "Crear archivo"),
      bAccesar(modulo, "bAccesar", "&Accesar", "Cargar archivo"),
      bCargarExcel(modulo, "bCargarExcel", "&Excel", "Cargar archivo desde Excel"),
      cdCrear(modulo, "cdCrear"),
      cdAccesar(modulo, "cdAccesar"),
      cdCargarExcel(modulo, "cdCargarExcel"),
      modulo_(modulo),
      formato_(formato) {
    cdCrear.DialogTitle = "Ubicar directorio y escribir el nombre archivo a crear";
    cdAccesar.DialogTitle = cdCargarExcel.DialogTitle = "Seleccionar el archivo a cargar";
    cdCargarExcel.Filter = "Archivos de Excel 97-2003|*.xls|Archivos de Excel 07-2010|*.xlsx";
    if (formato_ == nullptr) {
        return;
    }
    cdCrear.Filter = formato_->FiltroCrear();
    cdAccesar.Filter = formato_->FiltroAccesar();
    bCrear.Click.Conectar([this] { bCrear_Click(); });
    bAccesar.Click.Conectar([this] { bAccesar_Click(); });
    bCargarExcel.Visible = formato_->conHoja;
    if (formato_->conHoja) {
        bCargarExcel.Click.Conectar([this] { bCargarExcel_Click(); });
    }
}

void ComandosArchivo::ConTrampa(const char* mensaje, const std::function<void()>& orden) {
    Avisar("");
    try {
        orden();
    } catch (const ErrorEjecucion& error) {
        const std::string& nombre = modulo_.App().Globales().NombreArchivo;
        if (error.Numero() == kDialogoCancelado) {
            modulo_.App().MsgBox(mensaje + nombre);
        } else if (modulo_.StatusBar1.Panel(kPanelAvisos).empty() && !nombre.empty()) {
            Avisar(nombre + ": " + error.Texto());
        }
    }
}

void ComandosArchivo::Avisar(const std::string& aviso) { modulo_.StatusBar1.PonerPanel(kPanelAvisos, aviso); }

void ComandosArchivo::Terminar(int filas) {
    modulo_.datos.TerminarCarga(filas);
    modulo_.n = filas;
    modulo_.AnotarGuardado();
}

void ComandosArchivo::bCrear_Click() {
    ConTrampa("Error desconocido al salvar el archivo ", [this] {
        modulo_.App().Sistema().IrACarpetaDelPrograma();
        cdCrear.ShowSave();
        modulo_.App().Globales().NombreArchivo = cdCrear.FileName;
        modulo_.CargarMatrices();
        modulo_.CargarCola();
        // What cannot be a Single ends the file where it stands, as does the end of the data.
        std::vector<Registro> registros;
        std::optional<ErrorEjecucion> fallo;
        try {
            for (int i = 1; i <= modulo_.n; ++i) {
                registros.push_back(modulo_.RegistroDe(i));
            }
            for (const Registro& registro : modulo_.RegistrosDeCola()) {
                registros.push_back(registro);
            }
        } catch (const ErrorEjecucion& error) {
            fallo = error;
        }
        EscritorSerie archivo(cdCrear.FileName, formato_->valores);
        for (const Registro& registro : registros) {
            archivo.Escribir(registro);
        }
        archivo.Publicar();
        if (fallo) {
            Avisar("El valor " + std::to_string(registros.size() + 1) +
                   " no cabe en un archivo de serie: se guardaron los anteriores");
            throw *fallo;
        }
        if (!modulo_.DatosLegibles()) {
            Avisar("Los datos no se guardaron: " + cdCrear.FileName + " tiene los que se leyeron antes");
            return;
        }
        modulo_.AnotarGuardado();
        Avisar("Se guardaron " + std::to_string(modulo_.n) + " registros en " + cdCrear.FileName);
    });
}

void ComandosArchivo::bAccesar_Click() {
    modulo_.LimpiarResultados();
    ConTrampa("Error desconocido al abrir el archivo ", [this] {
        cdAccesar.ShowOpen();
        modulo_.App().Globales().NombreArchivo = cdAccesar.FileName;
        modulo_.datos.IniciarGrid();
        modulo_.n = 0;
        LectorSerie archivo(cdAccesar.FileName, formato_->valores);
        modulo_.App().Globales().NRegistros = Integer(archivo.Registros());
        const int filas = archivo.Registros() - formato_->registrosDeCola;
        if (filas < 0) {
            throw ErrorEjecucion(kAccesoRuta);
        }
        modulo_.datos.EmpezarCarga(filas);
        for (int i = 1; i <= filas; ++i) {
            const Registro registro = archivo.Leer();
            modulo_.datos.RotularFila(i);
            for (const Single& valor : registro) {
                if (!std::isfinite(valor.valor())) {
                    Avisar("El registro " + std::to_string(i) +
                           " no es un número: la carga terminó ahí (Ctrl+Z devuelve la "
                           "serie anterior)");
                }
            }
            for (int c = 1; c <= modulo_.datos.UltimaColumna(); ++c) {
                modulo_.datos.grdt.PonerTextMatrix(
                    i, c, Format(registro[static_cast<std::size_t>(c - 1)], formato_->patronArchivo));
            }
        }
        std::vector<Registro> cola;
        while (static_cast<int>(cola.size()) < formato_->registrosDeCola) {
            cola.push_back(archivo.Leer());
        }
        modulo_.LeerCola(cola);
        Terminar(filas);
    });
}

void ComandosArchivo::bCargarExcel_Click() {
    modulo_.LimpiarResultados();
    ConTrampa("Error desconocido al abrir el archivo ", [this] {
        modulo_.datos.IniciarGrid();
        cdCargarExcel.ShowOpen();
        modulo_.App().Globales().NombreArchivo = cdCargarExcel.FileName;
        const int columnas = modulo_.datos.UltimaColumna();
        const int cabeza = formato_->filasDeCabeza;
        // One row more than the arrays hold, to find out whether the sheet is too long for them.
        const int filasMax = modulo_.FilasMax() + cabeza;
        const Hoja hoja =
            modulo_.App().Sistema().Hojas().LeerPrimeraHoja(cdCargarExcel.FileName, columnas, filasMax + 1);
        const int filas = hoja.Filas() - cabeza;
        if (hoja.Filas() > filasMax || filas < 0) {
            throw ErrorEjecucion(kSubindiceFuera);
        }
        modulo_.App().Globales().NRegistros = Integer(hoja.Filas());
        modulo_.LeerCabeza(hoja);
        modulo_.datos.EmpezarCarga(filas);
        for (int i = 1; i <= filas; ++i) {
            modulo_.datos.RotularFila(i);
            for (int c = 1; c <= columnas; ++c) {
                modulo_.datos.grdt.PonerTextMatrix(i, c, TextoDeCelda(hoja.Cells(i + cabeza, c), formato_->patronHoja));
            }
        }
        Terminar(filas);
        // Unlike a file, a sheet is read at once: a module that will refuse so few rows goes on with them.
        modulo_.ModuloCalculo::CargarMatrices();
        if (const int textos = modulo_.datos.grdt.Marcadas(); textos > 0) {
            Avisar(std::to_string(textos) +
                   (textos == 1 ? " celda marcada no es un número y cuenta"
                                : " celdas marcadas no son números y cuentan") +
                   " como 0 o hasta donde se lee");
        }
    });
}

}  // namespace cuencalia
