#include "modules/caudales/fichai.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"
#include "modules/caudales/cuenca.h"

namespace cuencalia {

namespace {

constexpr const char* kPatron = "0.#0";

Aviso Falta(const char* que) { return {std::string("Ingresar un valor adecuado para ") + que, kSinIcono, "Error"}; }

}  // namespace

FichaI::FichaI(ModuloCalculo& modulo, FichaQ& destino)
    : fraDatosI(modulo, "fraDatosI", "Datos:"),
      L(modulo, {"txtLi", "Distancia al punto más alejado (L):", "m"}),
      H(modulo, {"txtHi", "Desnivel (H):", "m"}),
      T(modulo, {"txtTi", "Período de retorno (T):", "años"}),
      fraDuracion(modulo, "fraDuracion", "La duración es conocida ?"),
      optDuracionAdiSi(modulo, "optDuracionAdiSi", "Sí"),
      optDuracionAdiNo(modulo, "optDuracionAdiNo", "No", true),
      txtDuracionAdi(modulo, "txtDuracionAdi", "Duración"),
      lblDuracionAdi(modulo, "lblDuracionAdi", "min"),
      bcalcularI(modulo, "bcalcularI", "Calcular I", "Calcular la intensidad y pasarla al cálculo de Q"),
      fraResultadosI(modulo, "fraResultadosI", "Resultados:"),
      tc(modulo, {"txttci", "Tiempo de concentración ó duración (tc):", "min"}),
      Imax(modulo, {"txtImaxi", "Intensidad máxima (I):", "mm/hr"}),
      modulo_(modulo),
      destino_(destino) {
    txtDuracionAdi.Visible = false;
    lblDuracionAdi.Visible = false;
    for (TextBox* caja : {&L.caja, &H.caja, &T.caja, &txtDuracionAdi}) {
        SoloNumero(*caja);
    }
    EncadenarEnter({&L.caja, &H.caja, &T.caja}, bcalcularI);
    EncadenarEnter({&txtDuracionAdi}, T.caja);
    optDuracionAdiSi.Click.Conectar([this] {
        txtDuracionAdi.Text = "";
        txtDuracionAdi.Visible = true;
        lblDuracionAdi.Visible = true;
        txtDuracionAdi.SetFocus();
    });
    optDuracionAdiNo.Click.Conectar([this] {
        txtDuracionAdi.Visible = false;
        lblDuracionAdi.Visible = false;
    });
}

void FichaI::Entrar() {
    L.caja.SetFocus();
    optDuracionAdiNo.Value = true;
}

void FichaI::Limpiar() {
    optDuracionAdiNo.Value = true;
    L.caja.SetFocus();
}

Double FichaI::CalcularTc() {
    if (!Exigir(L.caja, Falta("la distancia L")) || !Exigir(H.caja, Falta("el desnivel H"))) {
        return 0;
    }
    const Single desnivel = CSng(Val(H.caja.Text()));
    if (desnivel == 0) {
        modulo_.App().MsgBox("El valor para el desnivel H no puede ser 0", kSinIcono, "Error");
        H.caja.SetFocus();
        return 0;
    }
    return TiempoKirpich(CSng(Val(L.caja.Text())), desnivel);
}

std::optional<Double> FichaI::Duracion() {
    if (!optDuracionAdiSi.Value) {
        return CalcularTc();
    }
    if (!Exigir(txtDuracionAdi, Falta("la duración D ó tc"))) {
        return std::nullopt;
    }
    return Val(txtDuracionAdi.Text());
}

Single FichaI::CapturarT() {
    return Exigir(T.caja, Falta("el período de retorno T")) ? CSng(Val(T.caja.Text())) : Single(0);
}

bool FichaI::bcalcularI_Click() {
    Avisar("");
    try {
        const std::optional<Double> duracion = Duracion();
        return duracion && Calcular(CapturarT(), *duracion);
    } catch (const ErrorEjecucion&) {
        Fallar();
        return false;
    }
}

void FichaI::MostrarDuracion(Double duracion) { tc.caja.Text = Format(duracion, kPatron); }

void FichaI::MostrarIntensidad(Double intensidad) {
    Imax.caja.Text = Format(intensidad, kPatron);
    destino_.I.caja.Text = Imax.caja.Text();
}

Disposicion FichaI::Pasos() {
    Disposicion duracion =
        Columna({Grupo(fraDuracion, {Fila({optDuracionAdiSi, txtDuracionAdi, lblDuracionAdi}), optDuracionAdiNo}),
                 Fila({bcalcularI, Espacio()})});
    return Fila({Grupo(fraDatosI, {EnColumna({&L, &H, &T})}), std::move(duracion),
                 Columna({Grupo(fraResultadosI, {EnColumna({&tc, &Imax})}), Espacio()}), Espacio()});
}

}  // namespace cuencalia
