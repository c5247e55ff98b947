#include "modules/evapotranspiracion/marcoradiacion.h"

#include <utility>

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "frame/modulo/meses.h"
#include "modules/evapotranspiracion/radiacion.h"

namespace cuencalia {

namespace {

std::vector<std::string> MesesDelAnno() {
    std::vector<std::string> meses;
    for (int mes = 1; mes <= 12; ++mes) {
        meses.push_back(NombreMes(mes));
    }
    return meses;
}

}  // namespace

Aviso Ingresar(const std::string& que) {
    return {"Ingresar un valor adecuado " + que, kIconoInformacion, "Mensaje de error"};
}

MarcoRadiacion::MarcoRadiacion(Aplicacion& app, std::string nombre, const std::string& titulo)
    : MarcoModulo(app, std::move(nombre), titulo), cobMes(*this, "cobMes", MesesDelAnno(), "Mes") {
    DeclararBotones({});
    DeclararEntradas({&txtLatitud});
    for (ComboBox* combo : {&cobNS, &cobMes}) {
        combo->Editable = false;
        combo->Elegir(0);
    }
    DeclararInicio({&cobNS, &cobMes});
    DeclararLimpieza([this] { txtLatitud.SetFocus(); });
    txtLatitud.Text = "10";
    lblLatitud.Nombra(txtLatitud);
    lblMes.Nombra(cobMes);
    PonerControlActivo(&txtLatitud);
}

void MarcoRadiacion::bImprimir_Click() { Avisar("Esta ventana no se imprime; imprima su reporte"); }

void MarcoRadiacion::AntesDeOrden() {
    Avisar("");
    MarcoModulo::AntesDeOrden();
}

std::optional<Double> MarcoRadiacion::LeerLatitud() {
    if (!Exigir(txtLatitud, Ingresar("para la latitud"))) {
        return std::nullopt;
    }
    const Double lat = Val(txtLatitud.Text()) * kPi / 180;
    return cobNS.Text() == "S" ? -lat : lat;
}

std::string MarcoRadiacion::ConsejoDelSol(Double lat) const {
    return SaleYSePone(lat, SolEn(Mes()).declinacion) ? "" : "A esa latitud el sol no sale o no se pone en ese mes";
}

Disposicion MarcoRadiacion::TablaDeDatos(Campos& otros) {
    std::vector<Disposicion> celdas{lblLatitud, txtLatitud, lblGrados, cobNS, lblMes, cobMes, Espacio(), Espacio()};
    otros.AgregarA(celdas, 1);
    return Pares(4, std::move(celdas));
}

std::string MarcoRadiacion::RenglonLatitud() const {
    return " Latitud: Lat = " + txtLatitud.Text() + " " + cobNS.Text();
}

std::string MarcoRadiacion::RenglonMes() const { return " Mes de cálculo: Mes = " + cobMes.Text(); }

}  // namespace cuencalia
