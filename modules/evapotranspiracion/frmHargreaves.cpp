#include "modules/evapotranspiracion/frmHargreaves.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "modules/evapotranspiracion/radiacion.h"

namespace cuencalia {

frmHargreaves::frmHargreaves(Aplicacion& app)
    : MarcoRadiacion(app, "frmHargreaves", "Cálculo de la evapotranspiración potencial por el método de Hargreaves"),
      temperaturas(*this, {{"txtTmin", "Tmínima:", "ºC", " Temperatura mínima: Tmin = "},
                           {"txtTmax", "Tmáxima:", "ºC", " Temperatura máxima: Tmax = "}}),
      resultados(
          *this,
          {{{"txtRa", "Radiación extraterrestre:", "mm/día", " Radiación extraterrestre: Ra = "},
            &ResultadoHargreaves::Ra},
           {{"txtETo", "ETo:", "mm/día", " Evapotranspiración de referencia: ETo = "}, &ResultadoHargreaves::ETo},
           {{"txtETc", "Etc:", "mm/día", " Evapotranspiración del cultivo: ETc = "}, &ResultadoHargreaves::ETc}}) {
    DeclararEntradas(temperaturas.Cajas());
    DeclararResultados(resultados.Cajas());
    DeclararLimpieza([this] { InicializarDatosKc(); });
    lblKcTabla.Nombra(txtKcTabla);
    optKcEstimado.Click.Conectar([this] { MostrarFuenteKc(true); });
    optKcTabla.Click.Conectar([this] { MostrarFuenteKc(false); });
    for (const Etapa& etapa : etapas_) {
        etapa.lista.Editable = false;
        etapa.opcion.Click.Conectar([this, &etapa] { MostrarEtapa(etapa); });
        EncadenarEnter({&etapa.lista}, bCalcular);
    }
    TextBox& Tmax = temperaturas.Caja(1);
    EncadenarEnter({&txtLatitud, &cobNS, &cobMes, &temperaturas.Caja(0)}, Tmax);
    AlPulsarEnter(Tmax, [this] {
        if (fraKcTabla.Visible) {
            txtKcTabla.SetFocus();
        } else {
            EtapaElegida().lista.SetFocus();
        }
    });
    EncadenarEnter({&txtKcTabla}, bCalcular);
}

void frmHargreaves::Form_Load() {
    MarcoRadiacion::Form_Load();
    InicializarDatosKc();
}

void frmHargreaves::MostrarFuenteKc(bool estimado) {
    fraEtapaCul.Visible = estimado;
    fraKcEstimado.Visible = estimado;
    fraKcTabla.Visible = !estimado;
}

void frmHargreaves::MostrarEtapa(const Etapa& elegida) {
    for (const Etapa& etapa : etapas_) {
        etapa.lista.Visible = &etapa == &elegida;
        etapa.lista.Text = "";
    }
    lblMensajeKC.Caption = elegida.opcion.Caption();
}

const frmHargreaves::Etapa& frmHargreaves::EtapaElegida() const {
    return OptInicio.Value ? etapas_[0] : OptMediano.Value ? etapas_[1] : etapas_[2];
}

void frmHargreaves::InicializarDatosKc() {
    optKcEstimado.Value = true;
    MostrarFuenteKc(true);
    OptFin.Value = true;
    MostrarEtapa(EtapaElegida());
    txtKcTabla.Text = "";
}

bool frmHargreaves::LeerKc() {
    if (fraKcTabla.Visible) {
        if (!Exigir(txtKcTabla, Ingresar("del coeficiente kc"))) {
            return false;
        }
        Kc = CSng(Val(txtKcTabla.Text()));
        return true;
    }
    const Etapa& elegida = EtapaElegida();
    if (const int posicion = elegida.lista.ListIndex(); posicion >= 0) {
        Kc = KcDeCultivo(elegida.etapa, posicion);
    } else {
        App().MsgBox({"Ingresar dato de Kc del cultivo", kIconoInformacion, "Error"});
        Avisar("Sin cultivo elegido, ETc se calculó con Kc = " + CStr(Kc));
    }
    return true;
}

bool frmHargreaves::Calcular() {
    const std::optional<Double> lat = LeerLatitud();
    if (!lat) {
        return false;
    }
    lat_ = *lat;
    TextBox &min = temperaturas.Caja(0), &max = temperaturas.Caja(1);
    if (!Exigir(min, Ingresar("para la temperatura mínima")) || !Exigir(max, Ingresar("para la temperatura máxima"))) {
        return false;
    }
    const Double Tmin = Val(min.Text()), Tmax = Val(max.Text());
    if (!(Tmin < Tmax)) {
        App().MsgBox({"El valor de la temperatura máxima debe ser mayor que el de la temperatura mínima",
                      kIconoInformacion, "Mensaje de error"});
        max.SetFocus();
        return false;
    }
    if (!LeerKc()) {
        return false;
    }
    const Double Ra = InsolacionDe(lat_, Mes()).Ra;
    const Double ETo = EToHargreaves(Ra, Tmin, Tmax);
    resultados.Mostrar({Ra, ETo, Kc * ETo}, "0.0#");
    return true;
}

std::string frmHargreaves::Consejo(const ErrorEjecucion& /*error*/) const { return ConsejoDelSol(lat_); }

void frmHargreaves::GenerarReporte(Reporte& reporte) {
    reporte.ReporteLinea("Datos: ");
    reporte.ReporteLinea(RenglonLatitud());
    reporte.ReporteLinea(RenglonMes());
    for (const std::size_t i : {0U, 1U}) {
        reporte.ReporteLinea(temperaturas.Renglon(i));
    }
    reporte.ReporteLinea(" Coeficiente del cultivo: Kc = " + CStr(Kc));
    reporte.ReporteLinea(" Resultados:");
    for (const std::size_t i : {0U, 1U, 2U}) {
        reporte.ReporteLinea(resultados.Renglon(i));
    }
}

Disposicion frmHargreaves::Cuerpo() {
    Disposicion kc =
        Grupo(fraKc, {Fila({optKcEstimado, optKcTabla, Espacio()}), Grupo(fraEtapaCul, {OptInicio, OptMediano, OptFin}),
                      Grupo(fraKcEstimado, {lblMensajeKC, cobKcIni, cobKcMed, cobKcFin}),
                      Grupo(fraKcTabla, {Fila({lblKcTabla, txtKcTabla, Espacio()})})});
    return Fila({Columna({Grupo(fraDatos, {TablaDeDatos(temperaturas)}), Espacio()}),
                 Columna({std::move(kc), Espacio()}), Columna({Grupo(fraResultado, {resultados.Tabla()}), Espacio()}),
                 Espacio()});
}

}  // namespace cuencalia
