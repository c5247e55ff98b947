#include "modules/evapotranspiracion/modulomensual.h"

namespace cuencalia {

ModuloMensual::ModuloMensual(Aplicacion& app, std::string nombre, DescripcionMensual descripcion)
    : ModuloCalculo(app, std::move(nombre), std::move(descripcion.modulo)),
      cobLatitud(*this, "cobLatitud", ListaDeLatitudes(descripcion.latitudes), "Latitud, grados"),
      cobLatitudNS(*this, "cobLatitudNS", {"N", "S"}, "Norte o sur"),
      grddis(*this, "grddis", "Resultados por meses", std::move(descripcion.resultados)),
      lblEjeY(*this, "lblEjeY", std::move(descripcion.ejeY)),
      faltanMeses_(std::move(descripcion.faltanMeses)),
      fondo_(descripcion.fondo) {
    DeclararTablas({&grddis});
    DeclararGraficos({&Graph1});
    AvisarFallos(kDatosInadecuados);
    bGraficar.Click.Conectar([this] { bGraficar_Click(); });
    cobLatitud.Text = "10";
    cobLatitudNS.Text = "N";
    Graph1.RotularEjes(lblEjeX, lblEjeY);
}

void ModuloMensual::Form_Load() {
    ModuloCalculo::Form_Load();
    for (ValoresPorLatitud* tabla : correcciones_) {
        tabla->Cargar(App().Sistema().CarpetaInstalacion() + "/tablas");
    }
    Advertir(FaltaEnTablas());
}

std::string ModuloMensual::FaltaEnTablas() const {
    std::string falta;
    for (const ValoresPorLatitud* tabla : correcciones_) {
        falta += (falta.empty() || tabla->Falta().empty() ? "" : " · ") + tabla->Falta();
    }
    return falta;
}

void ModuloMensual::Advertir(const std::string& advertencia) {
    if (!advertencia.empty() || StatusBar1.Panel(kPanelAvisos) == advertencia_) {
        StatusBar1.PonerPanel(kPanelAvisos, advertencia);
    }
    advertencia_ = advertencia;
}

void ModuloMensual::ElegirLatitud() {
    const std::string clave = cobLatitud.Text() + cobLatitudNS.Text();
    std::string advertencia = FaltaEnTablas();
    for (ValoresPorLatitud* tabla : correcciones_) {
        if (!tabla->Elegir(clave) && advertencia.empty()) {
            advertencia = "No hay tabla para la latitud «" + clave + "»: quedan los valores de la anterior";
        }
    }
    Advertir(advertencia);
}

void ModuloMensual::CargarMatrices() {
    if (!DatosLegibles()) {
        n = datos.Filas();
        App().MsgBox({faltanMeses_, kIconoInformacion, "Mensaje de error"});
        Advertir("No se leyeron los datos: quedan los de la lectura anterior");
        return;
    }
    // First: a row too many ends the reading behind the twelfth month, which stays read with its name.
    for (int m = 1; m <= 12; ++m) {
        nombreMes(m) = datos.grdt.TextMatrix(m, 0);
    }
    ModuloCalculo::CargarMatrices();
}

std::string ModuloMensual::Consejo(const ErrorEjecucion& error) const {
    if (error.Numero() == kArgumentoNoValido) {
        for (int m = 1; m <= 12; ++m) {
            if (T(m) < 0) {
                return "El método no admite temperaturas menores que 0 ºC: revisar la de " + NombreMes(m);
            }
        }
    }
    const std::string falta = FaltaEnTablas();
    return falta.empty() ? ModuloCalculo::Consejo(error) : falta;
}

std::string ModuloMensual::RotuloDeMes(int mes) const { return MesCorto(mes); }

void ModuloMensual::bGraficar_Click() {
    if (!ExigirCalculo()) {
        return;
    }
    std::vector<std::string> meses;
    for (int m = 1; m <= 12; ++m) {
        meses.push_back(RotuloDeMes(m));
    }
    GraficoDibujar(Graph1, {.fondo = fondo_, .conTrama = true, .nombres = std::move(meses)}, Curvas());
}

Disposicion ModuloMensual::Latitud() { return Grupo(fraLatitud, {Fila({cobLatitud, cobLatitudNS})}); }

Disposicion ModuloMensual::Grafico() {
    return Columna({Fila({lblEjeY, Espacio()}), Disposicion(Graph1).Estira(1), Fila({Espacio(), lblEjeX})});
}

Reporte::Tabla TablaDeMeses(std::string titulo, const std::vector<std::string>& encabezados, int regla) {
    return {.titulo = std::move(titulo),
            .regla = regla,
            .encabezado = UnirEncabezados(encabezados, "\t"),
            .celda = CeldaSeguidaDe("\t"),
            .paradas = {13, 27}};
}

Reporte::Tabla TablaDeTemperaturas() {
    return TablaDeMeses("Serie de datos de temperaturas mensuales", {" Mes", "       Temperatura"}, 40);
}

}  // namespace cuencalia
